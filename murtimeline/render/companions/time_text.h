#pragma once

#include <murtimeline/automation/export.h>
#include <murtimeline/render/companions/time_interfaces.h>

namespace mur {

/// The time-text service. Negative times get a leading minus, unless all their digits are zero; a time that
/// is not finite gives the empty string. Seconds and milliseconds are rounded to the nearest, frames down; a
/// time that is a whole frame but for the rounding of dates counts as that frame. Without a positive frame
/// rate there are no frames.
class MUR_API MURTimeText final : public ITimeText {
 public:
  String FormatSeconds(double SecondsA, std::int32_t StyleA, double FramesPerSecondA) const override;
};

}  // namespace mur
