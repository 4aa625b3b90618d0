#include "sample_cache.h"

namespace mur::bench {
namespace {

template <class Sample, class Fill>
Sample& Cached(int CountA, Fill&& FillA) {
  static int size = 0;
  static std::unique_ptr<Sample> sample;
  if (size != CountA) {
    sample = nullptr;
    sample = std::make_unique<Sample>();
    sample->Add(CountA);
    FillA(*sample);
    size = CountA;
  }
  return *sample;
}

}  // namespace

TimelineSample& FilledTimeline(int CountA) {
  return Cached<TimelineSample>(CountA, [](TimelineSample& sample) {
    sample.SpreadInTime();
    sample.Show(sample.Length());
  });
}

SceneSample& FilledScene(int CountA) {
  return Cached<SceneSample>(
      CountA, [CountA](SceneSample& sample) { sample.Place(ItemStart(CountA) + kItemStepSeconds); });
}

}  // namespace mur::bench
