#include <cmath>

#include <murtimeline/automation/guard.h>
#include <murtimeline/automation/regional.h>
#include <murtimeline/dialogs/moments.h>

namespace mur {
namespace {

constexpr double kMillisecondsPerDay = kSecondsPerDay * 1000;

}  // namespace

// A time that was meant as a whole second may lie a few microseconds before it.
ClockReading ReadClock(Date MomentA) {
  const double days = Date::FromDays(MomentA.Days()).Days();
  const double day = std::trunc(days);
  const double milliseconds = std::floor(std::fabs(days - day) * kMillisecondsPerDay + 0.5);
  if (milliseconds >= kMillisecondsPerDay) return {day + 1, 0};
  return {day, milliseconds};
}

Date MomentOf(const ClockReading& ReadingA) {
  const double time = ReadingA.milliseconds / kMillisecondsPerDay;
  return Date::Unchecked(ReadingA.day < 0 ? ReadingA.day - time : ReadingA.day + time);
}

String MomentText(Date DayA, Date TimeA) {
  String text;
  ResumeNext([&] {
    const RegionalServices& region = Regional();
    text = region.Format(Variant(DayA), u"Long Date") + u"  " + region.Format(Variant(TimeA), u"Long Time");
  });
  return text;
}

Date ComposeMoment(Date DayA, Date TimeA) {
  const double seconds = std::floor(ReadClock(TimeA).milliseconds / 1000);
  return Date::FromDays(ReadClock(DayA).day + seconds / kSecondsPerDay);
}

}  // namespace mur
