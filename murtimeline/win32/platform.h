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
#include <windows.h>

#include <commctrl.h>
#include <ole2.h>
#include <oleauto.h>
#include <olectl.h>
#include <windowsx.h>

// Macros that would take names of ours or of the standard library.
#undef DrawText
#undef GetClassName
#undef GetCurrentTime
#undef GetObject
#undef SubclassWindow
