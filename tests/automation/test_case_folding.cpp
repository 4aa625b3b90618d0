#include <gtest/gtest.h>

#include <murtimeline/automation/case_folding.h>

namespace mur {
namespace {

struct Pair {
  String left, right;
  bool equal;
};

TEST(CaseFolding, TellsWhichTextsAreEqualButForTheirCase) {
  const std::vector<Pair> pairs = {
      {u"", u"", true},
      {u"abc", u"ABC", true},
      {u"abc", u"abd", false},
      {u"abc", u"ab", false},
      {u"[", u"{", false},  // 32 apart like letters, but none
      {u"@", u"`", false},
      {u"\u00C4", u"\u00E4", true},
      {u"\u0416", u"\u0436", true},          // Cyrillic
      {u"\u03A3", u"\u03C3", true},          // Greek
      {u"\U00010400", u"\U00010428", true},  // beyond 16 bits
      {u"\u212A", u"k", true},               // the sign of the kelvin
      {u"\u01C5", u"\u01C6", true},          // a letter with a title case
      {u"\u03C2", u"\u03A3", true},          // a small letter at the end of a word
      {u"\u0131", u"I", false},              // dotless
      {u"stra\u00DFe", u"STRASSE", false},   // code point by code point
      {{u'a', u'\0', u'b'}, {u'A', u'\0', u'B'}, true},
      {{u'a', u'\0', u'b'}, {u'A', u'\0', u'C'}, false},
      {{char16_t{0xD800}}, {char16_t{0xD801}}, false},
      {{char16_t{0xD800}, u'A'}, {char16_t{0xD800}, u'a'}, true},
  };
  for (const auto& [left, right, equal] : pairs) {
    EXPECT_EQ(EqualIgnoringCase(left, right), equal) << ToUtf8(left) << " / " << ToUtf8(right);
    EXPECT_TRUE(!equal || HashIgnoringCase(left) == HashIgnoringCase(right)) << ToUtf8(left);
  }
}

TEST(CaseFolding, HashesKeysThatDifferInTheirLastCharacterSideBySide) {
  EXPECT_EQ(HashIgnoringCase(u"Key_000124"), HashIgnoringCase(u"Key_000123") + 1);
  EXPECT_EQ(HashIgnoringCase(u"KEY_00012b"), HashIgnoringCase(u"Key_00012A") + 1);
}

TEST(CaseFolding, SpreadsTheHashesOfGeneratedKeysThatDifferInMore) {
  std::array<int, 100> counts{};
  for (int ten = 0; ten < 10'000; ++ten)
    ++counts[HashIgnoringCase(FromAscii("Key_" + std::to_string(10 * ten))) / 8 % counts.size()];
  for (const int count : counts) EXPECT_NEAR(count, 100, 60);
}

TEST(CaseFolding, FindsATextInAnotherInAnyCase) {
  EXPECT_EQ(FindIgnoringCase(u"The Cursor", u"cURSOR"), 4u);
  EXPECT_EQ(FindIgnoringCase(u"aXbxc", u"x", 2), 3u);
  EXPECT_EQ(FindIgnoringCase(u"abc", u"d"), StringView::npos);
  EXPECT_EQ(FindIgnoringCase(u"abc", u"abcd"), StringView::npos);
  EXPECT_EQ(FindIgnoringCase(u"abc", u"", 3), 3u);
  EXPECT_EQ(FindIgnoringCase(u"abc", u"c", 4), StringView::npos);
  EXPECT_EQ(FindIgnoringCase(u"abc", u"c", StringView::npos), StringView::npos);
}

}  // namespace
}  // namespace mur
