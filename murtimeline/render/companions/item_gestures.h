#pragma once

#include <murtimeline/automation/export.h>
#include <murtimeline/render/companions/canvas.h>

namespace mur {

/// Presses and releases a button in the middle of an item, whatever covers it: the canvas reports
/// ItemMouseDown, ItemMouseUp and ItemClick as for the pointer. Nothing happens to an item that is not on the
/// canvas.
MUR_API void ClickItem(MURGraphicCanvas& CanvasA, const Ref<ICanvasItem>& ItemA, std::int16_t ButtonA,
                       std::int16_t ShiftA);

/// Takes an item with the left button and drags it along the time axis: ItemMouseDown, ItemMouseMove and
/// ItemMouseUp. The release is where the item was taken, so that exactly one step is made, also of an item
/// that does not follow the pointer.
MUR_API void NudgeItem(MURGraphicCanvas& CanvasA, const Ref<ICanvasItem>& ItemA, float PixelsA,
                       std::int16_t ShiftA);

}  // namespace mur
