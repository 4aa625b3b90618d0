#include <QCursor>
#include <QDialog>
#include <QMenu>
#include <QTimer>

#include "tests/qt/pointer_test.h"
#include "tests/qt/qt_warnings.h"

namespace mur::qt {
namespace {

using test::PointerTest;
using test::SampleTimeline;

class Pointer : public PointerTest {};

TEST_F(Pointer, AClickOnABarIsPressReleaseAndClick) {
  Press(kTake1);
  Release(kTake1);
  EXPECT_EQ(log.Take(),
            "tlObjectMouseDown(Take 1, 1, 0, 20, 11); tlObjectMouseUp(Take 1, 1, 0, 20, 11); "
            "tlObjectClick(Take 1)");
}

TEST_F(Pointer, AClickOnTheBackgroundIsInPixelsOfTheCanvas) {
  Press(kBackground, Qt::RightButton, Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier);
  Release(kBackground, Qt::RightButton);
  EXPECT_EQ(log.Take(), "mouseDown(2, 7, 245, 90); mouseUp(2, 0, 245, 90); click");
}

TEST_F(Pointer, AClickOnTheCursorNamesIt) {
  Press({212, 300}, Qt::MiddleButton);
  Release({212, 300}, Qt::MiddleButton);
  EXPECT_EQ(log.Take(),
            "cursorMouseDown(The Cursor, 4, 0, 2.5, 300); cursorMouseUp(The Cursor, 4, 0, 2.5, 300); "
            "cursorClick(The Cursor)");
}

TEST_F(Pointer, ADoubleClickIsAClickAndADoubleClick) {
  const auto doubleClick = [this](QPoint at) {
    QTest::mouseClick(&Canvas(), Qt::LeftButton, {}, at);
    QTest::mouseDClick(&Canvas(), Qt::LeftButton, {}, at);
    Release(at);
  };
  doubleClick(kTake1);
  EXPECT_EQ(log.Take(),
            "tlObjectMouseDown(Take 1, 1, 0, 20, 11); tlObjectMouseUp(Take 1, 1, 0, 20, 11); "
            "tlObjectClick(Take 1); "
            "tlObjectMouseDown(Take 1, 1, 0, 20, 11); tlObjectMouseUp(Take 1, 1, 0, 20, 11); "
            "tlObjectDblClick(Take 1)");
  doubleClick(kBackground);
  EXPECT_THAT(log.Take(), testing::EndsWith("; dblClick"));
}

TEST_F(Pointer, APressWhoseReleaseWentAstrayEndsWithTheNextPress) {
  Press(kTake1);
  log.Take();
  Press(kBackground);
  EXPECT_EQ(log.Take(), "tlObjectMouseUp(Take 1, 1, 0, 20, 11); mouseDown(1, 0, 245, 90)");
}

TEST_F(Pointer, MovesAreHeardWithoutAButtonToo) {
  Move(kTake1);
  Move(kBackground);
  EXPECT_EQ(log.Take(), "tlObjectMouseMove(Take 1, 0, 0, 20, 11); mouseMove(0, 0, 245, 90)");
}

TEST_F(Pointer, MovesUnderAHeldButtonNameWhatWasPressedWhereverTheyGo) {
  Press(kTake1);
  Move({-50, 500}, Qt::LeftButton);
  Release({-50, 500});
  EXPECT_EQ(log.Take(),
            "tlObjectMouseDown(Take 1, 1, 0, 20, 11); tlObjectMouseMove(Take 1, 1, 0, -50, 426); "
            "tlObjectMouseUp(Take 1, 1, 0, -50, 426)");
}

TEST_F(Pointer, TwoButtonsAreOneGesture) {
  Press(kTake1);
  Press(kTake1, Qt::RightButton);
  Move(kTake1, Qt::LeftButton | Qt::RightButton);
  Release(kTake1);
  Release(kTake1, Qt::RightButton);
  EXPECT_EQ(log.Take(),
            "tlObjectMouseDown(Take 1, 1, 0, 20, 11); tlObjectMouseDown(Take 1, 2, 0, 20, 11); "
            "tlObjectMouseMove(Take 1, 3, 0, 20, 11); tlObjectMouseUp(Take 1, 1, 0, 20, 11); "
            "tlObjectMouseUp(Take 1, 2, 0, 20, 11); tlObjectClick(Take 1)");
}

TEST_F(Pointer, AButtonWithoutANameIsLeftToTheParents) {
  QMouseEvent event(QEvent::MouseButtonPress, kTake1, Canvas().mapToGlobal(kTake1), Qt::BackButton,
                    Qt::BackButton, {});
  QCoreApplication::sendEvent(&Canvas(), &event);
  EXPECT_FALSE(event.isAccepted());
  EXPECT_EQ(log.Take(), "");
}

TEST_F(Pointer, ADragMovesAMediaBarWithThePointer) {
  widget.setAllowObjectDragging(true);
  Press(kTake1);
  Move({50, 85}, Qt::LeftButton);
  Move({70, 85}, Qt::LeftButton);
  Release({70, 85});
  const auto start = sample.timeline->Item(u"Take 1")->WorldTimeT0();
  EXPECT_NEAR((start.Days() - SampleTimeline::kDays) * kSecondsPerDay, 50, 1e-4);
  EXPECT_EQ(log.Take(),
            "tlObjectMouseDown(Take 1, 1, 0, 20, 11); tlObjectMouseMove(Take 1, 1, 0, 50, 11); "
            "tlObjectMouseMove(Take 1, 1, 0, 40, 11); tlObjectMouseUp(Take 1, 1, 0, 20, 11); "
            "tlObjectClick(Take 1)");
}

TEST_F(Pointer, HandlersMayChangeTheArguments) {
  qint16 heard = 0;
  QObject::connect(&widget, &TimelineWidget::mouseDown,
                   [](qint16& button, qint16&, float&, float&) { button = 4; });
  QObject::connect(&widget, &TimelineWidget::mouseDown,
                   [&](qint16& button, qint16&, float&, float&) { heard = button; });
  Press(kBackground);
  EXPECT_EQ(heard, 4);
}

// Every way to lose the pointer ends a gesture as if the button were released, without a click.
class LosingThePointer : public Pointer {
 protected:
  static constexpr auto kEnd = "tlObjectMouseUp(Take 1, 1, 0, 20, 11)";

