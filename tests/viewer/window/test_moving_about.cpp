#include <QTest>

#include "tests/viewer/window/window_test.h"
#include "viewer/window/time_scroll_bar.h"

namespace mur::viewer::test {
namespace {

constexpr double kMillisecond = 1e-3;

class MovingAbout : public WindowTest {
 protected:
  MovingAbout() { window->OpenFile(WriteTwoCues()); }

  double SecondsAt(double XA) const { return (Timeline().timeAt(XA).Days() - At(0).Days()) * kSecondsPerDay; }
  double Middle() const { return Timeline().width() / 2.0; }
  TimeScrollBar& Bar() const { return window->Page().ScrollBar(); }
};

TEST_F(MovingAbout, ShowsTheWholeFileAtFirst) {
  EXPECT_NEAR(SecondsAt(0), -0.3, kMillisecond);
  EXPECT_NEAR(SecondsAt(Timeline().width()), 30.3, kMillisecond);
}

TEST_F(MovingAbout, ZoomActionsKeepTheCentre) {
  ShowTenthsFrom(3);
  const double centre = SecondsAt(Middle()), duration = Control().Duration();
  Trigger(QStringLiteral("Zoom In"));
  Trigger(QStringLiteral("Zoom In"));
  EXPECT_NEAR(Control().Duration(), duration / 2, kMillisecond);
  EXPECT_NEAR(SecondsAt(Middle()), centre, kMillisecond);
  for (int step = 0; step < 4; ++step) Trigger(QStringLiteral("Zoom Out"));
  EXPECT_NEAR(Control().Duration(), duration * 2, kMillisecond);
  EXPECT_NEAR(SecondsAt(Middle()), centre, kMillisecond);
}

TEST_F(MovingAbout, FitShowsTheWholeFileAgain) {
  ShowTenthsFrom(500);
  Trigger(QStringLiteral("Fit"));
  EXPECT_NEAR(SecondsAt(0), -0.3, kMillisecond);
  EXPECT_NEAR(Control().Duration(), 30.6, kMillisecond);
}

TEST_F(MovingAbout, PansByAQuarterOfTheWidth) {
  ShowTenthsFrom(10);
  const double quarter = Control().Duration() / 4;
  Trigger(QStringLiteral("Later"));
  EXPECT_NEAR(SecondsAt(0), 10 + quarter, kMillisecond);
  Trigger(QStringLiteral("Earlier"));
  EXPECT_NEAR(SecondsAt(0), 10, kMillisecond);
}

TEST_F(MovingAbout, WheelWithCtrlZoomsAtThePointer) {
  const double duration = Control().Duration(), before = SecondsAt(200);
  TurnWheel({200, 300}, 360);
  EXPECT_NEAR(SecondsAt(200), before, kMillisecond);
  EXPECT_NEAR(Control().Duration(), duration / 2, kMillisecond);
}

TEST_F(MovingAbout, DraggingTheBackgroundPans) {
  ShowTenthsFrom(10);
  const int y = Timeline().height() - 5;
  QWidget* canvas = Timeline().childAt(200, y);
  const auto at = [&](int x) { return canvas->mapFrom(&Timeline(), QPoint(x, y)); };
  QTest::mousePress(canvas, Qt::LeftButton, Qt::NoModifier, at(200));
  MovePointer({150, y});
  QTest::mouseRelease(canvas, Qt::LeftButton, Qt::NoModifier, at(150));
  EXPECT_NEAR(SecondsAt(0), 15, kMillisecond);
}

TEST_F(MovingAbout, ScrollBarCannotMoveWhileEverythingShows) {
  EXPECT_EQ(Bar().maximum(), 0);
}

TEST_F(MovingAbout, ScrollBarFollowsWhatIsVisible) {
  Control().SetWorldTimeT0(At(15));
  Control().SetDuration(7.5);
  EXPECT_EQ(Bar().pageStep(), 1000);
  EXPECT_EQ(Bar().maximum(), 3000);
  EXPECT_EQ(Bar().value(), 2000);
}

TEST_F(MovingAbout, ScrollBarMovesWhatIsVisible) {
  Control().SetWorldTimeT0(At(15));
  Control().SetDuration(7.5);
  Bar().setValue(1000);
  EXPECT_NEAR(SecondsAt(0), 7.5, kMillisecond);
  EXPECT_EQ(Control().Duration(), 7.5);
  EXPECT_EQ(Bar().value(), 1000);
}

TEST_F(MovingAbout, ScrollBarReachesWhatLiesBeyondTheFileWhileItIsVisible) {
  Control().SetDuration(10);
  Control().SetWorldTimeT0(At(-20));
  EXPECT_EQ(Bar().value(), 0);
  EXPECT_EQ(Bar().maximum(), 4000);
  Control().SetWorldTimeT0(At(40));
  EXPECT_EQ(Bar().value(), 4000);
  EXPECT_EQ(Bar().maximum(), 4000);
}

TEST_F(MovingAbout, ScrollBarTakesTheDeepestZoom) {
  Control().SetWorldTimeT0(At(15));
  Control().SetDuration(1e-9);
  EXPECT_EQ(Bar().maximum(), 1'000'000'000);
  EXPECT_NEAR(Bar().value(), 500'000'000, 1000);
}

}  // namespace
}  // namespace mur::viewer::test
