#pragma once

#include <cstdint>
#include <optional>

#include <murtimeline/automation/export.h>
#include <murtimeline/render/companions/scale_settings.h>

namespace mur {

/// The part of time that a scale shows, and where its times lie. Tick times are milliseconds from an origin.
struct MUR_API ScaleRange {
  std::int64_t first = 0, last = 0;  // the first and last whole millisecond shown
  double originFromStart = 0;        // seconds from the scale's start to the origin
  double duration = 0;               // seconds, above 0
  float width = 0;                   // pixels

  float XOf(std::int64_t TimeA) const;
  float PixelsOf(double SecondsA) const {
    return static_cast<float>(SecondsA / duration * static_cast<double>(width));
  }
};

/// None where there is nothing to tick: without width, for a duration that is not positive, and for times
/// that are not finite or too far from the origin to be counted.
MUR_API std::optional<ScaleRange> RangeOf(const ScaleSettings& SettingsA, double OriginSecondsA,
                                          float WidthA);

/// Whether a scale of that width shows times at all.
MUR_API bool HasRange(const ScaleSettings& SettingsA, float WidthA);

/// Where a world time lies on a scale of that width, when it is shown.
MUR_API std::optional<float> ShownX(const ScaleSettings& SettingsA, Date WorldTimeA, float WidthA);

/// The world time at an x of a scale of that width, beyond its ends the time there; none where there is none.
MUR_API std::optional<Date> TimeAt(const ScaleSettings& SettingsA, float XA, float WidthA);

}  // namespace mur
