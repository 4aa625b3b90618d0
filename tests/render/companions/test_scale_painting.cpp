#include <algorithm>
#include <limits>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <murtimeline/render/companions/scroll_control.h>
#include <murtimeline/render/port/recording_surface.h>
#include <murtimeline/render/port/scripted_host.h>

#include "tests/support/blank_surface.h"
#include "tests/support/golden.h"

using namespace mur;
using ::testing::AllOf;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;
using ::testing::StartsWith;

namespace {

constexpr double kNine = 45292 + 9.0 / 24;  // 1 January 2024, 9:00
constexpr RectF kAll{0, 0, 600, 40};

class ScalePainting : public ::testing::Test {
 protected:
  ScalePainting() { Show(kNine, 3600); }

  void Show(double DaysA, double SecondsA) {
    scroll->SetWorldTimeT0(Date::Unchecked(DaysA));
    scroll->SetDuration(SecondsA);
  }
  RecordingSurface Painted() {
    RecordingSurface surface;
    scroll->Paint(surface, kAll);
    return surface;
  }
  /// The texts on the scale from left to right within each row.
  std::vector<std::string> Texts() {
    std::vector<std::string> texts;
    for (const std::string& line : Painted().LinesOf("text"))
      texts.push_back(line.substr(line.find('"') + 1, line.rfind('"') - line.find('"') - 1));
    return texts;
  }
  static Date At(double SecondsA) { return Date::Unchecked(kNine + SecondsA / 86400); }

  ScriptedChild host = [] {
    ScriptedChild child;
    child.Move(0, 0, 9000, 600);
    return child;
  }();
  Ref<MURTimelineScroll> scroll = Make<MURTimelineScroll>(host);
};

}  // namespace

TEST_F(ScalePainting, PaintsAScaleAsBefore) {
  scroll->SetTimeScaleFormatString(u"hh:nn");
  scroll->SetCursorTime(At(1200));
  scroll->MarkerAdd(At(600), u"a", u"Start", true);
  scroll->MarkerAdd(At(660), u"b", u"Too near", true);
  scroll->MarkerAdd(At(2400), u"c", u"", true);
  scroll->MarkerAdd(At(3540), u"d", u"Release", true);
  scroll->MarkerAdd(At(3000), u"e", u"hidden", false);
  EXPECT_EQ(Painted().Log(), test::Golden(test::GoldenPath(__FILE__, "scale.txt"), Painted().Log()));
}

TEST_F(ScalePainting, LeavesThousandthsOutWhereEveryTickStandsOnAWholeSecond) {
  scroll->SetTimeScaleFormatStyle(3);
  EXPECT_THAT(Texts(), AllOf(Contains("09:10:00"), Not(Contains(HasSubstr(".000")))));
  Show(kNine, 1);
  EXPECT_THAT(Texts(), Contains("09:00:00.400"));
}

TEST_F(ScalePainting, WritesTimesOfTheDayInTheStyleUnderTheirDate) {
  scroll->SetTimeScaleFormatStyle(2);
  EXPECT_THAT(Texts(), ElementsAre("09:00:00", "09:10:00", "09:20:00", "09:30:00", "09:40:00", "09:50:00",
                                   "10:00:00", "Monday, January 1, 2024"));
}

TEST_F(ScalePainting, WritesTimesByTheFormatString) {
  scroll->SetTimeScaleFormatString(u"h:nn AM/PM");
  EXPECT_THAT(Texts(), Contains("9:20 AM"));
}

TEST_F(ScalePainting, ShowsFramesBelowASecond) {
  Show(kNine, 0.6);
  EXPECT_THAT(Texts(), AllOf(Contains("09:00:00:05"), Contains("09:00:00:10"), Not(Contains("09:00:00:02"))));
}

TEST_F(ScalePainting, ShowsMillisecondsBelowASecond) {
  scroll->SetTimeScaleFormatStyle(3);
  Show(kNine, 0.02);
  EXPECT_THAT(Texts(), Contains("09:00:00.005"));
}

TEST_F(ScalePainting, ShowsNoLabelTwiceBelowASecondOfAFormatOfSeconds) {
  scroll->SetTimeScaleFormatString(u"hh:nn:ss");
  Show(kNine, 0.5);
  EXPECT_THAT(Texts(), ElementsAre("09:00:00", "Monday, January 1, 2024"));
  Show(kNine, 5);
  const auto texts = Texts();
  EXPECT_EQ(std::count(texts.begin(), texts.end(), "09:00:02"), 1);
}

