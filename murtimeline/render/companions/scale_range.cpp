#include <algorithm>
#include <cmath>

#include <murtimeline/automation/narrow.h>
#include <murtimeline/render/companions/scale_range.h>
#include <murtimeline/render/companions/tick_ladder.h>

namespace mur {

float ScaleRange::XOf(std::int64_t TimeA) const {
  return PixelsOf(originFromStart + static_cast<double>(TimeA) / static_cast<double>(kMillisecondsPerSecond));
}

std::optional<ScaleRange> RangeOf(const ScaleSettings& SettingsA, double OriginSecondsA, float WidthA) {
  constexpr double kFarthest = 4e15;  // seconds; in milliseconds with room for a step more
  const double start = SettingsA.StartSeconds() - OriginSecondsA;
  const double end = start + SettingsA.duration;
  if (!(WidthA > 0 && SettingsA.duration > 0 && std::fabs(start) < kFarthest && std::fabs(end) < kFarthest))
    return {};
  constexpr double kPerSecond = kMillisecondsPerSecond;
  constexpr double kDateNoise = 0.002;  // milliseconds; a tick on the very edge is shown
  return ScaleRange{Narrow<std::int64_t>(std::ceil(start * kPerSecond - kDateNoise)),
                    Narrow<std::int64_t>(std::floor(end * kPerSecond + kDateNoise)), -start,
                    SettingsA.duration, WidthA};
}

bool HasRange(const ScaleSettings& SettingsA, float WidthA) {
  return SettingsA.duration > 0 && std::isfinite(SettingsA.duration) && WidthA > 0;
}

std::optional<float> ShownX(const ScaleSettings& SettingsA, Date WorldTimeA, float WidthA) {
  const double share = (WorldTimeA.Seconds() - SettingsA.StartSeconds()) / SettingsA.duration;
  if (!(HasRange(SettingsA, WidthA) && share >= 0 && share <= 1)) return {};
  return static_cast<float>(share * static_cast<double>(WidthA));
}

std::optional<Date> TimeAt(const ScaleSettings& SettingsA, float XA, float WidthA) {
  if (!HasRange(SettingsA, WidthA)) return {};
  const double share = static_cast<double>(std::clamp(XA, 0.0F, WidthA)) / static_cast<double>(WidthA);
  const double seconds = SettingsA.StartSeconds() + share * SettingsA.duration;
  const Date time = Date::Unchecked(seconds / kSecondsPerDay);
  return time.InRange() ? std::optional(time) : std::nullopt;
}

}  // namespace mur
