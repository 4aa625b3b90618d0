#include <cmath>
#include <memory>

#include <gtest/gtest.h>
#include <windows.h>

#include <murtimeline/automation/error.h>
#include <murtimeline/automation/regional.h>

namespace mur {
namespace {

class PlatformTexts : public testing::Test {
 protected:
  String Format(double days, StringView name) const { return mServices->Format(Date::Unchecked(days), name); }
  ErrorCode ErrorOf(double days, StringView name) const {
    try {
      Format(days, name);
    } catch (const AutomationError& error) {
      return error.Code();
    }
    return ErrorCode{};
  }
  std::unique_ptr<RegionalServices> mServices = MakeRegionalServices("en-US");
};

TEST_F(PlatformTexts, WriteTheMidnightOfEveryDayAsALongTime) {
  for (const double day : {-657434.0, -1.0, 0.0, 1.0, 36526.0, 2958465.0})
    EXPECT_EQ(Format(day, u"Long Time"), u"12:00:00 AM") << day;
}

TEST_F(PlatformTexts, RoundToTheNearestSecondInEveryFormat) {
  const double almostMidnight = 36526 - 0.4 / 86400;
  EXPECT_EQ(Format(almostMidnight, u"Long Time"), u"12:00:00 AM");
  EXPECT_EQ(Format(almostMidnight, u"Long Date"), u"Saturday, January 1, 2000");
  EXPECT_EQ(Format(almostMidnight, u"Short Date"), u"1/1/2000");
  EXPECT_EQ(Format(almostMidnight, u"General Date"), u"1/1/2000");
  EXPECT_EQ(Format(36526 + 0.4 / 86400, u"General Date"), u"1/1/2000");
}

TEST_F(PlatformTexts, CountTheTimeForwardBeforeDayZero) {
  EXPECT_EQ(Format(-1.25, u"General Date"), u"12/29/1899 6:00:00 AM");
  EXPECT_EQ(Format(-1.25, u"Long Time"), u"6:00:00 AM");
  EXPECT_EQ(Format(-1.25, u"Long Date"), u"Friday, December 29, 1899");
}

TEST_F(PlatformTexts, KnowTheDateOfDayZero) {
  EXPECT_EQ(Format(0.5, u"Short Date"), u"12/30/1899");
  EXPECT_EQ(Format(0.5, u"Long Date"), u"Saturday, December 30, 1899");
  EXPECT_EQ(Format(0.5, u"General Date"), u"12:00:00 PM");
}

TEST_F(PlatformTexts, ReachBothEndsOfTheRange) {
  EXPECT_EQ(Format(-657434, u"Short Date"), u"1/1/0100");
  EXPECT_EQ(Format(-657434, u"Long Date"), u"Friday, January 1, 0100");
  EXPECT_EQ(Format(2958465.99999, u"General Date"), u"12/31/9999 11:59:59 PM");
}

TEST_F(PlatformTexts, RefuseWhatIsNoDateAsOverflow) {
  for (const StringView name : {u"General Date", u"Long Date", u"Short Date", u"Long Time"})
    for (const double days : {-657435.0, 2958466.0, std::nan(""), HUGE_VAL})
      EXPECT_EQ(ErrorOf(days, name), ErrorCode::Overflow) << ToUtf8(name) << ' ' << days;
}

TEST_F(PlatformTexts, LeaveTextsToTheEngine) {
  EXPECT_EQ(mServices->Format(u"36526", u"Long Date"), u"Saturday, January 1, 2000");
  EXPECT_EQ(mServices->Format(u"none", u"Long Date"), u"none");
  EXPECT_EQ(mServices->Format(Variant::Null(), u"Long Date"), u"");
}

TEST_F(PlatformTexts, InflectTheMonthWithinALongDateOnly) {
  const auto russian = MakeRegionalServices("ru-RU");
  const Date newYear = Date::Unchecked(36526);
  EXPECT_NE(russian->Format(newYear, u"Long Date").find(u"1 января 2000"), String::npos);
  EXPECT_EQ(russian->Format(newYear, u"mmmm").substr(1), u"нварь");
}

TEST(MakeRegionalServices, TakesThePlatformsDefaultsForTheUsersOwnRegion) {
  BSTR text = nullptr;
  ASSERT_GE(VarBstrFromDate(36526.75, LOCALE_USER_DEFAULT, 0, &text), 0);
  EXPECT_EQ(MakeRegionalServices("")->DateToText(Date::Unchecked(36526.75)),
            String(text, text + SysStringLen(text)));
  SysFreeString(text);
}

}  // namespace
}  // namespace mur
