#include <random>

#include <gtest/gtest.h>

#include <murtimeline/automation/error.h>
#include <murtimeline/automation/regional.h>

namespace mur {
namespace {

constexpr std::size_t kLong = 100'000;

class FormatBadInput : public testing::Test {
 protected:
  String Format(const Variant& value, StringView pattern) const { return mServices->Format(value, pattern); }

 private:
  std::unique_ptr<RegionalServices> mServices = MakeRegionalServices("en-US");
};

TEST_F(FormatBadInput, ShowsAHundredThousandDigits) {
  EXPECT_EQ(Format(7, String(kLong, u'0')), String(kLong - 1, u'0') + u"7");
  EXPECT_EQ(Format(7, String(kLong, u'#')), u"7");
  EXPECT_EQ(Format(7, u"0." + String(kLong, u'0')), u"7." + String(kLong, u'0'));
}

TEST_F(FormatBadInput, ScalesByAHundredThousandSteps) {
  EXPECT_EQ(Format(7, u"0" + String(kLong, u',')), u"0");
  EXPECT_EQ(Format(7, u"0" + String(kLong, u'%')), u"7" + String(2 * kLong, u'0') + String(kLong, u'%'));
  EXPECT_EQ(Format(7, u"0E+" + String(kLong, u'0')), u"7E+" + String(kLong, u'0'));
}

TEST_F(FormatBadInput, RepeatsDatePlaceholders) {
  const Date morning = Date::Unchecked(36526.25);
  EXPECT_EQ(Format(morning, String(kLong, u'h')).size(), kLong);
  EXPECT_EQ(Format(morning, String(kLong, u'y')).size(), kLong);
  EXPECT_EQ(Format(morning, String(kLong, u'q')), String(kLong, u'1'));
}

TEST_F(FormatBadInput, FillsAHundredThousandPlaceholdersOfText) {
  EXPECT_EQ(Format(u"ab", String(kLong, u'@')), String(kLong - 2, u' ') + u"ab");
  EXPECT_EQ(Format(u"ab", String(kLong, u'&')), u"ab");
  EXPECT_EQ(Format(String(kLong, u'x'), u"!@-@"), u"x-" + String(kLong - 1, u'x'));
}

TEST_F(FormatBadInput, TakesOnlySemicolonsAsEmptySections) {
  EXPECT_EQ(Format(5, String(kLong, u';')), u"");
  EXPECT_EQ(Format(Variant::Null(), String(kLong, u';')), u"");
}

TEST_F(FormatBadInput, LetsAnOpenQuoteRunToTheEnd) {
  EXPECT_EQ(Format(5, u"0\""), u"5");
  EXPECT_EQ(Format(5, u"\"0;@"), u"0;@");
  EXPECT_EQ(Format(5, String(kLong + 1, u'"') + u"0"), u"0");
  EXPECT_EQ(Format(u"ab", u"@@\"rest"), u"abrest");
}

TEST_F(FormatBadInput, TakesABackslashAtTheEndAsNothing) {
  EXPECT_EQ(Format(5, u"\\"), u"");
  EXPECT_EQ(Format(5, u"0\\"), u"5");
  EXPECT_EQ(Format(u"ab", u"@\\"), u"ab");
}

TEST_F(FormatBadInput, KeepsLoneSurrogatesAndNulls) {
  const String lone = {u'0', char16_t{0xD800}, u'\0', char16_t{0xDC00}};
  EXPECT_EQ(Format(5, lone), u"5" + lone.substr(1));
  const String text = {u'a', char16_t{0xD800}, u'\0', char16_t{0xDC00}, u'b', char16_t{0xD800}};
  EXPECT_EQ(Format(text, u""), text);
  EXPECT_EQ(Format(text, u"0"), text);
  EXPECT_EQ(Format(text, u">")[0], u'A');
  EXPECT_EQ(Format(text, u">").substr(1, 3), text.substr(1, 3));
}

// Whatever the pattern, a text comes back or an automation error.
TEST_F(FormatBadInput, SurvivesRandomPatterns) {
  const StringView units = u"0#.,%E+-e$;\"\\@&<>!cdwmqyhnst/:AMPMap general 5\u00E4";
  const Variant values[] = {0,        -1234.5678,      1e300, Date::Unchecked(-1.25), true, u"12",
                            u"hello", Variant::Null(), {}};
  std::mt19937 random(1);
  std::size_t written = 0;
  for (int i = 0; i < 20'000; ++i) {
    String pattern;
    for (std::size_t n = random() % 12; n > 0; --n) pattern += units[random() % units.size()];
    for (const Variant& value : values) {
      try {
        written += Format(value, pattern).size();
      } catch (const AutomationError& error) {
        EXPECT_EQ(error.Code(), ErrorCode::Overflow) << ToUtf8(pattern);
      }
    }
  }
  EXPECT_GT(written, 0u);
}

}  // namespace
}  // namespace mur
