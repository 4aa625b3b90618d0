#pragma once

#include <murtimeline/automation/export.h>
#include <murtimeline/render/companions/item_texts.h>
#include <murtimeline/render/port/surface.h>

namespace mur {

/// Draws the captions of a bar at their nine sites within `AreaA`, the part of the bar that can be seen:
///
///     1 left    2 centre   3 right      at the top
///     4 left    5 centre   6 right      in the middle
///     7 left    8 centre   9 right      at the bottom
///
/// Where the area is too low for all rows in use, the captions of a row move to free sites of another one;
/// the captions of a row share its width. What does not fit is elided, and what has no room at all is left
/// out, so that no caption ever overlaps another.
MUR_API void DrawCaptions(Surface& SurfaceA, const RectF& AreaA, const ItemTexts& TextsA, Rgba ColorA);

}  // namespace mur
