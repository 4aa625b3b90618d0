#include <utility>

#include <murtimeline/win32/pointer_router.h>

namespace mur::win32 {
namespace {

enum class Deed { None, Press, DoublePress, Release };

struct ButtonMessage {
  Deed deed = Deed::None;
  std::int16_t button = 0;
};

// Buttons that have no name here are left to the parents.
ButtonMessage MeaningOf(UINT IdA) {
  switch (IdA) {
    case WM_LBUTTONDOWN:
      return {Deed::Press, kLeftButton};
    case WM_LBUTTONDBLCLK:
      return {Deed::DoublePress, kLeftButton};
    case WM_LBUTTONUP:
      return {Deed::Release, kLeftButton};
    case WM_RBUTTONDOWN:
      return {Deed::Press, kRightButton};
    case WM_RBUTTONDBLCLK:
      return {Deed::DoublePress, kRightButton};
    case WM_RBUTTONUP:
      return {Deed::Release, kRightButton};
    case WM_MBUTTONDOWN:
      return {Deed::Press, kMiddleButton};
    case WM_MBUTTONDBLCLK:
      return {Deed::DoublePress, kMiddleButton};
    case WM_MBUTTONUP:
      return {Deed::Release, kMiddleButton};
    default:
      return {};
  }
}

std::int16_t KeysOf(const Message& MessageA) {
  const int alt = GetKeyState(VK_MENU) < 0 ? kAltKey : 0;
  return static_cast<std::int16_t>(((MessageA.word & MK_SHIFT) != 0 ? kShiftKey : 0) |
                                   ((MessageA.word & MK_CONTROL) != 0 ? kControlKey : 0) | alt);
}

PointerInput InputOf(const Message& MessageA, std::int16_t ButtonA, double ScaleA) {
  const POINT at = MessageA.At();
  return {{static_cast<float>(static_cast<double>(at.x) / ScaleA),
           static_cast<float>(static_cast<double>(at.y) / ScaleA)},
          ButtonA,
          KeysOf(MessageA)};
}

}  // namespace

std::int16_t HeldModifiers() {
  const auto bit = [](int key, int value) { return GetKeyState(key) < 0 ? value : 0; };
  return static_cast<std::int16_t>(bit(VK_SHIFT, kShiftKey) | bit(VK_CONTROL, kControlKey) |
                                   bit(VK_MENU, kAltKey));
}

bool PointerRouter::IsPress(const Message& MessageA) {
  const Deed deed = MeaningOf(MessageA.id).deed;
  return deed == Deed::Press || deed == Deed::DoublePress;
}

// Our own state is settled before the target is told anything: its listeners may do anything.

bool PointerRouter::Handle(const Message& MessageA, double ScaleA) {
  if (const ButtonMessage meaning = MeaningOf(MessageA.id); meaning.deed != Deed::None) {
    const PointerInput input = InputOf(MessageA, meaning.button, ScaleA);
    if (meaning.deed == Deed::Release)
      Release(input);
    else
      Press(input, meaning.deed == Deed::DoublePress);
    return true;
  }
  switch (MessageA.id) {
    case WM_MOUSEMOVE:
      Move(InputOf(MessageA, mHeld, ScaleA));
      return true;
    case WM_MOUSELEAVE:
      mTracksLeaving = false;
      mTarget.PointerLeft();
      return true;
    case WM_CAPTURECHANGED:
      if (reinterpret_cast<HWND>(MessageA.data) != mWindow.Handle()) LosePointer();
      return true;
    case WM_SHOWWINDOW:
      if (MessageA.word == FALSE) LosePointer();
      return false;
    case WM_DESTROY:
      LosePointer();
      return false;
    default:
      return false;
  }
}

void PointerRouter::Press(const PointerInput& InputA, bool IsDoubleA) {
  if ((mHeld & InputA.button) != 0) LosePointer();  // the release before this press went astray
  mHeld = static_cast<std::int16_t>(mHeld | InputA.button);
  if (IsDoubleA)
    mTarget.PointerDoublePressed(InputA);
  else
    mTarget.PointerPressed(InputA);
}

void PointerRouter::Move(const PointerInput& InputA) {
  TrackLeaving();
  mTarget.PointerMoved(InputA);
}

void PointerRouter::Release(const PointerInput& InputA) {
  mHeld = static_cast<std::int16_t>(mHeld & ~InputA.button);
  mTarget.PointerReleased(InputA);
}

void PointerRouter::LosePointer() {
  if (std::exchange(mHeld, std::int16_t{0}) != 0) mTarget.PointerLost();
}

void PointerRouter::TrackLeaving() {
  if (mTracksLeaving) return;
  TRACKMOUSEEVENT track{sizeof(TRACKMOUSEEVENT), TME_LEAVE, mWindow.Handle(), 0};
  mTracksLeaving = TrackMouseEvent(&track) != FALSE;
}

}  // namespace mur::win32
