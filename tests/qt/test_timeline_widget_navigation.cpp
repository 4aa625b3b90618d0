#include <QSignalSpy>
#include <QTest>
#include <QWheelEvent>
#include <cmath>
#include <limits>

#include <gmock/gmock.h>

#include <murtimeline/render/visible_range.h>

#include "tests/qt/companion_windows.h"
#include "tests/qt/sample_timeline.h"
#include "tests/support/print.h"

namespace mur::qt {
namespace {

using test::CanvasOf;
using test::SampleTimeline;
using test::ScaleOf;

class Navigating : public testing::Test {
 protected:
  Navigating() {
    widget.resize(600, 400);
    widget.setNavigationEnabled(true);
    start = Range();
  }

  // Asked through the control, so the widget is laid out.
  VisibleRange Range() const { return {widget.control()->WorldTimeT0(), widget.control()->Duration()}; }

  static void Wheel(QWidget& WindowA, double XA, QPoint TurnedA,
                    Qt::KeyboardModifiers ModifiersA = Qt::ControlModifier) {
    const QPointF at(XA, 20);
    QWheelEvent event(at, WindowA.mapToGlobal(at), {}, TurnedA, Qt::NoButton, ModifiersA, Qt::NoScrollPhase,
                      false);
    QCoreApplication::sendEvent(&WindowA, &event);
  }

