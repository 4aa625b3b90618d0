#include <QImage>
#include <QPainter>

#include <murtimeline/qt/painter_surface.h>

#include "measure.h"
#include "sample_cache.h"

namespace mur::bench {
namespace {

constexpr int kVisibleBars = 2'000;
// What shows so many bars, of all tracks together.
constexpr double kSecondsOfVisibleBars = kVisibleBars / kTracks * kItemStepSeconds;

class Picture {
 public:
  void Paint(TimelineSample& SampleA) {
    QPainter painter(&mImage);
    qt::PainterSurface surface(painter, mMeasures);
    SampleA.canvas->Paint(surface, {0, 0, kPictureWidth, kPictureHeight});
  }
  void Paint(SceneSample& SampleA) {
    QPainter painter(&mImage);
    painter.fillRect(mImage.rect(), Qt::darkGray);
    SampleA.Paint(painter);
  }

 private:
  QImage mImage{kPictureWidth, kPictureHeight, QImage::Format_RGB32};
  qt::TextMeasures mMeasures{QFont()};
};

// Paints once before, so that what is measured is one frame and nothing left over.
template <class Sample>
void MeasureFrame(benchmark::State& StateA, Sample& SampleA) {
  Picture picture;
  picture.Paint(SampleA);
  for (auto _ : StateA) Measure(StateA, 1, [&] { picture.Paint(SampleA); });
}

void PlaceAndSettle(SceneSample& SampleA, double SecondsA) {
  SampleA.Place(SecondsA);
  SampleA.Settle();
}

void FrameWithSomeVisible(benchmark::State& StateA) {
  TimelineSample& sample = FilledTimeline(static_cast<int>(StateA.range(0)));
  sample.Show(kSecondsOfVisibleBars);
  MeasureFrame(StateA, sample);
}

void SceneFrameWithSomeVisible(benchmark::State& StateA) {
  SceneSample& sample = FilledScene(static_cast<int>(StateA.range(0)));
  PlaceAndSettle(sample, kSecondsOfVisibleBars);
  MeasureFrame(StateA, sample);
}

void FrameWithAllVisible(benchmark::State& StateA) {
  TimelineSample& sample = FilledTimeline(static_cast<int>(StateA.range(0)));
  sample.Show(sample.Length());
  MeasureFrame(StateA, sample);
}

void SceneFrameWithAllVisible(benchmark::State& StateA) {
  const int count = static_cast<int>(StateA.range(0));
  SceneSample& sample = FilledScene(count);
  PlaceAndSettle(sample, ItemStart(count) + kItemStepSeconds);
  MeasureFrame(StateA, sample);
}

// Each time over another range, so that every bar really moves.
void FullRepaint(benchmark::State& StateA) {
  TimelineSample& sample = FilledTimeline(static_cast<int>(StateA.range(0)));
  Picture picture;
  sample.Show(kSecondsOfVisibleBars);
  picture.Paint(sample);
  double seconds = kSecondsOfVisibleBars;
  for (auto _ : StateA)
    Measure(StateA, 1, [&] {
      sample.control->SetDuration(seconds += 1);
      picture.Paint(sample);
    });
}

// Without a rest between: the items are no longer in the index and need not leave it.
void SceneReplacingAgain(benchmark::State& StateA) {
  SceneSample& sample = FilledScene(static_cast<int>(StateA.range(0)));
  Picture picture;
  double seconds = kSecondsOfVisibleBars;
  for (auto _ : StateA)
    Measure(StateA, 1, [&] {
      sample.Place(seconds += 1);
      sample.Settle();
      picture.Paint(sample);
    });
}

// Re-placing alone, without the following frame. The scene was at rest: its items are in its index, which
// they have to leave.
void SceneReplacing(benchmark::State& StateA) {
  const int count = static_cast<int>(StateA.range(0));
  for (auto _ : StateA) {
    SceneSample sample;
    sample.Add(count);
    sample.Place(ItemStart(count));
    sample.Settle();
    Picture().Paint(sample);
    Measure(StateA, 1, [&] { sample.Place(kSecondsOfVisibleBars); });
  }
}

BENCHMARK(FullRepaint)->Name("full repaint and the following frame")->Apply(Sizes);
BENCHMARK(SceneReplacing)->Name("full repaint and the following frame [scene]")->Apply(Sizes);
BENCHMARK(SceneReplacingAgain)->Name("the scene re-placed again and again, with frame")->Apply(Sizes);
BENCHMARK(FrameWithSomeVisible)->Name("frame with 2,000 bars visible")->Apply(Sizes);
BENCHMARK(SceneFrameWithSomeVisible)->Name("frame with 2,000 bars visible [scene]")->Apply(Sizes);
BENCHMARK(FrameWithAllVisible)->Name("frame with all bars visible")->Apply(Sizes);
BENCHMARK(SceneFrameWithAllVisible)->Name("frame with all bars visible [scene]")->Apply(Sizes);

}  // namespace
}  // namespace mur::bench
