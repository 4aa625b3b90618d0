#include <QPointer>
#include <QScrollBar>
#include <cmath>

#include "tests/qt/pointer_test.h"
#include "tests/qt/qt_warnings.h"

namespace mur::qt {
namespace {

using test::PointerTest;
using test::SampleTimeline;

class KeyPresses : public PointerTest {
 protected:
  KeyPresses() {
    widget.setNavigationEnabled(true);
    widget.activateWindow();
    widget.setFocus(Qt::TabFocusReason);
  }
  void Key(Qt::Key KeyA, Qt::KeyboardModifiers KeysA = {}) { QTest::keyClick(&widget, KeyA, KeysA); }
  // The key of the bar with the ring.
  std::string Ringed() const {
    const auto item = CanvasItself().FocusedItem();
    return item ? ToUtf8(item->Key()) : "-";
  }
  std::string RingedAfter(Qt::Key KeyA, Qt::KeyboardModifiers KeysA = {}) {
    Key(KeyA, KeysA);
    return Ringed();
  }
  double CursorSeconds() const {
    return (widget.control()->CursorTime().Days() - SampleTimeline::kDays) * kSecondsPerDay;
  }
  void Focus(const char16_t* KeyA) {
    const auto bar = CanvasItself().GraphicByKey(KeyA);
    const RectF bounds = CanvasItself().PixelBounds(*bar);
    const QPoint at(static_cast<int>(bounds.left + 2), static_cast<int>(bounds.top + 2));
    Press(at);
    Release(at);
    log.Take();
  }
};

TEST_F(KeyPresses, ArrowsWalkAlongTheRowAndBetweenRows) {
  EXPECT_EQ(RingedAfter(Qt::Key_Right), "Picture");
  EXPECT_EQ(RingedAfter(Qt::Key_Down), "Chase");  // nearer to the middle of the picture
  EXPECT_EQ(RingedAfter(Qt::Key_Left), "Opening");
  EXPECT_EQ(RingedAfter(Qt::Key_Down), "Take 4");
  EXPECT_EQ(RingedAfter(Qt::Key_Home), "Take 1");
  EXPECT_EQ(RingedAfter(Qt::Key_Right), "Take 2");
  EXPECT_EQ(RingedAfter(Qt::Key_End), "Shot 8");
  EXPECT_EQ(RingedAfter(Qt::Key_Right), "Shot 8");
}

TEST_F(KeyPresses, WalkingGoesOnFromTheBarThatWasPressed) {
  Focus(u"Take 3");
  EXPECT_EQ(Ringed(), "-");
  EXPECT_EQ(RingedAfter(Qt::Key_Right), "Take 4");
}

TEST_F(KeyPresses, TheRingIsThereWhileTheKeyboardIs) {
  Key(Qt::Key_Right);
  QWidget other;
  QFocusEvent out(QEvent::FocusOut, Qt::TabFocusReason), in(QEvent::FocusIn, Qt::TabFocusReason);
  QCoreApplication::sendEvent(&widget, &out);
  EXPECT_EQ(Ringed(), "-");
  QCoreApplication::sendEvent(&widget, &in);
  EXPECT_EQ(Ringed(), "Picture");
}

TEST_F(KeyPresses, EnterAndSpaceClickTheBar) {
  widget.setAutoSelectMode(etlcltLeftClick);
  Focus(u"Take 2");
  const std::string click =
      "tlObjectMouseDown(Take 2, 1, 0, 20, 17); tlObjectMouseUp(Take 2, 1, 0, 20, 17); tlObjectClick(Take 2)";
  for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space}) {
    Key(key);
    EXPECT_EQ(log.Take(), click);
  }
  EXPECT_EQ(widget.selectedKey(), "Take 2");
}

TEST_F(KeyPresses, TheMenuKeyAndShiftEnterClickWithTheRightButton) {
  Focus(u"Take 2");
  const std::string click =
      "tlObjectMouseDown(Take 2, 2, 0, 20, 17); tlObjectMouseUp(Take 2, 2, 0, 20, 17); tlObjectClick(Take 2)";
  Key(Qt::Key_Menu);
  EXPECT_EQ(log.Take(), click);
  Key(Qt::Key_Return, Qt::ShiftModifier);
  EXPECT_EQ(log.Take(), click);
}

