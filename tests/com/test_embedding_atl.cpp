#include <gmock/gmock.h>

#include "tests/com/container/embedded.h"
#include "tests/com/listener.h"

// The control in the container that the platform brings along.

namespace mur::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

template <class Function>
Function PlatformFunction(const char* NameA) {
  static const HMODULE sLibrary = LoadLibraryW(L"atl.dll");
  return reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(sLibrary, NameA)));
}

/// A window of 400 by 200 with a control in it.
class PlatformHost {
 public:
  PlatformHost() {
    PlatformFunction<BOOL(WINAPI*)()>("AtlAxWinInit")();
    mWindow = CreateWindowExW(0, L"AtlAxWin", nullptr, WS_POPUP | WS_VISIBLE, 0, 0, 400, 200, nullptr,
                              nullptr, nullptr, nullptr);
    const auto attach = PlatformFunction<HRESULT(WINAPI*)(IUnknown*, HWND, IUnknown**)>("AtlAxAttachControl");
    IUnknown* container = nullptr;
    Require(attach(control.Pointer(), mWindow, &container), "AtlAxAttachControl");
    mContainer = TakeOver(container);
    PumpMessages();
  }
  PlatformHost(const PlatformHost&) = delete;
  PlatformHost& operator=(const PlatformHost&) = delete;
  ~PlatformHost() {
    if (IsWindow(mWindow)) DestroyWindow(mWindow);
  }

  HWND Window() const { return mWindow; }
  HWND Control() const { return GetWindow(mWindow, GW_CHILD); }
  HWND Canvas() const { return ChildWindowFromPoint(Control(), {5, 150}); }

  Late control = NewControl();

 private:
  HWND mWindow = nullptr;
  Ref<IUnknown> mContainer;
};

TEST(PlatformContainer, ShowsTheControlInAllOfItsWindow) {
  const PlatformHost host;
  RECT place{};
  GetClientRect(host.Control(), &place);
  EXPECT_EQ(place.right, 400);
  EXPECT_EQ(place.bottom, 200);
  EXPECT_TRUE(IsWindowVisible(host.Control()));
}

TEST(PlatformContainer, ResizesIt) {
  const PlatformHost host;
  SetWindowPos(host.Window(), nullptr, 0, 0, 640, 300, SWP_NOMOVE | SWP_NOZORDER);
  PumpMessages();
  RECT place{};
  GetClientRect(host.Control(), &place);
  EXPECT_EQ(place.right, 640);
  EXPECT_EQ(place.bottom, 300);
}

TEST(PlatformContainer, HandsItTheMouse) {
  const PlatformHost host;
  const Listening listening(host.control);
  SendMessageW(host.Canvas(), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(30, 90));
  SendMessageW(host.Canvas(), WM_LBUTTONUP, 0, MAKELPARAM(30, 90));
  EXPECT_THAT(listening->heard,
              ElementsAre(HasSubstr("MouseDown"), HasSubstr("MouseUp"), HasSubstr("Click")));
}

TEST(PlatformContainer, LetsBarsBeDragged) {
  const PlatformHost host;
  const Late bar = AddBarTo(host.control);  // from 80 to 160 pixels of 400
  host.control.Put(L"AllowObjectDragging", {true});
  SendMessageW(host.Canvas(), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(100, 20));
  SendMessageW(host.Canvas(), WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(140, 20));
  SendMessageW(host.Canvas(), WM_LBUTTONUP, 0, MAKELPARAM(140, 20));
  // 40 pixels are 50 seconds.
  EXPECT_NEAR(bar.Get(L"WorldTimeT0").Number(), 36526.5 + 150.0 / 86400, 0.01 / 86400);
  Late(host.control.Get(L"Timeline")).Call(L"Clear");
}

TEST(PlatformContainer, EndsWithItsWindow) {
  PlatformHost host;
  const HWND control = host.Control();
  DestroyWindow(host.Window());
  EXPECT_FALSE(IsWindow(control));
  EXPECT_EQ(host.control.Get(L"Duration"), Value(3600.0));
}

TEST(PlatformContainer, EndsInAnEvent) {
  const PlatformHost host;
  const Listening listening(host.control, [&](const std::string& event, auto&) {
    if (event == "MouseDown") DestroyWindow(host.Window());
    return S_OK;
  });
  const HWND canvas = host.Canvas();
  SendMessageW(canvas, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(30, 90));
  EXPECT_FALSE(IsWindow(canvas));
}

TEST(PlatformContainer, CostsNoHandlesAndNoObjects) {
  const auto once = [] { const PlatformHost host; };
  once();
  once();
  const DWORD before = HandlesInUse();
  for (int i = 0; i < 100; ++i) once();
  EXPECT_LE(HandlesInUse(), before);
  EXPECT_TRUE(server::IsIdle());
}

}  // namespace
}  // namespace mur::test
