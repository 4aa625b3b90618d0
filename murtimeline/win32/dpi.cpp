#include <murtimeline/win32/dpi.h>

namespace mur::win32 {
namespace {

// Older systems lack these calls.
template <class Function>
Function* FindCall(const char* NameA) {
  const HMODULE library = GetModuleHandleW(L"user32.dll");
  return library ? reinterpret_cast<Function*>(reinterpret_cast<void*>(GetProcAddress(library, NameA)))
                 : nullptr;
}

UINT ScreenDpi() {
  const HDC screen = GetDC(nullptr);
  const int dpi = GetDeviceCaps(screen, LOGPIXELSX);
  ReleaseDC(nullptr, screen);
  return dpi > 0 ? static_cast<UINT>(dpi) : USER_DEFAULT_SCREEN_DPI;
}

UINT DpiOf(HWND WindowA) {
  static const auto kOfWindow = FindCall<UINT WINAPI(HWND)>("GetDpiForWindow");
  const UINT dpi = kOfWindow && WindowA ? kOfWindow(WindowA) : 0;
  return dpi != 0 ? dpi : ScreenDpi();
}

}  // namespace

double ScaleFactorOf(HWND WindowA) {
  return static_cast<double>(DpiOf(WindowA)) / USER_DEFAULT_SCREEN_DPI;
}

int ScrollBarWidthOf(HWND WindowA) {
  static const auto kMetricsFor = FindCall<int WINAPI(int, UINT)>("GetSystemMetricsForDpi");
  return kMetricsFor ? kMetricsFor(SM_CXVSCROLL, DpiOf(WindowA)) : GetSystemMetrics(SM_CXVSCROLL);
}

}  // namespace mur::win32
