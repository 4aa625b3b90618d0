#include <chrono>

#include <murtimeline/render/companions/tick_ladder.h>

namespace mur {
namespace {

constexpr std::int64_t kSecond = kMillisecondsPerSecond;
constexpr std::int64_t kMinute = 60 * kSecond;
constexpr std::int64_t kHour = 60 * kMinute;
constexpr std::int64_t kDay = kMillisecondsPerDay;
constexpr std::int64_t kFirstMonday = 2 * kDay;  // 1 January 1900
constexpr std::int64_t kMonthsPerYear = 12;

constexpr std::int64_t kFixedSteps[] = {
    1,         2,           5,           10,           20,           40,           50,           100,
    200,       500,         kSecond,     2 * kSecond,  5 * kSecond,  10 * kSecond, 15 * kSecond, 30 * kSecond,
    kMinute,   2 * kMinute, 5 * kMinute, 10 * kMinute, 15 * kMinute, 30 * kMinute, kHour,        2 * kHour,
    3 * kHour, 6 * kHour,   12 * kHour,  kDay,
};

constexpr std::int64_t kMonthSteps[] = {1, 2, 3, 6, 12, 24, 60, 120, 240, 600, 1200, 2400, 6000, 12000};

constexpr std::int64_t kMostDays = 50'000'000'000;  // in milliseconds it still fits 64 bits

std::vector<TickStep> FixedSteps() {
  std::vector<TickStep> steps;
  for (const std::int64_t milliseconds : kFixedSteps) steps.push_back({milliseconds});
  return steps;
}

std::vector<TickStep> MakeCalendarLadder() {
  std::vector<TickStep> steps = FixedSteps();
  steps.push_back({2 * kDay});
  steps.push_back({7 * kDay, 0, kFirstMonday});
  steps.push_back({14 * kDay, 0, kFirstMonday});
  for (const std::int64_t months : kMonthSteps) steps.push_back({0, months});
  return steps;
}

std::vector<TickStep> MakeDurationLadder() {
  std::vector<TickStep> steps = FixedSteps();
  for (std::int64_t decade = 1; decade <= kMostDays / 10; decade *= 10)
    for (const std::int64_t days : {2 * decade, 5 * decade, 10 * decade}) steps.push_back({days * kDay});
  return steps;
}

std::int64_t FloorQuotient(std::int64_t LeftA, std::int64_t RightA) {
  return LeftA / RightA - (LeftA % RightA < 0 ? 1 : 0);
}

constexpr std::chrono::sys_days kDateZero = std::chrono::year(1899) / 12 / 30;

// Months since the beginning of year 0.
std::int64_t MonthAt(std::int64_t TimeA) {
  const std::chrono::days days(FloorQuotient(TimeA, kDay));
  const std::chrono::year_month_day date(kDateZero + days);
  return int{date.year()} * kMonthsPerYear + unsigned{date.month()} - 1;
}

std::int64_t StartOfMonth(std::int64_t MonthA) {
  const std::int64_t year = FloorQuotient(MonthA, kMonthsPerYear);
  const std::chrono::sys_days start =
      std::chrono::year(static_cast<int>(year)) /
      std::chrono::month(static_cast<unsigned>(MonthA - year * kMonthsPerYear + 1)) / 1;
  return (start - kDateZero).count() * kDay;
}

}  // namespace

double TickStep::Seconds() const {
  constexpr double kMeanMonth = 365.2425 / 12 * 86400;
  return IsCalendar() ? static_cast<double>(months) * kMeanMonth
                      : static_cast<double>(milliseconds) / static_cast<double>(kMillisecondsPerSecond);
}

std::int64_t TickStep::NumberAt(std::int64_t TimeA) const {
  return IsCalendar() ? FloorQuotient(MonthAt(TimeA), months)
                      : FloorQuotient(TimeA - firstTick, milliseconds);
}

std::int64_t TickStep::TimeOf(std::int64_t NumberA) const {
  return IsCalendar() ? StartOfMonth(NumberA * months) : NumberA * milliseconds + firstTick;
}

bool TickStep::Divides(const TickStep& OtherA) const {
  if (IsCalendar()) return OtherA.IsCalendar() && OtherA.months % months == 0;
  if (OtherA.IsCalendar()) return kDay % milliseconds == 0;
  return OtherA.milliseconds % milliseconds == 0 && (OtherA.firstTick - firstTick) % milliseconds == 0;
}

std::span<const TickStep> CalendarLadder() {
  static const std::vector<TickStep> ladder = MakeCalendarLadder();
  return ladder;
}

std::span<const TickStep> DurationLadder() {
  static const std::vector<TickStep> ladder = MakeDurationLadder();
  return ladder;
}

}  // namespace mur
