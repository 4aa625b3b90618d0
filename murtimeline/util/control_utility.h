#pragma once

#include <optional>

#include <murtimeline/automation/export.h>
#include <murtimeline/util/movable_control.h>

namespace mur {

/// Where a control ends at the bottom, in its container's scale units; 0 for no control. An error in reading
/// the control reaches the caller; a sum beyond the single range throws Overflow.
MUR_API float ControlBottom(const MovableControl* ControlA);

/// Moves and sizes a control, errors suppressed. A part left out before a given one is filled with the
/// control's present value, parts behind the last given one are not passed on; a left position always is. A
/// negative width or height becomes 0.
MUR_API void MoveControl(MovableControl& ControlA, std::optional<float> LeftA = {},
                         std::optional<float> TopA = {}, std::optional<float> WidthA = {},
                         std::optional<float> HeightA = {});

}  // namespace mur
