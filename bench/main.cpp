#include <QApplication>

#include "growth_reporter.h"
#include "sample_cache.h"

// Sizes and repetitions can be narrowed with the options of Google Benchmark, for example
// --benchmark_filter=repaint.
int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication application(argc, argv);
  benchmark::Initialize(&argc, argv);
  mur::bench::GrowthReporter reporter;
  benchmark::RunSpecifiedBenchmarks(&reporter);
  mur::bench::ReleaseSamples();
  return 0;
}
