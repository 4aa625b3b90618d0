#include <limits>

#include <gtest/gtest.h>

#include <murtimeline/automation/numeric_text.h>

namespace mur {
namespace {

TEST(ParseNumber, ReadsDigitsWithPointAndExponent) {
  EXPECT_EQ(ParseNumber(u"12"), 12);
  EXPECT_EQ(ParseNumber(u"2.75"), 2.75);
  EXPECT_EQ(ParseNumber(u".5"), 0.5);
  EXPECT_EQ(ParseNumber(u"5."), 5);
  EXPECT_EQ(ParseNumber(u"1e1"), 10);
  EXPECT_EQ(ParseNumber(u"25E-1"), 2.5);
  EXPECT_EQ(ParseNumber(u"1d2"), 100);
  EXPECT_EQ(ParseNumber(u"1D+2"), 100);
}

TEST(ParseNumber, TakesBlanksAroundAndBehindTheSign) {
  EXPECT_EQ(ParseNumber(u" 7 "), 7);
  EXPECT_EQ(ParseNumber(u"\t-\n7\r"), -7);
  EXPECT_EQ(ParseNumber(u"+ 7"), 7);
}

TEST(ParseNumber, TakesGroupingCommasBetweenDigits) {
  EXPECT_EQ(ParseNumber(u"1,234,567"), 1234567);
  EXPECT_EQ(ParseNumber(u"1,2"), 12);
  EXPECT_EQ(ParseNumber(u",1"), std::nullopt);
  EXPECT_EQ(ParseNumber(u"1.2,3"), std::nullopt);
}

TEST(ParseNumber, ReadsHexadecimalAndOctalNumbers) {
  EXPECT_EQ(ParseNumber(u"&H1F"), 31);
  EXPECT_EQ(ParseNumber(u"&hff"), 255);
  EXPECT_EQ(ParseNumber(u"&O17"), 15);
  EXPECT_EQ(ParseNumber(u"&o17"), 15);
  EXPECT_EQ(ParseNumber(u"&H1G"), std::nullopt);
  EXPECT_EQ(ParseNumber(u"&O8"), std::nullopt);
  EXPECT_EQ(ParseNumber(u"&X12"), std::nullopt);
  EXPECT_EQ(ParseNumber(u"&H"), std::nullopt);
  EXPECT_EQ(ParseNumber(u"&"), std::nullopt);
}

TEST(ParseNumber, RefusesWhatIsNoNumber) {
  for (const StringView text : {u"", u" ", u"-", u"+", u".", u"e1", u"1e", u"1e+", u"--1", u"+-1", u"-+1",
                                u"1 2", u"12x", u"x12", u"inf", u"nan", u"0x10", u"1e1.5", u"1.2.3"})
    EXPECT_EQ(ParseNumber(text), std::nullopt) << ToUtf8(text);
}

TEST(ParseNumber, RefusesOtherDigitsNullsAndWhatTheNumberRangeCannotHold) {
  EXPECT_EQ(ParseNumber(u"\u0661"), std::nullopt);
  EXPECT_EQ(ParseNumber(StringView(u"1\0", 2)), std::nullopt);
  EXPECT_EQ(ParseNumber(u"1e400"), std::nullopt);
}

TEST(ParseNumber, ReadsAMillionDigitsOrCommasWithoutDelay) {
  EXPECT_EQ(ParseNumber(u"0." + String(1000000, u'0')), 0);
  EXPECT_EQ(ParseNumber(u"1" + String(1000000, u',')), 1);
}

TEST(NumericValue, IsTheNumberOfEveryNumberBooleanAndEmpty) {
  EXPECT_EQ(NumericValue(5), 5);
  EXPECT_EQ(NumericValue(2.5), 2.5);
  EXPECT_EQ(NumericValue(2.5f), 2.5);
  EXPECT_EQ(NumericValue(std::uint8_t{255}), 255);
  EXPECT_EQ(NumericValue(std::numeric_limits<std::int64_t>::min()), -9223372036854775808.0);
  EXPECT_EQ(NumericValue(true), -1);
  EXPECT_EQ(NumericValue(false), 0);
  EXPECT_EQ(NumericValue(Variant()), 0);
}

TEST(NumericValue, IsTheNumberOfATextThatIsOne) {
  EXPECT_EQ(NumericValue(u" 12 "), 12);
  EXPECT_EQ(NumericValue(u"twelve"), std::nullopt);
}

TEST(NumericValue, IsNoneForDatesNullMissingAndObjects) {
  EXPECT_EQ(NumericValue(Date::Unchecked(5)), std::nullopt);
  EXPECT_EQ(NumericValue(Variant::Null()), std::nullopt);
  EXPECT_EQ(NumericValue(Variant::Missing()), std::nullopt);
  EXPECT_EQ(NumericValue(Variant(Ref<Object>())), std::nullopt);
}

}  // namespace
}  // namespace mur
