#include <gtest/gtest.h>

#include "tests/viewer/outline.h"
#include "viewer/readers/cue_text.h"
#include "viewer/readers/lanes.h"
#include "viewer/readers/text_decoding.h"

namespace mur::viewer::test {
namespace {

constexpr FileKind kSubRip = FileKind::SubRip, kWebVtt = FileKind::WebVtt;

std::string SubRipCue(const std::string& TimesA) {
  return "1\n" + TimesA + "\ntext\n";
}

std::string TextOfFirstCue(FileKind KindA, std::string_view TextA) {
  return ToUtf8(Read(KindA, TextA).entries[1].tag);
}

String Decoded(std::string_view BytesA) {
  return DecodeText(BytesA).toStdU16String();
}

TEST(SubRipReader, PutsOverlappingCuesOnFurtherTracks) {
  EXPECT_EQ(Outline(Read(kSubRip, TestData("film.srt"))),
            "group Subtitles @1 +61\n"
            "group Subtitles (2) @3 +1.25\n"
            "  scalar Salt & glass / second line @1 +2.5\n"
            "  scalar 1 < 2 / after a blank line @3 +1.25\n"
            "  scalar no number @60 +2\n");
}

TEST(SubRipReader, ReadsTimesWithCommaDotOrNoDecimals) {
  for (const char* times : {"00:00:01,5 --> 00:00:02", "0:0:1.500-->0:0:2", "00:01,500 --> 00:02,000 X1:40"})
    EXPECT_EQ(Outline(Read(kSubRip, SubRipCue(times))),
              "group Subtitles @1.5 +0.5\n  scalar text @1.5 +0.5\n")
        << times;
}

TEST(SubRipReader, KeepsABlankLineInsideAText) {
  EXPECT_EQ(TextOfFirstCue(kSubRip, "1\n00:00:01,0 --> 00:00:02,0\none\n\ntwo\n"), "one / two");
}

TEST(SubRipReader, SaysWhereTimesCannotBeRead) {
  EXPECT_EQ(ReadFailure(kSubRip, SubRipCue("00:00:01,0 --> soon")),
            "line 2, column 1: the times of this cue cannot be read");
  EXPECT_EQ(ReadFailure(kSubRip, SubRipCue("00:00:05,0 --> 00:00:04,0")),
            "line 2, column 1: this cue ends before it starts");
  EXPECT_EQ(ReadFailure(kSubRip, "hello\n"), "line 1, column 1: expected a cue number or the times of a cue");
  EXPECT_EQ(ReadFailure(kSubRip, "\n\n"), "line 1, column 1: it holds no subtitles");
}

TEST(SubRipReader, RefusesALastCueThatIsCutOff) {
  const std::string cue = SubRipCue("00:00:01,0 --> 00:00:02,0") + "\n";
  EXPECT_EQ(ReadFailure(kSubRip, cue + "2"), "line 5, column 1: a cue number without times behind it");
  EXPECT_EQ(ReadFailure(kSubRip, cue + "2\n00:00:0"),
            "line 5, column 1: a cue number without times behind it");
  EXPECT_EQ(ReadFailure(kSubRip, cue + "2\n00:00:03,0 --> 00:"),
            "line 6, column 1: the times of this cue cannot be read");
  EXPECT_EQ(ReadFailure(kSubRip, cue + "2\n00:00:03,0 --> 00:00:04"),
            "line 6, column 1: the file ends behind the times of its last cue");
}

TEST(WebVttReader, ReadsCuesAndSkipsTheRest) {
  EXPECT_EQ(Outline(Read(kWebVtt, TestData("film.vtt"))),
            "group Subtitles @1 +3600.001\n"
            "  scalar Salt <everywhere> / and glass @1 +1.5\n"
            "  scalar ☺ @3600 +1.001\n");
}

TEST(WebVttReader, NeedsItsHeader) {
  EXPECT_EQ(ReadFailure(kWebVtt, "00:01.000 --> 00:02.000\na\n"),
            "line 1, column 1: expected \"WEBVTT\" at the beginning");
  EXPECT_EQ(ReadFailure(kWebVtt, "WEBVTTX\n"), "line 1, column 1: expected \"WEBVTT\" at the beginning");
  EXPECT_EQ(ReadFailure(kWebVtt, "WEBVTT"), "");
}

TEST(WebVttReader, RefusesDamagedCues) {
  EXPECT_EQ(ReadFailure(kWebVtt, "WEBVTT\n\nname"), "line 3, column 1: a cue without times");
  EXPECT_EQ(ReadFailure(kWebVtt, "WEBVTT\n\n00:01.000 --> 00:02.00"),
            "line 3, column 1: the times of this cue cannot be read");
  EXPECT_EQ(ReadFailure(kWebVtt, "WEBVTT\n\n00:01.000 --> 00:02.000"),
            "line 3, column 1: the file ends behind the times of its last cue");
  EXPECT_EQ(ReadFailure(kWebVtt, "WEBVTT\n\n00:03.000 --> 00:02.000\na"),
            "line 3, column 1: this cue ends before it starts");
}

TEST(DecodeText, FollowsTheByteOrderMark) {
  using namespace std::string_literals;
  EXPECT_EQ(Decoded("\xFF\xFE"
                    "a\0\xE9\0"s),
            u"a\u00e9");
  EXPECT_EQ(Decoded("\xFE\xFF\0a\0\xE9"s), u"a\u00e9");
  EXPECT_EQ(Decoded("\xEF\xBB\xBF"
                    "a\xC3\xA9"),
            u"a\u00e9");
}

TEST(DecodeText, TakesOtherBytesForWindows1252) {
  EXPECT_EQ(Decoded("caf\xE9 \x80 \x93x\x94"), u"caf\u00e9 \u20ac \u201cx\u201d");
}

TEST(DecodeText, RefusesATextThatEndsInsideACharacter) {
  EXPECT_THROW(DecodeText("d\xC3\xA9j\xC3"), ReadError);
  EXPECT_THROW(DecodeText(std::string_view("\xFF\xFE"
                                           "a\0b",
                                           5)),
               ReadError);
  EXPECT_EQ(Decoded("plain \xE9"), u"plain \u00e9");
}

TEST(PlainCueText, TakesTagsAwayAndDecodesEntities) {
  EXPECT_EQ(PlainCueText(QStringLiteral("<font color=\"#fff\">a</font> <b>b</b>")), u"a b");
  EXPECT_EQ(PlainCueText(QStringLiteral("{\\an8}a & b &unknown; &#233;&#xE9;&#0;")),
            u"a & b &unknown; \u00e9\u00e9&#0;");
  EXPECT_EQ(PlainCueText(QStringLiteral("  a\n\n b ")), u"a / b");
  EXPECT_EQ(PlainCueText(QStringLiteral("1 < 2 > 0")), u"1 < 2 > 0");
}

TEST(AssignLanes, UsesTheLowestLaneThatIsFree) {
  const std::vector<TimeSpan> spans = {{0, 4}, {1, 2}, {1.5, 3}, {2, 5}, {4, 6}};
  EXPECT_EQ(AssignLanes(spans), (std::vector<std::size_t>{0, 1, 2, 1, 0}));
}

TEST(AssignLanes, GoesByTimeAndNotByPosition) {
  const std::vector<TimeSpan> spans = {{5, 7}, {0, 6}};
  EXPECT_EQ(AssignLanes(spans), (std::vector<std::size_t>{1, 0}));
  EXPECT_TRUE(AssignLanes({}).empty());
}

}  // namespace
}  // namespace mur::viewer::test
