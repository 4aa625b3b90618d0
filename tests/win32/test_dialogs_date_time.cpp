#include <gtest/gtest.h>

#include <murtimeline/dialogs/date_time_picker.h>
#include <murtimeline/win32/dialogs/date_time_form.h>
#include <murtimeline/win32/window_forms.h>

#include "tests/support/print.h"
#include "tests/support/value_text.h"
#include "tests/win32/dialog_user.h"

namespace mur::win32 {
namespace {

using namespace date_time_id;
using test::DateOf;
using test::DayIn;
using test::DialogUser;
using test::FocusId;
using test::TextOf;
using test::TimeIn;

const Date kMorning = DateOf(2000, 1, 1, 6);

// Arrow keys do nothing in the calendar of some platforms: this is what it says when the user picks a day.
void PickDay(HWND WindowA, const SYSTEMTIME& DayA) {
  SYSTEMTIME day = DayA;
  SendDlgItemMessageW(WindowA, kDate, MCM_SETCURSEL, 0, reinterpret_cast<LPARAM>(&day));
  NMSELCHANGE change{};
  change.nmhdr = {GetDlgItem(WindowA, kDate), kDate, MCN_SELCHANGE};
  change.stSelStart = change.stSelEnd = day;
  SendMessageW(WindowA, WM_NOTIFY, kDate, reinterpret_cast<LPARAM>(&change));
}

constexpr SYSTEMTIME kNinth{2000, 1, 0, 9, 0, 0, 0, 0};

class DateTimeWindow : public testing::Test {
 protected:
  DateTimeWindow() { dialog->SetTheDateTime(kMorning); }