TEST_F(ScalePainting, NamesTheNewDayAtMidnight) {
  scroll->SetTimeScaleFormatStyle(2);
  Show(45292.5, 86400);
  EXPECT_THAT(Texts(), AllOf(Contains("00:00:00"), Contains("Monday, January 1, 2024"),
                             Contains("Tuesday, January 2, 2024")));
}

TEST_F(ScalePainting, NamesDaysMonthsAndYearsWhereTicksAreFarApart) {
  Show(45292, 86400 * 5.0);
  EXPECT_THAT(Texts(), ElementsAre("Mon 1", "Tue 2", "Wed 3", "Thu 4", "Fri 5", "Sat 6", "January 2024"));
  Show(45292, 86400 * 366.0);
  EXPECT_THAT(Texts(), AllOf(Contains("Feb"), Contains("2024")));
  Show(45292, 86400 * 3660.0);
  EXPECT_THAT(Texts(), AllOf(Contains("2026"), Not(Contains("Feb"))));
}

TEST_F(ScalePainting, NamesDaysWhereTheFormatStringCannotTellThemApart) {
  scroll->SetTimeScaleFormatString(u"hh:nn:ss");
  Show(45292, 86400 * 5.0);
  EXPECT_THAT(Texts(), Contains("Tue 2"));
  scroll->SetTimeScaleFormatString(u"d.m.");
  EXPECT_THAT(Texts(), Contains("2.1."));
}

TEST_F(ScalePainting, CountsAboutDateZeroWithoutACalendar) {
  scroll->SetTimeScaleFormatStyle(2);
  Show(0, 600);
  EXPECT_THAT(Texts(), ElementsAre("00:00:00", "00:02:00", "00:04:00", "00:06:00", "00:08:00", "00:10:00"));
  Show(2, 600);
  EXPECT_THAT(Texts(), Contains("48:02:00"));
}

TEST_F(ScalePainting, ShowsRelativeTimesWithTheirSign) {
  scroll->SetTimeScaleFormatStyle(2);
  scroll->SetTZero(At(1800));
  scroll->SetTimesOffsetMode(1);
  EXPECT_THAT(Texts(), ElementsAre("-00:20:00", "-00:10:00", "00:00:00", "+00:10:00", "+00:20:00"));
}

TEST_F(ScalePainting, ShowsRelativeTimesByTheFormatString) {
  scroll->SetTimeScaleFormatString(u"nn:ss");
  scroll->SetTZero(At(1800));
  scroll->SetTimesOffsetMode(1);
  EXPECT_THAT(Texts(), AllOf(Contains("-10:00"), Contains("00:00"), Contains("+10:00")));
}

TEST_F(ScalePainting, ShowsWorldTimesInAnyOtherOffsetMode) {
  scroll->SetTimeScaleFormatStyle(2);
  scroll->SetTimesOffsetMode(7);
  EXPECT_THAT(Texts(), Contains("09:10:00"));
}

TEST_F(ScalePainting, HasNoTicksWhereThereIsNothingToCount) {
  constexpr double kInfinity = std::numeric_limits<double>::infinity();
  constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
  scroll->MarkerAdd(At(600), u"a", u"Start", true);
  scroll->SetCursorTime(At(600));
  for (const double duration : {0.0, -3600.0, kNaN, kInfinity, -kInfinity}) {
    Show(kNine, duration);
    EXPECT_EQ(Painted().Lines().size(), 4U) << duration;  // clip, background, edge
  }
  for (const double start : {kNaN, kInfinity, -kInfinity, 1e300, -1e300}) {
    Show(start, 3600);
    EXPECT_EQ(Painted().Lines().size(), 4U) << start;
  }
}

TEST_F(ScalePainting, CountsEnormousRangesInDays) {
  scroll->SetTimeScaleFormatStyle(5);
  Show(0, 1e15);
  EXPECT_THAT(Texts(), Contains("5000000000 00:00:00"));
  Show(1e9, 3600);
  EXPECT_THAT(Texts(), Contains(StartsWith("1000000000 00:")));
  Show(0, std::numeric_limits<double>::max());
  EXPECT_THAT(Texts(), IsEmpty());
}

TEST_F(ScalePainting, EndsWithTheDateRange) {
  Show(2958465.5, 86400);
  EXPECT_THAT(Texts(), Not(IsEmpty()));
  Show(-657434, 86400.0 * 365 * 300);
  EXPECT_THAT(Texts(), Contains("0200"));
}

