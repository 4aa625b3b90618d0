#include <limits>
#include <string>
#include <thread>

#include <gtest/gtest.h>

#include <murtimeline/automation/error.h>
#include <murtimeline/automation/object.h>
#include <murtimeline/automation/regional.h>

namespace mur {
namespace {

const Date kMorning = Date::Unchecked(36526.25);

String LongDateIn(const std::string& locale) {
  return MakeRegionalServices(locale)->Format(kMorning, u"Long Date");
}

ErrorCode ErrorOf(const Variant& value, StringView pattern) {
  try {
    MakeRegionalServices("en-US")->Format(value, pattern);
  } catch (const AutomationError& error) {
    return error.Code();
  }
  return ErrorCode{};
}

TEST(RegionalScope, PutsARegionInForceUntilItEnds) {
  const RegionalScope outer("en-US");
  {
    const RegionalScope inner("de-DE");
    EXPECT_EQ(Regional().NumberToText(1.5), u"1,5");
  }
  EXPECT_EQ(Regional().NumberToText(1.5), u"1.5");
}

TEST(RegionalScope, NestsAndGivesBackEachOuterRegion) {
  const RegionalScope german("de-DE");
  const RegionalServices* outer = &Regional();
  {
    const RegionalScope american("en-US");
    const RegionalScope french("fr-FR");
    EXPECT_EQ(Regional().Format(kMorning, u"dddd"), u"samedi");
  }
  EXPECT_EQ(&Regional(), outer);
  EXPECT_EQ(Regional().Format(kMorning, u"dddd"), u"Samstag");
}

TEST(RegionalScope, IsInForceOnItsOwnThreadOnly) {
  const RegionalScope german("de-DE");
  const RegionalServices* here = &Regional();
  const RegionalServices* there = here;
  std::thread([&] { there = &Regional(); }).join();
  EXPECT_NE(there, here);
}

TEST(Regional, IsTheSameObjectEachTime) {
  const RegionalServices* first = nullptr;
  const RegionalServices* second = nullptr;
  std::thread([&] { first = &Regional(); }).join();
  std::thread([&] { second = &Regional(); }).join();
  EXPECT_EQ(first, second);
}

TEST(Regional, ServesSeveralThreadsAtOnce) {
  const auto services = MakeRegionalServices("en-US");
  int failures[2] = {0, 0};
  const auto work = [&](int& failed) {
    for (int i = 0; i < 2000; ++i) {
      const String digits = i % 10 == 0 ? u"0" : String(static_cast<std::size_t>(i % 10), u'0');
      const String text = services->Format(0, u"0." + digits);
      if (text != u"0." + digits) ++failed;
    }
  };
  std::thread other(work, std::ref(failures[0]));
  work(failures[1]);
  other.join();
  EXPECT_EQ(failures[0] + failures[1], 0);
}

TEST(MakeRegionalServices, TakesHyphensUnderscoresAndCharacterSets) {
  EXPECT_EQ(LongDateIn("de-DE"), u"Samstag, 1. Januar 2000");
  EXPECT_EQ(LongDateIn("de_DE"), u"Samstag, 1. Januar 2000");
  EXPECT_EQ(LongDateIn("de_DE.UTF-8"), u"Samstag, 1. Januar 2000");
}

TEST(MakeRegionalServices, CompletesALanguageByItsCountry) {
  EXPECT_EQ(MakeRegionalServices("de")->Format(1, u"Currency"), u"1,00 €");
}

TEST(MakeRegionalServices, FallsBackToAmericanTexts) {
  for (const char* name : {"C", "POSIX", "C.UTF-8", "en_US_POSIX", "xx-YY", "!", "not a locale at all", "-"})
    EXPECT_EQ(MakeRegionalServices(name)->Format(kMorning, u"General Date"), u"1/1/2000 6:00:00 AM") << name;
}

TEST(MakeRegionalServices, CountsInGregorianYearsAndLatinDigitsEverywhere) {
  EXPECT_EQ(MakeRegionalServices("th-TH")->Format(kMorning, u"yyyy"), u"2000");
  EXPECT_EQ(MakeRegionalServices("ar-EG")->Format(kMorning, u"Short Date"), u"1/1/2000");
  EXPECT_EQ(MakeRegionalServices("fa-IR")->Format(12, u"0"), u"12");
}

TEST(MakeRegionalServices, KeepsTheColonWhereTimesAreWrittenWithWords) {
  EXPECT_EQ(MakeRegionalServices("fr-CA")->Format(kMorning, u"hh:nn:ss"), u"06:00:00");
  EXPECT_EQ(MakeRegionalServices("da-DK")->Format(kMorning, u"hh:nn:ss"), u"06.00.00");
}

class Thing : public Object {};
class Carried : public ForeignValue {};

TEST(Format, RefusesWhatHasNoText) {
  EXPECT_EQ(ErrorOf(Variant(Make<Thing>()), u"0"), ErrorCode::TypeMismatch);
  EXPECT_EQ(ErrorOf(Variant(Make<Thing>()), u""), ErrorCode::TypeMismatch);
  EXPECT_EQ(ErrorOf(Variant(Make<Carried>()), u"@"), ErrorCode::TypeMismatch);
  EXPECT_EQ(ErrorOf(Variant::Missing(), u"hh"), ErrorCode::TypeMismatch);
}

TEST(Format, TakesEveryNumberKind) {
  const auto services = MakeRegionalServices("en-US");
  EXPECT_EQ(services->Format(std::int8_t{-128}, u"0.0"), u"-128.0");
  EXPECT_EQ(services->Format(std::uint8_t{255}, u"0.0"), u"255.0");
  EXPECT_EQ(services->Format(std::int16_t{-7}, u""), u"-7");
  EXPECT_EQ(services->Format(std::uint16_t{7}, u"00"), u"07");
  EXPECT_EQ(services->Format(std::int32_t{-2147483647}, u"0"), u"-2147483647");
  EXPECT_EQ(services->Format(std::uint32_t{4294967295u}, u"0"), u"4294967295");
  EXPECT_EQ(services->Format(std::uint64_t{18446744073709551615u}, u"#,##0"), u"18,446,744,073,709,551,615");
  EXPECT_EQ(services->Format(std::uint64_t{18446744073709551615u}, u""), u"18446744073709551615");
}

TEST(Format, WritesNumbersThatAreNotFiniteByNameInEveryNumberPattern) {
  const auto services = MakeRegionalServices("en-US");
  const float infinite = std::numeric_limits<float>::infinity();
  EXPECT_EQ(services->Format(infinite, u"0.000;(0.000)"), u"Infinity");
  EXPECT_EQ(services->Format(-infinite, u""), u"-Infinity");
  EXPECT_EQ(services->Format(Date::Unchecked(std::numeric_limits<double>::quiet_NaN()), u"0"), u"NaN");
}

TEST(Format, RefusesNumbersThatAreNotFiniteAsDates) {
  EXPECT_EQ(ErrorOf(std::numeric_limits<double>::quiet_NaN(), u"hh:nn"), ErrorCode::Overflow);
  EXPECT_EQ(ErrorOf(std::numeric_limits<double>::infinity(), u"c"), ErrorCode::Overflow);
}

TEST(Format, KnowsTheWholeRangeOfDoubles) {
  const auto services = MakeRegionalServices("en-US");
  EXPECT_EQ(services->Format(std::numeric_limits<double>::max(), u"0").size(), 309u);
  EXPECT_EQ(services->Format(std::numeric_limits<double>::denorm_min(), u"0.0E+0"), u"4.9E-324");
  EXPECT_EQ(services->Format(std::numeric_limits<double>::denorm_min(), u"0.00"), u"0.00");
}

}  // namespace
}  // namespace mur
