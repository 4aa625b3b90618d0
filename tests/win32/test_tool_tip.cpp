#include <gmock/gmock.h>

#include "tests/win32/shown_timeline.h"

namespace mur::win32::test {
namespace {

// The platform's tool tip that a window owns.
HWND TipOf(HWND OwnerA) {
  struct Search {
    HWND owner, found;
  } search{OwnerA, nullptr};
  EnumThreadWindows(
      GetCurrentThreadId(),
      [](HWND window, LPARAM data) -> BOOL {
        auto& sought = *reinterpret_cast<Search*>(data);
        wchar_t name[64]{};
        GetClassNameW(window, name, 64);
        const bool isTip = std::wstring_view(name) == TOOLTIPS_CLASSW;
        if (isTip && GetWindow(window, GW_OWNER) == GetAncestor(sought.owner, GA_ROOT)) sought.found = window;
        return TRUE;
      },
      reinterpret_cast<LPARAM>(&search));
  return search.found;
}

class HoverTexts : public testing::Test {
 protected:
  HoverTexts() {
    shown.Bar(u"A", 100);
    shown.control->SetToolTipText(u"background");
    shown.Canvas().GraphicByKey(u"A")->SetToolTipText(u"a & b\ttab");
  }
  // The text and the area that the tool tip waits for after the pointer moved.
  std::wstring TextAfter(int XA, int YA) {
    shown.MoveTo(XA, YA, 0);
    const HWND tip = TipOf(shown.CanvasWindow());
    std::wstring text(200, L'\0');
    TOOLINFOW info{};
    info.cbSize = TTTOOLINFOW_V2_SIZE;
    info.lpszText = text.data();
    if (!tip || SendMessageW(tip, TTM_ENUMTOOLSW, 0, reinterpret_cast<LPARAM>(&info)) == FALSE) return L"-";
    area = info.rect;
    return text.substr(0, text.find(L'\0'));
  }

  ShownTimeline shown;
  RECT area{};
};

TEST_F(HoverTexts, AreThoseOfWhatIsUnderThePointer) {
  EXPECT_EQ(TextAfter(120, 10), L"a & b\ttab");
  EXPECT_EQ(area.left, 100);
  EXPECT_EQ(area.right, 200);
  EXPECT_EQ(area.bottom, 40);
  EXPECT_EQ(TextAfter(700, 100), L"background");
  EXPECT_EQ(area.right, 1000);
}

TEST_F(HoverTexts, AreNotShownWhileTheyAreOff) {
  EXPECT_EQ(TextAfter(120, 10), L"a & b\ttab");
  shown.control->SetShowToolTips(false);
  EXPECT_EQ(TextAfter(121, 10), L"-");
}

TEST_F(HoverTexts, AreNotShownDuringADrag) {
  EXPECT_EQ(TextAfter(120, 10), L"a & b\ttab");
  shown.Press(120, 10);
  EXPECT_EQ(TextAfter(122, 10), L"-");
  shown.Release(122, 10);
}

TEST_F(HoverTexts, GoWithTheWindow) {
  TextAfter(120, 10);
  const HWND tip = TipOf(shown.CanvasWindow());
  ASSERT_TRUE(IsWindow(tip));
  shown.window->Destroy();
  EXPECT_FALSE(IsWindow(tip));
}

}  // namespace
}  // namespace mur::win32::test
