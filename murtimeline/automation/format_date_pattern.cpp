#include <murtimeline/automation/format_date.h>

namespace mur {
namespace {

struct Placeholder {
  StringView word;
  DatePart part;
};

// A longer word comes before the words that it starts with.
constexpr Placeholder kPlaceholders[] = {
    {u"dddddd", DatePart::LongDate},
    {u"ddddd", DatePart::ShortDate},
    {u"dddd", DatePart::DayName},
    {u"ddd", DatePart::ShortDayName},
    {u"dd", DatePart::DayTwoDigits},
    {u"d", DatePart::Day},
    {u"mmmm", DatePart::MonthName},
    {u"mmm", DatePart::ShortMonthName},
    {u"mm", DatePart::MonthTwoDigits},
    {u"m", DatePart::Month},
    {u"yyyy", DatePart::Year},
    {u"yy", DatePart::YearTwoDigits},
    {u"y", DatePart::DayOfYear},
    {u"hh", DatePart::HourTwoDigits},
    {u"h", DatePart::Hour},
    {u"nn", DatePart::MinuteTwoDigits},
    {u"n", DatePart::Minute},
    {u"ss", DatePart::SecondTwoDigits},
    {u"s", DatePart::Second},
    {u"ww", DatePart::Week},
    {u"w", DatePart::Weekday},
    {u"q", DatePart::Quarter},
    {u"c", DatePart::General},
    {u"ttttt", DatePart::LongTime},
    {u"am/pm", DatePart::HalfDay},
    {u"ampm", DatePart::RegionalHalfDay},
    {u"a/p", DatePart::HalfDay},
};

const Placeholder* PlaceholderAt(StringView PatternA, std::size_t PositionA) {
  for (const Placeholder& placeholder : kPlaceholders)
    if (StartsWord(PatternA, PositionA, placeholder.word)) return &placeholder;
  return nullptr;
}

constexpr bool IsHour(DatePart PartA) {
  return PartA == DatePart::Hour || PartA == DatePart::HourTwoDigits;
}

// A month directly behind an hour is meant as minutes.
constexpr DatePart BehindHour(DatePart PartA) {
  if (PartA == DatePart::Month) return DatePart::Minute;
  if (PartA == DatePart::MonthTwoDigits) return DatePart::MinuteTwoDigits;
  return PartA;
}

constexpr DatePart LiteralOrSeparator(char16_t UnitA) {
  if (UnitA == u'/') return DatePart::DateSeparator;
  if (UnitA == u':') return DatePart::TimeSeparator;
  return DatePart::Literal;
}

}  // namespace

bool IsDatePlaceholder(StringView PatternA, std::size_t PositionA) {
  return PlaceholderAt(PatternA, PositionA) != nullptr;
}

DatePattern ParseDatePattern(StringView PatternA) {
  DatePattern pattern;
  pattern.source = SplitSections(PatternA).front();
  const StringView source = pattern.source;
  DatePart previous = DatePart::Literal;
  for (std::size_t i = 0; i < source.size();) {
    if (const auto quoted = TakeQuoted(source, i)) {
      pattern.tokens.push_back({DatePart::Literal, *quoted});
    } else if (const Placeholder* placeholder = PlaceholderAt(source, i)) {
      previous = IsHour(previous) ? BehindHour(placeholder->part) : placeholder->part;
      pattern.tokens.push_back({previous, {i, placeholder->word.size()}});
      pattern.twelveHours |= previous == DatePart::HalfDay || previous == DatePart::RegionalHalfDay;
      i += placeholder->word.size();
    } else if (source[i] == u'<' || source[i] == u'>') {
      pattern.letterCase = source[i++] == u'<' ? LetterCase::Lower : LetterCase::Upper;
    } else {
      pattern.tokens.push_back({LiteralOrSeparator(source[i]), {i, 1}});
      ++i;
    }
  }
  return pattern;
}

}  // namespace mur
