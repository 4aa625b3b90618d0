#include <memory>

#include <gtest/gtest.h>

#include <murtimeline/automation/error.h>
#include <murtimeline/dialogs/edit_times_dialog.h>
#include <murtimeline/win32/dialogs/date_time_form.h>
#include <murtimeline/win32/dialogs/edit_times_form.h>
#include <murtimeline/win32/window_forms.h>

#include "tests/support/print.h"
#include "tests/support/value_text.h"
#include "tests/win32/dialog_user.h"

namespace mur::win32 {
namespace {

using namespace dialog_id;
using namespace edit_times_id;
using test::DateOf;
using test::DialogUser;
using test::FocusId;
using test::TextOf;
using test::TimeIn;

constexpr int kStart = kField + 1, kEnd = kField + 2, kDuration = kField + 3;
constexpr int kChangeStart = kChange + 1, kChangeEnd = kChange + 2;
constexpr int kCancel = kSystem + 1, kOk = kSystem + 2, kThird = kSystem + 3;
const Date kMorning = DateOf(2000, 1, 1, 6);

class EditTimesWindow : public testing::Test {
 protected:
  EditTimesWindow() {
    forms.SetOwner(host.Child());
    dialog = Make<FMURTLRenderConfig>(forms);
    dialog->SetTitle(u"Edit Times");
    dialog->SetWorldTimeT0(kMorning);
    dialog->SetDuration(3600);
  }

