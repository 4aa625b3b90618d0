#include <random>
#include <vector>

#include "measure.h"
#include "sample_cache.h"

namespace mur::bench {
namespace {

constexpr int kSteps = 200;
constexpr int kHits = 100'000;

// All of the time line over the width of the picture, and the index of its bars made.
TimelineSample& Settled(int CountA) {
  TimelineSample& sample = FilledTimeline(CountA);
  sample.Show(sample.Length());
  sample.canvas->ItemAt({});
  return sample;
}

PointerInput At(PointF PointA) {
  return {PointA, kLeftButton, 0};
}

PointF MiddleOf(const RectF& BoxA) {
  return {BoxA.left + BoxA.width / 2, BoxA.top + BoxA.height / 2};
}

// A bar that lies on top of the others at its middle, so that the pointer takes it up.
PointF PlaceOfBar(const TimelineSample& SampleA) {
  const auto& scalars = SampleA.scalars;
  for (std::size_t i = scalars.size() / 2; i < scalars.size(); ++i) {
    const Ref<ICanvasItem> item = SampleA.canvas->GraphicByKey(scalars[i]->Key());
    const PointF middle = MiddleOf(SampleA.canvas->PixelBounds(*item));
    if (SampleA.canvas->ItemAt(middle) == item) return middle;
  }
  return {};
}

// One press, many steps to and fro, one release. The first step, which looks at every object when bars are
// highlighted, is taken before, and what it costs is measured on its own.
void Drag(benchmark::State& StateA, TimelineSample& SampleA, PointF FromA, bool IsFirstStepA) {
  const auto move = [&](int step) {
    SampleA.canvas->PointerMoved(At({FromA.x + static_cast<float>(step % 10), FromA.y}));
  };
  for (auto _ : StateA) {
    // What another hand colours makes the next step look at all objects.
    SampleA.canvas->GraphicByKey(SampleA.tracks[0]->Key())->SetBackColor(0);
    SampleA.canvas->PointerPressed(At(FromA));
    if (IsFirstStepA) {
      Measure(StateA, 1, [&] { move(1); });
    } else {
      move(1);
      Measure(StateA, kSteps, [&] {
        for (int step = 2; step < kSteps + 2; ++step) move(step);
      });
    }
    SampleA.canvas->PointerReleased(At(FromA));
    SampleA.control->CancelDrag();
  }
}

void DragBar(benchmark::State& StateA, bool HighlightA, bool IsFirstStepA) {
  TimelineSample& sample = Settled(static_cast<int>(StateA.range(0)));
  sample.control->SetAllowObjectDragging(true);
  sample.control->SetAutoHighlightObjects(HighlightA);
  Drag(StateA, sample, PlaceOfBar(sample), IsFirstStepA);
  sample.control->SetAutoHighlightObjects(true);
  sample.control->SetAllowObjectDragging(false);
}

void DragCursor(benchmark::State& StateA) {
  TimelineSample& sample = Settled(static_cast<int>(StateA.range(0)));
  sample.control->SetCursorTime(
      Date::Unchecked(sample.control->WorldTimeT0().Days() + sample.Length() / 2 / kSecondsPerDay));
  sample.control->SetAllowObjectDragging(true);
  Drag(StateA, sample, {kPictureWidth / 2, 4}, false);
  sample.control->SetAllowObjectDragging(false);
}

// Points that no processor can foresee.
std::vector<PointF> RandomPoints(float TopA, float BottomA) {
  std::mt19937 random(7);
  std::uniform_real_distribution<float> x(0, kPictureWidth), y(TopA, BottomA);
  std::vector<PointF> points(kHits);
  for (PointF& point : points) point = {x(random), y(random)};
  return points;
}

void Hit(benchmark::State& StateA, const TimelineSample& SampleA, const std::vector<PointF>& PointsA) {
  for (auto _ : StateA)
    Measure(StateA, kHits, [&] {
      for (const PointF& point : PointsA) benchmark::DoNotOptimize(SampleA.canvas->ItemAt(point));
    });
}

constexpr float kBarsBottom = kPictureHeight * 0.85F;  // all tracks end above it

void HitBars(benchmark::State& StateA) {
  Hit(StateA, Settled(static_cast<int>(StateA.range(0))), RandomPoints(0, kBarsBottom));
}

// A few seconds fill the picture: each bar is as wide as hundreds of pixels.
void HitWideBars(benchmark::State& StateA) {
  TimelineSample& sample = Settled(static_cast<int>(StateA.range(0)));
  sample.Show(10);
  sample.canvas->ItemAt({});
  Hit(StateA, sample, RandomPoints(0, kBarsBottom));
}

void HitAfterADrag(benchmark::State& StateA) {
  TimelineSample& sample = Settled(static_cast<int>(StateA.range(0)));
  for (std::size_t i = 0; i < 30; ++i) {
    const Ref<ICanvasItem> item = sample.canvas->GraphicByKey(sample.scalars[i]->Key());
    item->Move(item->Left() + 1);
  }
  Hit(StateA, sample, RandomPoints(0, kBarsBottom));
}

void HitBackground(benchmark::State& StateA) {
  Hit(StateA, Settled(static_cast<int>(StateA.range(0))), RandomPoints(kBarsBottom, kPictureHeight));
}

// What a click costs that selects another bar.
void Select(benchmark::State& StateA) {
  TimelineSample& sample = Settled(static_cast<int>(StateA.range(0)));
  sample.control->SetAutoSelectMode(etlcltLeftClick);
  const PointF at = PlaceOfBar(sample);
  for (auto _ : StateA)
    Measure(StateA, 1, [&] {
      sample.canvas->PointerPressed(At(at));
      sample.canvas->PointerReleased(At(at));
    });
  sample.control->SetAutoSelectMode(etlcltNoClicks);
}

BENCHMARK_CAPTURE(DragBar, "off", false, false)->Name("drag a bar one step, highlighting off")->Apply(Sizes);
BENCHMARK_CAPTURE(DragBar, "on", true, false)->Name("drag a bar one step, highlighting on")->Apply(Sizes);
BENCHMARK_CAPTURE(DragBar, "first", true, true)
    ->Name("the first step, which looks at all objects")
    ->Apply(Sizes);
BENCHMARK(DragCursor)->Name("drag the cursor one step, highlighting on")->Apply(Sizes);
BENCHMARK(Select)->Name("select a bar by a click")->Apply(Sizes);
BENCHMARK(HitBars)->Name("hit test among bars")->Apply(Sizes);
BENCHMARK(HitWideBars)->Name("hit test among wide bars")->Apply(Sizes);
BENCHMARK(HitAfterADrag)->Name("hit test with items that moved of late")->Apply(Sizes);
BENCHMARK(HitBackground)->Name("hit test on the background")->Apply(Sizes);

}  // namespace
}  // namespace mur::bench
