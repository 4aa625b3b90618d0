#pragma once

#include <murtimeline/win32/platform.h>

namespace mur::win32 {

/// Keeps a window modal: the one that it stands upon is disabled, and messages are pumped until it ends.
class ModalLoop {
 public:
  explicit ModalLoop(HWND DialogA);
  /// Gives the keyboard back to the window that had it.
  ~ModalLoop();
  ModalLoop(const ModalLoop&) = delete;
  ModalLoop& operator=(const ModalLoop&) = delete;

  /// Returns when it was ended. False when the program quits instead, which is then passed on.
  bool Run();
  /// To be called while the dialog still stands: the window below is ready to become the active one then.
  void End() noexcept;

 private:
  HWND mDialog;
  HWND mDisabledOwner = nullptr;  // none when it was disabled before
  HWND mFocusBefore;
  bool mHasEnded = false;
};

}  // namespace mur::win32
