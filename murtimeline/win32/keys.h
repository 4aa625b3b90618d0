#pragma once

#include <murtimeline/render/bar_keyboard.h>
#include <murtimeline/win32/platform.h>

namespace mur::win32 {

/// What a virtual key means to a time line.
Key KeyOf(WPARAM VirtualKeyA);

}  // namespace mur::win32
