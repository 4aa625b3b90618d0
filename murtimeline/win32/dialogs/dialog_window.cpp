#include <utility>

#include <murtimeline/automation/error.h>
#include <murtimeline/win32/dialogs/dialog_window.h>
#include <murtimeline/win32/dpi.h>
#include <murtimeline/win32/gdi_fonts.h>
#include <murtimeline/win32/message_guard.h>

namespace mur::win32 {
namespace {

using namespace dialog_id;

constexpr const wchar_t* kCaption = L"Varox";

// The platform's own dialog class without any control: they are added and placed by measures.
HWND NewDialog(HINSTANCE ModuleA, HWND OwnerA, DLGPROC ProcedureA) {
  struct {
    DLGTEMPLATE header{
        WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_CLIPCHILDREN | DS_MODALFRAME, 0, 0, 0, 0, 0, 0};
    WORD menu = 0, className = 0, title = 0;
  } const frame;
  const HWND dialog = CreateDialogIndirectParamW(ModuleA, &frame.header, OwnerA, ProcedureA, 0);
  if (!dialog) throw AutomationError(ErrorCode::ObjectNotSet);
  SetWindowTextW(dialog, kCaption);
  return dialog;
}

int SystemId(int IndexA) {
  if (IndexA < 1 || IndexA > IDialogWindow::kSystemButtons)
    throw AutomationError(ErrorCode::SubscriptOutOfRange);
  return kSystem + IndexA;
}

bool IsSystemId(int IdA) {
  return IdA > kSystem && IdA <= kSystem + IDialogWindow::kSystemButtons;
}

}  // namespace

DialogWindow::DialogWindow(HINSTANCE ModuleA, HWND OwnerA)
    : mHandle(NewDialog(ModuleA, OwnerA, Procedure)), mControls(mHandle), mForms(ModuleA), mIcon(OwnerA) {
  mForms.SetOwner(mHandle);
  for (const int size : {ICON_BIG, ICON_SMALL})
    SendMessageW(mHandle, WM_SETICON, static_cast<WPARAM>(size), reinterpret_cast<LPARAM>(mIcon.Get()));
}

// Nothing that its controls still have to say is heard.
DialogWindow::~DialogWindow() {
  EndLoop();
  if (!mHandle) return;
  SetWindowLongPtrW(mHandle, DWLP_USER, 0);
  DestroyWindow(mHandle);
}

void DialogWindow::Complete() {
  constexpr ControlKind kIconBox{WC_STATICW, SS_OWNERDRAW};
  for (const int index : {2, 1, 3}) mControls.Add(SystemId(index), kButton);
  mControls.Add(kTitle, kLabel);
  mControls.Add(kCommentary, kLabel);
  mControls.Add(kIcon, kIconBox);
  mControls.Add(kHeader, kPanel);
  mControls.Add(kFieldPanel, kPanel);
  SetWindowLongPtrW(mHandle, DWLP_USER, reinterpret_cast<LONG_PTR>(this));
  const HWND owner = GetWindow(mHandle, GW_OWNER);
  SetScale(ScaleFactorOf(owner ? owner : mHandle));
}

void DialogWindow::RequireWindow() const {
  if (!mHandle) throw AutomationError(ErrorCode::ObjectNotSet);
}

const String& DialogWindow::TextOf(int IdA) const {
  RequireWindow();
  return mControls.Text(IdA);
}

void DialogWindow::ShowText(int IdA, StringView TextA) {
  RequireWindow();
  mControls.SetText(IdA, TextA);
  LayOut();
}

String DialogWindow::Title() const {
  return TextOf(kTitle);
}

void DialogWindow::SetTitle(StringView TextA) {
  ShowText(kTitle, TextA);
}

String DialogWindow::Commentary() const {
  return TextOf(kCommentary);
}

void DialogWindow::SetCommentary(StringView TextA) {
  ShowText(kCommentary, TextA);
}

String DialogWindow::SystemCaption(int IndexA) const {
  return TextOf(SystemId(IndexA));
}

void DialogWindow::SetSystemCaption(int IndexA, StringView TextA) {
  ShowText(SystemId(IndexA), TextA);
}

void DialogWindow::SetSystemVisible(int IndexA, bool VisibleA) {
  RequireWindow();
  ShowWindow(mControls.Window(SystemId(IndexA)), VisibleA ? SW_SHOWNA : SW_HIDE);
  LayOut();
}

void DialogWindow::SetSystemDefault(int IndexA) {
  RequireWindow();
  SendMessageW(mHandle, DM_SETDEFID, static_cast<WPARAM>(SystemId(IndexA)), 0);
}

void DialogWindow::SetSystemCancel(int IndexA) {
  mCancelId = SystemId(IndexA);
}

// The window, and this object with it, may go while the loop runs.
void DialogWindow::ShowModal() {
  RequireWindow();
  if (IsShown()) return BringToFront();
  Centre();
  ModalLoop loop(mHandle);
  mLoop = &loop;
  ShowWindow(mHandle, SW_SHOW);
  SendMessageW(mHandle, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(mControls.Window(FirstField())), TRUE);
  if (!loop.Run()) Leave();
}

void DialogWindow::Unload() {
  Close(UnloadRequest::ByProgram);
}

// A dialog that stands upon this one is the one to use.
void DialogWindow::BringToFront() {
  RequireWindow();
  SetForegroundWindow(GetLastActivePopup(mHandle));
}

void DialogWindow::ShowMessage(StringView TextA, StringView TitleA) {
  RequireWindow();
  MessageBoxW(mHandle, ToWide(String(TextA)), ToWide(String(TitleA)), MB_OK);
}

void DialogWindow::Close(UnloadRequest RequestA) {
  if (PassUnload(RequestA)) Leave();
}

void DialogWindow::Leave() {
  EndLoop();
  if (mHandle) ShowWindow(mHandle, SW_HIDE);
}

void DialogWindow::EndLoop() noexcept {
  if (ModalLoop* const loop = std::exchange(mLoop, nullptr)) loop->End();
}

INT_PTR CALLBACK DialogWindow::Procedure(HWND WindowA, UINT MessageA, WPARAM WordA, LPARAM LongA) {
  auto* const self = reinterpret_cast<DialogWindow*>(GetWindowLongPtrW(WindowA, DWLP_USER));
  if (!self) return FALSE;
  INT_PTR answer = FALSE;
  GuardCallback([&] { answer = self->OnMessage(MessageA, WordA, LongA); });
  return answer;
}

// After an event this object may be gone.
INT_PTR DialogWindow::OnMessage(UINT MessageA, WPARAM WordA, LPARAM LongA) {
  switch (MessageA) {
    case WM_COMMAND:
      if (HIWORD(WordA) == BN_CLICKED) OnCommand(LOWORD(WordA));
      return TRUE;
    case WM_NOTIFY:
      OnNotify(*reinterpret_cast<const NMHDR*>(LongA));
      return FALSE;
    case WM_CLOSE:
      // Asked for from elsewhere while another dialog stands upon this one, it would go from below that.
      if (IsWindowEnabled(mHandle)) Close(UnloadRequest::ByUser);
      return TRUE;
    case WM_CTLCOLORSTATIC:
      return OnColor(reinterpret_cast<HDC>(WordA), reinterpret_cast<HWND>(LongA));
    case WM_DRAWITEM:
      DrawIconBox(*reinterpret_cast<const DRAWITEMSTRUCT*>(LongA));
      return TRUE;
    case WM_DPICHANGED:
      OnResolution(HIWORD(WordA), *reinterpret_cast<const RECT*>(LongA));
      return TRUE;
    case WM_SYSCOLORCHANGE:
      // Only the windows at the top are told.
      mControls.Forward(MessageA, WordA, LongA);
      return FALSE;
    case WM_DESTROY:
      EndLoop();
      return FALSE;
    case WM_NCDESTROY:
      SetWindowLongPtrW(mHandle, DWLP_USER, 0);
      mHandle = nullptr;
      return FALSE;
    default:
      return FALSE;
  }
}

void DialogWindow::OnCommand(int IdA) {
  if (IdA == IDCANCEL) {
    if (mCancelId != 0) PressSystem(mCancelId);
  } else if (IsSystemId(IdA)) {
    PressSystem(IdA);
  } else {
    OnButton(IdA);
  }
}

// Keys find a hidden button, too.
void DialogWindow::PressSystem(int IdA) {
  if (IsWindowVisible(mControls.Window(IdA))) SystemClick.Raise(IdA - kSystem);
}

}  // namespace mur::win32
