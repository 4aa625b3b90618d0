#include <QJsonDocument>
#include <QJsonObject>

#include <gtest/gtest.h>

#include "tests/viewer/outline.h"
#include "viewer/readers/lenient_json.h"
#include "viewer/readers/read_error.h"
#include "viewer/writers/json_edits.h"
#include "viewer/writers/json_numbers.h"

namespace mur::viewer::test {
namespace {

TEST(JsonText, KnowsWhereValuesStand) {
  const std::string text = "\xEF\xBB\xBF { \"a\" : [1, -2.50e3 , NaN],\r\n\"b\":{\"c\":\"}\\\"]\"} } ";
  const JsonNode root = ScanJson(text);
  EXPECT_EQ(root.Find("a")->At(1)->TextIn(text), "-2.50e3");
  EXPECT_EQ(root.Find("a")->At(2)->TextIn(text), "NaN");
  EXPECT_EQ(root.Find({"b", "c"})->TextIn(text), "\"}\\\"]\"");
  EXPECT_FALSE(root.Find("a")->At(3));
  EXPECT_FALSE(root.Find({"a", "c"}));
}

TEST(JsonText, ResolvesEscapesInNames) {
  const std::string text = R"({"a\u0062\n":1})";
  EXPECT_TRUE(ScanJson(text).Find("ab\n"));
}

TEST(JsonText, TakesTheSameOfSeveralEqualNamesAsReadingDoes) {
  const std::string text = R"({"a":1,"b":2,"a":3})";
  EXPECT_EQ(ParseLenientJson(text, text).object()[u"a"].toInt(), 3);
  EXPECT_EQ(ScanJson(text).Find("a")->TextIn(text), "3");
}

TEST(JsonText, RefusesWhatIsNoJson) {
  for (const char* text : {"", "{", "[1", "{\"a\"}", "{\"a\":}", "[,]", "\"a", "{1:2}", "[1]]", "\"\\"})
    EXPECT_THROW(ScanJson(text), ReadError) << text;
}

TEST(JsonText, RefusesOrScansWhateverEndsWhereever) {
  const std::string text = TestData("edit.otio");
  for (std::size_t size = 0; size < text.rfind('}'); ++size)
    EXPECT_THROW(ScanJson(std::string_view(text).substr(0, size)), ReadError) << size;
  EXPECT_NO_THROW(ScanJson(text));
}

TEST(JsonEdits, LeaveEveryOtherByteAlone) {
  const std::string text = "\t{ \"a\" : 1.0 , \"b\" : [ 1 ,2,  3 ] }\n";
  const JsonNode root = ScanJson(text);
  JsonEdits edits;
  EXPECT_EQ(edits.Apply(text, root), text);
  edits.Replace(*root.Find("a"), "2.0");
  const JsonNode& list = *root.Find("b");
  edits.Replace(*list.At(2), "three");
  edits.Rearrange(list, {list.At(2), std::string("new"), list.At(0), list.At(1)});
  EXPECT_EQ(edits.Apply(text, root), "\t{ \"a\" : 2.0 , \"b\" : [ three ,new,  1,  2 ] }\n");
}

TEST(JsonEdits, SeparateASecondElementLikeTheFirst) {
  const std::string text = "[\n  1\n]";
  const JsonNode root = ScanJson(text);
  JsonEdits edits;
  edits.Rearrange(root, {std::string("0"), root.At(0)});
  EXPECT_EQ(edits.Apply(text, root), "[\n  0,\n  1\n]");
}

TEST(JsonNumbers, AreWrittenAsTheFileWritesThem) {
  EXPECT_EQ(NumberLike(48, "12"), "48");
  EXPECT_EQ(NumberLike(48, "12.0"), "48.0");
  EXPECT_EQ(NumberLike(48, "1e2"), "48.0");
  EXPECT_EQ(NumberLike(0.1, "12"), "0.1");
  EXPECT_EQ(NumberLike(-0.0, "12"), "0");
  EXPECT_EQ(NumberLike(23.976023976023978, "1"), "23.976023976023978");
  EXPECT_EQ(NumberLike(1e300, "1"), "1e+300");
}

TEST(JsonNumbers, AreReadWholeAndFinite) {
  EXPECT_EQ(ReadNumber("-2.5e1"), -25);
  for (const char* token : {"", "NaN", "Infinity", "1e999", "12x", "\"1\""}) EXPECT_FALSE(ReadNumber(token));
}

}  // namespace
}  // namespace mur::viewer::test