  test::OwnerWindow host;
  WindowForms forms{GetModuleHandleW(nullptr)};
  Ref<FMURTLRenderConfig> dialog;
};

TEST_F(EditTimesWindow, ShowsItsTexts) {
  DialogUser user;
  user.Do([](HWND window) {
        EXPECT_EQ(TextOf(window, kTitle), "Edit Times");
        EXPECT_EQ(TextOf(window, kStart), "Saturday, January 1, 2000  6:00:00 AM");
        EXPECT_EQ(TextOf(window, kEnd), "Saturday, January 1, 2000  7:00:00 AM");
        EXPECT_EQ(TimeIn(window, kDuration), "01:00:00");
        EXPECT_EQ(TextOf(window, kChangeStart), "Change");
        EXPECT_EQ(TextOf(window, kChangeEnd), "Change");
        EXPECT_EQ(TextOf(window, kCaption + 1), "Start Time");
        EXPECT_EQ(TextOf(window, kCaption + 2), "End Time");
        EXPECT_EQ(TextOf(window, kCaption + 3), "Duration");
        EXPECT_EQ(TextOf(window, kCancel), "Cancel");
        EXPECT_EQ(TextOf(window, kOk), "OK");
        EXPECT_FALSE(test::IsVisible(window, kThird));
        wchar_t caption[16] = {};
        GetWindowTextW(window, caption, 16);
        EXPECT_STREQ(caption, L"Varox");
        for (const int id : {kCommentary, kIcon, kHeader, kFieldPanel})
          EXPECT_TRUE(test::IsVisible(window, id)) << id;
      })
      .Close();
  dialog->Show();
}

TEST_F(EditTimesWindow, StandsUponTheDisabledRootOfItsOwner) {
  DialogUser user;
  user.Do([this](HWND window) {
        EXPECT_EQ(GetWindow(window, GW_OWNER), host.Root());
        EXPECT_FALSE(IsWindowEnabled(host.Root()));
        RECT below{}, above{};
        GetWindowRect(host.Root(), &below);
        GetWindowRect(window, &above);
        EXPECT_NEAR(below.left + below.right, above.left + above.right, 2);
        EXPECT_NEAR(below.top + below.bottom, above.top + above.bottom, 2);
      })
      .Close();
  dialog->Show();
  EXPECT_TRUE(IsWindowEnabled(host.Root()));
  EXPECT_EQ(GetActiveWindow(), host.Root());
  EXPECT_EQ(GetFocus(), host.Child());
}

TEST_F(EditTimesWindow, LeavesARootDisabledThatWasSoBefore) {
  EnableWindow(host.Root(), FALSE);
  DialogUser user;
  user.Close();
  dialog->Show();
  EXPECT_FALSE(IsWindowEnabled(host.Root()));
}

TEST_F(EditTimesWindow, EndsADragThatIsUnderWay) {
  SetCapture(host.Child());
  DialogUser user;
  user.Do([](HWND) { EXPECT_EQ(GetCapture(), nullptr); }).Close();
  dialog->Show();
}

TEST_F(EditTimesWindow, LetsTabGoThroughTheFieldsAndThenTheButtons) {
  DialogUser user;
  std::vector<int> ids;
  for (int step = 0; step < 7; ++step) user.Do([&ids](HWND) { ids.push_back(FocusId()); }).Type({VK_TAB});
  user.Do([](HWND) { EXPECT_EQ(FocusId(), kDuration); }).TypeShifted(VK_TAB);
  user.Do([](HWND) { EXPECT_EQ(FocusId(), kChangeEnd); }).Close();
  dialog->Show();
  EXPECT_EQ(ids, std::vector({kDuration, kOk, kCancel, kStart, kChangeStart, kEnd, kChangeEnd}));
}

TEST_F(EditTimesWindow, IsAcceptedByEnterAndCancelledByEsc) {
  DialogUser user;
  user.Type({VK_RETURN});
  dialog->Show();
  EXPECT_FALSE(dialog->Cancelled());
  user.Type({VK_ESCAPE});
  dialog->Show();
  EXPECT_TRUE(dialog->Cancelled());
}

TEST_F(EditTimesWindow, IsCancelledByTheCloseBoxUnlessItWasAcceptedBefore) {
  DialogUser user;
  user.Close();
  dialog->Show();
  EXPECT_TRUE(dialog->Cancelled());
  user.Type({VK_RETURN});
  dialog->Show();
  user.Close();
  dialog->Show();
  EXPECT_FALSE(dialog->Cancelled());  // deliberately: the box decides nothing
}

TEST_F(EditTimesWindow, IsAcceptedByEnterInEveryFieldThatIsNoButton) {
  for (const int id : {kStart, kEnd, kDuration}) {
    DialogUser user;
    user.Do([id](HWND window) { SetFocus(GetDlgItem(window, id)); }).Type({VK_RETURN});
    dialog->Show();
    EXPECT_FALSE(dialog->Cancelled()) << id;
  }
}

TEST_F(EditTimesWindow, PressesTheButtonThatHasTheKeyboardByEnterAndSpace) {
  for (const int key : {VK_RETURN, VK_SPACE}) {
    DialogUser user;
    user.Type({VK_TAB, VK_TAB}).Do([](HWND) { EXPECT_EQ(FocusId(), kCancel); }).Type({key});
    dialog->Show();
    EXPECT_TRUE(dialog->Cancelled()) << key;
  }
}

TEST_F(EditTimesWindow, TakesALengthThatIsTyped) {
  DialogUser user;
  user.Click(kDuration)
      .Type({'0', '2', VK_RIGHT, '3', '0', VK_RIGHT, '1', '5', VK_RIGHT})
      .Do([](HWND window) {
        EXPECT_EQ(TimeIn(window, kDuration), "02:30:15");
        EXPECT_EQ(TextOf(window, kEnd), "Saturday, January 1, 2000  8:30:15 AM");
      })
      .Type({VK_RETURN});
  dialog->Show();
  EXPECT_FALSE(dialog->Cancelled());
  EXPECT_NEAR(dialog->Duration(), 9015, 1e-6);
}

TEST_F(EditTimesWindow, TakesALengthFromTheArrowKeys) {
  DialogUser user;
  user.Click(kDuration).Type({VK_UP, VK_RIGHT, VK_DOWN, VK_RETURN});
  dialog->Show();
  EXPECT_NEAR(dialog->Duration(), 2 * 3600 + 59 * 60, 1e-6);  // minutes go round
}

TEST_F(EditTimesWindow, KeepsTheDaysAndTheFractionOfALengthWhoseTimeIsEdited) {
  dialog->SetDuration(2 * kSecondsPerDay + 3600.25);
  DialogUser user;
  user.Do([](HWND window) { EXPECT_EQ(TimeIn(window, kDuration), "01:00:00"); })
      .Click(kDuration)
      .Type({VK_UP, VK_RETURN});
  dialog->Show();
  EXPECT_NEAR(dialog->Duration(), 2 * kSecondsPerDay + 7200.25, 1e-6);
}

TEST_F(EditTimesWindow, KeepsALengthThatIsNotEditedToTheBit) {
  for (const double seconds : {0.1, -3600.0, 90000.75, 1e300}) {
    dialog->SetDuration(seconds);
    DialogUser user;
    user.Type({VK_RETURN});
    dialog->Show();
    EXPECT_EQ(dialog->Duration(), seconds);
  }
}

TEST_F(EditTimesWindow, ShowsANegativeLengthWithoutItsSignAndTakesWhatIsMadeOfIt) {
  dialog->SetDuration(-3600);
  DialogUser user;
  user.Do([](HWND window) { EXPECT_EQ(TimeIn(window, kDuration), "01:00:00"); })
      .Click(kDuration)
      .Type({VK_UP, VK_RETURN});
  dialog->Show();
  EXPECT_NEAR(dialog->Duration(), 7200, 1e-6);
}

TEST_F(EditTimesWindow, LetsNothingBeTypedIntoItsTexts) {
  DialogUser user;
  user.Do([](HWND window) { SetFocus(GetDlgItem(window, kStart)); })
      .Type({VK_END, VK_BACK, 'X'})
      .Do([](HWND window) { EXPECT_EQ(TextOf(window, kStart), "Saturday, January 1, 2000  6:00:00 AM"); })
      .Type({VK_RETURN});
  dialog->Show();
  EXPECT_EQ(dialog->WorldTimeT0(), kMorning);
}

TEST_F(EditTimesWindow, OpensThePickerOfTheStartByKeysAndTakesWhatIsPicked) {
  HWND editor = nullptr;
  DialogUser user;
  user.Do([&](HWND window) { editor = window; });
  for (int step = 0; step < 3; ++step) user.TypeShifted(VK_TAB);
  user.Do([](HWND) { EXPECT_EQ(FocusId(), kChangeStart); })
      .Type({VK_SPACE})
      .Do([&](HWND picker) {
        EXPECT_EQ(GetWindow(picker, GW_OWNER), editor);
        EXPECT_FALSE(IsWindowEnabled(editor));
        EXPECT_EQ(TextOf(picker, kTitle), "Edit Timeline Start Time");
      })
      .Click(date_time_id::kTime)
      .Type({VK_UP, VK_RETURN})
      .Do([&](HWND window) {
        EXPECT_EQ(window, editor);
        EXPECT_EQ(FocusId(), kChangeStart);
        EXPECT_EQ(TextOf(window, kStart), "Saturday, January 1, 2000  7:00:00 AM");
        EXPECT_EQ(TextOf(window, kEnd), "Saturday, January 1, 2000  8:00:00 AM");
        SetFocus(GetDlgItem(window, kDuration));
      })
      .Type({VK_RETURN});
  dialog->Show();
  EXPECT_EQ(dialog->WorldTimeT0(), DateOf(2000, 1, 1, 7));
  EXPECT_EQ(dialog->Duration(), 3600);
}

TEST_F(EditTimesWindow, OpensThePickerOfTheStopByEnterOnItsButton) {
  DialogUser user;
  user.TypeShifted(VK_TAB)
      .Type({VK_RETURN})
      .Do([](HWND picker) {
        EXPECT_EQ(TextOf(picker, kTitle), "Edit Timeline Stop Time");
        EXPECT_EQ(TextOf(picker, date_time_id::kMoment), "Saturday, January 1, 2000  7:00:00 AM");
      })
      .Type({VK_ESCAPE})
      .Do([](HWND window) { EXPECT_EQ(TextOf(window, kTitle), "Edit Times"); })
      .Type({VK_ESCAPE});
  dialog->Show();
  EXPECT_EQ(dialog->Duration(), 3600);
}

TEST_F(EditTimesWindow, HoldsTheLengthInDaysAfterAStopWasPickedDeliberately) {
  DialogUser user;
  user.TypeShifted(VK_TAB).Type({VK_RETURN, VK_RETURN}).Do([](HWND window) {
    SetFocus(GetDlgItem(window, kDuration));
  });
  user.Type({VK_RETURN});
  dialog->Show();
  EXPECT_EQ(dialog->Duration(), DateOf(2000, 1, 1, 7).Days() - kMorning.Days());
}

TEST_F(EditTimesWindow, ShowsTextsOfTheProgramAsTheyAre) {
  const String commentary(u"C\0D", 3);
  dialog->SetTitle(u"A & B");
  dialog->SetCommentary(commentary);
  EXPECT_EQ(dialog->Title(), u"A & B");
  EXPECT_EQ(dialog->Commentary(), commentary);
  DialogUser user;
  user.Do([](HWND window) {
        EXPECT_EQ(TextOf(window, kTitle), "A & B");
        for (const int id : {kTitle, kCommentary})
          EXPECT_NE(GetWindowLongPtrW(GetDlgItem(window, id), GWL_STYLE) & SS_NOPREFIX, 0);
      })
      .Close();
  dialog->Show();
}

TEST_F(EditTimesWindow, ShowsTheIconOfItsOwnerOrOneOfItsOwn) {
  const auto iconOf = [](HWND window) { return SendMessageW(window, WM_GETICON, ICON_BIG, 0); };
  DialogUser user;
  user.Do([&](HWND window) { EXPECT_NE(iconOf(window), 0); }).Close();
  dialog->Show();
  const auto icon = reinterpret_cast<LPARAM>(LoadIconW(nullptr, IDI_WARNING));
  SendMessageW(host.Root(), WM_SETICON, ICON_BIG, icon);
  const auto other = Make<FMURTLRenderConfig>(forms);
  user.Do([&](HWND window) { EXPECT_EQ(iconOf(window), icon); }).Close();
  other->Show();
}

TEST(EditTimesForm, KeepsTheCaptionsOfItsButtonsAsTheyAre) {
  EditTimesForm form(GetModuleHandleW(nullptr), nullptr);
  form.SetSystemCaption(3, u"&Help && more");
  EXPECT_EQ(form.SystemCaption(3), u"&Help && more");
  EXPECT_EQ(TextOf(form.Handle(), kThird), "&&Help &&&& more");
}

TEST(EditTimesForm, RefusesAButtonThatIsNotThere) {
  EditTimesForm form(GetModuleHandleW(nullptr), nullptr);
  for (const int index : {0, 4, -1}) {
    EXPECT_THROW(form.SetSystemCaption(index, u"X"), AutomationError);
    EXPECT_THROW(form.SetSystemDefault(index), AutomationError);
    EXPECT_THROW(form.SetSystemCancel(index), AutomationError);
    EXPECT_THROW(form.SystemCaption(index), AutomationError);
    EXPECT_THROW(form.SetSystemVisible(index, true), AutomationError);
  }
}

}  // namespace
}  // namespace mur::win32
