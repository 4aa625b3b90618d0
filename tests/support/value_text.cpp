#include "tests/support/value_text.h"

#include <charconv>
#include <chrono>
#include <cmath>
#include <cstdio>

#include <murtimeline/model/timeline_object_interface.h>

namespace mur::test {
namespace {

constexpr auto kEpoch = std::chrono::sys_days(std::chrono::year(1899) / 12 / 30);

Date DateAt(std::chrono::sys_days DayA, int SecondsA) {
  const auto days = static_cast<double>((DayA - kEpoch).count());
  return Date::Unchecked(days + SecondsA / kSecondsPerDay);
}

std::string CalendarText(std::chrono::sys_days DayA, int SecondsA) {
  const std::chrono::year_month_day day(DayA);
  char text[48];
  int length = std::snprintf(text, sizeof text, "#%04d-%02u-%02u", int{day.year()}, unsigned{day.month()},
                             unsigned{day.day()});
  if (SecondsA != 0)
    length += std::snprintf(text + length, sizeof text - static_cast<std::size_t>(length), " %02d:%02d:%02d",
                            SecondsA / 3600, SecondsA / 60 % 60, SecondsA % 60);
  return std::string(text, static_cast<std::size_t>(length)) + "#";
}

}  // namespace

std::string NumberText(double ValueA) {
  char text[32];
  return {text, std::to_chars(text, text + sizeof text, ValueA).ptr};
}

std::string DateText(Date ValueA) {
  if (ValueA.InRange()) {
    const auto total = std::llround(ValueA.Days() * kSecondsPerDay);
    const int seconds = static_cast<int>((total % 86400 + 86400) % 86400);
    const auto day = kEpoch + std::chrono::days((total - seconds) / 86400);
    if (DateAt(day, seconds) == ValueA) return CalendarText(day, seconds);
  }
  return "#" + NumberText(ValueA.Days()) + "#";
}

Date DateOf(int YearA, unsigned MonthA, unsigned DayA, int HourA, int MinuteA, int SecondA) {
  const auto day = std::chrono::year(YearA) / std::chrono::month(MonthA) / std::chrono::day(DayA);
  return DateAt(day, (HourA * 60 + MinuteA) * 60 + SecondA);
}

std::string ValueText(const Variant& ValueA, char QuoteA) {
  if (const String* text = ValueA.As<String>()) return QuoteA + ToUtf8(*text) + QuoteA;
  if (const Date* date = ValueA.As<Date>()) return DateText(*date);
  if (const bool* truth = ValueA.As<bool>()) return *truth ? "true" : "false";
  if (const auto number = ValueA.Number()) return NumberText(*number);
  if (const auto* object = ValueA.As<Ref<Object>>()) {
    const auto* timelineObject = dynamic_cast<const IMURTimelineObject*>(object->Get());
    return timelineObject ? ToUtf8(timelineObject->Key()) : *object ? "object" : "nothing";
  }
  return KindName(ValueA.Kind());
}

}  // namespace mur::test
