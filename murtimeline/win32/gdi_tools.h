#pragma once

#include <murtimeline/win32/gdi_fonts.h>
#include <murtimeline/win32/smooth_edges.h>

namespace mur::win32 {

/// What drawing keeps from one painting to the next.
struct GdiTools {
  GdiFonts fonts;
  CornerTiles corners;
};

}  // namespace mur::win32
