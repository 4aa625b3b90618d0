#include "growth_reporter.h"

#include <algorithm>
#include <cstdio>

namespace mur::bench {
namespace {

constexpr const char* kSceneMark = " [scene]";

std::string TimeText(double SecondsA) {
  char text[32];
  if (SecondsA < 1e-6)
    std::snprintf(text, sizeof text, "%.1f ns", SecondsA * 1e9);
  else if (SecondsA < 1e-3)
    std::snprintf(text, sizeof text, "%.2f us", SecondsA * 1e6);
  else
    std::snprintf(text, sizeof text, "%.2f ms", SecondsA * 1e3);
  return text;
}

}  // namespace

double GrowthReporter::Figures::Median() const {
  std::vector<double> sorted = secondsPerUnit;
  std::sort(sorted.begin(), sorted.end());
  return sorted[sorted.size() / 2];
}

bool GrowthReporter::ReportContext(const Context&) {
  std::printf("Cost of one unit of work, and in brackets its growth from a tenth of N.\n");
  return true;
}

void GrowthReporter::ReportRuns(const std::vector<Run>& RunsA) {
  for (const Run& run : RunsA) {
    if (run.run_type != Run::RT_Iteration) continue;
    const std::string full = run.run_name.function_name;
    const long long size = std::stoll(run.run_name.args);
    if (!mFigures.contains(full)) mOrder.push_back(full);
    Figures& figures = mFigures[full][size];
    figures.units = run.counters.at("units").value;
    figures.secondsPerUnit.push_back(run.real_accumulated_time / static_cast<double>(run.iterations) /
                                     figures.units);
    if (const auto bytes = run.counters.find("bytes"); bytes != run.counters.end())
      figures.bytesPerUnit = bytes->second.value / figures.units;
    std::fprintf(stderr, "  %s N=%lld %s\n", full.c_str(), size,
                 TimeText(figures.secondsPerUnit.back()).c_str());
  }
}

void GrowthReporter::PrintRow(const std::string& NameA, const BySize& FiguresA) {
  std::printf("%-46s", NameA.c_str());
  double before = 0;
  for (const auto& [size, figures] : FiguresA) {
    std::printf("  N=%-8lld %10s", size, TimeText(figures.Median()).c_str());
    // Growth is that of the whole work: units grow with N where N is the work.
    if (before > 0) std::printf(" (x%.2f)", figures.Median() * figures.units / before);
    before = figures.Median() * figures.units;
  }
  for (const auto& [size, figures] : FiguresA)
    if (figures.bytesPerUnit > 0) std::printf("  %.0f bytes at N=%lld", figures.bytesPerUnit, size);
  std::printf("\n");
}

void GrowthReporter::PrintRatios(const std::string& NameA, const BySize& OursA, const BySize& SceneA) {
  std::printf("%-46s", ("  times faster than the scene: " + NameA).c_str());
  for (const auto& [size, figures] : OursA)
    if (const auto scene = SceneA.find(size); scene != SceneA.end())
      std::printf("  N=%-8lld %9.1fx", size, scene->second.Median() / figures.Median());
  std::printf("\n");
}

void GrowthReporter::Finalize() {
  for (const std::string& name : mOrder) {
    if (name.ends_with(kSceneMark)) continue;  // printed beside its partner
    PrintRow(name, mFigures[name]);
    const auto scene = mFigures.find(name + kSceneMark);
    if (scene == mFigures.end()) continue;
    PrintRow(scene->first, scene->second);
    PrintRatios(name, mFigures[name], scene->second);
  }
}

}  // namespace mur::bench