  LosingThePointer() {
    Press(kTake1);
    log.Take();
  }
  // The button is up: the gesture is not taken up again.
  void ExpectOver() {
    EXPECT_EQ(log.Take(), kEnd);
    Release(kTake1);
    EXPECT_EQ(log.Take(), "");
  }
};

TEST_F(LosingThePointer, WhenTheWidgetIsHidden) {
  widget.hide();
  ExpectOver();
}

TEST_F(LosingThePointer, WhenTheWidgetIsDisabled) {
  widget.setEnabled(false);
  EXPECT_EQ(log.Take(), kEnd);
  widget.setEnabled(true);
  Release(kTake1);
  EXPECT_EQ(log.Take(), "");
}

TEST_F(LosingThePointer, WhenItsWindowIsDeactivated) {
  QEvent event(QEvent::WindowDeactivate);
  QCoreApplication::sendEvent(&widget, &event);
  ExpectOver();
}

TEST_F(LosingThePointer, WhenADialogBlocksItsWindow) {
  QDialog dialog;
  QTimer::singleShot(0, &dialog, &QDialog::accept);
  dialog.exec();
  ExpectOver();
}

TEST_F(LosingThePointer, WhenTheButtonGoesUpOverAPopup) {
  QMenu menu;
  menu.addAction(QStringLiteral("nothing"));
  menu.popup(widget.mapToGlobal(QPoint(300, 200)));
  QTest::mouseRelease(&menu, Qt::LeftButton, {}, {1, 1});
  ExpectOver();
}

TEST_F(LosingThePointer, WhenTheGrabIsTakenAway) {
  QEvent event(QEvent::UngrabMouse);
  QCoreApplication::sendEvent(&Canvas(), &event);
  ExpectOver();
}

TEST_F(LosingThePointer, EndsADragWhereItIs) {
  Release(kTake1);
  widget.setAllowObjectDragging(true);
  Press(kTake1);
  Move({50, 85}, Qt::LeftButton);
  widget.hide();
  EXPECT_FALSE(widget.control()->IsDragging());
  const auto start = sample.timeline->Item(u"Take 1")->WorldTimeT0();
  EXPECT_NEAR((start.Days() - SampleTimeline::kDays) * kSecondsPerDay, 30, 1e-4);
}

TEST_F(Pointer, TheShapeTellsWhatCanBeDragged) {
  widget.setAllowObjectDragging(true);
  Move(kTake1);
  EXPECT_EQ(Canvas().cursor().shape(), Qt::OpenHandCursor);
  Press(kTake1);
  EXPECT_EQ(Canvas().cursor().shape(), Qt::ClosedHandCursor);
  Release(kTake1);
  EXPECT_EQ(Canvas().cursor().shape(), Qt::OpenHandCursor);
  Move(kBackground);
  EXPECT_EQ(Canvas().cursor().shape(), Qt::ArrowCursor);
}

TEST_F(Pointer, AHostsShapeShowsWhereTheCanvasHasNone) {
  widget.setAllowObjectDragging(true);
  widget.setCursor(Qt::CrossCursor);
  Move(kTake1);
  Move(kBackground);
  EXPECT_EQ(Canvas().cursor().shape(), Qt::CrossCursor);
}

TEST_F(Pointer, AFailingHandlerIsWarnedOfAndTheGestureGoesOn) {
  QObject::connect(&widget, &TimelineWidget::tlObjectMouseDown, [] { throw std::runtime_error("no luck"); });
  Press(kTake1);
  Release(kTake1);
  EXPECT_THAT(log.Take(), testing::EndsWith("tlObjectMouseUp(Take 1, 1, 0, 20, 11); tlObjectClick(Take 1)"));
  test::TakeWarnings();
}

}  // namespace
}  // namespace mur::qt
