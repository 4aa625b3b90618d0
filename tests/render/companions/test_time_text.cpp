#include <limits>
#include <string>

#include <gtest/gtest.h>

#include <murtimeline/render/companions/time_text.h>

using namespace mur;

namespace {
std::string Text(double SecondsA, std::int32_t StyleA, double RateA = 25) {
  return ToUtf8(Make<MURTimeText>()->FormatSeconds(SecondsA, StyleA, RateA));
}
}  // namespace

TEST(TimeText, WritesEachStyle) {
  EXPECT_EQ(Text(3725.5, 0), "3725.500");
  EXPECT_EQ(Text(125, 1), "02:05");
  EXPECT_EQ(Text(3725, 2), "01:02:05");
  EXPECT_EQ(Text(3725.25, 3), "01:02:05.250");
  EXPECT_EQ(Text(3725.5, 4), "01:02:05:12");
  EXPECT_EQ(Text(90061, 5), "1 01:01:01");
  EXPECT_EQ(Text(10.5, 6), "262");
}

TEST(TimeText, TreatsAnyOtherStyleAsHoursMinutesSeconds) {
  EXPECT_EQ(Text(3725, 7), "01:02:05");
  EXPECT_EQ(Text(3725, -1), "01:02:05");
  EXPECT_EQ(Text(3725, std::numeric_limits<std::int32_t>::min()), "01:02:05");
}

TEST(TimeText, StartsAtZero) {
  EXPECT_EQ(Text(0, 0), "0.000");
  EXPECT_EQ(Text(0, 1), "00:00");
  EXPECT_EQ(Text(0, 4), "00:00:00:00");
  EXPECT_EQ(Text(0, 5), "0 00:00:00");
  EXPECT_EQ(Text(0, 6), "0");
}

TEST(TimeText, LetsTheLargestPartGrow) {
  EXPECT_EQ(Text(6000, 1), "100:00");
  EXPECT_EQ(Text(360000, 2), "100:00:00");
}

TEST(TimeText, RoundsSecondsAndMillisecondsToTheNearest) {
  EXPECT_EQ(Text(59.5, 2), "00:01:00");
  EXPECT_EQ(Text(59.4, 2), "00:00:59");
  EXPECT_EQ(Text(59.9996, 3), "00:01:00.000");
  EXPECT_EQ(Text(0.0625 * 3 + 0.0005, 0), "0.188");
}

TEST(TimeText, RoundsFramesDown) {
  EXPECT_EQ(Text(0.0399, 4), "00:00:00:00");
  EXPECT_EQ(Text(0.04, 4), "00:00:00:01");
  EXPECT_EQ(Text(0.999, 4), "00:00:00:24");
  EXPECT_EQ(Text(0.999, 6), "24");
}

TEST(TimeText, CountsADateOnAWholeFrameAsThatFrame) {
  const double date = 36526 + 6.0 / 24 + 1.0 / 86400;  // a whole second in days has no exact double
  EXPECT_EQ(Text(date * 86400, 4), "876630:00:01:00");
}

TEST(TimeText, LeadsNegativeTimesWithAMinus) {
  EXPECT_EQ(Text(-3725.5, 0), "-3725.500");
  EXPECT_EQ(Text(-3725, 2), "-01:02:05");
  EXPECT_EQ(Text(-0.5, 4), "-00:00:00:12");
  EXPECT_EQ(Text(-90061, 5), "-1 01:01:01");
}

TEST(TimeText, ShowsNoMinusBeforeZeros) {
  EXPECT_EQ(Text(-0.0001, 0), "0.000");
  EXPECT_EQ(Text(-0.01, 4), "00:00:00:00");
}

TEST(TimeText, IsEmptyForWhatIsNotFinite) {
  EXPECT_EQ(Text(std::numeric_limits<double>::infinity(), 2), "");
  EXPECT_EQ(Text(std::numeric_limits<double>::quiet_NaN(), 4), "");
}

TEST(TimeText, WritesHugeTimes) {
  EXPECT_EQ(Text(1e300, 2).size(), 297U + 6U);  // 1e300 / 3600 has 297 digits
  EXPECT_EQ(Text(1e15, 4), "277777777777:46:40:00");
  EXPECT_EQ(Text(1.7e308, 6), "");  // more frames than a number can count
  EXPECT_EQ(Text(1.7e308, 0).substr(309), ".000");
}

TEST(TimeText, HasNoFramesWithoutAPositiveRate) {
  EXPECT_EQ(Text(1.5, 4, 0), "00:00:01:00");
  EXPECT_EQ(Text(1.5, 4, -25), "00:00:01:00");
  EXPECT_EQ(Text(1.5, 6, std::numeric_limits<double>::quiet_NaN()), "0");
}

TEST(TimeText, CountsFramesOfABrokenRate) {
  EXPECT_EQ(Text(0.9999, 4, 29.97), "00:00:00:29");
  EXPECT_EQ(Text(2, 6, 29.97), "59");
}
