#pragma once

// The one place of this face where the platform's headers come in.
#ifndef WIN32_LEAN_AND_MEAN
#define WIN32_LEAN_AND_MEAN
#endif
#ifndef NOMINMAX
#define NOMINMAX
#endif
#ifndef STRICT
#define STRICT
#endif
// clang-format off: this one comes before all others
#include <windows.h>
// clang-format on
// The first one makes the others compile.
// clang-format off
#include <windows.h>

#include <commctrl.h>
#include <ole2.h>
#include <oleauto.h>
#include <olectl.h>
#include <windowsx.h>
// clang-format on

// Macros that would take names of ours or of the standard library.
#undef DrawText
#undef GetClassName
#undef GetCurrentTime
#undef GetObject
#undef SubclassWindow
