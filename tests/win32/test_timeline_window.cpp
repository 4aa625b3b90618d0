#include <gmock/gmock.h>

#include "tests/support/control_log.h"
#include "tests/win32/shown_timeline.h"

namespace mur::win32::test {
namespace {

RECT PlaceIn(HWND ParentA, HWND WindowA) {
  RECT place{};
  GetWindowRect(WindowA, &place);
  MapWindowPoints(nullptr, ParentA, reinterpret_cast<POINT*>(&place), 2);
  return place;
}

std::string Text(const RECT& PlaceA) {
  return std::to_string(PlaceA.left) + ',' + std::to_string(PlaceA.top) + ' ' + std::to_string(PlaceA.right) +
         ',' + std::to_string(PlaceA.bottom);
}

TEST(TimelineWindow, HasTheScaleAboveTheCanvas) {
  const ShownTimeline shown;
  const HWND frame = shown.window->Handle();
  EXPECT_EQ(Text(PlaceIn(frame, shown.ScaleWindow())), "0,0 1000,40");
  EXPECT_EQ(Text(PlaceIn(frame, shown.CanvasWindow())), "0,40 1000,240");
}

TEST(TimelineWindow, LaysOutAnewForAnotherPlace) {
  const ShownTimeline shown;
  shown.window->Place({10, 20, 510, 320});
  EXPECT_EQ(Text(PlaceIn(shown.host.Handle(), shown.window->Handle())), "10,20 510,320");
  EXPECT_EQ(Text(PlaceIn(shown.window->Handle(), ChildWindowFromPoint(shown.window->Handle(), {5, 299}))),
            "0,40 500,300");
  EXPECT_EQ(shown.window->ScaleWidth(), 7500);
  EXPECT_EQ(shown.Canvas().DrawingWidth(), 500);
}

TEST(TimelineWindow, IsLaidOutWithoutAWindow) {
  TimelineWindow window(GetModuleHandleW(nullptr));
  const auto control = Make<MURTimelineRender>(window);
  window.Attach(*control);
  window.SetSize({300, 200});
  EXPECT_EQ(window.Handle(), nullptr);
  EXPECT_EQ(window.ScaleWidth(), 4500);
  EXPECT_EQ(window.CanvasHost().Top(), 600);
  EXPECT_EQ(window.CanvasHost().Height(), 2400);
}

TEST(TimelineWindow, PlacesEdgesOnDevicePixelsAtAnyScaleFactor) {
  const ShownTimeline shown;
  shown.window->SetScaleFactor(1.5);
  EXPECT_EQ(Text(PlaceIn(shown.window->Handle(), shown.ScaleWindow())), "0,0 1000,60");
  EXPECT_EQ(Text(PlaceIn(shown.window->Handle(), shown.CanvasWindow())), "0,60 1000,240");
  shown.control->SetTimeScaleHeight(605);
  EXPECT_EQ(Text(PlaceIn(shown.window->Handle(), shown.CanvasWindow())), "0,61 1000,240");
}

TEST(TimelineWindow, TellsWhenItWasDestroyedByWhomever) {
  ShownTimeline shown;
  int destroyed = 0;
  shown.window->Events().Destroyed = [&] {
    ++destroyed;
    EXPECT_EQ(shown.window->Handle(), nullptr);
  };
  DestroyWindow(shown.host.Handle());
  EXPECT_EQ(destroyed, 1);
  shown.control->SetDuration(500);  // works on without a window
  EXPECT_EQ(shown.Canvas().DrawingWidth(), 1000);
}

TEST(TimelineWindow, CanBeMadeAgain) {
  ShownTimeline shown;
  shown.window->Destroy();
  EXPECT_TRUE(shown.window->Create(shown.host.Handle(), {0, 0, 400, 200}));
  EXPECT_EQ(shown.Canvas().DrawingWidth(), 400);
}

TEST(TimelineWindow, AsksToBePaintedAgainShownOrNot) {
  ShownTimeline shown;
  shown.window->Destroy();
  int changes = 0;
  shown.window->Events().ViewChanged = [&] { ++changes; };
  shown.Bar(u"A", 100);
  EXPECT_GT(changes, 0);
}

}  // namespace
}  // namespace mur::win32::test
