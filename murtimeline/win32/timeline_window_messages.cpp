#include <utility>

#include <murtimeline/win32/accessible_timeline.h>
#include <murtimeline/win32/keys.h>
#include <murtimeline/win32/listener.h>
#include <murtimeline/win32/message_guard.h>
#include <murtimeline/win32/timeline_window_parts.h>

namespace mur::win32 {
namespace {

constexpr UINT kFollow = WM_USER + 1;

bool ChangesLooks(UINT IdA) {
  return IdA == WM_SYSCOLORCHANGE || IdA == WM_SETTINGCHANGE || IdA == WM_THEMECHANGED;
}

}  // namespace

std::optional<LRESULT> TimelineWindow::Parts::AnswerFrame(const Message& MessageA) {
  switch (MessageA.id) {
    case WM_SIZE:
      size = {LOWORD(MessageA.data), HIWORD(MessageA.data)};
      LayOut();
      return 0;
    case WM_SETFOCUS:
      SetFocus(canvasWindow.Handle());
      return 0;
    case WM_DPICHANGED_AFTERPARENT:
      Rescale();
      return 0;
    case WM_DESTROY:
      forms.SetOwner(nullptr);
      return std::nullopt;
    default:
      if (ChangesLooks(MessageA.id)) Restyle();
      return std::nullopt;
  }
}

std::optional<LRESULT> TimelineWindow::Parts::AnswerScale(const Message& MessageA) {
  if (ChangesLooks(MessageA.id)) Restyle();
  return std::nullopt;
}

std::optional<LRESULT> TimelineWindow::Parts::AnswerCanvas(const Message& MessageA) {
  if (rows.Handle(MessageA)) return 0;
  switch (MessageA.id) {
    case WM_SETFOCUS:
      FocusCame();
      return 0;
    case WM_KILLFOCUS:
      FocusWent(reinterpret_cast<HWND>(MessageA.word));
      return 0;
    case WM_GETDLGCODE:
      return DialogCode(reinterpret_cast<const MSG*>(MessageA.data));
    case WM_KEYDOWN:
    case WM_SYSKEYDOWN:
      if (PressKey(MessageA.word)) return 0;
      return std::nullopt;
    case WM_GETOBJECT:
      if (static_cast<LONG>(MessageA.data) != OBJID_CLIENT || !bars) return std::nullopt;
      return GiveAccessible(MessageA.word);
    case kFollow:
      Follow();
      return 0;
    case WM_DESTROY:
      drops.Close();
      rows.Forget();
      return std::nullopt;
    default:
      return AnswerScale(MessageA);
  }
}

// A dialog keeps Enter and Esc for its buttons unless they mean something here.
LRESULT TimelineWindow::Parts::DialogCode(const MSG* KeyA) const {
  const bool isKey = KeyA && KeyA->message == WM_KEYDOWN && keyboard && control;
  const bool clicks = isKey && KeyA->wParam == VK_RETURN && keyboard->Current();
  const bool cancels =
      isKey && KeyA->wParam == VK_ESCAPE && (control->IsDragging() || scroller->IsDragging());
  return DLGC_WANTARROWS | DLGC_WANTCHARS | (clicks || cancels ? DLGC_WANTMESSAGE : 0);
}

// Once for all that the messages at hand do.
void TimelineWindow::Parts::FollowSoon() {
  if (!canvasWindow.Exists() || std::exchange(mFollowsSoon, true)) return;
  mFollowsSoon = PostMessageW(canvasWindow.Handle(), kFollow, 0, 0) != FALSE;
}

void TimelineWindow::Parts::Follow() {
  mFollowsSoon = false;
  rows.Follow(canvasWindow);
  if (bars) bars->Follow();
}

// Container first: it may want to make the control the active one before anything hears of the press.
void TimelineWindow::Parts::Pressed() {
  mIsPressed = true;
  GuardCallback([this] { Tell(events.Pressed); });
  if (canvasWindow.Exists() && !HasFocus()) SetFocus(canvasWindow.Handle());
  mIsPressed = false;
}

void TimelineWindow::Parts::FocusCame() {
  if (keyboard) Ref(keyboard)->ShowRing(!mIsPressed);
  if (bars) bars->TellFocus();
  if (!std::exchange(mHasFocus, true)) Tell(events.FocusTaken);
}

void TimelineWindow::Parts::FocusWent(HWND ToA) {
  if (keyboard) Ref(keyboard)->ShowRing(false);
  if (IsOwn(ToA)) return;
  mHasFocus = false;
  Tell(events.FocusLost);
}

bool TimelineWindow::Parts::IsOwn(HWND WindowA) const {
  return WindowA && frame.Exists() && (WindowA == frame.Handle() || IsChild(frame.Handle(), WindowA));
}

bool TimelineWindow::Parts::HasFocus() const {
  return IsOwn(GetFocus());
}

bool TimelineWindow::Parts::PressKey(WPARAM VirtualKeyA) {
  if (!ambience.userMode || !keyboard || !control) return false;
  const std::int16_t shift = HeldModifiers();
  const bool pages = VirtualKeyA == VK_PRIOR || VirtualKeyA == VK_NEXT;
  if (pages && shift == 0) return rows.TurnPage(VirtualKeyA == VK_NEXT);
  return Ref(keyboard)->Press({KeyOf(VirtualKeyA), shift});
}

LRESULT TimelineWindow::Parts::GiveAccessible(WPARAM WordA) {
  if (!mAccessible) mAccessible = new AccessibleTimeline(*bars);
  return LresultFromObject(__uuidof(IAccessible), WordA, mAccessible);
}

}  // namespace mur::win32
