#pragma once

#include <cstdint>

#include <murtimeline/automation/export.h>
#include <murtimeline/automation/object.h>
#include <murtimeline/automation/string.h>

namespace mur {

/// Converts world seconds (days x 86400) to canvas x and back.
class MUR_API ITimeMapper : public Object {
 public:
  virtual void SetTimeRange(double StartA, double EndA) = 0;
  virtual void SetPixelRange(double FirstA, double LastA) = 0;
  virtual float SecondsToX(double SecondsA) const = 0;
  virtual double XToSeconds(float XA) const = 0;
};

/// Writes times as text.
class MUR_API ITimeText : public Object {
 public:
  /// `StyleA`: 0 seconds with three decimals, 1 mm:ss, 2 hh:mm:ss, 3 hh:mm:ss.mmm, 4 timecode hh:mm:ss:ff
  /// (non-drop), 5 d hh:mm:ss, 6 whole frames; any other is 2.
  virtual String FormatSeconds(double SecondsA, std::int32_t StyleA, double FramesPerSecondA) const = 0;
};

}  // namespace mur
