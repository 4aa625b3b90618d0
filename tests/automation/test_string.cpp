#include <gtest/gtest.h>

#include <murtimeline/automation/string.h>

namespace mur {
namespace {

TEST(Strings, GoThroughUtf8AndBack) {
  const String text = u"a\u00e9\u20ac\U0001F600";
  EXPECT_EQ(ToUtf8(text), "a\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80");
  EXPECT_EQ(FromUtf8(ToUtf8(text)), text);
}

TEST(Strings, KeepEmbeddedNulls) {
  const String text = {u'a', u'\0', u'b'};
  EXPECT_EQ(ToUtf8(text), std::string("a\0b", 3));
  EXPECT_EQ(FromUtf8(std::string_view("a\0b", 3)), text);
}

TEST(Strings, WriteALoneSurrogateAsTheReplacementCharacter) {
  for (const String& lone : {String{char16_t{0xD800}}, String{char16_t{0xDC00}}})
    EXPECT_EQ(ToUtf8(lone), "\xEF\xBF\xBD");
  EXPECT_EQ(ToUtf8(String{char16_t{0xD800}, u'a'}),
            "\xEF\xBF\xBD"
            "a");
  EXPECT_EQ(ToUtf8(String{char16_t{0xDC00}, char16_t{0xD800}}), "\xEF\xBF\xBD\xEF\xBF\xBD");
}

TEST(Strings, ReadEveryByteThatIsNotWellFormedAsOneReplacement) {
  EXPECT_EQ(FromUtf8("\xFF"), u"\uFFFD");
  EXPECT_EQ(FromUtf8("a\x80z"), u"a\uFFFDz");
  EXPECT_EQ(FromUtf8("\xC3"), u"\uFFFD");
  EXPECT_EQ(FromUtf8("\xC0\x80"), u"\uFFFD\uFFFD");            // overlong
  EXPECT_EQ(FromUtf8("\xE0\x80\x80"), u"\uFFFD\uFFFD\uFFFD");  // overlong
  EXPECT_EQ(FromUtf8("\xED\xA0\x80"), u"\uFFFD\uFFFD\uFFFD");  // a surrogate
  EXPECT_EQ(FromUtf8("\xF4\x90\x80\x80"), u"\uFFFD\uFFFD\uFFFD\uFFFD");
  EXPECT_EQ(FromUtf8("\xE2\x82"), u"\uFFFD\uFFFD");
}

TEST(Strings, TakeAsciiAsItIs) {
  EXPECT_EQ(FromAscii("Key_000000"), u"Key_000000");
  EXPECT_EQ(FromAscii(""), u"");
}

}  // namespace
}  // namespace mur
