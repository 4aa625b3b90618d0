#include <gtest/gtest.h>

#include "tests/win32/shown_timeline.h"

namespace mur::win32::test {
namespace {

class ManyRows : public testing::Test {
 protected:
  // 7 tracks are 316 pixels high, 200 are shown.
  ManyRows() {
    for (const char16_t key : {u'a', u'b', u'c', u'd', u'e', u'f', u'g'}) shown.Bar(StringView(&key, 1), 200);
    PumpMessages();
  }
  HWND Bar() const { return GetWindow(shown.CanvasWindow(), GW_CHILD); }
  float Top() const { return shown.Canvas().ScrollTop(); }

  ShownTimeline shown;
};

TEST_F(ManyRows, HaveAScrollBarOverTheRightEdge) {
  ASSERT_NE(Bar(), nullptr);
  RECT place{};
  GetWindowRect(Bar(), &place);
  MapWindowPoints(nullptr, shown.CanvasWindow(), reinterpret_cast<POINT*>(&place), 2);
  EXPECT_EQ(place.right, 1000);
  EXPECT_EQ(place.bottom, 200);
  SCROLLINFO info{sizeof(SCROLLINFO), SIF_ALL, 0, 0, 0, 0, 0};
  GetScrollInfo(Bar(), SB_CTL, &info);
  EXPECT_EQ(info.nMax, 315);
  EXPECT_EQ(info.nPage, 200U);
  EXPECT_EQ(shown.Canvas().DrawingWidth(), 1000);  // times keep their places
}

TEST_F(ManyRows, LoseTheirScrollBarWhenTheyFit) {
  shown.window->Place({0, 0, 1000, 500});
  PumpMessages();
  EXPECT_EQ(Bar(), nullptr);
}

TEST_F(ManyRows, ScrollByTheScrollBar) {
  const auto scroll = [&](WORD code) {
    shown.Send(WM_VSCROLL, code, reinterpret_cast<LPARAM>(Bar()));
    return Top();
  };
  EXPECT_EQ(scroll(SB_LINEDOWN), 20);
  EXPECT_EQ(scroll(SB_BOTTOM), 116);
  EXPECT_EQ(scroll(SB_LINEUP), 96);
  EXPECT_EQ(scroll(SB_PAGEUP), 0);
  EXPECT_EQ(scroll(SB_PAGEDOWN), 116);
  EXPECT_EQ(scroll(SB_TOP), 0);
  PumpMessages();
}

TEST_F(ManyRows, TheScrollBarFollows) {
  shown.Canvas().SetScrollTop(50);
  PumpMessages();
  EXPECT_EQ(GetScrollPos(Bar(), SB_CTL), 50);
}

TEST_F(ManyRows, ScrollByTheWheelAsFarAsTheUserChose) {
  UINT lines = 0;
  SystemParametersInfoW(SPI_GETWHEELSCROLLLINES, 0, &lines, 0);
  shown.Send(WM_MOUSEWHEEL, MAKEWPARAM(0, static_cast<WORD>(-WHEEL_DELTA)), 0);
  EXPECT_EQ(Top(), static_cast<float>(20 * lines));
  shown.Send(WM_MOUSEWHEEL, MAKEWPARAM(0, WHEEL_DELTA), 0);
  EXPECT_EQ(Top(), 0);
}

TEST_F(ManyRows, AWalkBringsTheBarIntoView) {
  for (int step = 0; step < 7; ++step) shown.Key(VK_DOWN);
  EXPECT_EQ(ToUtf8(shown.Canvas().FocusedItem()->Key()), "g");
  EXPECT_EQ(Top(), 116);
}

}  // namespace
}  // namespace mur::win32::test
