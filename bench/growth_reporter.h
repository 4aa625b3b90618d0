#pragma once

#include <map>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>

namespace mur::bench {

/// Collects the median time of each benchmark "name/N" and prints, one line a name, the cost for one unit of
/// work at each N, how much it grew from a tenth of N, and (for a pair "name" and "name [scene]") how many
/// times faster the first one is.
///
/// A benchmark sets its manual time to that of the whole work and the counter "units" to the number of units
/// in it; a counter "bytes" is printed as the memory of one unit.
class GrowthReporter final : public benchmark::BenchmarkReporter {
 public:
  bool ReportContext(const Context& ContextA) override;
  void ReportRuns(const std::vector<Run>& RunsA) override;
  void Finalize() override;

 private:
  struct Figures {
    std::vector<double> secondsPerUnit;
    double bytesPerUnit = 0;
    double units = 0;
    double Median() const;
  };
  using BySize = std::map<long long, Figures>;

  static void PrintRow(const std::string& NameA, const BySize& FiguresA);
  static void PrintRatios(const std::string& NameA, const BySize& OursA, const BySize& SceneA);

  std::vector<std::string> mOrder;
  std::map<std::string, BySize> mFigures;
};

}  // namespace mur::bench
