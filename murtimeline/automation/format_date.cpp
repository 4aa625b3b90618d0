#include <chrono>
#include <cmath>

#include <murtimeline/automation/format_date.h>
#include <murtimeline/automation/narrow.h>

namespace mur {
namespace {

constexpr std::chrono::sys_days kDayZero = std::chrono::year(1899) / 12 / 30;

struct PaddedNumber {
  int number;
  int minimalDigits;
};

void AppendNumber(String& TextA, PaddedNumber NumberA) {
  if (NumberA.number >= 10 || NumberA.minimalDigits > 1)
    AppendNumber(TextA, {NumberA.number / 10, NumberA.minimalDigits - 1});
  TextA += static_cast<char16_t>(u'0' + NumberA.number % 10);
}

// The week that holds 1 January is the first; weeks start on Sunday.
int WeekOfYear(const Moment& MomentA) {
  const int daysSinceNewYear = MomentA.dayOfYear - 1;
  const int weekdayOfNewYear = (MomentA.weekday + 7 - daysSinceNewYear % 7) % 7;
  return (daysSinceNewYear + weekdayOfNewYear) / 7 + 1;
}

int ShownHour(const Moment& MomentA, bool TwelveHoursA) {
  return TwelveHoursA ? (MomentA.hour + 11) % 12 + 1 : MomentA.hour;
}

// What a numeric part shows.
PaddedNumber NumberIn(const Moment& MomentA, DatePart PartA, bool TwelveHoursA) {
  switch (PartA) {
    case DatePart::Day:
      return {MomentA.day, 1};
    case DatePart::DayTwoDigits:
      return {MomentA.day, 2};
    case DatePart::Weekday:
      return {MomentA.weekday + 1, 1};
    case DatePart::Week:
      return {WeekOfYear(MomentA), 1};
    case DatePart::Month:
      return {MomentA.month, 1};
    case DatePart::MonthTwoDigits:
      return {MomentA.month, 2};
    case DatePart::Quarter:
      return {(MomentA.month + 2) / 3, 1};
    case DatePart::DayOfYear:
      return {MomentA.dayOfYear, 1};
    case DatePart::YearTwoDigits:
      return {MomentA.year % 100, 2};
    case DatePart::Year:
      return {MomentA.year, 4};
    case DatePart::Hour:
      return {ShownHour(MomentA, TwelveHoursA), 1};
    case DatePart::HourTwoDigits:
      return {ShownHour(MomentA, TwelveHoursA), 2};
    case DatePart::Minute:
      return {MomentA.minute, 1};
    case DatePart::MinuteTwoDigits:
      return {MomentA.minute, 2};
    case DatePart::Second:
      return {MomentA.second, 1};
    default:
      return {MomentA.second, 2};
  }
}

// "AM/PM" and "A/P" hold their own two texts, before and behind the slash.
StringView HalfDayText(StringView PlaceholderA, bool AfternoonA) {
  const std::size_t slash = PlaceholderA.find(u'/');
  return AfternoonA ? PlaceholderA.substr(slash + 1) : PlaceholderA.substr(0, slash);
}

}  // namespace

Moment MomentOf(Date ValueA) {
  const double days = Date::FromDays(ValueA.Days()).Days();
  const double wholeDays = std::trunc(days);
  constexpr int kSecondsOfDay = 86400;
  const int seconds = Narrow<int>(std::floor(std::fabs(days - wholeDays) * kSecondsPerDay + 0.5));

  Moment moment;
  moment.dayNumber = Narrow<int>(wholeDays) + seconds / kSecondsOfDay;
  moment.hour = seconds % kSecondsOfDay / 3600;
  moment.minute = seconds / 60 % 60;
  moment.second = seconds % 60;

  const std::chrono::sys_days day = kDayZero + std::chrono::days(moment.dayNumber);
  const std::chrono::year_month_day civil(day);
  moment.year = int(civil.year());
  moment.month = static_cast<int>(unsigned(civil.month()));
  moment.day = static_cast<int>(unsigned(civil.day()));
  moment.weekday = static_cast<int>(std::chrono::weekday(day).c_encoding());
  moment.dayOfYear = static_cast<int>((day - std::chrono::sys_days(civil.year() / 1 / 1)).count()) + 1;
  return moment;
}

DateWriter::DateWriter(const Region& RegionA)
    : mRegion(RegionA),
      mShortDate(ParseDatePattern(RegionA.shortDate)),
      mLongDate(ParseDatePattern(RegionA.longDate)),
      mLongTime(ParseDatePattern(RegionA.longTime)) {}

String DateWriter::Write(const Moment& MomentA, const DatePattern& PatternA) const {
  String text;
  Append(text, MomentA, PatternA);
  ApplyLetterCase(text, PatternA.letterCase);
  return text;
}

String DateWriter::WriteGeneral(const Moment& MomentA) const {
  String text;
  AppendGeneral(text, MomentA);
  return text;
}

void DateWriter::Append(String& TextA, const Moment& MomentA, const DatePattern& PatternA) const {
  for (const DatePattern::Token& token : PatternA.tokens) AppendPart(TextA, MomentA, PatternA, token);
}

void DateWriter::AppendGeneral(String& TextA, const Moment& MomentA) const {
  const bool hasDate = MomentA.dayNumber != 0;
  const bool hasTime = !hasDate || !MomentA.IsMidnight();
  if (hasDate) Append(TextA, MomentA, mShortDate);
  if (hasDate && hasTime) TextA += u' ';
  if (hasTime) Append(TextA, MomentA, mLongTime);
}

void DateWriter::AppendPart(String& TextA, const Moment& MomentA, const DatePattern& PatternA,
                            const DatePattern::Token& TokenA) const {
  const auto span = StringView(PatternA.source).substr(TokenA.span.offset, TokenA.span.length);
  const auto monthIndex = static_cast<std::size_t>(MomentA.month - 1);
  const auto weekdayIndex = static_cast<std::size_t>(MomentA.weekday);
  const bool afternoon = MomentA.hour >= 12;
  switch (TokenA.part) {
    case DatePart::Literal:
      TextA += span;
      break;
    case DatePart::DateSeparator:
      TextA += mRegion.dateSeparator;
      break;
    case DatePart::TimeSeparator:
      TextA += mRegion.timeSeparator;
      break;
    case DatePart::General:
      AppendGeneral(TextA, MomentA);
      break;
    case DatePart::ShortDate:
      Append(TextA, MomentA, mShortDate);
      break;
    case DatePart::LongDate:
      Append(TextA, MomentA, mLongDate);
      break;
    case DatePart::LongTime:
      Append(TextA, MomentA, mLongTime);
      break;
    case DatePart::ShortDayName:
      TextA += mRegion.shortDayNames[weekdayIndex];
      break;
    case DatePart::DayName:
      TextA += mRegion.dayNames[weekdayIndex];
      break;
    case DatePart::ShortMonthName:
      TextA += mRegion.shortMonthNames[monthIndex];
      break;
    case DatePart::MonthName:
      TextA += mRegion.monthNames[monthIndex];
      break;
    case DatePart::HalfDay:
      TextA += HalfDayText(span, afternoon);
      break;
    case DatePart::RegionalHalfDay:
      TextA += afternoon ? mRegion.pmText : mRegion.amText;
      break;
    default:
      AppendNumber(TextA, NumberIn(MomentA, TokenA.part, PatternA.twelveHours));
  }
}

}  // namespace mur
