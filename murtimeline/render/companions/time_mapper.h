#pragma once

#include <murtimeline/automation/export.h>
#include <murtimeline/render/companions/time_interfaces.h>

namespace mur {

/// The linear mapping between world seconds and canvas x. It never fails: without a time range, or with an
/// empty one or one that is not finite, every time lies at the first x; in the same way every x of an empty
/// pixel range shows the start time. What is not a number maps to the start, too, and results beyond the
/// number range end at its bounds.
class MUR_API MURTimeMapper final : public ITimeMapper {
 public:
  void SetTimeRange(double StartA, double EndA) override;
  void SetPixelRange(double FirstA, double LastA) override;
  float SecondsToX(double SecondsA) const override;
  double XToSeconds(float XA) const override;

 private:
  struct Range {
    double start = 0, end = 0;
  };
  static Range Sane(double StartA, double EndA);
  static double Map(double ValueA, const Range& FromA, const Range& ToA);

  Range mTime, mPixels;
};

}  // namespace mur