TEST_F(KeyPresses, CtrlAndArrowsNudgeTheBarByPixels) {
  widget.setAllowObjectDragging(true);
  Focus(u"Take 2");
  const auto start = [this] {
    return (sample.timeline->Item(u"Take 2")->WorldTimeT0().Days() - SampleTimeline::kDays) * kSecondsPerDay;
  };
  Key(Qt::Key_Right, Qt::ControlModifier);
  EXPECT_NEAR(start(), 41, 1e-4);
  EXPECT_EQ(log.Take(),
            "tlObjectMouseDown(Take 2, 1, 2, 20, 17); tlObjectMouseMove(Take 2, 1, 2, 21, 17); "
            "tlObjectMouseUp(Take 2, 1, 2, 20, 17)");
  Key(Qt::Key_Left, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_NEAR(start(), 31, 1e-4);
}

TEST_F(KeyPresses, ANudgeIsOneStepAlsoForABarThatDoesNotFollow) {
  widget.setAllowObjectDragging(true);
  Focus(u"Note 1");
  Key(Qt::Key_Right, Qt::ControlModifier);
  const Date start = sample.timeline->Item(u"Note 1")->WorldTimeT0();
  EXPECT_NEAR((start.Days() - SampleTimeline::kDays) * kSecondsPerDay, 61, 1e-4);
}

TEST_F(KeyPresses, NothingIsNudgedWhileDraggingIsNotAllowed) {
  Focus(u"Take 2");
  Key(Qt::Key_Right, Qt::ControlModifier);
  EXPECT_EQ(log.Take(), "");
}

TEST_F(KeyPresses, CommaAndFullStopStepTheCursorByPixels) {
  Key(Qt::Key_Period);
  EXPECT_NEAR(CursorSeconds(), 213, 1e-4);
  Key(Qt::Key_Comma);
  Key(Qt::Key_Comma);
  EXPECT_NEAR(CursorSeconds(), 211, 1e-4);
}

TEST_F(KeyPresses, WithShiftTheyStepItToEdgesAndMarkers) {
  const auto scroller = widget.control()->Collaborators().scroller;
  scroller->MarkerAdd(SampleTimeline::At(226), u"Cue", u"", true);
  std::vector<double> met;
  for (int step = 0; step < 4; ++step) {
    Key(Qt::Key_Greater, Qt::ShiftModifier);
    met.push_back(std::round(CursorSeconds()));
  }
  EXPECT_EQ(met, (std::vector<double>{215, 226, 230, 240}));
  Key(Qt::Key_Less, Qt::ShiftModifier);
  Key(Qt::Key_Comma, Qt::ShiftModifier);
  EXPECT_NEAR(CursorSeconds(), 226, 1e-4);
}

TEST_F(KeyPresses, MGoesFromMarkerToMarker) {
  const auto scroller = widget.control()->Collaborators().scroller;
  scroller->MarkerAdd(SampleTimeline::At(300), u"B", u"", true);
  scroller->MarkerAdd(SampleTimeline::At(100), u"A", u"", true);
  scroller->MarkerAdd(SampleTimeline::At(250), u"hidden", u"", false);
  Key(Qt::Key_M);
  EXPECT_EQ(widget.control()->CursorTime(), SampleTimeline::At(300));
  Key(Qt::Key_M);
  EXPECT_EQ(widget.control()->CursorTime(), SampleTimeline::At(300));
  Key(Qt::Key_M, Qt::ShiftModifier);
  EXPECT_EQ(widget.control()->CursorTime(), SampleTimeline::At(100));
}

TEST_F(KeyPresses, PlusAndMinusZoomAboutTheCursorAndBack) {
  const Date start = widget.control()->WorldTimeT0();
  for (const Qt::Key key : {Qt::Key_Plus, Qt::Key_Equal, Qt::Key_Plus}) Key(key);
  EXPECT_NEAR(widget.duration(), 300, 1e-6);
  EXPECT_NEAR(widget.xOf(SampleTimeline::At(212)), 212, 1e-2);
  for (int step = 0; step < 3; ++step) Key(Qt::Key_Minus);
  EXPECT_EQ(widget.duration(), 600);
  EXPECT_EQ(widget.control()->WorldTimeT0(), start);
}

TEST_F(KeyPresses, ZoomingGoesAboutTheMiddleWhileTheCursorIsElsewhere) {
  widget.control()->SetCursorTime(SampleTimeline::At(-500));
  for (int step = 0; step < 3; ++step) Key(Qt::Key_Plus);
  EXPECT_NEAR(widget.xOf(SampleTimeline::At(300)), 300, 1e-2);
}

TEST_F(KeyPresses, FFitsAndCtrlHomeAndEndShowTheEnds) {
  widget.control()->SetDuration(100);
  Key(Qt::Key_End, Qt::ControlModifier);
  EXPECT_NEAR(widget.xOf(SampleTimeline::At(600)), 600, 1e-3);
  Key(Qt::Key_Home, Qt::ControlModifier);
  EXPECT_EQ(widget.control()->WorldTimeT0(), SampleTimeline::At(0));
  Key(Qt::Key_F);
  EXPECT_NEAR(widget.duration(), 624, 1e-6);
}

TEST_F(KeyPresses, PageKeysScrollRows) {
  widget.resize(600, 200);
  QCoreApplication::processEvents();
  QCoreApplication::processEvents();
  auto& bar = *Canvas().findChild<QScrollBar*>();
  Key(Qt::Key_PageDown);
  EXPECT_EQ(bar.value(), 142);
  Key(Qt::Key_PageUp);
  EXPECT_EQ(bar.value(), 0);
}

TEST_F(KeyPresses, WalkingBringsTheBarIntoView) {
  widget.resize(600, 200);
  widget.control()->SetDuration(100);
  Focus(u"Take 1");
  Key(Qt::Key_End);
  ASSERT_EQ(Ringed(), "Shot 8");
  const RectF bounds = CanvasItself().PixelBounds(*CanvasItself().FocusedItem());
  EXPECT_NEAR(bounds.left, 162, 160);
  EXPECT_LE(bounds.Right(), 600.1F);
  for (int row = 0; row < 5; ++row) Key(Qt::Key_Down);
  const RectF lower = CanvasItself().PixelBounds(*CanvasItself().FocusedItem());
  EXPECT_LE(lower.Bottom(), 160.1F);
  EXPECT_GE(lower.top, -0.1F);
}

TEST_F(KeyPresses, WithoutNavigationKeysMoveNothingInView) {
  widget.setNavigationEnabled(false);
  widget.control()->SetDuration(100);
  Focus(u"Take 1");
  Key(Qt::Key_End);
  Key(Qt::Key_Plus);
  Key(Qt::Key_F);
  EXPECT_EQ(widget.control()->WorldTimeT0(), SampleTimeline::At(0));
  EXPECT_EQ(widget.duration(), 100);
}

TEST_F(KeyPresses, EscapePutsADraggedBarBackAndEndsTheGesture) {
  widget.setAllowObjectDragging(true);
  const Date start = sample.timeline->Item(u"Take 1")->WorldTimeT0();
  Press(kTake1);
  Move({50, 85}, Qt::LeftButton);
  log.Take();
  Key(Qt::Key_Escape);
  EXPECT_EQ(sample.timeline->Item(u"Take 1")->WorldTimeT0(), start);
  EXPECT_EQ(log.Take(), "tlObjectMouseUp(Take 1, 1, 0, 50, 11)");
  Move({90, 85}, Qt::LeftButton);
  Release({90, 85});
  EXPECT_EQ(sample.timeline->Item(u"Take 1")->WorldTimeT0(), start);
}

TEST_F(KeyPresses, EscapePutsACursorBackThatWasDraggedOnTheScale) {
  const Date before = widget.control()->CursorTime();
  QTest::mousePress(&Scale(), Qt::LeftButton, {}, {100, 30});
  Move(Scale(), {150, 30}, Qt::LeftButton);
  EXPECT_NE(widget.control()->CursorTime(), before);
  Key(Qt::Key_Escape);
  EXPECT_EQ(widget.control()->CursorTime(), before);
  QTest::mouseRelease(&Scale(), Qt::LeftButton, {}, {150, 30});
  EXPECT_EQ(widget.control()->CursorTime(), before);
}

TEST_F(KeyPresses, KeysThatMeanNothingAreLeftToTheParents) {
  for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_A, Qt::Key_F1}) {
    QKeyEvent event(QEvent::KeyPress, key, {});
    QCoreApplication::sendEvent(&widget, &event);
    EXPECT_FALSE(event.isAccepted()) << key;
  }
}