TEST_F(ScalePainting, NeverLetsTextsOverlap) {
  for (const auto& marker : {15, 300, 350, 2000, 3500})
    scroll->MarkerAdd(At(marker), FromAscii(std::to_string(marker)), u"Marker", true);
  for (double duration = 0.001; duration < 1e12; duration *= 1.7) {
    Show(kNine + duration / 3e6, duration);
    struct Spans final : test::BlankSurface {
      std::vector<RectF> boxes;
      void DrawTextLine(PointF AtA, StringView TextA, const TextStyle& StyleA) override {
        const TextExtent extent = MeasureText(TextA, StyleA);
        boxes.push_back({AtA.x, AtA.y - extent.ascent, extent.width, extent.Height()});
      }
    } surface;
    scroll->Paint(surface, kAll);
    for (std::size_t one = 0; one < surface.boxes.size(); ++one)
      for (std::size_t other = one + 1; other < surface.boxes.size(); ++other) {
        const RectF& a = surface.boxes[one];
        const RectF& b = surface.boxes[other];
        EXPECT_FALSE(a.left < b.Right() && b.left < a.Right() && a.top < b.Bottom() && b.top < a.Bottom())
            << duration << ' ' << one << ' ' << other;
      }
  }
}

TEST_F(ScalePainting, TurnsOverForTheOtherTickEdge) {
  scroll->SetTickEdge(0);
  const auto lines = Painted().LinesOf("fill");
  EXPECT_THAT(lines, Contains("fill 0,0 600x1 #a6a6a6"));
  EXPECT_THAT(lines, Contains(StartsWith("fill 100,0 1x7")));
}

TEST_F(ScalePainting, DrawsTheCursorWithAHandleThatPointsAtTheCanvas) {
  scroll->SetCursorTime(At(1800));
  EXPECT_THAT(Painted().Lines(), Contains("fill 300,0 1x40 #d02020"));
  EXPECT_THAT(Painted().LinesOf("polygon"), ElementsAre("polygon 295.5,33 305.5,33 300.5,40 #d02020"));
  scroll->SetTickEdge(0);
  EXPECT_THAT(Painted().LinesOf("polygon"), ElementsAre("polygon 295.5,7 305.5,7 300.5,0 #d02020"));
  scroll->SetShowCursor(false);
  EXPECT_THAT(Painted().LinesOf("polygon"), IsEmpty());
}

TEST_F(ScalePainting, DrawsNoCursorOutOfSight) {
  scroll->SetCursorTime(At(-1));
  EXPECT_THAT(Painted().LinesOf("polygon"), IsEmpty());
  scroll->SetCursorTime(At(3601));
  EXPECT_THAT(Painted().LinesOf("polygon"), IsEmpty());
}

TEST_F(ScalePainting, HidesMarkersOnDemand) {
  scroll->MarkerAdd(At(600), u"a", u"Start", true);
  EXPECT_THAT(Texts(), Contains("Start"));
  scroll->SetShowMarkers(false);
  EXPECT_THAT(Texts(), Not(Contains("Start")));
}

TEST_F(ScalePainting, DrawsThePoleOfTheMarkerUnderThePointerInTheHighlightsColorAndWidth) {
  scroll->MarkerAdd(At(600), u"a", u"", true);
  scroll->SetTimeScaleMarkerHighlightColor(0x00FF00);
  scroll->SetTimeScaleMarkerHighlightWidth(3);
  EXPECT_THAT(Painted().Lines(), Not(Contains(HasSubstr("#00ff00"))));
  scroll->PointerMoved({{102, 5}, 0, 0});
  EXPECT_THAT(Painted().Lines(), Contains("fill 99,0 3x40 #00ff00"));
  scroll->SetTimeScaleMarkerHighlightWidth(std::numeric_limits<float>::quiet_NaN());
  EXPECT_THAT(Painted().Lines(), Contains("fill 100,0 1x40 #00ff00"));
  scroll->PointerLeft();
  EXPECT_THAT(Painted().Lines(), Not(Contains(HasSubstr("#00ff00"))));
}

TEST_F(ScalePainting, ShowsTheWholeCaptionUnderThePointerAboveAllOthers) {
  scroll->MarkerAdd(At(600), u"a", u"The first of two captions", true);
  scroll->MarkerAdd(At(840), u"b", u"The second", true);
  EXPECT_THAT(Texts(), AllOf(Contains("The…"), Contains("The second")));
  scroll->PointerMoved({{110, 5}, 0, 0});
  EXPECT_EQ(Texts().back(), "The first of two captions");
  scroll->PointerMoved({{142, 5}, 0, 0});  // below the enlarged flag
  EXPECT_EQ(Texts().back(), "The second");
}

TEST_F(ScalePainting, ShortensTheCaptionUnderThePointerToTheScaleOnly) {
  scroll->MarkerAdd(At(3300), u"a", String(200, u'x'), true);
  scroll->PointerMoved({{540, 5}, 0, 0});
  const std::string caption = Texts().back();
  EXPECT_THAT(caption, AllOf(StartsWith("xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx"), HasSubstr("…")));
  EXPECT_THAT(Painted().LinesOf("fill"), Contains(StartsWith("fill 0,1 600x14 #0a246a")));
}

