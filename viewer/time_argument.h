#pragma once

#include <QString>
#include <optional>
#include <variant>

#include <murtimeline/automation/date.h>

namespace mur::viewer {

/// A time of day as a time scale shows it, with a fraction or with frames.
struct ClockTime {
  double seconds = 0;
  double frames = 0;
  friend bool operator==(const ClockTime&, const ClockTime&) = default;
};

/// Seconds from the start of what is shown.
struct SecondsFromStart {
  double seconds = 0;
  friend bool operator==(const SecondsFromStart&, const SecondsFromStart&) = default;
};

/// A time on the command line; a Date is an absolute one.
using TimeArgument = std::variant<ClockTime, SecondsFromStart, Date>;

/// hh:mm:ss[.fff], hh:mm:ss:ff, seconds or an ISO date with time; none for anything else.
std::optional<TimeArgument> ParseTimeArgument(const QString& TextA);

/// The instant meant, for a time line that starts at `StartA`, whose times of day count from `DayA` and whose
/// frames (25 a second where the rate is 0) last 1 / `RateA`. Throws AutomationError outside the date range.
Date ResolveTime(const TimeArgument& TimeA, Date DayA, Date StartA, double RateA);

}  // namespace mur::viewer
