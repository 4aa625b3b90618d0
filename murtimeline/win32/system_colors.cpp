#include <murtimeline/win32/platform.h>
#include <murtimeline/win32/system_colors.h>

namespace mur::win32 {

Rgba SystemColorOf(int IndexA) {
  constexpr int kLast = COLOR_MENUBAR;
  if (IndexA < 0 || IndexA > kLast) return {};
  const COLORREF color = GetSysColor(IndexA);
  return {GetRValue(color), GetGValue(color), GetBValue(color), 255};
}

}  // namespace mur::win32
