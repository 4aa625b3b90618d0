#include "tests/win32/dialog_user.h"

#include <array>
#include <cstdio>

namespace mur::test {
namespace {

constexpr UINT kTickLength = 10;  // milliseconds; a timer waits for the messages before it
constexpr int kPatience = 1000;   // ticks without a dialog

DialogUser* theUser = nullptr;  // timers carry no data

BOOL CALLBACK NoteDialog(HWND window, LPARAM found) {
  std::array<wchar_t, 16> name{};
  GetClassNameW(window, name.data(), static_cast<int>(name.size()));
  if (std::wstring_view(name.data()) != L"#32770" || !IsWindowVisible(window) || !IsWindowEnabled(window))
    return TRUE;
  *reinterpret_cast<HWND*>(found) = window;
  return FALSE;
}

void Press(int KeyA) {
  PostMessageW(GetFocus(), WM_KEYDOWN, static_cast<WPARAM>(KeyA), 1);
  PostMessageW(GetFocus(), WM_KEYUP, static_cast<WPARAM>(KeyA), static_cast<LPARAM>(0xC0000001));
}

void HoldShift(bool HeldA) {
  std::array<BYTE, 256> keys{};
  GetKeyboardState(keys.data());
  keys[VK_SHIFT] = keys[VK_LSHIFT] = HeldA ? 0x80 : 0;
  SetKeyboardState(keys.data());
}

template <class... Numbers>
std::string Printed(const char* FormatA, Numbers... NumbersA) {
  std::array<char, 32> text{};
  std::snprintf(text.data(), text.size(), FormatA, NumbersA...);
  return text.data();
}

}  // namespace

HWND FrontDialog() {
  HWND found = nullptr;
  EnumThreadWindows(GetCurrentThreadId(), NoteDialog, reinterpret_cast<LPARAM>(&found));
  return found;
}

DialogUser::DialogUser() : mTimer(SetTimer(nullptr, 0, kTickLength, Tick)) {
  theUser = this;
}

DialogUser::~DialogUser() {
  KillTimer(nullptr, mTimer);
  theUser = nullptr;
  EXPECT_EQ(mNext, mDeeds.size()) << "the window closed before everything was done";
}

DialogUser& DialogUser::Do(Deed DeedA) {
  mDeeds.push_back(std::move(DeedA));
  return *this;
}

DialogUser& DialogUser::Type(std::initializer_list<int> KeysA) {
  for (const int key : KeysA) Do([key](HWND) { Press(key); });
  return *this;
}

DialogUser& DialogUser::TypeShifted(int KeyA) {
  Do([KeyA](HWND) {
    HoldShift(true);
    Press(KeyA);
  });
  return Do([](HWND) { HoldShift(false); });
}

DialogUser& DialogUser::Click(int IdA) {
  return Do([IdA](HWND window) {
    constexpr LONG kInside = 6;
    const HWND control = GetDlgItem(window, IdA);
    RECT area{};
    GetClientRect(control, &area);
    const LPARAM place = MAKELPARAM(kInside, area.bottom / 2);
    PostMessageW(control, WM_LBUTTONDOWN, MK_LBUTTON, place);
    PostMessageW(control, WM_LBUTTONUP, 0, place);
  });
}

DialogUser& DialogUser::Close() {
  return Do([](HWND window) { PostMessageW(window, WM_SYSCOMMAND, SC_CLOSE, 0); });
}

void CALLBACK DialogUser::Tick(HWND /*WindowA*/, UINT /*MessageA*/, UINT_PTR /*TimerA*/, DWORD /*TimeA*/) {
  if (theUser) theUser->DoNext();
}

void DialogUser::DoNext() {
  const HWND dialog = FrontDialog();
  if (!dialog) {
    if (++mIdleTicks < kPatience) return;
    ADD_FAILURE() << "no dialog came";
    PostQuitMessage(1);
  } else if (mNext < mDeeds.size()) {
    mIdleTicks = 0;
    const Deed deed = mDeeds[mNext++];
    deed(dialog);
  } else {
    ADD_FAILURE() << "the window was left open";
    DestroyWindow(dialog);
  }
}

std::string TextOf(HWND WindowA, int IdA) {
  std::array<char16_t, 512> text{};
  const UINT length = GetDlgItemTextW(WindowA, IdA, reinterpret_cast<wchar_t*>(text.data()), 512);
  return ToUtf8({text.data(), length});
}

std::string TimeIn(HWND WindowA, int IdA) {
  SYSTEMTIME time{};
  SendDlgItemMessageW(WindowA, IdA, DTM_GETSYSTEMTIME, 0, reinterpret_cast<LPARAM>(&time));
  return Printed("%02d:%02d:%02d", time.wHour, time.wMinute, time.wSecond);
}

std::string DayIn(HWND WindowA, int IdA) {
  SYSTEMTIME time{};
  SendDlgItemMessageW(WindowA, IdA, MCM_GETCURSEL, 0, reinterpret_cast<LPARAM>(&time));
  return Printed("%04d-%02d-%02d", time.wYear, time.wMonth, time.wDay);
}

bool IsVisible(HWND WindowA, int IdA) {
  return IsWindowVisible(GetDlgItem(WindowA, IdA)) != FALSE;
}

int FocusId() {
  return GetDlgCtrlID(GetFocus());
}

OwnerWindow::OwnerWindow()
    : mRoot(CreateWindowExW(0, L"STATIC", L"Host", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 100, 50, 700, 500,
                            nullptr, nullptr, nullptr, nullptr)),
      mChild(CreateWindowExW(0, L"EDIT", L"", WS_CHILD | WS_VISIBLE, 10, 10, 100, 20, mRoot, nullptr, nullptr,
                             nullptr)) {
  SetActiveWindow(mRoot);
  SetFocus(mChild);
}

void OwnerWindow::Destroy() {
  if (mRoot) DestroyWindow(std::exchange(mRoot, nullptr));
}

}  // namespace mur::test
