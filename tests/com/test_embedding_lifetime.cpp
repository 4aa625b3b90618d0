#include <gmock/gmock.h>
#include <objsafe.h>

#include "tests/com/container/embedded.h"
#include "tests/com/listener.h"

namespace mur::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// Does something once a window has a dialog, and closes that then.
class DuringDialog {
 public:
  DuringDialog(HWND OwnerA, std::function<void()> ActionA)
      : mOwner(OwnerA), mAction(std::move(ActionA)), mTimer(SetTimer(nullptr, 0, 10, &OnTimer)) {
    sThis = this;
  }
  DuringDialog(const DuringDialog&) = delete;
  DuringDialog& operator=(const DuringDialog&) = delete;
  ~DuringDialog() { KillTimer(nullptr, mTimer); }

 private:
  static void CALLBACK OnTimer(HWND, UINT, UINT_PTR, DWORD) {
    const HWND dialog = GetLastActivePopup(sThis->mOwner);
    if (!dialog || dialog == sThis->mOwner) return;
    std::exchange(sThis->mAction, [] {})();
    PostMessageW(dialog, WM_CLOSE, 0, 0);
  }

  static inline DuringDialog* sThis = nullptr;
  const HWND mOwner;
  std::function<void()> mAction;
  const UINT_PTR mTimer;
};

TEST(Lifetime, MayBeClosedInAnyStepOfItsActivation) {
  for (const char* step : {"CanInPlaceActivate", "OnInPlaceActivate", "GetWindow", "GetWindowContext",
                           "ShowObject", "OnUIActivate", "OnFocus", "frame has an active object",
                           "frame gives no border", "document has an active object"}) {
    SCOPED_TRACE(step);
    Embedded embedded;
    bool closed = false;
    embedded.container.book.reactions[step] = [&] { closed = SUCCEEDED(embedded.Close()); };
    embedded.Do(OLEIVERB_UIACTIVATE);
    EXPECT_TRUE(closed);
    embedded.container.book.reactions.clear();
    embedded.Close();
    EXPECT_EQ(embedded.Window(), nullptr);
    EXPECT_EQ(embedded.Do(OLEIVERB_UIACTIVATE), S_OK);
    EXPECT_NE(embedded.Window(), nullptr);
  }
}

TEST(Lifetime, MayBeActivatedAgainInAnyStepOfItsEnd) {
  for (const char* step :
       {"frame has none", "document has none", "OnUIDeactivate", "OnBlur", "OnInPlaceDeactivate"}) {
    SCOPED_TRACE(step);
    Embedded embedded;
    embedded.Do(OLEIVERB_UIACTIVATE);
    bool activated = false;
    embedded.container.book.reactions[step] = [&] {
      if (!std::exchange(activated, true)) embedded.Do(OLEIVERB_UIACTIVATE);
    };
    embedded.Close();
    EXPECT_TRUE(activated);
    embedded.container.book.reactions.clear();
    embedded.Close();
    EXPECT_EQ(embedded.Window(), nullptr);
  }
}

TEST(Lifetime, StaysWhereItsContainerPutItWhileItWasBeingActivatedElsewhere) {
  Embedded embedded;
  TestContainer other;
  embedded.container.book.reactions["GetWindowContext"] = [&] {
    embedded.Object().SetClientSite(other.site.Get());
    embedded.Object().DoVerb(OLEIVERB_SHOW, nullptr, nullptr, 0, nullptr, nullptr);
  };
  EXPECT_EQ(embedded.Do(OLEIVERB_SHOW), E_ABORT);
  EXPECT_EQ(GetParent(embedded.Window()), other.Window());
  embedded.Object().SetClientSite(nullptr);
}

TEST(Lifetime, IsClosedByAHandlerOfItsOwnEvents) {
  for (const char* event : {"TLObjectMouseDown", "TLObjectMouseUp", "TLObjectClick"}) {
    SCOPED_TRACE(event);
    Embedded embedded;
    embedded.AddBar();
    embedded.Show();
    const Listening listening(embedded.control, [&](const std::string& raised, auto&) {
      if (raised == event) embedded.Close();
      return S_OK;
    });
    embedded.Click(150, 20);
    PumpMessages();
    EXPECT_EQ(embedded.Window(), nullptr);
  }
}

