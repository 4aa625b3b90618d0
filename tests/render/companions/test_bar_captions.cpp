#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <murtimeline/render/companions/bar_captions.h>
#include <murtimeline/render/port/recording_surface.h>

#include "tests/support/blank_surface.h"

using namespace mur;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

using Captions = std::vector<std::pair<int, StringView>>;
using Lines = std::vector<std::string>;

/// The texts that a bar at 0,0 shows, each as "x,baseline text".
Lines Drawn(float WidthA, float HeightA, const Captions& CaptionsA) {
  ItemTexts texts;
  for (const auto& [site, text] : CaptionsA) texts.SetCaption(site, text);
  RecordingSurface surface;
  DrawCaptions(surface, {0, 0, WidthA, HeightA}, texts, {});
  Lines lines;
  for (const std::string& line : surface.LinesOf("text")) {
    const auto quote = line.find('"');
    lines.push_back(line.substr(5, quote - 5) + line.substr(quote + 1, line.rfind('"') - quote - 1));
  }
  return lines;
}

}  // namespace

// In the fixed font of 11 pixels a unit is 6.6 wide.

TEST(BarCaptions, StandAtNineSitesInReadingOrder) {
  EXPECT_THAT(Drawn(200, 60,
                    {{1, u"1"},
                     {2, u"2"},
                     {3, u"3"},
                     {4, u"4"},
                     {5, u"5"},
                     {6, u"6"},
                     {7, u"7"},
                     {8, u"8"},
                     {9, u"9"}}),
              ElementsAre("4,10 1", "97,10 2", "189,10 3", "4,33 4", "97,33 5", "189,33 6", "4,57 7",
                          "97,57 8", "189,57 9"));
}

TEST(BarCaptions, StandInTheMiddleOfALowBar) {
  EXPECT_THAT(Drawn(100, 16, {{5, u"name"}}), ElementsAre("37,11 name"));
}

TEST(BarCaptions, MoveToTheFreeSitesOfTheOneLineThatALowBarHas) {
  EXPECT_THAT(Drawn(200, 16, {{1, u"a"}, {5, u"b"}, {9, u"c"}}),
              ElementsAre("4,11 a", "97,11 b", "189,11 c"));
}

TEST(BarCaptions, GiveWayToTheMiddleLineWhereThereIsOneLine) {
  EXPECT_THAT(Drawn(200, 16, {{1, u"top"}, {4, u"middle"}, {7, u"bottom"}}), ElementsAre("4,11 middle"));
}

TEST(BarCaptions, MoveFromTheMiddleWhereThereAreTwoLines) {
  EXPECT_THAT(Drawn(200, 24, {{1, u"a"}, {5, u"b"}, {9, u"c"}}), ElementsAre("4,8 a", "97,21 b", "191,21 c"));
  EXPECT_THAT(Drawn(200, 24, {{1, u"a"}, {2, u"x"}, {5, u"b"}, {8, u"y"}}).size(), 3U);
  EXPECT_THAT(Drawn(200, 24, {{5, u"b"}, {9, u"c"}}), ElementsAre("97,8 b", "191,21 c"));
}

TEST(BarCaptions, AreElidedWhereTheyDoNotFit) {
  EXPECT_THAT(Drawn(50, 16, {{5, u"a long caption"}}), ElementsAre("5,11 a lon\u2026"));
}

TEST(BarCaptions, AreLeftOutWhereLessThanThreeCharactersWouldBeLeft) {
  EXPECT_THAT(Drawn(34, 16, {{5, u"abcdef"}}), IsEmpty());
  EXPECT_THAT(Drawn(35, 16, {{5, u"abcdef"}}), ElementsAre("4,11 abc\u2026"));
  EXPECT_THAT(Drawn(34, 16, {{5, u"abc"}}).size(), 1U) << "all of it fits";
}

TEST(BarCaptions, GiveTheirWidthToTheOthersWhereTheyWouldTellNothing) {
  EXPECT_THAT(Drawn(60, 16, {{4, u"left"}, {5, u"centre"}, {6, u"right"}}), ElementsAre("10,11 centre"));
}

TEST(BarCaptions, ShareTheWidthOfTheirLine) {
  const Lines lines = Drawn(120, 16, {{4, u"left caption"}, {5, u"mid"}, {6, u"right caption"}});
  EXPECT_THAT(lines, ElementsAre("4,11 left\u2026", "50,11 mid", "76,11 right\u2026"));
}

TEST(BarCaptions, LeaveOutWhatHasNoRoomTheRightOneFirst) {
  EXPECT_THAT(Drawn(42, 16, {{4, u"left"}, {6, u"right"}}), ElementsAre("4,11 left"));
  EXPECT_THAT(Drawn(76, 16, {{4, u"left"}, {5, u"centre"}, {6, u"right"}}).size(), 2U);
}

TEST(BarCaptions, AreNotDrawnOnSmallBars) {
  EXPECT_THAT(Drawn(20, 40, {{5, u"x"}}), IsEmpty());
  EXPECT_THAT(Drawn(100, 8, {{5, u"x"}}), IsEmpty());
  EXPECT_THAT(Drawn(100, 40, {}), IsEmpty());
}

TEST(BarCaptions, AreNotDrawnWhenAllAreEmptyAgain) {
  EXPECT_THAT(Drawn(100, 40, {{5, u"x"}, {5, u""}}), IsEmpty());
}

TEST(BarCaptions, NeverOverlapWhateverTheirLengths) {
  for (std::size_t left = 0; left < 30; left += 3)
    for (std::size_t centre = 0; centre < 30; centre += 3)
      for (std::size_t right = 0; right < 30; right += 3)
        for (const float width : {30.0F, 60.0F, 100.0F, 150.0F, 300.0F}) {
          ItemTexts texts;
          texts.SetCaption(4, String(left, u'l'));
          texts.SetCaption(5, String(centre, u'c'));
          texts.SetCaption(6, String(right, u'r'));
          struct Spans final : test::BlankSurface {
            std::vector<std::pair<float, float>> spans;
            void DrawTextLine(PointF AtA, StringView TextA, const TextStyle& StyleA) override {
              spans.emplace_back(AtA.x, AtA.x + MeasureText(TextA, StyleA).width);
            }
          } surface;
          DrawCaptions(surface, {0, 0, width, 16}, texts, {});
          float end = 4;
          for (const auto& [from, to] : surface.spans) {
            EXPECT_GE(from, end - 0.51F);
            EXPECT_LE(to, width - 4 + 0.51F);
            end = to;
          }
        }
}
