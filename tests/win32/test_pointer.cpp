#include <gmock/gmock.h>

#include "tests/support/control_log.h"
#include "tests/win32/shown_timeline.h"

namespace mur::win32::test {
namespace {

class WindowPointer : public testing::Test {
 protected:
  WindowPointer() { log.Take(); }

  double Start() const { return std::round((bar->WorldTimeT0().Days() - kNoon.Days()) * kSecondsPerDay); }

  ShownTimeline shown;
  Ref<IMURTimelineObject> bar = shown.Bar(u"A", 100);
  mur::test::ControlLog log{*shown.control, *shown.timeline, kNoon};
};

TEST_F(WindowPointer, ClicksABar) {
  shown.Click(120, 10);
  EXPECT_EQ(log.Take(),
            "TLObjectMouseDown(A, 1, 0, 20, 10); TLObjectMouseUp(A, 1, 0, 20, 10); TLObjectClick(A)");
}

TEST_F(WindowPointer, DoubleClicksByThePlatformsRules) {
  shown.Click(120, 10);
  log.Take();
  shown.Send(WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(120, 10));
  shown.Release(120, 10);
  EXPECT_EQ(log.Take(),
            "TLObjectMouseDown(A, 1, 0, 20, 10); TLObjectMouseUp(A, 1, 0, 20, 10); TLObjectDblClick(A)");
  const auto styles = GetClassLongPtrW(shown.CanvasWindow(), GCL_STYLE);
  EXPECT_NE(styles & CS_DBLCLKS, 0U);
}

TEST_F(WindowPointer, TellsButtonsAndModifierKeys) {
  shown.Send(WM_RBUTTONDOWN, MK_RBUTTON | MK_SHIFT, MAKELPARAM(600, 100));
  shown.Send(WM_RBUTTONUP, MK_SHIFT | MK_CONTROL, MAKELPARAM(600, 100));
  EXPECT_EQ(log.Take(), "MouseDown(2, 1, 600, 100); MouseUp(2, 3, 600, 100); Click()");
  shown.Send(WM_MBUTTONDOWN, MK_MBUTTON, MAKELPARAM(600, 100));
  shown.Send(WM_MOUSEMOVE, MK_MBUTTON, MAKELPARAM(601, 100));
  shown.Send(WM_MBUTTONUP, 0, MAKELPARAM(601, 100));
  EXPECT_EQ(log.Take(),
            "MouseDown(4, 0, 600, 100); MouseMove(4, 0, 601, 100); MouseUp(4, 0, 601, 100); Click()");
}

TEST_F(WindowPointer, DragsBeyondTheWindowWhileItHasTheMouse) {
  shown.Press(150, 10);
  EXPECT_EQ(GetCapture(), shown.CanvasWindow());
  shown.MoveTo(-20, 500);
  EXPECT_EQ(Start(), -70);
  shown.Release(-20, 500);
  EXPECT_EQ(GetCapture(), nullptr);
}

TEST_F(WindowPointer, EndsADragWithoutAClickWhenAnotherWindowTakesTheMouse) {
  shown.Press(150, 10);
  shown.MoveTo(160, 10);
  log.Take();
  SetCapture(shown.host.Handle());
  EXPECT_THAT(log.Take(), testing::EndsWith("TLObjectMouseUp(A, 1, 0, 50, 10)"));
  ReleaseCapture();
  shown.MoveTo(300, 100, 0);
  EXPECT_EQ(Start(), 110);
}

TEST_F(WindowPointer, CountsLogicalPixelsAtAnyScaleFactor) {
  shown.window->SetScaleFactor(2);  // two device pixels to a logical one, and so to two seconds
  log.Take();
  shown.Press(120, 20);
  EXPECT_EQ(log.Take(), "TLObjectMouseDown(A, 1, 0, 10, 10)");
  shown.MoveTo(130, 20);
  EXPECT_EQ(Start(), 110);
  shown.Release(130, 20);
}

TEST_F(WindowPointer, ShowsWhatCanBeDragged) {
  const auto shape = [&](int x) {
    shown.MoveTo(x, 10, 0);
    shown.Send(WM_SETCURSOR, reinterpret_cast<WPARAM>(shown.CanvasWindow()),
               MAKELPARAM(HTCLIENT, WM_MOUSEMOVE));
    return GetCursor();
  };
  EXPECT_EQ(shape(150), LoadCursorW(nullptr, IDC_SIZEWE));
  EXPECT_EQ(shape(800), LoadCursorW(nullptr, IDC_ARROW));
}

TEST_F(WindowPointer, ForgetsTheHighlightedMarkerWhenItLeavesTheScale) {
  shown.control->TimeScaleMarkerAdd(At(200), u"m", u"Cue");
  PumpMessages();
  SendMessageW(shown.ScaleWindow(), WM_PRINTCLIENT, 0, 0);
  SendMessageW(shown.ScaleWindow(), WM_MOUSEMOVE, 0, MAKELPARAM(203, 5));
  UpdateWindow(shown.ScaleWindow());
  SendMessageW(shown.ScaleWindow(), WM_MOUSELEAVE, 0, 0);
  EXPECT_TRUE(GetUpdateRect(shown.ScaleWindow(), nullptr, FALSE));
}

TEST_F(WindowPointer, SetsTheCursorOnTheScale) {
  SendMessageW(shown.ScaleWindow(), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(250, 30));
  SendMessageW(shown.ScaleWindow(), WM_LBUTTONUP, 0, MAKELPARAM(250, 30));
  EXPECT_NEAR(shown.control->CursorTime().Days(), At(250).Days(), 1e-9);
}

TEST_F(WindowPointer, DoesNothingAtDesignTime) {
  Ambience design;
  design.userMode = false;
  shown.window->SetAmbience(design);
  shown.Click(120, 10);
  shown.MoveTo(150, 10, 0);
  EXPECT_EQ(log.Take(), "");
}

TEST_F(WindowPointer, TheContainerHearsOfAPressBeforeAnyoneElse) {
  std::string order;
  shown.window->Events().Pressed = [&] { order += "container;"; };
  const auto watching = shown.control->TLObjectMouseDown.Connect([&](auto&&...) { order += "bar;"; });
  shown.Press(120, 10);
  EXPECT_EQ(order, "container;bar;");
  EXPECT_EQ(GetFocus(), shown.CanvasWindow());
}

TEST_F(WindowPointer, TheContainerMayDestroyTheWindowAtAPress) {
  shown.window->Events().Pressed = [&] { shown.window->Destroy(); };
  shown.Press(120, 10);
  EXPECT_EQ(shown.window->Handle(), nullptr);
  EXPECT_EQ(log.Take(), "");
}

}  // namespace
}  // namespace mur::win32::test
