#pragma once

#include <vector>

#include <murtimeline/automation/date.h>
#include <murtimeline/automation/format_letter_case.h>
#include <murtimeline/automation/format_pattern.h>
#include <murtimeline/automation/format_region.h>

namespace mur {

/// A date taken apart, rounded to the nearest second.
struct Moment {
  int dayNumber = 0;  ///< days since 30 December 1899
  int year = 0, month = 0, day = 0;
  int dayOfYear = 0;  ///< from 1
  int weekday = 0;    ///< from 0, Sunday
  int hour = 0, minute = 0, second = 0;

  bool IsMidnight() const { return hour == 0 && minute == 0 && second == 0; }
};

/// Throws Overflow outside the date range. The fraction of a negative date counts forward from its midnight.
Moment MomentOf(Date ValueA);

enum class DatePart {
  Literal,
  DateSeparator,
  TimeSeparator,
  General,
  ShortDate,
  LongDate,
  LongTime,
  Day,
  DayTwoDigits,
  ShortDayName,
  DayName,
  Weekday,
  Week,
  Month,
  MonthTwoDigits,
  ShortMonthName,
  MonthName,
  Quarter,
  DayOfYear,
  YearTwoDigits,
  Year,
  Hour,
  HourTwoDigits,
  Minute,
  MinuteTwoDigits,
  Second,
  SecondTwoDigits,
  HalfDay,          ///< AM/PM or A/P: the half of the placeholder itself
  RegionalHalfDay,  ///< AMPM: the region's text
};

/// A date pattern made ready: its first section.
struct DatePattern {
  struct Token {
    DatePart part;
    PatternSpan span;
  };
  String source;
  std::vector<Token> tokens;
  LetterCase letterCase = LetterCase::AsIs;
  bool twelveHours = false;
};

/// Whether a date placeholder starts at `PositionA`.
bool IsDatePlaceholder(StringView PatternA, std::size_t PositionA);

DatePattern ParseDatePattern(StringView PatternA);

/// Writes dates in one region, which must outlive the writer.
class DateWriter {
 public:
  explicit DateWriter(const Region& RegionA);

  String Write(const Moment& MomentA, const DatePattern& PatternA) const;

  /// The date alone at midnight, the time alone on day zero, else both.
  String WriteGeneral(const Moment& MomentA) const;

 private:
  void Append(String& TextA, const Moment& MomentA, const DatePattern& PatternA) const;
  void AppendGeneral(String& TextA, const Moment& MomentA) const;
  void AppendPart(String& TextA, const Moment& MomentA, const DatePattern& PatternA,
                  const DatePattern::Token& TokenA) const;

  const Region& mRegion;
  DatePattern mShortDate;
  DatePattern mLongDate;
  DatePattern mLongTime;
};

}  // namespace mur
