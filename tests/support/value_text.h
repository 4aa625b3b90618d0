#pragma once

#include <string>

#include <murtimeline/automation/date.h>
#include <murtimeline/automation/variant.h>

namespace mur::test {

/// The shortest decimal text that reads back as exactly this number.
std::string NumberText(double ValueA);

/// `#2000-01-01#` or `#2000-01-01 01:00:30#` for a date on a whole second, else its days: `#36526.1#`.
std::string DateText(Date ValueA);

/// A whole second of the calendar as a date.
Date DateOf(int YearA, unsigned MonthA, unsigned DayA, int HourA = 0, int MinuteA = 0, int SecondA = 0);

/// A value for a log: numbers by value, texts in `QuoteA`, objects by their key.
std::string ValueText(const Variant& ValueA, char QuoteA = '\'');

}  // namespace mur::test
