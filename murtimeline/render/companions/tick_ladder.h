#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include <murtimeline/automation/export.h>

namespace mur {

inline constexpr std::int64_t kMillisecondsPerSecond = 1000;
inline constexpr std::int64_t kMillisecondsPerDay = 86'400'000;

/// A round distance between the ticks of a time scale: a number of milliseconds, or of calendar months. Times
/// are whole milliseconds; in a step of months or weeks they count from date 0.
struct MUR_API TickStep {
  std::int64_t milliseconds = 0;
  std::int64_t months = 0;     // when not 0, the step is this many months long
  std::int64_t firstTick = 0;  // a tick of the step

  bool IsCalendar() const { return months != 0; }
  bool IsDayOrMore() const { return IsCalendar() || milliseconds >= kMillisecondsPerDay; }
  /// How long the step lasts, a month at its mean.
  double Seconds() const;
  /// The number of the last tick at or before that time, and the time of a tick.
  std::int64_t NumberAt(std::int64_t TimeA) const;
  std::int64_t TimeOf(std::int64_t NumberA) const;
  /// Whether every tick of the other step is also one of this step.
  bool Divides(const TickStep& OtherA) const;
};

/// The steps of a scale of calendar times, from a millisecond to a thousand years.
MUR_API std::span<const TickStep> CalendarLadder();

/// The steps of a scale of plain durations, from a millisecond to powers of ten of days.
MUR_API std::span<const TickStep> DurationLadder();

}  // namespace mur
