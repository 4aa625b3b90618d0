#include <gtest/gtest.h>

#include <murtimeline/automation/case_folding.h>
#include <murtimeline/automation/format_letter_case.h>
#include <murtimeline/automation/format_number.h>
#include <murtimeline/automation/format_pattern.h>
#include <murtimeline/automation/format_pattern_cache.h>
#include <murtimeline/automation/format_picture.h>
#include <murtimeline/automation/format_value.h>

namespace mur {
namespace {

String Cased(String text, LetterCase letterCase) {
  ApplyLetterCase(text, letterCase);
  return text;
}

TEST(FormatPattern, LetsTheFirstPlaceholderDecide) {
  EXPECT_EQ(DecideKind(u"\"d\"0 d"), PatternKind::Number);
  EXPECT_EQ(DecideKind(u"\\0d 0"), PatternKind::Date);
  EXPECT_EQ(DecideKind(u"-@d"), PatternKind::Text);
  EXPECT_EQ(DecideKind(u"GENERAL"), PatternKind::Number);
  EXPECT_EQ(DecideKind(u"%.,"), PatternKind::Number);
}

TEST(FormatPattern, TakesCaseMarksAsTextOnlyWhenNothingElseDecides) {
  EXPECT_EQ(DecideKind(u">"), PatternKind::Text);
  EXPECT_EQ(DecideKind(u"<d"), PatternKind::Date);
  EXPECT_EQ(DecideKind(u"<0"), PatternKind::Number);
}

TEST(FormatPattern, SplitsAtSemicolonsOutsideLiteralsOnly) {
  EXPECT_EQ(SplitSections(u"a;\";\";\\;").size(), 3u);
  EXPECT_EQ(SplitSections(u"").size(), 1u);
  EXPECT_EQ(SplitSections(u"0;").back(), u"");
}

TEST(NumberPattern, LeavesDigitsUngroupedInARegionWithoutGroups) {
  Region region;
  region.primaryGroup = 0;
  EXPECT_EQ(WriteNumber(Decimal::FromDouble(1234567), ParseNumberPattern(u"#,##0"), region), u"1234567");
}

TEST(NumberPattern, GroupsByTheRegionsSizes) {
  Region region;
  region.secondaryGroup = 2;
  region.groupSeparator = u"_";
  EXPECT_EQ(WriteNumber(Decimal::FromDouble(123456789), ParseNumberPattern(u"#,##0"), region),
            u"12_34_56_789");
}

TEST(PatternCache, GivesThePreparedPatternAgain) {
  PatternCache cache(u"0.00");
  const auto first = cache.Get(u"hh:nn:ss");
  EXPECT_EQ(cache.Get(u"hh:nn:ss"), first);
  EXPECT_NE(cache.Get(u"HH:nn:ss"), first);
}

TEST(PatternCache, ForgetsTheOldestPatternButNobodyLosesIt) {
  PatternCache cache(u"0.00");
  const auto first = cache.Get(u"0");
  for (std::size_t i = 1; i < 100; ++i) cache.Get(String(i, u'#'));
  EXPECT_NE(cache.Get(u"0"), first);
  EXPECT_EQ(std::get<NumberPattern>(*first).sections.size(), 1u);
}

TEST(PatternCache, DoesNotKeepVeryLongPatterns) {
  PatternCache cache(u"0.00");
  const String pattern(1000, u'0');
  const auto first = cache.Get(pattern);
  EXPECT_NE(cache.Get(pattern), first);
}

TEST(NumberInText, ReadsTheRegionsSeparators) {
  Region german;
  german.decimalSeparator = u",";
  german.groupSeparator = u".";
  EXPECT_EQ(NumberInText(u"1.234,5", german), 1234.5);
  EXPECT_EQ(NumberInText(u"-1,5", german), -1.5);
  EXPECT_EQ(NumberInText(u"1.5", Region()), 1.5);
}

TEST(NumberInText, RefusesOtherSeparatorsAndTexts) {
  Region french;
  french.decimalSeparator = u",";
  french.groupSeparator = u"\u00A0";
  EXPECT_EQ(NumberInText(u"1.5", french), std::nullopt);
  french.groupSeparator = u"";
  EXPECT_EQ(NumberInText(u"1.5", french), std::nullopt);
  EXPECT_EQ(NumberInText(u"", Region()), std::nullopt);
  EXPECT_EQ(NumberInText(u"one", Region()), std::nullopt);
}

TEST(LetterCase, ChangesEveryLetterForOneLetter) {
  EXPECT_EQ(Cased(u"Straße", LetterCase::Upper), u"STRAßE");
  EXPECT_EQ(Cased(u"ÄÖ", LetterCase::Lower), u"äö");
  EXPECT_EQ(Cased(u"Ab", LetterCase::AsIs), u"Ab");
}

TEST(LetterCase, ChangesLettersOutsideTheBasicPlaneAndKeepsLoneSurrogates) {
  EXPECT_EQ(Cased(u"\U00010428", LetterCase::Upper), u"\U00010400");
  const String lone = {char16_t{0xD801}, u'x', char16_t{0xDC28}, char16_t{0xD801}};
  EXPECT_EQ(Cased(lone, LetterCase::Upper),
            (String{char16_t{0xD801}, u'X', char16_t{0xDC28}, char16_t{0xD801}}));
}

TEST(FoldWideCase, FoldsLettersBeyondAscii) {
  EXPECT_EQ(FoldWideCase(U'Ä'), U'ä');
  EXPECT_EQ(FoldWideCase(U'Σ'), U'σ');
  EXPECT_EQ(FoldWideCase(U'ς'), U'σ');
  EXPECT_EQ(FoldWideCase(U'\U00010400'), U'\U00010428');
  EXPECT_EQ(FoldWideCase(0xD800), char32_t{0xD800});
}

TEST(CldrPattern, BecomesAPatternOfTheEngine) {
  EXPECT_EQ(FromCldrPattern(u"EEEE, d. MMMM y"), u"dddd\\,\\ d\\.\\ mmmm\\ yyyy");
  EXPECT_EQ(FromCldrPattern(u"h:mm:ss\u202Fa"), u"h\\:nn\\:ss\\ AMPM");
  EXPECT_EQ(FromCldrPattern(u"M/dd/yy"), u"m\\/dd\\/yyyy");
  EXPECT_EQ(FromCldrPattern(u"ccc, LLL"), u"ddd\\,\\ mmm");
  EXPECT_EQ(FromCldrPattern(u"KK kk B b s"), u"hh\\ hh\\ AMPM\\ AMPM\\ s");
}

TEST(CldrPattern, KeepsQuotedWordsAndQuotes) {
  EXPECT_EQ(FromCldrPattern(u"d 'de' M"), u"d\\ \\d\\e\\ m");
  EXPECT_EQ(FromCldrPattern(u"d''M"), u"d\\'m");
  EXPECT_EQ(FromCldrPattern(u"'o''clock'"), u"\\o\\'\\c\\l\\o\\c\\k");
}

TEST(CldrPattern, LeavesUnknownFieldsAndTheirSpaceOut) {
  EXPECT_EQ(FromCldrPattern(u"d MMMM G y"), u"d\\ mmmm\\ yyyy");
  EXPECT_EQ(FromCldrPattern(u"HH:mm zzzz"), u"hh\\:nn\\ ");
}

TEST(WindowsPicture, BecomesAPatternOfTheEngine) {
  EXPECT_EQ(FromWindowsPicture(u"dddd, MMMM d, yyyy"), u"dddd\\,\\ mmmm\\ d\\,\\ yyyy");
  EXPECT_EQ(FromWindowsPicture(u"h:mm:ss tt"), u"h\\:nn\\:ss\\ AMPM");
  EXPECT_EQ(FromWindowsPicture(u"d. MMM 'kl' HH"), u"d\\.\\ mmm\\ \\k\\l\\ hh");
}

TEST(WindowsPicture, KeepsTheLengthOfYearsAndLeavesErasOut) {
  EXPECT_EQ(FromWindowsPicture(u"M/d/yy"), u"m\\/d\\/yy");
  EXPECT_EQ(FromWindowsPicture(u"y-yyy"), u"yy\\-yyyy");
  EXPECT_EQ(FromWindowsPicture(u"d/M/yyyy gg"), u"d\\/m\\/yyyy\\ ");
}

TEST(CldrPattern, ShowsItsFirstSeparator) {
  EXPECT_EQ(PictureSeparator(u"dd.MM.yy", u"/"), u".");
  EXPECT_EQ(PictureSeparator(u"yy. M. d.", u"/"), u".");
  EXPECT_EQ(PictureSeparator(u"d\u200F/M", u"-"), u"/");
  EXPECT_EQ(PictureSeparator(u"HH 'h' mm", u":"), u":");
  EXPECT_EQ(PictureSeparator(u"d M", u"/"), u"/");
  EXPECT_EQ(PictureSeparator(u"dd.", u"/"), u"/");
  EXPECT_EQ(PictureSeparator(u"--", u"/"), u"/");
}

}  // namespace
}  // namespace mur
