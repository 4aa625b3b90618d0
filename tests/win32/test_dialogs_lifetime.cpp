#include <memory>
#include <optional>

#include <gtest/gtest.h>

#include <murtimeline/dialogs/date_time_picker.h>
#include <murtimeline/dialogs/edit_times_dialog.h>
#include <murtimeline/win32/dialogs/date_time_form.h>
#include <murtimeline/win32/dialogs/edit_times_form.h>
#include <murtimeline/win32/window_forms.h>

#include "tests/support/print.h"
#include "tests/support/value_text.h"
#include "tests/win32/dialog_user.h"

namespace mur::win32 {
namespace {

using test::DialogUser;
using test::FrontDialog;

constexpr int kChangeStart = edit_times_id::kChange + 1;

HINSTANCE Module() {
  return GetModuleHandleW(nullptr);
}

class DialogWindows : public testing::Test {
 protected:
  DialogWindows() { forms.SetOwner(host.Child()); }

  test::OwnerWindow host;
  WindowForms forms{Module()};
};

// Presses a button without waiting for what it does.
DialogUser::Deed PressLater(int IdA) {
  return [IdA](HWND window) { PostMessageW(GetDlgItem(window, IdA), BM_CLICK, 0, 0); };
}

TEST_F(DialogWindows, StandInTheMiddleOfTheScreenWithoutAnOwner) {
  forms.SetOwner(nullptr);
  const auto dialog = Make<FMURTLRenderConfig>(forms);
  DialogUser user;
  user.Do([](HWND window) {
        EXPECT_EQ(GetWindow(window, GW_OWNER), nullptr);
        RECT area{}, place{};
        SystemParametersInfoW(SPI_GETWORKAREA, 0, &area, 0);
        GetWindowRect(window, &place);
        EXPECT_NEAR(area.left + area.right, place.left + place.right, 2);
        EXPECT_NEAR(area.top + area.bottom, place.top + place.bottom, 2);
      })
      .Type({VK_RETURN});
  dialog->Show();
  EXPECT_FALSE(dialog->Cancelled());
  EXPECT_TRUE(IsWindowEnabled(host.Root()));
}

TEST_F(DialogWindows, StayWithinTheWorkAreaWhereTheirOwnerDoesNot) {
  SetWindowPos(host.Root(), nullptr, -600, -400, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
  const auto dialog = Make<FMURTLRenderConfig>(forms);
  DialogUser user;
  user.Do([](HWND window) {
        RECT area{}, place{};
        SystemParametersInfoW(SPI_GETWORKAREA, 0, &area, 0);
        GetWindowRect(window, &place);
        EXPECT_EQ(place.left, area.left);
        EXPECT_EQ(place.top, area.top);
      })
      .Close();
  dialog->Show();
}

TEST_F(DialogWindows, CanBeMadeAfterTheirOwnerHasGone) {
  host.Destroy();
  const auto dialog = Make<FMURTLRenderConfig>(forms);
  DialogUser user;
  user.Type({VK_RETURN});
  dialog->Show();
  EXPECT_FALSE(dialog->Cancelled());
}

TEST_F(DialogWindows, MayGoBeforeTheirDialogWhichGoesOnWithoutThem) {
  const auto dialog = Make<FMURTLRenderConfig>(forms);
  host.Destroy();
  dialog->SetTitle(u"T");
  dialog->SetDuration(5);
  dialog->Show();
  EXPECT_EQ(dialog->Title(), u"");
  EXPECT_EQ(dialog->Duration(), 5);
  EXPECT_TRUE(dialog->Cancelled());
}

TEST_F(DialogWindows, EndCancelledWhenTheirOwnerIsDestroyedMeanwhile) {
  const auto dialog = Make<FMURTLRenderConfig>(forms);
  DialogUser user;
  user.Do([this](HWND) { host.Destroy(); });
  dialog->Show();
  EXPECT_TRUE(dialog->Cancelled());
  EXPECT_EQ(FrontDialog(), nullptr);
}

TEST_F(DialogWindows, EndCancelledWithThePickerUponThem) {
  const auto dialog = Make<FMURTLRenderConfig>(forms);
  dialog->SetDuration(3600);
  DialogUser user;
  user.Do(PressLater(kChangeStart)).Do([this](HWND window) {
    EXPECT_NE(GetDlgItem(window, date_time_id::kDate), nullptr);
    host.Destroy();
  });
  dialog->Show();
  EXPECT_TRUE(dialog->Cancelled());
  EXPECT_EQ(dialog->Duration(), 3600);
  EXPECT_EQ(FrontDialog(), nullptr);
}

TEST_F(DialogWindows, EndCancelledWithTheMessageUponThem) {
  const auto dialog = Make<FDateTimePicker>(forms);
  const auto connection = dialog->ValidateSelectedDate.Connect([](Date&, bool& cancel, String& message) {
    cancel = true;
    message = u"No";
  });
  HWND picker = nullptr;
  DialogUser user;
  user.Do([&](HWND window) { picker = window; }).Type({VK_RETURN}).Do([&](HWND box) {
    EXPECT_NE(box, picker);
    host.Destroy();
  });
  dialog->Show();
  EXPECT_TRUE(dialog->Cancelled());
  EXPECT_EQ(FrontDialog(), nullptr);
}

TEST_F(DialogWindows, EnableTheirOwnerWhenTheyAreDestroyedThemselves) {
  const auto dialog = Make<FMURTLRenderConfig>(forms);
  DialogUser user;
  user.Do([](HWND window) { DestroyWindow(window); });
  dialog->Show();
  EXPECT_TRUE(dialog->Cancelled());
  EXPECT_TRUE(IsWindowEnabled(host.Root()));
}

TEST_F(DialogWindows, MayGoWithTheirFormWhileTheyAreShown) {
  auto form = std::make_unique<EditTimesForm>(Module(), host.Root());
  const auto connection = form->SystemClick.Connect([&](int) { form.reset(); });
  form->SetSystemDefault(1);
  DialogUser user;
  user.Type({VK_RETURN});
  form->ShowModal();
  EXPECT_FALSE(form);
  EXPECT_TRUE(IsWindowEnabled(host.Root()));
  EXPECT_EQ(FrontDialog(), nullptr);
}

TEST_F(DialogWindows, LetTheirDialogLiveUntilItIsClosed) {
  auto dialog = Make<FMURTLRenderConfig>(forms);
  FMURTLRenderConfig* const shown = dialog.Get();
  DialogUser user;
  user.Do([&](HWND) { dialog = {}; }).Type({VK_RETURN});
  shown->Show();
  EXPECT_TRUE(IsWindowEnabled(host.Root()));
}

TEST_F(DialogWindows, PassOnThatTheProgramQuits) {
  const auto dialog = Make<FMURTLRenderConfig>(forms);
  {
    DialogUser user;
    user.Do(PressLater(kChangeStart)).Do([](HWND) { PostQuitMessage(7); });
    dialog->Show();
  }
  EXPECT_TRUE(dialog->Cancelled());
  EXPECT_TRUE(IsWindowEnabled(host.Root()));
  EXPECT_EQ(FrontDialog(), nullptr);
  MSG message{};
  while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) && message.message != WM_QUIT) {
  }
  EXPECT_EQ(message.message, UINT{WM_QUIT});
  EXPECT_EQ(message.wParam, WPARAM{7});
}

TEST_F(DialogWindows, EndAtAMessageThatIsSent) {
  const auto dialog = Make<FMURTLRenderConfig>(forms);
  DialogUser user;
  user.Do([](HWND window) { SendMessageW(window, WM_CLOSE, 0, 0); });
  dialog->Show();
  EXPECT_TRUE(dialog->Cancelled());
}

TEST_F(DialogWindows, AreNotClosedFromBelowThePickerUponThem) {
  const auto dialog = Make<FMURTLRenderConfig>(forms);
  HWND editor = nullptr;
  DialogUser user;
  user.Do([&](HWND window) { editor = window; })
      .Do(PressLater(kChangeStart))
      .Do([&](HWND picker) {
        EXPECT_NE(picker, editor);
        SendMessageW(editor, WM_CLOSE, 0, 0);
        EXPECT_TRUE(IsWindowVisible(editor));
      })
      .Type({VK_ESCAPE, VK_ESCAPE});
  dialog->Show();
}

TEST_F(DialogWindows, ComeToTheFrontWhenTheyAreShownOnceMore) {
  const auto dialog = Make<FMURTLRenderConfig>(forms);
  DialogUser user;
  user.Do([&](HWND window) {
        SetActiveWindow(host.Root());
        dialog->Show();
        EXPECT_EQ(GetActiveWindow(), window);
      })
      .Do(PressLater(kChangeStart))
      .Do([&](HWND picker) {
        dialog->BringToFront();
        EXPECT_EQ(GetActiveWindow(), picker);
      })
      .Type({VK_ESCAPE, VK_ESCAPE});
  dialog->Show();
}

TEST_F(DialogWindows, LetNothingThatAListenerThrowsReachThePlatform) {
  EditTimesForm form(Module(), host.Root());
  const auto connection = form.SystemClick.Connect([](int) { throw 1; });
  DialogUser user;
  user.Do(PressLater(dialog_id::kSystem + 1)).Close();
  form.ShowModal();
  EXPECT_FALSE(form.IsShown());
}

}  // namespace
}  // namespace mur::win32