TEST_F(KeyPresses, NothingHappensWithoutATimeLine) {
  widget.setTimeline({});
  for (const Qt::Key key :
       {Qt::Key_Right, Qt::Key_Return, Qt::Key_F, Qt::Key_M, Qt::Key_Period, Qt::Key_Plus})
    Key(key);
  Key(Qt::Key_Period, Qt::ShiftModifier);
  Key(Qt::Key_End, Qt::ControlModifier);
}

TEST_F(KeyPresses, ABarThatIsRemovedIsCurrentNoMore) {
  Focus(u"Take 1");
  Key(Qt::Key_Right);
  sample.timeline->Remove(u"Take 2");
  Key(Qt::Key_Return);
  EXPECT_EQ(log.Take(), "");
}

// A handler of what a key causes may end the widget.
TEST(KeyPressesThatEndTheWidget, DoNoHarm) {
  const auto keys = {QKeyCombination(Qt::Key_Return), Qt::CTRL | Qt::Key_Right,
                     QKeyCombination(Qt::Key_Period), QKeyCombination(Qt::Key_Plus),
                     QKeyCombination(Qt::Key_F),      Qt::CTRL | Qt::Key_End};
  for (const QKeyCombination key : keys) {
    QPointer<TimelineWidget> widget = new TimelineWidget;
    const SampleTimeline sample(*widget);
    widget->resize(600, 400);
    widget->setNavigationEnabled(true);
    widget->setAllowObjectDragging(true);
    widget->control()->SetDuration(100);
    QKeyEvent right(QEvent::KeyPress, Qt::Key_Right, {});
    QCoreApplication::sendEvent(widget, &right);
    const auto end = [widget] { delete widget; };
    QObject::connect(widget, &TimelineWidget::tlObjectMouseDown, end);
    QObject::connect(widget, &TimelineWidget::cursorTimeChange, end);
    QObject::connect(widget, &TimelineWidget::visibleRangeChanged, end);
    QKeyEvent event(QEvent::KeyPress, key.key(), key.keyboardModifiers());
    QCoreApplication::sendEvent(widget, &event);
    EXPECT_FALSE(widget) << key.key();
    delete widget;
  }
}

}  // namespace
}  // namespace mur::qt
