#include <QGuiApplication>
#include <QScrollBar>
#include <QStyleHints>

#include "tests/qt/pointer_test.h"

namespace mur::qt {
namespace {

using test::PointerTest;
using test::SampleTimeline;

class Touching : public PointerTest {
 protected:
  Touching() { widget.setNavigationEnabled(true); }
  auto Fingers() { return QTest::touchEvent(&Canvas(), Screen()); }
  static QPointingDevice* Screen() {
    static QPointingDevice* screen = QTest::createTouchDevice();
    return screen;
  }
  void Tap(QPoint AtA) {
    Fingers().press(0, AtA, &Canvas());
    Fingers().release(0, AtA, &Canvas());
  }
  std::string held;
  double StartOf(const char16_t* KeyA) const {
    return (sample.timeline->Item(KeyA)->WorldTimeT0().Days() - SampleTimeline::kDays) * kSecondsPerDay;
  }
};

TEST_F(Touching, ATapIsAClick) {
  Tap(kTake1);
  EXPECT_EQ(log.Take(),
            "tlObjectMouseDown(Take 1, 1, 0, 20, 11); tlObjectMouseUp(Take 1, 1, 0, 20, 11); "
            "tlObjectClick(Take 1)");
}

TEST_F(Touching, TwoTapsAreADoubleClick) {
  Tap(kBackground);
  Tap(kBackground);
  EXPECT_EQ(log.Take(),
            "mouseDown(1, 0, 245, 90); mouseUp(1, 0, 245, 90); click; "
            "mouseDown(1, 0, 245, 90); mouseUp(1, 0, 245, 90); dblClick");
}

TEST_F(Touching, AFingerDragsABarThatMayBeDragged) {
  widget.setAllowObjectDragging(true);
  Fingers().press(0, kTake1, &Canvas());
  Fingers().move(0, kTake1 + QPoint(30, 0), &Canvas());
  Fingers().move(0, kTake1 + QPoint(50, 0), &Canvas());
  Fingers().release(0, kTake1 + QPoint(50, 0), &Canvas());
  EXPECT_NEAR(StartOf(u"Take 1"), 50, 1e-4);
  EXPECT_EQ(widget.control()->WorldTimeT0(), SampleTimeline::At(0));
}

TEST_F(Touching, AFingerPansFromABarThatMayNot) {
  Fingers().press(0, kTake1, &Canvas());
  Fingers().move(0, kTake1 + QPoint(30, 0), &Canvas());
  EXPECT_EQ(widget.control()->WorldTimeT0(), SampleTimeline::At(-30));
  Fingers().release(0, kTake1 + QPoint(30, 0), &Canvas());
  EXPECT_EQ(StartOf(u"Take 1"), 0);
  EXPECT_EQ(log.Take(), "");
}

TEST_F(Touching, AFingerMovesTheRowsToo) {
  widget.resize(600, 200);
  QCoreApplication::processEvents();
  QCoreApplication::processEvents();
  Fingers().press(0, {245, 90}, &Canvas());
  Fingers().move(0, {245, 60}, &Canvas());
  Fingers().release(0, {245, 60}, &Canvas());
  EXPECT_EQ(Canvas().findChild<QScrollBar*>()->value(), 30);
}

TEST_F(Touching, AFingerHeldDownClicksWithTheRightButton) {
  QGuiApplication::styleHints()->setMousePressAndHoldInterval(20);
  Fingers().press(0, kTake1, &Canvas());
  EXPECT_TRUE(QTest::qWaitFor([this] { return widget.isVisible() && !(held = log.Take()).empty(); }));
  EXPECT_EQ(held,
            "tlObjectMouseDown(Take 1, 2, 0, 20, 11); tlObjectMouseUp(Take 1, 2, 0, 20, 11); "
            "tlObjectClick(Take 1)");
  Fingers().release(0, kTake1, &Canvas());
  EXPECT_EQ(log.Take(), "");
  QGuiApplication::styleHints()->setMousePressAndHoldInterval(800);
}

TEST_F(Touching, TwoFingersZoomAboutTheirMiddleAndBack) {
  Fingers().press(0, {200, 90}, &Canvas()).press(1, {300, 90}, &Canvas());
  Fingers().move(0, {201, 90}, &Canvas()).move(1, {301, 90}, &Canvas());
  const double middle = 251;
  Fingers().move(0, {150, 90}, &Canvas()).move(1, {350, 90}, &Canvas());
  EXPECT_NEAR(widget.duration(), 300, 1e-9);
  EXPECT_NEAR(widget.xOf(SampleTimeline::At(middle)), middle, 1e-2);
  Fingers().move(0, {201, 90}, &Canvas()).move(1, {301, 90}, &Canvas());
  Fingers().release(0, {201, 90}, &Canvas()).release(1, {301, 90}, &Canvas());
  EXPECT_EQ(widget.duration(), 600);
  EXPECT_EQ(widget.control()->WorldTimeT0(), SampleTimeline::At(0));
  EXPECT_EQ(log.Take(), "");
}

TEST_F(Touching, ASecondFingerEndsADrag) {
  widget.setAllowObjectDragging(true);
  Fingers().press(0, kTake1, &Canvas());
  Fingers().move(0, kTake1 + QPoint(30, 0), &Canvas());
  log.Take();
  Fingers().stationary(0).press(1, {300, 90}, &Canvas());
  Fingers().move(0, kTake1 + QPoint(31, 0), &Canvas()).move(1, {301, 90}, &Canvas());
  EXPECT_FALSE(widget.control()->IsDragging());
  EXPECT_THAT(log.Take(), testing::StartsWith("tlObjectMouseUp(Take 1"));
  Fingers().release(0, kTake1, &Canvas()).release(1, {301, 90}, &Canvas());
}

TEST_F(Touching, FingersThatAreTakenAwayEndADrag) {
  widget.setAllowObjectDragging(true);
  Fingers().press(0, kTake1, &Canvas());
  Fingers().move(0, kTake1 + QPoint(30, 0), &Canvas());
  QTouchEvent cancel(QEvent::TouchCancel, Screen());
  QCoreApplication::sendEvent(&Canvas(), &cancel);
  EXPECT_FALSE(widget.control()->IsDragging());
  EXPECT_NEAR(StartOf(u"Take 1"), 30, 1e-4);
}

TEST_F(Touching, WithoutNavigationAFingerOnlyTaps) {
  widget.setNavigationEnabled(false);
  Fingers().press(0, kBackground, &Canvas());
  Fingers().move(0, kBackground + QPoint(50, 0), &Canvas());
  Fingers().release(0, kBackground + QPoint(50, 0), &Canvas());
  EXPECT_EQ(widget.control()->WorldTimeT0(), SampleTimeline::At(0));
  EXPECT_EQ(log.Take(), "");
}

}  // namespace
}  // namespace mur::qt
