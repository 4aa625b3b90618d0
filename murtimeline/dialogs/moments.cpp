#include <cmath>

#include <murtimeline/automation/guard.h>
#include <murtimeline/automation/regional.h>
#include <murtimeline/dialogs/moments.h>

namespace mur {
namespace {

constexpr double kMillisecondsPerDay = kSecondsPerDay * 1000;

struct Clock {
  double day;
  double seconds;  // whole ones of the day
};

// A time that was meant as a whole second may lie a few microseconds before it, so what is dropped is what a
// clock of milliseconds shows.
Clock ClockOf(Date ValueA) {
  const double days = Date::FromDays(ValueA.Days()).Days();
  const double day = std::trunc(days);
  const double milliseconds = std::floor(std::fabs(days - day) * kMillisecondsPerDay + 0.5);
  if (milliseconds >= kMillisecondsPerDay) return {day + 1, 0};
  return {day, std::floor(milliseconds / 1000)};
}

}  // namespace

String MomentText(Date DayA, Date TimeA) {
  String text;
  ResumeNext([&] {
    const RegionalServices& region = Regional();
    text = region.Format(Variant(DayA), u"Long Date") + u"  " + region.Format(Variant(TimeA), u"Long Time");
  });
  return text;
}

Date ComposeMoment(Date DayA, Date TimeA) {
  return Date::FromDays(ClockOf(DayA).day + ClockOf(TimeA).seconds / kSecondsPerDay);
}

}  // namespace mur
