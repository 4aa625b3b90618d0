#pragma once

#include <murtimeline/render/port/pointer_input.h>
#include <murtimeline/win32/window.h>

namespace mur::win32 {

/// Hands what the platform reports of the mouse over a window to a companion, and tells it when held buttons
/// will not be reported any more: another window took the mouse, or the window was hidden or destroyed.
class PointerRouter {
 public:
  /// Both outlive the router.
  PointerRouter(const Window& WindowA, PointerTarget& TargetA) : mWindow(WindowA), mTarget(TargetA) {}

  static bool IsPress(const Message& MessageA);
  /// True when the message was one for the target. `ScaleA`: device pixels to a logical one.
  bool Handle(const Message& MessageA, double ScaleA);
  /// Ends what is under way, without a click.
  void LosePointer();
  bool IsHeld() const { return mHeld != 0; }

 private:
  void Press(const PointerInput& InputA, bool IsDoubleA);
  void Move(const PointerInput& InputA);
  void Release(const PointerInput& InputA);
  void TrackLeaving();

  const Window& mWindow;
  PointerTarget& mTarget;
  std::int16_t mHeld = 0;  // buttons
  bool mTracksLeaving = false;
};

/// Bits of a Shift argument for the keys that are held now.
std::int16_t HeldModifiers();

}  // namespace mur::win32
