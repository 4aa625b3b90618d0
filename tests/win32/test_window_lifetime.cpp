#include <gmock/gmock.h>

#include "tests/support/control_log.h"
#include "tests/win32/shown_timeline.h"

namespace mur::win32::test {
namespace {

class WindowLifetime : public testing::Test {
 protected:
  ShownTimeline shown;
  Ref<IMURTimelineObject> bar = shown.Bar(u"A", 100);
};

TEST_F(WindowLifetime, AHandlerMayDestroyTheWindow) {
  int clicks = 0;
  const auto watching = shown.control->TLObjectMouseDown.Connect([&](auto&&...) {
    ++clicks;
    shown.window->Destroy();
  });
  shown.Click(120, 10);
  EXPECT_EQ(clicks, 1);
  EXPECT_EQ(GetCapture(), nullptr);
  EXPECT_FALSE(shown.control->IsDragging());
}

TEST_F(WindowLifetime, AHandlerMayDestroyTheContainer) {
  const auto watching =
      shown.control->TLObjectClick.Connect([&](auto&&...) { DestroyWindow(shown.host.Handle()); });
  shown.Click(120, 10);
  EXPECT_EQ(shown.window->Handle(), nullptr);
}

TEST_F(WindowLifetime, AHandlerMayEndEverything) {
  const HWND canvas = shown.CanvasWindow();
  Connection watching = shown.control->TLObjectMouseMove.Connect([&](auto&&...) {
    shown.control = {};
    shown.window.reset();
  });
  shown.Press(120, 10);
  SendMessageW(canvas, WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(130, 10));
  EXPECT_FALSE(IsWindow(canvas));
  EXPECT_FALSE(shown.window);
  shown.window = std::make_unique<TimelineWindow>(GetModuleHandleW(nullptr));  // for the end of the test
}

TEST_F(WindowLifetime, AKeyMayEndEverything) {
  shown.window->TakeFocus();
  shown.Key(VK_RIGHT);
  const HWND canvas = shown.CanvasWindow();
  const auto watching = shown.control->TLObjectClick.Connect([&](auto&&...) {
    shown.control = {};
    shown.window.reset();
  });
  SendMessageW(canvas, WM_KEYDOWN, VK_RETURN, 0);
  EXPECT_FALSE(IsWindow(canvas));
  shown.window = std::make_unique<TimelineWindow>(GetModuleHandleW(nullptr));
}

TEST_F(WindowLifetime, AHandlerMayClearTheTimeLine) {
  mur::test::ControlLog log(*shown.control, *shown.timeline, kNoon);
  const auto watching = shown.control->TLObjectMouseDown.Connect([&](auto&&...) { shown.timeline->Clear(); });
  shown.Press(120, 10);
  shown.MoveTo(140, 10);
  shown.Release(140, 10);
  EXPECT_THAT(log.Take(), testing::Not(testing::HasSubstr("TLObjectClick")));
  EXPECT_EQ(shown.Canvas().GraphicCount(), 1U);  // the cursor
}

TEST_F(WindowLifetime, AHandlerMayPumpMessages) {
  int moves = 0;
  const auto watching = shown.control->TLObjectMouseDown.Connect([&](auto&&...) {
    PostMessageW(shown.CanvasWindow(), WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(125, 10));
    PostMessageW(shown.CanvasWindow(), WM_LBUTTONUP, 0, MAKELPARAM(125, 10));
    PumpMessages();
  });
  const auto counting = shown.control->TLObjectMouseMove.Connect([&](auto&&...) { ++moves; });
  shown.Press(120, 10);
  EXPECT_GE(moves, 1);
  EXPECT_EQ(GetCapture(), nullptr);
}

TEST_F(WindowLifetime, WhatAHandlerThrowsEndsInTheWindow) {
  const auto watching = shown.control->TLObjectMouseDown.Connect([&](auto&&...) { throw 42; });
  shown.Press(120, 10);
  shown.Release(120, 10);
  EXPECT_TRUE(IsWindow(shown.CanvasWindow()));
}

TEST_F(WindowLifetime, TheCanvasMayOutliveTheWindow) {
  const Ref<IGraphicCanvas> canvas = shown.control->Collaborators().canvas;
  const Ref<ICanvasItem> item = canvas->GraphicByKey(u"A");
  shown.control = {};
  shown.window->Detach();
  shown.window.reset();
  item->SetBackColor(0x123456);
  canvas->RemoveGraphic(Variant(u"A"));
  EXPECT_FALSE(canvas->GraphicByKey(u"A"));
  shown.window = std::make_unique<TimelineWindow>(GetModuleHandleW(nullptr));
}

TEST_F(WindowLifetime, NothingIsToldAfterItWasDetached) {
  int told = 0;
  shown.window->Events().ViewChanged = shown.window->Events().Destroyed = [&] { ++told; };
  shown.window->Detach();
  bar->SetDuration(50);
  EXPECT_EQ(told, 0);
  EXPECT_EQ(shown.window->Handle(), nullptr);
}

TEST_F(WindowLifetime, ManyWindowsLeaveNoHandlesBehind) {
  const auto live = [] {
    ShownTimeline other;
    other.Bar(u"B", 10);
    UpdateWindow(other.CanvasWindow());
  };
  live();
  const DWORD before = GetGuiResources(GetCurrentProcess(), GR_GDIOBJECTS);
  for (int i = 0; i < 20; ++i) live();
  EXPECT_LE(GetGuiResources(GetCurrentProcess(), GR_GDIOBJECTS), before + 2);
}

}  // namespace
}  // namespace mur::win32::test
