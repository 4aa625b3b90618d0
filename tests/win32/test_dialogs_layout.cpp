#include <array>
#include <vector>

#include <gtest/gtest.h>

#include <murtimeline/win32/dialogs/date_time_form.h>
#include <murtimeline/win32/dialogs/edit_times_form.h>
#include <murtimeline/win32/handles.h>

#include "tests/win32/dialog_user.h"

namespace mur::win32 {
namespace {

HINSTANCE Module() {
  return GetModuleHandleW(nullptr);
}

void TellOfResolution(HWND WindowA, UINT DpiA) {
  RECT place{};
  GetWindowRect(WindowA, &place);
  SendMessageW(WindowA, WM_DPICHANGED, MAKEWPARAM(DpiA, DpiA), reinterpret_cast<LPARAM>(&place));
}

RECT PlaceOf(HWND ControlA) {
  RECT place{};
  GetWindowRect(ControlA, &place);
  MapWindowPoints(nullptr, GetParent(ControlA), reinterpret_cast<POINT*>(&place), 2);
  return place;
}

// What a text takes in the font of its control, wrapped at the control's width.
SIZE ExtentOf(HWND ControlA, bool WrappedA) {
  std::array<wchar_t, 512> text{};
  GetWindowTextW(ControlA, text.data(), static_cast<int>(text.size()));
  RECT place{};
  GetClientRect(ControlA, &place);
  const HDC device = GetDC(ControlA);
  {
    const Selected font(device, reinterpret_cast<HFONT>(SendMessageW(ControlA, WM_GETFONT, 0, 0)));
    const UINT wrapping = WrappedA ? DT_WORDBREAK : 0;
    DrawTextW(device, text.data(), -1, &place, DT_CALCRECT | DT_NOPREFIX | wrapping);
  }
  ReleaseDC(ControlA, device);
  return {place.right, place.bottom};
}

std::vector<HWND> ControlsIn(HWND WindowA) {
  std::vector<HWND> controls;
  for (HWND control = GetWindow(WindowA, GW_CHILD); control; control = GetWindow(control, GW_HWNDNEXT))
    if ((GetWindowLongPtrW(control, GWL_STYLE) & WS_VISIBLE) != 0) controls.push_back(control);
  return controls;
}

void ExpectRoom(HWND ControlA) {
  const int id = GetDlgCtrlID(ControlA);
  RECT inside{}, client{};
  GetClientRect(ControlA, &inside);
  const bool isLabel = SendMessageW(ControlA, WM_GETDLGCODE, 0, 0) & DLGC_STATIC;
  const SIZE needed = ExtentOf(ControlA, isLabel);
  EXPECT_GE(inside.right, needed.cx) << id;
  EXPECT_GE(inside.bottom, needed.cy) << id;
  GetClientRect(GetParent(ControlA), &client);
  const RECT place = PlaceOf(ControlA);
  EXPECT_TRUE(place.left >= 0 && place.top >= 0 && place.right <= client.right &&
              place.bottom <= client.bottom)
      << id;
}

void ExpectAllSeenWhole(HWND WindowA) {
  for (const UINT dpi : {96u, 144u, 192u, 96u}) {
    SCOPED_TRACE(dpi);
    TellOfResolution(WindowA, dpi);
    for (const HWND control : ControlsIn(WindowA)) ExpectRoom(control);
  }
}

constexpr StringView kLong =
    u"Use this window to change the displayed duration of the Timeline, which is a sentence that goes on for "
    u"longer than a header is wide and so must be wrapped once or even twice before it comes to its end";

TEST(DialogLayout, ShowsEveryTextWholeAtEveryScaleInTheEditTimesDialog) {
  EditTimesForm form(Module(), nullptr);
  form.SetTitle(u"Edit Times");
  form.SetCommentary(kLong);
  form.SetSystemCaption(1, u"Cancel");
  form.SetSystemCaption(2, u"OK");
  form.SetSystemCaption(3, u"Something rather long");
  form.SetStartText(u"Wednesday, September 22, 2222  12:22:22 PM");
  form.SetEndText(u"a text that takes much more room than the long date of any region does, whatever it is");
  ExpectAllSeenWhole(form.Handle());
}

TEST(DialogLayout, ShowsEveryTextWholeAtEveryScaleInTheDateTimePicker) {
  DateTimeForm form(Module(), nullptr);
  form.SetTitle(u"Edit Timeline Start Time");
  form.SetCommentary(kLong);
  form.SetDateTimeText(u"Wednesday, September 22, 2222  12:22:22 PM");
  ExpectAllSeenWhole(form.Handle());
  RECT needed{}, given{};
  const HWND calendar = GetDlgItem(form.Handle(), date_time_id::kDate);
  SendMessageW(calendar, MCM_GETMINREQRECT, 0, reinterpret_cast<LPARAM>(&needed));
  GetClientRect(calendar, &given);
  EXPECT_GE(given.right, needed.right);
  EXPECT_GE(given.bottom, needed.bottom);
}

TEST(DialogLayout, PutsNoControlUponAnother) {
  EditTimesForm edit(Module(), nullptr);
  DateTimeForm pick(Module(), nullptr);
  for (DialogWindow* const window : {static_cast<DialogWindow*>(&edit), static_cast<DialogWindow*>(&pick)}) {
    window->SetTitle(u"Title");
    window->SetCommentary(kLong);
    std::vector<HWND> controls;
    for (const HWND control : ControlsIn(window->Handle())) {
      const int id = GetDlgCtrlID(control);
      if (id != dialog_id::kHeader && id != dialog_id::kFieldPanel) controls.push_back(control);
    }
    for (std::size_t one = 0; one < controls.size(); ++one)
      for (std::size_t other = one + 1; other < controls.size(); ++other) {
        const RECT first = PlaceOf(controls[one]), second = PlaceOf(controls[other]);
        RECT both{};
        EXPECT_FALSE(IntersectRect(&both, &first, &second))
            << GetDlgCtrlID(controls[one]) << " and " << GetDlgCtrlID(controls[other]);
      }
  }
}

TEST(DialogLayout, GrowsWithATextAndDoesNotShrinkUnderTheUsersHand) {
  EditTimesForm form(Module(), nullptr);
  const auto width = [&] {
    RECT client{};
    GetClientRect(form.Handle(), &client);
    return client.right;
  };
  const LONG before = width();
  form.SetStartText(String(200, u'W'));
  const LONG grown = width();
  EXPECT_GT(grown, before);
  form.SetStartText(u"W");
  EXPECT_EQ(width(), grown);
}

TEST(DialogLayout, LeavesNoRoomForButtonsThatAreHidden) {
  EditTimesForm form(Module(), nullptr);
  const auto leftOf = [&](int index) {
    return PlaceOf(GetDlgItem(form.Handle(), dialog_id::kSystem + index)).left;
  };
  EXPECT_LT(leftOf(2), leftOf(1));
  EXPECT_LT(leftOf(1), leftOf(3));
  const LONG last = leftOf(3);
  form.SetSystemVisible(3, false);
  EXPECT_EQ(leftOf(1), last);
}

LRESULT CALLBACK CountColorChanges(HWND window, UINT message, WPARAM word, LPARAM data, UINT_PTR /*id*/,
                                   DWORD_PTR count) {
  if (message == WM_SYSCOLORCHANGE) ++*reinterpret_cast<int*>(count);
  return DefSubclassProc(window, message, word, data);
}

TEST(DialogLayout, TellsItsControlsOfOtherColors) {
  DateTimeForm form(Module(), nullptr);
  const HWND calendar = GetDlgItem(form.Handle(), date_time_id::kDate);
  int changes = 0;
  SetWindowSubclass(calendar, CountColorChanges, 0, reinterpret_cast<DWORD_PTR>(&changes));
  SendMessageW(form.Handle(), WM_SYSCOLORCHANGE, 0, 0);
  EXPECT_EQ(changes, 1);
  RemoveWindowSubclass(calendar, CountColorChanges, 0);
}

TEST(DialogLayout, MovesToThePlaceThatTheSystemSuggestsForAnotherResolution) {
  EditTimesForm form(Module(), nullptr);
  const RECT suggested{40, 30, 41, 31};
  SendMessageW(form.Handle(), WM_DPICHANGED, MAKEWPARAM(144, 144), reinterpret_cast<LPARAM>(&suggested));
  RECT place{};
  GetWindowRect(form.Handle(), &place);
  EXPECT_EQ(place.left, 40);
  EXPECT_EQ(place.top, 30);
}

TEST(DialogLayout, ScalesWithTheResolutionOfItsMonitor) {
  EditTimesForm form(Module(), nullptr);
  const auto iconWidth = [&] {
    const RECT place = PlaceOf(GetDlgItem(form.Handle(), dialog_id::kIcon));
    return place.right - place.left;
  };
  TellOfResolution(form.Handle(), 96);
  EXPECT_EQ(iconWidth(), 40);
  TellOfResolution(form.Handle(), 144);
  EXPECT_EQ(iconWidth(), 60);
  TellOfResolution(form.Handle(), 192);
  EXPECT_EQ(iconWidth(), 80);
}

}  // namespace
}  // namespace mur::win32
