#pragma once

#include <murtimeline/render/port/geometry.h>

namespace mur::win32 {

/// The colour that the platform has now for a system colour index (0 scroll bar to 30 menu bar); opaque black
/// for any other index.
Rgba SystemColorOf(int IndexA);

}  // namespace mur::win32