TEST(Lifetime, OutlivesItsContainersWindowThatGoesInAnEvent) {
  Embedded embedded;
  embedded.AddBar();
  embedded.Show();
  const Listening listening(embedded.control, [&](const std::string&, auto&) {
    embedded.container.Destroy();
    return S_OK;
  });
  embedded.Click(150, 20);
  PumpMessages();
  EXPECT_EQ(embedded.Window(), nullptr);
  EXPECT_EQ(embedded.control.Get(L"Duration"), Value(500.0));
}

TEST(Lifetime, EndsWithTheLastReferenceThatGoesInAnEvent) {
  Embedded embedded;
  embedded.AddBar();
  embedded.Show();
  const Late timeline(embedded.control.Get(L"Timeline"));
  {
    const Listening listening(embedded.control, [&](const std::string& event, auto&) {
      if (event != "TLObjectMouseDown") return S_OK;
      embedded.Close();
      embedded.Object().SetClientSite(nullptr);
      embedded.LetGo();
      return S_OK;
    });
    const HWND canvas = embedded.Canvas();
    SendMessageW(canvas, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(150, 20));
    EXPECT_FALSE(IsWindow(canvas));
  }
  timeline.Call(L"Clear");
}

TEST(Lifetime, LeavesNothingBehindWhenItIsLetGoWithoutBeingClosed) {
  Embedded embedded;
  embedded.Show();
  const HWND window = embedded.Window();
  embedded.LetGo();
  EXPECT_FALSE(IsWindow(window));
  EXPECT_THAT(embedded.container.book.Take(), IsEmpty());
}

TEST(Lifetime, ShowsItsDialogInFrontOfItsContainer) {
  Embedded embedded;
  embedded.Show();
  bool wasEnabled = true;
  const DuringDialog during(embedded.container.Window(),
                            [&] { wasEnabled = IsWindowEnabled(embedded.container.Window()) != FALSE; });
  embedded.control.Call(L"ShowEditor");
  EXPECT_FALSE(wasEnabled);
  EXPECT_TRUE(IsWindowEnabled(embedded.container.Window()));
  EXPECT_NE(embedded.Window(), nullptr);
}

TEST(Lifetime, MayBeClosedWhileItsDialogIsOpen) {
  Embedded embedded;
  embedded.Show();
  const DuringDialog during(embedded.container.Window(), [&] { embedded.Close(); });
  embedded.control.Call(L"ShowEditor");
  EXPECT_TRUE(IsWindowEnabled(embedded.container.Window()));
  EXPECT_EQ(embedded.Window(), nullptr);
}

TEST(Lifetime, MayLoseItsContainersWindowWhileItsDialogIsOpen) {
  Embedded embedded;
  embedded.Show();
  const DuringDialog during(embedded.container.Window(), [&] { embedded.container.Destroy(); });
  embedded.control.Call(L"ShowEditor");
  EXPECT_EQ(embedded.Window(), nullptr);
}

TEST(Lifetime, CostsNoHandlesAndNoObjects) {
  const auto once = [] {
    Embedded embedded;
    embedded.AddBar();
    embedded.Do(OLEIVERB_UIACTIVATE);
    PumpMessages();
    UpdateWindow(embedded.Canvas());
    embedded.Close();
  };
  once();
  once();
  const DWORD before = HandlesInUse();
  for (int i = 0; i < 100; ++i) once();
  EXPECT_LE(HandlesInUse(), before);
  EXPECT_TRUE(server::IsIdle());
}

TEST(Lifetime, OffersNoSafetyThatIsForHostsToJudge) {
  const Late control = NewControl();
  EXPECT_FALSE(Query<IObjectSafety>(control.Pointer()));
  EXPECT_FALSE(Query<ISpecifyPropertyPages>(control.Pointer()));
}

}  // namespace
}  // namespace mur::test
