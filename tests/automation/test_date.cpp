#include <cmath>
#include <ctime>
#include <limits>

#include <gtest/gtest.h>

#include <murtimeline/automation/date.h>
#include <murtimeline/automation/error.h>

#include "tests/support/print.h"

namespace mur {
namespace {

TEST(Date, StartsAtTheEndOf1899) {
  EXPECT_EQ(Date().Days(), 0);
  EXPECT_EQ(test::DateOf(1899, 12, 30), Date());
  EXPECT_EQ(test::DateOf(2000, 1, 1).Days(), 36526);
}

TEST(Date, TakesDaysUpToTheEndsOfItsRange) {
  EXPECT_EQ(Date::FromDays(-657434).Days(), -657434);
  EXPECT_EQ(Date::FromDays(2958465.99999).Days(), 2958465.99999);
}

TEST(Date, RefusesDaysBeyondItsRangeAndWhatIsNoNumber) {
  const double infinity = std::numeric_limits<double>::infinity();
  for (const double days : {std::nextafter(-657434.0, -infinity), std::nextafter(2958465.99999, infinity),
                            infinity, -infinity, std::nan("")})
    EXPECT_THROW(Date::FromDays(days), AutomationError) << days;
}

TEST(Date, KeepsAnUncheckedValueAsItIs) {
  EXPECT_EQ(Date::Unchecked(1e300).Days(), 1e300);
  EXPECT_FALSE(Date::Unchecked(1e300).InRange());
  EXPECT_TRUE(Date::Unchecked(0).InRange());
}

TEST(Date, ComparesLikeANumber) {
  EXPECT_LT(Date::Unchecked(1), Date::Unchecked(2));
  EXPECT_FALSE(Date::Unchecked(std::nan("")) == Date::Unchecked(std::nan("")));
  EXPECT_EQ(Date::Unchecked(2).Seconds(), 172800);
}

TEST(Date, AddsSecondsByWayOfDays) {
  EXPECT_EQ(AddSeconds(Date::Unchecked(36526), 3600).Days(), 3600.0 / 86400 + 36526);
  EXPECT_EQ((AddSeconds(Date::Unchecked(36526), 3600).Days() - 36526) * 86400, 3599.9999997904524);
}

TEST(Date, ChecksTheSecondsAloneAndTheSumWhenItAdds) {
  EXPECT_THROW(AddSeconds(Date::Unchecked(-657434), 2958466.0 * 86400), AutomationError);
  EXPECT_THROW(AddSeconds(Date::Unchecked(2958465), 86400), AutomationError);
  EXPECT_THROW(AddSeconds(Date(), std::nan("")), AutomationError);
  EXPECT_THROW(AddSeconds(Date::Unchecked(std::nan("")), 0), AutomationError);
}

TEST(Date, NowIsTheLocalTimeInWholeSeconds) {
  const std::time_t before = std::time(nullptr);
  const Date now = Now();
  const double seconds = now.Seconds();
  EXPECT_NEAR(seconds, std::round(seconds), 1e-4);
  const std::tm local = *std::localtime(&before);
  const Date expected =
      test::DateOf(local.tm_year + 1900, static_cast<unsigned>(local.tm_mon + 1),
                   static_cast<unsigned>(local.tm_mday), local.tm_hour, local.tm_min, local.tm_sec);
  EXPECT_GE(now, expected);
  EXPECT_LT(now.Seconds() - expected.Seconds(), 60);
}

TEST(FrozenClock, HoldsTheTimeAndGivesItBackToTheOuterOne) {
  FrozenClock outer(Date::Unchecked(1));
  {
    const FrozenClock inner(Date::Unchecked(2));
    EXPECT_EQ(Now(), Date::Unchecked(2));
  }
  EXPECT_EQ(Now(), Date::Unchecked(1));
  outer.Set(Date::Unchecked(3));
  EXPECT_EQ(Now(), Date::Unchecked(3));
}

}  // namespace
}  // namespace mur
