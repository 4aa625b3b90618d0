#pragma once

#include <murtimeline/win32/platform.h>

namespace mur::win32 {

/// Device pixels to a logical one on a window's monitor, or on the screen without a window.
double ScaleFactorOf(HWND WindowA);

/// How wide a vertical scroll bar is there, in device pixels.
int ScrollBarWidthOf(HWND WindowA);

}  // namespace mur::win32