  WindowForms forms{GetModuleHandleW(nullptr)};
  Ref<FDateTimePicker> dialog = Make<FDateTimePicker>(forms);
};

TEST_F(DateTimeWindow, ShowsTheMoment) {
  DialogUser user;
  user.Do([](HWND window) {
        EXPECT_EQ(DayIn(window, kDate), "2000-01-01");
        EXPECT_EQ(TimeIn(window, kTime), "06:00:00");
        EXPECT_EQ(TextOf(window, kMoment), "Saturday, January 1, 2000  6:00:00 AM");
        EXPECT_EQ(TextOf(window, kTimeCaption), "Time");
        wchar_t caption[16] = {};
        GetWindowTextW(window, caption, 16);
        EXPECT_STREQ(caption, L"Varox");
      })
      .Close();
  dialog->Show();
}

TEST_F(DateTimeWindow, TakesADayAndATimeThatIsTyped) {
  DialogUser user;
  user.Do([](HWND window) {
        EXPECT_EQ(FocusId(), kDate);
        PickDay(window, kNinth);
        EXPECT_EQ(TextOf(window, kMoment), "Sunday, January 9, 2000  6:00:00 AM");
      })
      .Type({VK_TAB})
      .Do([](HWND) { EXPECT_EQ(FocusId(), kTime); })
      .Click(kTime)
      .Type({'1', '1', VK_RIGHT, '2', '2', VK_RIGHT, '3', '3', VK_RIGHT})
      .Do([](HWND window) { EXPECT_EQ(TextOf(window, kMoment), "Sunday, January 9, 2000  11:22:33 AM"); })
      .Type({VK_RETURN});
  dialog->Show();
  EXPECT_FALSE(dialog->Cancelled());
  EXPECT_EQ(dialog->TheDateTime(), DateOf(2000, 1, 9, 11, 22, 33));
}

TEST_F(DateTimeWindow, TakesADayThatIsClicked) {
  DialogUser user;
  user.Do([](HWND window) {
        const HWND calendar = GetDlgItem(window, kDate);
        MCHITTESTINFO hit{};
        hit.cbSize = sizeof hit;
        RECT area{};
        GetClientRect(calendar, &area);
        const auto isNinth = [&](LONG x, LONG y) {
          hit.pt = {x, y};
          const auto what = SendMessageW(calendar, MCM_HITTEST, 0, reinterpret_cast<LPARAM>(&hit));
          return what == MCHT_CALENDARDATE && hit.st.wDay == 9;
        };
        LONG x = 0, y = 0;
        while (y < area.bottom && !isNinth(x, y)) {
          x += 4;
          if (x < area.right) continue;
          x = 0;
          y += 4;
        }
        ASSERT_LT(y, area.bottom);
        PostMessageW(calendar, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(x, y));
        PostMessageW(calendar, WM_LBUTTONUP, 0, MAKELPARAM(x, y));
      })
      .Do([](HWND window) { EXPECT_EQ(TextOf(window, kMoment), "Sunday, January 9, 2000  6:00:00 AM"); })
      .Type({VK_RETURN});
  dialog->Show();
  EXPECT_EQ(dialog->TheDateTime(), DateOf(2000, 1, 9, 6));
}

TEST_F(DateTimeWindow, LetsTabGoFromTheCalendarThroughTheButtonsAndBack) {
  std::vector<int> ids;
  DialogUser user;
  for (int step = 0; step < 5; ++step) user.Do([&ids](HWND) { ids.push_back(FocusId()); }).Type({VK_TAB});
  user.Close();
  dialog->Show();
  EXPECT_EQ(ids, std::vector({kDate, kTime, dialog_id::kSystem + 2, dialog_id::kSystem + 1, kDate}));
}

TEST_F(DateTimeWindow, IsAcceptedByEnterInTheCalendar) {
  DialogUser user;
  user.Type({VK_RETURN});
  dialog->Show();
  EXPECT_FALSE(dialog->Cancelled());
  EXPECT_EQ(dialog->TheDateTime(), kMorning);
}

TEST_F(DateTimeWindow, ReadsZeroAfterEscAndTheCloseBox) {
  DialogUser user;
  user.Do([](HWND window) { PickDay(window, kNinth); }).Type({VK_ESCAPE});
  dialog->Show();
  EXPECT_TRUE(dialog->Cancelled());
  EXPECT_EQ(dialog->TheDateTime(), Date());
  user.Close();
  dialog->Show();
  EXPECT_TRUE(dialog->Cancelled());
  EXPECT_EQ(dialog->TheDateTime(), Date());
}

TEST_F(DateTimeWindow, GivesBackTheEndsOfTheDateRangeThatTheCalendarDoesNotKnow) {
  struct {
    Date moment;
    const char* shown;
  } const ends[] = {{DateOf(100, 1, 1), "1752-09-14"},
                    {DateOf(1752, 9, 13), "1752-09-14"},
                    {DateOf(1752, 9, 14), "1752-09-14"},
                    {DateOf(1899, 12, 30, 1), "1899-12-30"},
                    {DateOf(9999, 12, 31, 23, 59, 59), "9999-12-31"}};
  for (const auto& end : ends) {
    dialog->SetTheDateTime(end.moment);
    DialogUser user;
    user.Do([&](HWND window) { EXPECT_EQ(DayIn(window, kDate), end.shown); }).Type({VK_RETURN});
    dialog->Show();
    EXPECT_EQ(dialog->TheDateTime(), end.moment) << end.shown;
  }
}

TEST_F(DateTimeWindow, KeepsADayThatTheCalendarDoesNotKnowWhenTheTimeIsEdited) {
  dialog->SetTheDateTime(DateOf(1500, 6, 1));
  DialogUser user;
  user.Click(kTime)
      .Type({VK_UP})
      .Do([](HWND window) { EXPECT_EQ(TextOf(window, kMoment), "Friday, June 1, 1500  1:00:00 AM"); })
      .Close();
  dialog->Show();
}

TEST_F(DateTimeWindow, TakesNoChangeFromACalendarThatTellsOfTheDayItShows) {
  dialog->SetTheDateTime(DateOf(1500, 6, 1));
  DialogUser user;
  user.Do([](HWND window) {
        PickDay(window, {1752, 9, 0, 14, 0, 0, 0, 0});
        EXPECT_TRUE(TextOf(window, kMoment).find("1500") != std::string::npos) << TextOf(window, kMoment);
      })
      .Close();
  dialog->Show();
}

TEST_F(DateTimeWindow, DropsFractionsOfASecondAsTheyAreNotShown) {
  dialog->SetTheDateTime(Date::Unchecked(kMorning.Days() + 0.75 / kSecondsPerDay));
  DialogUser user;
  user.Do([](HWND window) { EXPECT_EQ(TimeIn(window, kTime), "06:00:00"); }).Type({VK_RETURN});
  dialog->Show();
  EXPECT_EQ(dialog->TheDateTime(), kMorning);
}

TEST_F(DateTimeWindow, ShowsTheMessageOfARefusalAndStaysOpen) {
  const auto connection =
      dialog->ValidateSelectedDate.Connect([](Date& moment, bool& cancel, String& message) {
        cancel = moment < DateOf(2000, 1, 2);
        if (cancel) message = u"Too & early";
      });
  HWND picker = nullptr;
  DialogUser user;
  user.Do([&](HWND window) { picker = window; })
      .Type({VK_RETURN})
      .Do([&](HWND box) {
        EXPECT_NE(box, picker);
        EXPECT_EQ(GetWindow(box, GW_OWNER), picker);
        EXPECT_FALSE(IsWindowEnabled(picker));
        wchar_t title[32] = {};
        GetWindowTextW(box, title, 32);
        EXPECT_STREQ(title, L"Invalid Date/Time");
        EXPECT_TRUE(GetDlgItem(box, IDOK) || GetDlgItem(box, IDCANCEL));
      })
      .Type({VK_RETURN})
      .Do([&](HWND window) {
        EXPECT_EQ(window, picker);
        PickDay(window, kNinth);
      })
      .Type({VK_RETURN});
  dialog->Show();
  EXPECT_EQ(dialog->TheDateTime(), DateOf(2000, 1, 9, 6));
}

TEST_F(DateTimeWindow, RefusesSilentlyAndTakesTheMomentAtTheCloseBoxThen) {
  const auto connection = dialog->ValidateSelectedDate.Connect([](Date&, bool& cancel, String& message) {
    cancel = true;
    message = u"  ";
  });
  HWND picker = nullptr;
  DialogUser user;
  user.Do([&](HWND window) { picker = window; })
      .Type({VK_RETURN})
      .Do([&](HWND window) { EXPECT_EQ(window, picker); })
      .Close();
  dialog->Show();
  EXPECT_FALSE(dialog->Cancelled());
  EXPECT_EQ(dialog->TheDateTime(), kMorning);
}

TEST_F(DateTimeWindow, TakesTheMomentThatAListenerPutsInItsPlace) {
  const auto connection = dialog->ValidateSelectedDate.Connect(
      [](Date& moment, bool&, String&) { moment = DateOf(2001, 2, 3, 4, 5, 6); });
  DialogUser user;
  user.Type({VK_RETURN});
  dialog->Show();
  EXPECT_EQ(dialog->TheDateTime(), DateOf(2001, 2, 3, 4, 5, 6));
}

TEST_F(DateTimeWindow, CannotBeClosedWhileItsMomentIsValidated) {
  const auto connection = dialog->ValidateSelectedDate.Connect([](Date&, bool& cancel, String&) {
    const HWND window = test::FrontDialog();
    SendMessageW(window, WM_CLOSE, 0, 0);
    EXPECT_TRUE(IsWindowVisible(window));
    cancel = true;
  });
  DialogUser user;
  user.Type({VK_RETURN, VK_ESCAPE});
  dialog->Show();
  EXPECT_TRUE(dialog->Cancelled());
}

TEST_F(DateTimeWindow, GoesOnAfterAListenerThatThrows) {
  const auto connection = dialog->ValidateSelectedDate.Connect([](Date&, bool&, String&) { throw 1; });
  DialogUser user;
  user.Type({VK_RETURN});
  dialog->Show();
  EXPECT_FALSE(dialog->Cancelled());
}

}  // namespace
}  // namespace mur::win32
