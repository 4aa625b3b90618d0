#include <cmath>
#include <limits>

#include <gtest/gtest.h>

#include <murtimeline/automation/error.h>
#include <murtimeline/automation/regional.h>
#include <murtimeline/dialogs/moments.h>

#include "tests/support/print.h"

namespace mur::test {
namespace {

constexpr double kNotANumber = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinity = std::numeric_limits<double>::infinity();

Date Composed(double DayA, double TimeA) {
  return ComposeMoment(Date::Unchecked(DayA), Date::Unchecked(TimeA));
}

String TextOf(double DaysA) {
  return MomentText(Date::Unchecked(DaysA), Date::Unchecked(DaysA));
}

TEST(ComposedMoment, IsTheDayOfTheOneAndTheTimeOfTheOther) {
  EXPECT_EQ(Composed(36526.75, 40000.25), Date::Unchecked(36526.25));
  EXPECT_EQ(Composed(0, 0), Date());
}

TEST(ComposedMoment, DropsFractionsOfASecond) {
  EXPECT_EQ(Composed(36526, 0.25 + 0.9 / kSecondsPerDay), Date::Unchecked(36526.25));
}

TEST(ComposedMoment, KeepsEverySecondOfADayHoweverItIsStored) {
  for (const double day : {0.0, 36526.0, 2958465.0})
    for (int second = 0; second < 86400; ++second)
      ASSERT_EQ(Composed(36526, day + second / kSecondsPerDay),
                Date::Unchecked(36526 + second / kSecondsPerDay))
          << day << ", second " << second;
}

TEST(ComposedMoment, TakesAMomentWithinHalfAMillisecondOfMidnightForTheNextDay) {
  EXPECT_EQ(Composed(std::nextafter(36526.0, 0), 0.5), Date::Unchecked(36526.5));
  EXPECT_EQ(Composed(36525.9999, 0.5), Date::Unchecked(36525.5));
  EXPECT_EQ(Composed(36526, std::nextafter(1.0, 0)), Date::Unchecked(36526));
}

TEST(ComposedMoment, ReadsTheTimeOfADayBeforeTheFirstForwardFromItsMidnight) {
  EXPECT_EQ(Composed(36526, -1.25), Date::Unchecked(36526.25));
}

TEST(ComposedMoment, AddsTheTimeToADayBeforeTheFirstAsANumber) {
  EXPECT_EQ(Composed(-2.75, 0.25), Date::Unchecked(-1.75));
}

TEST(ComposedMoment, IsOverflowOutsideTheDateRange) {
  for (const double bad : {kNotANumber, kInfinity, -kInfinity, 3e6, -7e5, 1e300}) {
    EXPECT_THROW(Composed(bad, 0), AutomationError) << bad;
    EXPECT_THROW(Composed(0, bad), AutomationError) << bad;
  }
}

TEST(ClockReading, IsTheDayAndTheMillisecondsOfIt) {
  const ClockReading reading = ReadClock(Date::Unchecked(36526.25 + 0.75 / kSecondsPerDay));
  EXPECT_EQ(reading.day, 36526);
  EXPECT_EQ(reading.milliseconds, 6 * 3'600'000 + 750);
}

TEST(ClockReading, CountsForwardBeforeTheFirstDay) {
  const ClockReading reading = ReadClock(Date::Unchecked(-1.25));
  EXPECT_EQ(reading.day, -1);
  EXPECT_EQ(reading.milliseconds, 6 * 3'600'000);
}

TEST(ClockReading, IsOfTheNextDayWithinHalfAMillisecondOfMidnight) {
  const ClockReading after = ReadClock(Date::Unchecked(std::nextafter(36526.0, 0)));
  EXPECT_EQ(after.day, 36526);
  EXPECT_EQ(after.milliseconds, 0);
  const ClockReading before = ReadClock(Date::Unchecked(-2.999999999));  // the last moment of day -2
  EXPECT_EQ(before.day, -1);
  EXPECT_EQ(before.milliseconds, 0);
}

TEST(ClockReading, MakesTheMomentAgain) {
  for (const double days : {36526.25, 0.0, 0.5, -1.25, -657434.0, -657433.75})
    EXPECT_EQ(MomentOf(ReadClock(Date::Unchecked(days))), Date::Unchecked(days)) << days;
}

TEST(MomentText, IsTheLongDateTwoSpacesAndTheLongTime) {
  EXPECT_EQ(TextOf(36526.25), u"Saturday, January 1, 2000  6:00:00 AM");
  EXPECT_EQ(TextOf(36526), u"Saturday, January 1, 2000  12:00:00 AM");
}

TEST(MomentText, FollowsTheRegionInForce) {
  const RegionalScope german("de-DE");
  EXPECT_EQ(TextOf(36526.25), u"Samstag, 1. Januar 2000  06:00:00");
}

TEST(MomentText, IsEmptyForWhatIsNoDate) {
  for (const double bad : {kNotANumber, kInfinity, -kInfinity, 3e6, -7e5, 1e300})
    EXPECT_EQ(TextOf(bad), u"") << bad;
}

}  // namespace
}  // namespace mur::test
