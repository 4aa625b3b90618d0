#pragma once

#include <QPalette>

#include <murtimeline/automation/export.h>
#include <murtimeline/render/port/geometry.h>

namespace mur::qt {

/// The colour that a palette has for a system colour index (0 scroll bar to 30 menu bar); opaque black for
/// any other index. Always the colours of an active window, so that nothing flickers when the focus goes.
MUR_API Rgba SystemColorOf(const QPalette& PaletteA, int IndexA);

}  // namespace mur::qt
