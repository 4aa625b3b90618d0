
#include <gtest/gtest.h>

#include <murtimeline/automation/format_date.h>

namespace mur {
namespace {

String Written(double days, StringView pattern) {
  const Region region;
  return DateWriter(region).Write(MomentOf(Date::Unchecked(days)), ParseDatePattern(pattern));
}

TEST(MomentOf, TakesADateApart) {
  const Moment moment = MomentOf(Date::Unchecked(45351.75));
  EXPECT_EQ(moment.dayNumber, 45351);
  EXPECT_EQ(moment.year, 2024);
  EXPECT_EQ(moment.month, 2);
  EXPECT_EQ(moment.day, 29);
  EXPECT_EQ(moment.dayOfYear, 60);
  EXPECT_EQ(moment.weekday, 4);
  EXPECT_EQ(moment.hour, 18);
  EXPECT_TRUE(MomentOf(Date::Unchecked(1)).IsMidnight());
}

TEST(MomentOf, CarriesTheLastHalfSecondIntoTheNextDay) {
  const Moment moment = MomentOf(Date::Unchecked(36525 + 86399.6 / 86400));
  EXPECT_EQ(moment.dayNumber, 36526);
  EXPECT_TRUE(moment.IsMidnight());
}

TEST(MomentOf, CarriesForwardBeforeDayZeroToo) {
  const Moment moment = MomentOf(Date::Unchecked(-3 - 86399.6 / 86400));
  EXPECT_EQ(moment.dayNumber, -2);
  EXPECT_TRUE(moment.IsMidnight());
}

TEST(MomentOf, FindsEverySecondOfADayAgain) {
  for (int second = 0; second < 86400; ++second) {
    const Moment moment = MomentOf(Date::Unchecked(45351 + second / kSecondsPerDay));
    ASSERT_EQ(moment.hour * 3600 + moment.minute * 60 + moment.second, second);
    ASSERT_EQ(moment.dayNumber, 45351);
  }
}

int MonthLength(int year, int month) {
  constexpr int kLengths[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  const bool isLeap = year % 4 == 0 && (year % 100 != 0 || year % 400 == 0);
  return kLengths[month - 1] + (isLeap && month == 2 ? 1 : 0);
}

bool IsFirstOfMonth(const Moment& moment, int year, int month) {
  return moment.year == year && moment.month == month && moment.day == 1;
}

// Counts the days from the lowest to the highest date, month by month.
TEST(MomentOf, FollowsTheCalendarThroughTheWholeRange) {
  int number = -657434;
  int wrong = 0;
  for (int year = 100; year <= 9999; ++year) {
    for (int month = 1; month <= 12; ++month) {
      if (!IsFirstOfMonth(MomentOf(Date::Unchecked(number)), year, month)) ++wrong;
      number += MonthLength(year, month);
      if (MomentOf(Date::Unchecked(number - 1)).day != MonthLength(year, month)) ++wrong;
    }
  }
  EXPECT_EQ(wrong, 0);
  EXPECT_EQ(number, 2958466);
}

TEST(MomentOf, CountsWeekdaysWithoutAGap) {
  for (int number = -3000; number < 3000; ++number)
    ASSERT_EQ(MomentOf(Date::Unchecked(number)).weekday, (number + 3002) % 7) << number;
}

TEST(MomentOf, CountsTheDaysOfALeapYear) {
  for (int day = 1; day <= 366; ++day) ASSERT_EQ(MomentOf(Date::Unchecked(45291 + day)).dayOfYear, day);
  EXPECT_EQ(MomentOf(Date::Unchecked(45291)).dayOfYear, 365);
}

TEST(DateWriter, ReadsTheLongestPlaceholderFirst) {
  EXPECT_EQ(Written(36526, u"ddddddd"), u"Saturday, January 1, 20001");
  EXPECT_EQ(Written(36526, u"mmmmm"), u"January1");
  EXPECT_EQ(Written(36526, u"yyyyy"), u"20001");
  EXPECT_EQ(Written(36526, u"www"), u"17");
}

TEST(DateWriter, TakesAMonthDirectlyBehindAnHourAsMinutes) {
  EXPECT_EQ(Written(36526.5034837962963, u"h:m"), u"12:5");
  EXPECT_EQ(Written(36526.5034837962963, u"hh\"x\"mm"), u"12x05");
  EXPECT_EQ(Written(36526.5034837962963, u"h AM/PM m"), u"12 PM 1");
}

TEST(DateWriter, WritesHalfDaysInTheLettersOfThePattern) {
  EXPECT_EQ(Written(0.75, u"Am/Pm"), u"Pm");
  EXPECT_EQ(Written(0.25, u"A/p"), u"A");
  EXPECT_EQ(Written(0.75, u"A/p"), u"p");
}

TEST(DateWriter, UsesTheRegionsTexts) {
  Region region;
  region.dateSeparator = u"..";
  region.timeSeparator = u"'";
  region.pmText = u"late";
  region.shortDate = u"yyyy";
  region.longTime = u"hh";
  const DateWriter writer(region);
  const Moment evening = MomentOf(Date::Unchecked(36526.75));
  EXPECT_EQ(writer.Write(evening, ParseDatePattern(u"d/m h:n AMPM")), u"1..1 6'0 late");
  EXPECT_EQ(writer.WriteGeneral(evening), u"2000 18");
}

TEST(DateWriter, PutsTheNewYearsWeekFirst) {
  EXPECT_EQ(Written(36526, u"ww"), u"1");
  EXPECT_EQ(Written(36527, u"ww"), u"2");
  EXPECT_EQ(Written(36891, u"ww"), u"54");
}

}  // namespace
}  // namespace mur
