#include <gtest/gtest.h>

#include <murtimeline/render/companions/text_fit.h>
#include <murtimeline/render/port/recording_surface.h>

using namespace mur;

namespace {
const TextStyle kTen{10, false, {}};  // six pixels a unit

std::string Fitted(StringView TextA, float RoomA) {
  const RecordingSurface surface;
  return ToUtf8(Elided(surface, MeasureForRoom(surface, TextA, kTen, RoomA), kTen, RoomA).text);
}
}  // namespace

TEST(TextFit, LeavesATextThatFits) {
  EXPECT_EQ(Fitted(u"abc", 18), "abc");
  EXPECT_EQ(Fitted(u"", 18), "");
}

TEST(TextFit, EndsATextThatDoesNotFitWithAnEllipsis) {
  EXPECT_EQ(Fitted(u"abcdef", 30), "abcd\u2026");
  EXPECT_EQ(Fitted(u"abcdef", 12), "a\u2026");
}

TEST(TextFit, IsEmptyWhereNotOneCharacterFits) {
  EXPECT_EQ(Fitted(u"abcdef", 11), "");
  EXPECT_EQ(Fitted(u"abcdef", 0), "");
  EXPECT_EQ(Fitted(u"abcdef", -5), "");
}

TEST(TextFit, LeavesNoBlankBeforeTheEllipsis) {
  EXPECT_EQ(Fitted(u"ab cdef", 25), "ab\u2026");
}

TEST(TextFit, CutsNoCharacterInHalf) {
  EXPECT_EQ(Fitted(u"a\U0001F600bcdef", 18), "a\u2026");
  EXPECT_EQ(Fitted(u"a\U0001F600bcdef", 24), "a\U0001F600\u2026");
}

TEST(TextFit, ShowsControlCharactersAsBlanks) {
  EXPECT_EQ(Fitted(u"a\r\nb\tc", 100), "a  b c");
}

TEST(TextFit, MeasuresNoMoreThanCouldFit) {
  const RecordingSurface surface;
  const MeasuredText measured = MeasureForRoom(surface, String(1000000, u'x'), kTen, 100);
  EXPECT_TRUE(measured.isCut);
  EXPECT_LT(measured.text.size(), 100U);
  EXPECT_EQ(Fitted(String(1000000, u'x'), 30), "xxxx\u2026");
}
