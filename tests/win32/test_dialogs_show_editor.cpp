#include <gtest/gtest.h>

#include <murtimeline/win32/dialogs/edit_times_form.h>

#include "tests/win32/dialog_user.h"
#include "tests/win32/shown_timeline.h"

namespace mur::win32::test {
namespace {

using mur::test::DialogUser;
using mur::test::FrontDialog;

constexpr int kDuration = edit_times_id::kField + 3, kChangeStart = edit_times_id::kChange + 1;

TEST(ShowEditorInAWindow, WritesWhatIsAccepted) {
  const ShownTimeline shown;
  DialogUser user;
  user.Do([&](HWND window) { EXPECT_EQ(GetWindow(window, GW_OWNER), shown.host.Handle()); })
      .Click(kDuration)
      .Type({VK_UP, VK_RETURN});
  shown.control->ShowEditor();
  EXPECT_NEAR(shown.control->Duration(), 4600, 1e-6);
  EXPECT_EQ(shown.control->WorldTimeT0(), kNoon);
}

TEST(ShowEditorInAWindow, LeavesEverythingAsItIsWhenItIsCancelled) {
  const ShownTimeline shown;
  DialogUser user;
  user.Click(kDuration).Type({VK_UP, VK_ESCAPE});
  shown.control->ShowEditor();
  EXPECT_EQ(shown.control->Duration(), 1000);
}

TEST(ShowEditorInAWindow, KeepsOneDialogForAllWindows) {
  const ShownTimeline first, second;
  DialogUser user;
  user.Do([&](HWND window) {
        first.control->ShowEditor();
        second.control->ShowEditor();
        EXPECT_EQ(FrontDialog(), window);
        EXPECT_EQ(GetWindow(window, GW_OWNER), first.host.Handle());
      })
      .Type({VK_ESCAPE});
  first.control->ShowEditor();
  user.Do([&](HWND window) { EXPECT_EQ(GetWindow(window, GW_OWNER), second.host.Handle()); })
      .Type({VK_ESCAPE});
  second.control->ShowEditor();
}

TEST(ShowEditorInAWindow, EndsCancelledWhenTheHostIsDestroyedMeanwhile) {
  for (const bool withPicker : {false, true}) {
    const ShownTimeline shown;
    DialogUser user;
    if (withPicker)
      user.Do([](HWND window) { PostMessageW(GetDlgItem(window, kChangeStart), BM_CLICK, 0, 0); });
    user.Do([&](HWND) { DestroyWindow(shown.host.Handle()); });
    shown.control->ShowEditor();
    EXPECT_EQ(shown.control->Duration(), 1000);
    EXPECT_EQ(FrontDialog(), nullptr);
  }
}

TEST(ShowEditorInAWindow, StandsUponTheScreenWithoutAWindow) {
  const ShownTimeline shown;
  shown.window->Destroy();
  DialogUser user;
  user.Do([](HWND window) { EXPECT_EQ(GetWindow(window, GW_OWNER), nullptr); })
      .Click(kDuration)
      .Type({VK_UP, VK_RETURN});
  shown.control->ShowEditor();
  EXPECT_NEAR(shown.control->Duration(), 4600, 1e-6);
}

}  // namespace
}  // namespace mur::win32::test
