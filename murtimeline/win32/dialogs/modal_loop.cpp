#include <utility>

#include <murtimeline/win32/dialogs/modal_loop.h>

namespace mur::win32 {

// A drag that is under way would otherwise go on behind the dialog.
ModalLoop::ModalLoop(HWND DialogA) : mDialog(DialogA), mFocusBefore(GetFocus()) {
  if (const HWND capture = GetCapture()) SendMessageW(capture, WM_CANCELMODE, 0, 0);
  const HWND owner = GetWindow(DialogA, GW_OWNER);
  if (owner && EnableWindow(owner, FALSE) == FALSE) mDisabledOwner = owner;
}

ModalLoop::~ModalLoop() {
  End();
  const HWND active = GetActiveWindow();
  if (active && mFocusBefore && GetAncestor(mFocusBefore, GA_ROOT) == active) SetFocus(mFocusBefore);
}

bool ModalLoop::Run() {
  while (!mHasEnded) {
    MSG message{};
    const BOOL answer = GetMessageW(&message, nullptr, 0, 0);
    if (answer <= 0) {
      if (answer == 0) PostQuitMessage(static_cast<int>(message.wParam));
      return false;
    }
    if (IsDialogMessageW(mDialog, &message)) continue;
    TranslateMessage(&message);
    DispatchMessageW(&message);
  }
  return true;
}

// The message wakes a loop that was ended by one that is sent, which alone does not.
void ModalLoop::End() noexcept {
  if (std::exchange(mHasEnded, true)) return;
  if (mDisabledOwner) EnableWindow(mDisabledOwner, TRUE);
  PostMessageW(nullptr, WM_NULL, 0, 0);
}

}  // namespace mur::win32
