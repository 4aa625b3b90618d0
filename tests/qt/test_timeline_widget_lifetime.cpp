#include <QPointer>
#include <QTest>
#include <QWheelEvent>
#include <memory>

#include <gmock/gmock.h>

#include "tests/qt/companion_windows.h"
#include "tests/qt/sample_timeline.h"

namespace mur::qt {
namespace {

using test::CanvasOf;
using test::SampleTimeline;

void TurnWheel(QWidget& WindowA) {
  const QPointF at(100, 20);
  QWheelEvent event(at, at, {}, {0, 120}, Qt::NoButton, Qt::ControlModifier, Qt::NoScrollPhase, false);
  QCoreApplication::sendEvent(&WindowA, &event);
}

TEST(Lifetime, TheTimeLineGoesOnWithoutItsWidget) {
  auto widget = std::make_unique<TimelineWidget>();
  const SampleTimeline sample(*widget);
  widget.reset();
  sample.timeline->Add(murtlotScalar, u"late")->SetDuration(5);
  sample.timeline->Clear();
  EXPECT_EQ(sample.timeline->Count(), 0);
}

TEST(Lifetime, TheWidgetGoesOnWithoutItsTimeLinesOwner) {
  TimelineWidget widget;
  { const SampleTimeline sample(widget); }
  EXPECT_EQ(widget.timeline()->Count(), 0);
  widget.setDuration(5);
  EXPECT_FALSE(widget.renderToImage({100, 100}).isNull());
}

TEST(Lifetime, TheControlOutlivesItsWidget) {
  auto widget = std::make_unique<TimelineWidget>();
  const SampleTimeline sample(*widget);
  const Ref<MURTimelineRender> control = widget->control();
  widget.reset();
  control->SetTimeScaleHeight(300);
  control->SetBarHeight(12);
  control->SetCursorTime(SampleTimeline::At(1));
  sample.timeline->Add(murtlotScalar, u"late")->SetDuration(5);
  EXPECT_EQ(control->Collaborators().canvas->Graphic(u"late")->Height(), 12);
}

TEST(Lifetime, TheTimeLineMayBeClearedInsideAHandler) {
  TimelineWidget widget;
  const SampleTimeline sample(widget);
  bool cleared = false;
  QObject::connect(&widget, &TimelineWidget::cursorTimeChange, [&] {
    if (!std::exchange(cleared, true)) sample.timeline->Clear();
  });
  widget.control()->SetBarHeight(20);
  EXPECT_EQ(widget.control()->Collaborators().canvas->GraphicCount(), 1U);
}

TEST(Lifetime, TheTimeLineMayBeReplacedInsideAHandler) {
  TimelineWidget widget;
  const SampleTimeline sample(widget);
  QObject::connect(&widget, &TimelineWidget::visibleRangeChanged, [&] { widget.setTimeline({}); });
  widget.setDuration(5);
  widget.zoomAt(2, 10);
  EXPECT_FALSE(widget.timeline());
}

// Every way into the widget from which a signal can come.
using Step = std::function<void(TimelineWidget&)>;
const Step kSteps[] = {[](TimelineWidget& widget) { widget.setDuration(5); },
                       [](TimelineWidget& widget) { widget.control()->SetWorldTimeT0(Date()); },
                       [](TimelineWidget& widget) { widget.control()->SetCursorTime(Date()); },
                       [](TimelineWidget& widget) { widget.setBarHeight(5); },
                       [](TimelineWidget& widget) { widget.setTimeScaleHeight(5); },
                       [](TimelineWidget& widget) { widget.showMembers(); },
                       [](TimelineWidget& widget) { widget.zoomAt(2, 5); },
                       [](TimelineWidget& widget) { widget.pan(5); },
                       [](TimelineWidget& widget) { widget.fit(); },
                       [](TimelineWidget& widget) {
                         widget.renderToImage({1000, 100});
                       },
                       [](TimelineWidget& widget) { widget.timeline()->SetDuration(5); },
                       [](TimelineWidget& widget) { widget.timeline()->Clear(); }};

TEST(Lifetime, TheWidgetMayBeDeletedByAHandlerOfWhateverTheHostCalled) {
  for (const Step& step : kSteps)
    for (const bool byCursor : {true, false}) {
      QPointer<TimelineWidget> widget = new TimelineWidget;
      const SampleTimeline sample(*widget);
      const auto deleteIt = [widget] { delete widget; };
      if (byCursor) {
        QObject::connect(widget, &TimelineWidget::cursorTimeChange, deleteIt);
      } else {
        QObject::connect(widget, &TimelineWidget::visibleRangeChanged, deleteIt);
      }
      step(*widget);
      delete widget;
    }
}

TEST(Lifetime, TheWidgetMayBeDeletedLaterByAHandlerInAnEventOfQts) {
  QPointer<TimelineWidget> widget = new TimelineWidget;
  const SampleTimeline sample(*widget);
  widget->setNavigationEnabled(true);
  widget->show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(widget));
  QObject::connect(widget, &TimelineWidget::cursorTimeChange, widget, &QObject::deleteLater);
  TurnWheel(CanvasOf(*widget));
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_FALSE(widget);
}

TEST(Lifetime, TheWidgetMayBeDeletedByAHandlerOfTheWheel) {
  QPointer<TimelineWidget> widget = new TimelineWidget;
  const SampleTimeline sample(*widget);
  widget->setNavigationEnabled(true);
  QObject::connect(widget, &TimelineWidget::visibleRangeChanged, [widget] { delete widget; });
  TurnWheel(CanvasOf(*widget));
  EXPECT_FALSE(widget);
}

TEST(Lifetime, TwoWidgetsShowOneTimeLine) {
  auto first = std::make_unique<TimelineWidget>();
  TimelineWidget second;
  const SampleTimeline sample(*first);
  second.setTimeline(sample.timeline.Get());
  second.showMembers();
  first.reset();
  sample.timeline->Add(murtlotScalar, u"late");
  EXPECT_EQ(second.control()->Collaborators().canvas->GraphicCount(),
            static_cast<std::size_t>(sample.timeline->Count()) + 1);
}

}  // namespace
}  // namespace mur::qt
