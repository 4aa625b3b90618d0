#include "sample_cache.h"

namespace mur::bench {
namespace {

template <class Sample>
struct Cache {
  template <class Fill>
  Sample& Get(int CountA, Fill&& FillA) {
    if (size == CountA) return *sample;
    sample = nullptr;
    sample = std::make_unique<Sample>();
    sample->Add(CountA);
    FillA(*sample);
    size = CountA;
    return *sample;
  }
  void Release() {
    sample = nullptr;
    size = 0;
  }

  std::unique_ptr<Sample> sample;
  int size = 0;
};

Cache<TimelineSample> gTimeline;
Cache<SceneSample> gScene;

}  // namespace

TimelineSample& FilledTimeline(int CountA) {
  return gTimeline.Get(CountA, [](TimelineSample& sample) {
    sample.SpreadInTime();
    sample.Show(sample.Length());
  });
}

SceneSample& FilledScene(int CountA) {
  return gScene.Get(CountA, [CountA](SceneSample& sample) {
    sample.Place(ItemStart(CountA) + kItemStepSeconds);
    sample.Settle();
  });
}

void ReleaseSamples() {
  gTimeline.Release();
  gScene.Release();
}

}  // namespace mur::bench
