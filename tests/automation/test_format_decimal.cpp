#include <limits>

#include <gtest/gtest.h>

#include <murtimeline/automation/format_decimal.h>

namespace mur {
namespace {

String Rounded(double value, std::ptrdiff_t fractionLength) {
  Decimal decimal = Decimal::FromDouble(value);
  decimal.Round(fractionLength);
  return ShortestText(decimal, Region());
}

TEST(Decimal, RoundsHalvesAwayFromZeroByTheDigitsShown) {
  EXPECT_EQ(Rounded(2.675, 2), u"2.68");
  EXPECT_EQ(Rounded(-2.675, 2), u"-2.68");
  EXPECT_EQ(Rounded(2.6749, 2), u"2.67");
}

TEST(Decimal, CarriesThroughNines) {
  EXPECT_EQ(Rounded(1.9996, 3), u"2");
  EXPECT_EQ(Rounded(9.99, 1), u"10");
  EXPECT_EQ(Rounded(0.5, 0), u"1");
}

TEST(Decimal, RoundsBeforeTheDecimalSeparatorToo) {
  EXPECT_EQ(Rounded(1250, -2), u"1300");
  EXPECT_EQ(Rounded(49, -2), u"0");
  EXPECT_EQ(Rounded(4, -5), u"0");
}

TEST(Decimal, LosesItsSignWhenItBecomesZero) {
  Decimal decimal = Decimal::FromDouble(-0.4);
  decimal.Round(0);
  EXPECT_TRUE(decimal.IsZero());
  EXPECT_FALSE(decimal.IsNegative());
  EXPECT_FALSE(Decimal::FromDouble(-0.0).IsNegative());
}

TEST(Decimal, GivesTheDigitAtAPowerOfTen) {
  const Decimal decimal = Decimal::FromDouble(120.5);
  EXPECT_EQ(decimal.DigitAt(3), u'0');
  EXPECT_EQ(decimal.DigitAt(2), u'1');
  EXPECT_EQ(decimal.DigitAt(0), u'0');
  EXPECT_EQ(decimal.DigitAt(-1), u'5');
  EXPECT_EQ(decimal.DigitAt(-2), u'0');
}

TEST(Decimal, KnowsWhereItsDigitsLie) {
  EXPECT_EQ(Decimal::FromDouble(120.5).Point(), 3);
  EXPECT_EQ(Decimal::FromDouble(120.5).FractionLength(), 1);
  EXPECT_EQ(Decimal::FromDouble(0.005).Point(), -2);
  EXPECT_EQ(Decimal::FromDouble(0.005).FractionLength(), 3);
  EXPECT_EQ(Decimal::FromDouble(1200).FractionLength(), -2);
}

TEST(Decimal, ShiftsByPowersOfTen) {
  Decimal decimal = Decimal::FromDouble(1.25);
  decimal.Shift(2);
  EXPECT_EQ(ShortestText(decimal, Region()), u"125");
  decimal.Shift(-4);
  EXPECT_EQ(ShortestText(decimal, Region()), u"0.0125");
  Decimal zero;
  zero.Shift(5);
  EXPECT_EQ(zero.Point(), 0);
}

TEST(Decimal, TakesIntegersExactly) {
  EXPECT_EQ(ShortestText(Decimal::FromInteger(std::numeric_limits<std::int64_t>::min()), Region()),
            u"-9223372036854775808");
  EXPECT_EQ(ShortestText(Decimal::FromInteger(std::numeric_limits<std::uint64_t>::max()), Region()),
            u"18446744073709551615");
  EXPECT_EQ(ShortestText(Decimal::FromInteger(std::int64_t{0}), Region()), u"0");
}

TEST(Decimal, TakesSinglesWithSevenDigits) {
  EXPECT_EQ(ShortestText(Decimal::FromSingle(0.1F), Region()), u"0.1");
  EXPECT_EQ(ShortestText(Decimal::FromSingle(-16777216.0F), Region()), u"-1.677722E+07");
}

TEST(ShortestText, UsesTheRegionsDecimalSeparator) {
  Region region;
  region.decimalSeparator = u"<>";
  EXPECT_EQ(ShortestText(Decimal::FromDouble(-0.5), region), u"-0<>5");
  EXPECT_EQ(ShortestText(Decimal::FromDouble(1.5e20), region), u"1<>5E+20");
}

}  // namespace
}  // namespace mur
