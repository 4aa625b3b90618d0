#include <gtest/gtest.h>

#include <murtimeline/render/companions/tick_ladder.h>

using namespace mur;

namespace {

constexpr std::int64_t kDay = kMillisecondsPerDay;

std::int64_t TickAtOrBefore(const TickStep& StepA, std::int64_t TimeA) {
  return StepA.TimeOf(StepA.NumberAt(TimeA));
}

void ExpectAscending(std::span<const TickStep> LadderA) {
  for (std::size_t at = 1; at < LadderA.size(); ++at)
    EXPECT_LT(LadderA[at - 1].Seconds(), LadderA[at].Seconds());
}

}  // namespace

TEST(TickLadder, AscendsFromAMillisecond) {
  ExpectAscending(CalendarLadder());
  ExpectAscending(DurationLadder());
  EXPECT_EQ(CalendarLadder().front().milliseconds, 1);
  EXPECT_EQ(DurationLadder().front().milliseconds, 1);
}

TEST(TickLadder, ReachesAThousandYears) {
  EXPECT_EQ(CalendarLadder().back().months, 12000);
  EXPECT_GT(DurationLadder().back().Seconds(), 8e14);
}

TEST(TickStep, CountsDownwardsBeforeZero) {
  const TickStep step{1000};
  EXPECT_EQ(TickAtOrBefore(step, 1999), 1000);
  EXPECT_EQ(TickAtOrBefore(step, 0), 0);
  EXPECT_EQ(TickAtOrBefore(step, -1), -1000);
  EXPECT_EQ(TickAtOrBefore(step, -1000), -1000);
}

TEST(TickStep, StartsWeeksOnMondays) {
  const TickStep week{7 * kDay, 0, 2 * kDay};
  EXPECT_EQ(TickAtOrBefore(week, 36526 * kDay), 36521 * kDay);  // 1 January 2000 was a Saturday
  EXPECT_EQ(TickAtOrBefore(week, 0), -5 * kDay);
}

TEST(TickStep, StartsMonthsAndYearsOnTheirFirstDays) {
  const std::int64_t leapDay = 36585 * kDay + 5000;  // 29 February 2000
  EXPECT_EQ(TickAtOrBefore({0, 1}, leapDay), 36557 * kDay);
  EXPECT_EQ(TickAtOrBefore({0, 3}, leapDay), 36526 * kDay);
  EXPECT_EQ(TickAtOrBefore({0, 12}, leapDay), 36526 * kDay);
  EXPECT_EQ(TickAtOrBefore({0, 1200}, leapDay), 36526 * kDay);
  EXPECT_EQ(TickAtOrBefore({0, 12}, -1), -363 * kDay);  // 1 January 1899
}

TEST(TickStep, FollowsMonthsOfTheirOwnLength) {
  const TickStep month{0, 1};
  const std::int64_t february = month.NumberAt(36557 * kDay);
  EXPECT_EQ(month.TimeOf(february + 1) - month.TimeOf(february), 29 * kDay);
}

TEST(TickStep, DividesWhatHasAllItsTicksToo) {
  const TickStep week{7 * kDay, 0, 2 * kDay};
  EXPECT_TRUE((TickStep{1000}.Divides({5000})));
  EXPECT_FALSE((TickStep{2000}.Divides({5000})));
  EXPECT_TRUE((TickStep{kDay}.Divides(week)));
  EXPECT_FALSE((TickStep{7 * kDay}.Divides(week)));
  EXPECT_TRUE((TickStep{kDay}.Divides({0, 1})));
  EXPECT_FALSE((week.Divides({0, 1})));
  EXPECT_TRUE((TickStep{0, 3}.Divides({0, 12})));
  EXPECT_FALSE((TickStep{0, 1}.Divides({kDay})));
}
