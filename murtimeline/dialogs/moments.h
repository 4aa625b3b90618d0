#pragma once

#include <murtimeline/automation/date.h>
#include <murtimeline/automation/export.h>
#include <murtimeline/automation/string.h>

namespace mur {

/// How dialogs show a moment: the long date of `DayA`, two spaces, the long time of `TimeA`, in the user's
/// region. Empty where that is no date.
String MomentText(Date DayA, Date TimeA);

/// The day of `DayA` and the time of day of `TimeA`, in whole seconds: fractions are dropped. Both are added
/// as numbers, so that before the day 30 December 1899 a time counts forward in them, too. Throws Overflow
/// outside the date range.
Date ComposeMoment(Date DayA, Date TimeA);

/// A moment as a calendar and a clock show it. The clock counts forward before the day zero, too.
struct MUR_API ClockReading {
  double day = 0;           ///< whole days since 30 December 1899
  double milliseconds = 0;  ///< whole ones of the day
};

/// Throws Overflow outside the date range.
MUR_API ClockReading ReadClock(Date MomentA);

/// The moment that a calendar and a clock show so.
MUR_API Date MomentOf(const ClockReading& ReadingA);

}  // namespace mur