TEST_F(ScalePainting, StandsMarkersOnTheirTimesByFeetAndCrossesNoLabel) {
  scroll->SetShowCursor(false);
  for (const int seconds : {600, 606, 612})
    scroll->MarkerAdd(At(seconds), FromAscii(std::to_string(seconds)), u"", true);
  EXPECT_THAT(Painted().LinesOf("polygon"), ElementsAre(StartsWith("polygon 97.5,36 103.5,36 100.5,40"),
                                                        StartsWith("polygon 98.5,36 104.5,36 101.5,40"),
                                                        StartsWith("polygon 99.5,36 105.5,36 102.5,40")));
  EXPECT_THAT(Painted().LinesOf("fill"),
              AllOf(Contains(StartsWith("fill 100,1 1x15")), Contains(StartsWith("fill 106,1 1x15")),
                    Contains(StartsWith("fill 112,1 1x15"))));
  scroll->SetTickEdge(0);
  EXPECT_THAT(Painted().LinesOf("polygon"), Contains(StartsWith("polygon 97.5,4 103.5,4 100.5,0")));
  EXPECT_THAT(Painted().LinesOf("fill"), Contains(StartsWith("fill 100,25 1x15")));
}

TEST_F(ScalePainting, DrawsNoFeetWhereMarkersShareAFlag) {
  scroll->SetShowCursor(false);
  for (int i = 0; i < 30; ++i) scroll->MarkerAdd(At(600), FromAscii(std::to_string(i)), u"", true);
  EXPECT_THAT(Painted().LinesOf("polygon"), IsEmpty());
  scroll->PointerMoved({{102, 8}, 0, 0});
  EXPECT_EQ(Painted().LinesOf("polygon").size(), 1U);
}

TEST_F(ScalePainting, DrawsNoMoreForThousandsOfMarkersThanFitSideBySide) {
  for (int i = 0; i < 3000; ++i)
    scroll->MarkerAdd(At(i * 1.2), FromAscii(std::to_string(i)), u"caption", true);
  EXPECT_LT(Painted().Lines().size(), 400U);
}

TEST_F(ScalePainting, KeepsPolesEquallyWideAtFractionalScaleFactors) {
  scroll->MarkerAdd(At(600), u"a", u"", true);
  scroll->MarkerAdd(At(1803), u"b", u"", true);
  RecordingSurface surface(1.5F);
  scroll->Paint(surface, kAll);
  EXPECT_THAT(surface.LinesOf("fill"), AllOf(Contains(StartsWith("fill 100,1 0.6666667x15")),
                                             Contains(StartsWith("fill 300.66666,1 0.6666667x15"))));
}

TEST_F(ScalePainting, FindsFlagsAsWideAsTheyWerePainted) {
  struct Wide final : test::BlankSurface {
    TextExtent MeasureText(StringView TextA, const TextStyle& StyleA) const override {
      TextExtent extent = BlankSurface::MeasureText(TextA, StyleA);
      extent.width *= 2;
      return extent;
    }
  };
  scroll->MarkerAdd(At(600), u"a", u"abcde", true);
  EXPECT_TRUE(scroll->MarkerAt({140, 5}));
  EXPECT_FALSE(scroll->MarkerAt({160, 5}));
  Wide surface;
  scroll->Paint(surface, kAll);
  EXPECT_TRUE(scroll->MarkerAt({160, 5}));
  scroll->SetTZero(At(0));  // laid out again, with the width as it was measured
  EXPECT_TRUE(scroll->MarkerAt({160, 5}));
  scroll->Marker(1)->SetCaption(u"abcdef");
  EXPECT_FALSE(scroll->MarkerAt({160, 5}));
}

TEST_F(ScalePainting, LeavesOutRowsThatHaveNoRoom) {
  scroll->SetTimeScaleFormatStyle(2);
  host.SetHeight(24 * 15);
  EXPECT_THAT(Texts(), Not(Contains(HasSubstr("January"))));
  EXPECT_THAT(Texts(), Contains("09:10:00"));
  host.SetHeight(10 * 15);
  EXPECT_THAT(Texts(), IsEmpty());
}

TEST_F(ScalePainting, TakesAnyFontSizeAndBorder) {
  scroll->SetBorderStyle(1);
  for (const std::int32_t size : {0, -1, std::numeric_limits<std::int32_t>::max()}) {
    scroll->SetLabelFontSize(size);
    EXPECT_THAT(Painted().LinesOf("frame"), ElementsAre("frame 0,0 600x40 #808080 width 1"));
  }
}