  TimelineWidget widget;
  SampleTimeline sample{widget};
  VisibleRange start;
};

TEST_F(Navigating, ZoomingKeepsTheTimeAtThePoint) {
  const Date before = widget.timeAt(150);
  widget.zoomAt(4, 150);
  EXPECT_EQ(widget.duration(), 150);
  EXPECT_NEAR((widget.timeAt(150).Days() - before.Days()) * kSecondsPerDay, 0, 1e-5);
}

TEST_F(Navigating, ZoomingInAndOutReturnsToTheLastBit) {
  for (const double x : {0.0, 17.0, 301.5, 600.0}) widget.zoomAt(1.7, x);
  EXPECT_NE(Range(), start);
  for (const double x : {600.0, 301.5, 17.0, 0.0}) widget.zoomAt(1 / 1.7, x);
  EXPECT_EQ(Range(), start);
}

TEST_F(Navigating, TheWheelWithCtrlZoomsAtThePointerAndBack) {
  const Date pointed = widget.timeAt(123);
  for (int notch = 0; notch < 9; ++notch) Wheel(CanvasOf(widget), 123, {0, 120});
  EXPECT_NEAR(widget.duration(), 600 / 8.0, 1e-9);  // a notch is a third of a doubling
  EXPECT_NEAR(widget.xOf(pointed), 123, 1e-2);
  for (int notch = 0; notch < 9; ++notch) Wheel(CanvasOf(widget), 123, {0, -120});
  EXPECT_EQ(Range(), start);
}

TEST_F(Navigating, FineWheelsAddUpToSteps) {
  for (int part = 0; part < 8; ++part) Wheel(ScaleOf(widget), 10, {0, 15});
  const VisibleRange inParts = Range();
  for (int part = 0; part < 40; ++part) Wheel(ScaleOf(widget), 10, {0, -3});
  EXPECT_EQ(Range(), start);
  Wheel(ScaleOf(widget), 10, {0, 120});
  EXPECT_EQ(Range(), inParts);
}

TEST_F(Navigating, TheWheelPansWithShiftOrSidewise) {
  Wheel(CanvasOf(widget), 10, {0, -120}, Qt::ShiftModifier);
  EXPECT_EQ(Range(), start.MovedBy(60));
  Wheel(CanvasOf(widget), 10, {-120, 0});
  EXPECT_EQ(Range(), start.MovedBy(60).MovedBy(60));
}

TEST_F(Navigating, DraggingTheBackgroundPansAndReturns) {
  QWidget& canvas = CanvasOf(widget);
  QTest::mousePress(&canvas, Qt::LeftButton, {}, {400, 350});
  QTest::mouseMove(&canvas, {300, 340});
  EXPECT_EQ(Range(), start.MovedBy(100));
  QTest::mouseMove(&canvas, {417, 340});
  QTest::mouseMove(&canvas, {400, 340});
  EXPECT_EQ(Range(), start);
  QTest::mouseRelease(&canvas, Qt::LeftButton, {}, {400, 340});
  QTest::mouseMove(&canvas, {100, 340});
  EXPECT_EQ(Range(), start);
}

TEST_F(Navigating, DraggingABarPansNothing) {
  QWidget& canvas = CanvasOf(widget);
  QTest::mousePress(&canvas, Qt::LeftButton, {}, {100, 10});
  QTest::mouseMove(&canvas, {50, 10});
  QTest::mouseRelease(&canvas, Qt::LeftButton, {}, {50, 10});
  EXPECT_EQ(Range(), start);
}

TEST_F(Navigating, ThePointerDoesNothingWhileNavigationIsOff) {
  widget.setNavigationEnabled(false);
  QWidget& canvas = CanvasOf(widget);
  Wheel(canvas, 10, {0, 120});
  QTest::mousePress(&canvas, Qt::LeftButton, {}, {400, 350});
  QTest::mouseMove(&canvas, {300, 340});
  EXPECT_EQ(Range(), start);
}

TEST_F(Navigating, FittingShowsAllMembersWithAir) {
  widget.control()->SetWorldTimeT0(Date::Unchecked(1));
  widget.control()->SetDuration(1);
  EXPECT_TRUE(widget.fit());
  EXPECT_NEAR(widget.xOf(SampleTimeline::At(0)), 600 * 0.02 / 1.04, 1e-3);
  EXPECT_NEAR(widget.xOf(SampleTimeline::At(600)), 600 * 1.02 / 1.04, 1e-3);
}

TEST_F(Navigating, AnEmptyTimeLineFitsNothing) {
  sample.timeline->Clear();
  const VisibleRange before = Range();
  EXPECT_FALSE(widget.fit());
  EXPECT_EQ(Range(), before);
  widget.setTimeline({});
  EXPECT_FALSE(widget.fit());
}

TEST_F(Navigating, FittingPassesOverAbsurdMembersAndTurnsNegativeOnes) {
  sample.timeline->Clear();
  const auto add = [this](double days, double seconds) {
    const auto object = sample.timeline->Add(murtlotScalar);
    object->SetWorldTimeT0(Date::Unchecked(days));
    object->SetDuration(seconds);
  };
  add(2, -86400);
  add(1.5, std::numeric_limits<double>::quiet_NaN());
  EXPECT_TRUE(widget.fit());
  EXPECT_NEAR(widget.timeAt(0).Days(), 0.98, 1e-9);
  EXPECT_NEAR(widget.duration(), 86400 * 1.04, 1e-6);
}

TEST_F(Navigating, AMoveIsSignalledOnceWithTheRangeComplete) {
  std::vector<VisibleRange> heard;
  QObject::connect(&widget, &TimelineWidget::visibleRangeChanged, [&] { heard.push_back(Range()); });
  widget.zoomAt(2, 600);
  EXPECT_EQ(heard, std::vector<VisibleRange>{Range()});
  widget.zoomAt(1, 600);
  widget.pan(std::numeric_limits<double>::quiet_NaN());
  EXPECT_EQ(heard.size(), 1U);
}

TEST_F(Navigating, PanningStopsAtTheEndOfTime) {
  widget.pan(1e300);
  EXPECT_EQ(widget.control()->WorldTimeT0(), Date::Unchecked(Date::kHighestDays));
  widget.pan(-1e300);
  EXPECT_EQ(widget.control()->WorldTimeT0(), Date::Unchecked(Date::kLowestDays));
}

TEST_F(Navigating, AbsurdRangesCanBeLeft) {
  for (const double absurd : {0.0, -1.0, std::numeric_limits<double>::quiet_NaN()}) {
    widget.control()->SetDuration(absurd);
    widget.zoomAt(2, 300);
    EXPECT_EQ(widget.duration(), 1800) << absurd;
  }
}

TEST_F(Navigating, PixelsAndTimesBelongTogether) {
  EXPECT_EQ(widget.timeAt(0), start.start);
  EXPECT_NEAR(widget.xOf(SampleTimeline::At(300)), 300, 1e-4);
  EXPECT_EQ(widget.dateTimeAt(300), QDateTime(QDate(2023, 3, 15), QTime(12, 5)));
  EXPECT_NEAR(widget.xOfDateTime(QDateTime(QDate(2023, 3, 15), QTime(12, 5))), 300, 1e-4);
}

TEST_F(Navigating, PixelsAndTimesAgreeWithTheBars) {
  const auto bar = widget.control()->Collaborators().canvas->Graphic(u"Chase");
  EXPECT_NEAR(widget.xOf(SampleTimeline::At(250)), bar->Left(), 1e-3);
}

TEST(Navigation, WorksBeforeATimeLineIsAttached) {
  TimelineWidget widget;
  widget.resize(600, 100);
  widget.control()->SetWorldTimeT0(Date::Unchecked(10));
  widget.control()->SetDuration(86400);
  widget.zoomAt(2, 300);
  EXPECT_EQ(widget.control()->WorldTimeT0(), Date::Unchecked(10.25));
}

}  // namespace
}  // namespace mur::qt
