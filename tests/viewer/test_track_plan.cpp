#include <algorithm>

#include <gtest/gtest.h>

#include "viewer/writers/json_numbers.h"
#include "viewer/writers/track_plan.h"

namespace mur::viewer::test {
namespace {

constexpr double kRate = 10;

TrackChild Gap(double FramesA, double RateA = kRate) {
  return {TrackChild::Kind::Gap, "", FrameTime{FramesA, RateA}, RateA};
}
TrackChild Item(const char* NameA, double FramesA, double MovedFramesA = 0, double RateA = kRate) {
  return {TrackChild::Kind::Item, NameA, FrameTime{FramesA, RateA}, RateA, MovedFramesA / RateA};
}
TrackChild Cut(double MovedFramesA = 0) {
  return {TrackChild::Kind::Transition, "Dissolve", {}, kRate, MovedFramesA / kRate};
}

// "3 A gap:2 new:5": the children by name, gaps with their new length.
std::string Plan(const std::vector<TrackChild>& ChildrenA, bool KeepsLengthA = false) {
  std::string text;
  try {
    for (const TrackPlan::Step& step : PlanTrack(ChildrenA, KeepsLengthA, "T").steps) {
      if (!text.empty()) text += ' ';
      if (!step.child) {
        text += "new";
      } else {
        const TrackChild& child = ChildrenA[*step.child];
        text += child.kind == TrackChild::Kind::Gap ? "gap" : child.name;
      }
      if (step.frames) text += ':' + NumberLike(*step.frames, {});
    }
  } catch (const NotExpressible& error) {
    return error.what();
  }
  return text;
}

TEST(TrackPlan, IsEmptyWithoutAMove) {
  EXPECT_EQ(Plan({Gap(5), Item("A", 10), Item("B", 10)}), "");
  EXPECT_EQ(Plan({}), "");
  EXPECT_EQ(Plan({Gap(5)}, true), "");
}

TEST(TrackPlan, LetsTheGapBeforeGrowAndTheOneBehindShrink) {
  EXPECT_EQ(Plan({Gap(5), Item("A", 10, 3), Gap(4), Item("B", 10)}), "gap:8 A gap:1 B");
  EXPECT_EQ(Plan({Gap(5), Item("A", 10, -3), Gap(4), Item("B", 10)}), "gap:2 A gap:7 B");
}

TEST(TrackPlan, KeepsAGapThatShrinksToNothing) {
  EXPECT_EQ(Plan({Gap(5), Item("A", 10, -5), Item("B", 10)}), "gap:0 A new:5 B");
}

TEST(TrackPlan, MakesGapsWhereThereAreNone) {
  EXPECT_EQ(Plan({Item("A", 10), Item("B", 10, 7)}), "A new:7 B");
  EXPECT_EQ(Plan({Item("A", 10, 7)}), "new:7 A");
}

TEST(TrackPlan, TakesFromTheNearestOfSeveralGapsFirst) {
  EXPECT_EQ(Plan({Gap(5), Gap(2), Item("A", 10, -4)}), "gap:3 gap:0 A");
  EXPECT_EQ(Plan({Gap(5), Gap(2), Item("A", 10, 4)}), "gap gap:6 A");
}

TEST(TrackPlan, RoundsToFramesOfWhatIsMoved) {
  EXPECT_EQ(Plan({Gap(5), Item("A", 10, 2.6)}), "gap:8 A");
  EXPECT_EQ(Plan({Gap(5), Item("A", 10, 0.4)}), "");
}

TEST(TrackPlan, KeepsTheRateOfEachGap) {
  EXPECT_EQ(Plan({Gap(20, 5), Item("A", 10, 4)}), "gap:22 A") << "four tenths are two fifths";
  EXPECT_EQ(Plan({Gap(20, 5), Item("A", 10, 3)}), "gap:21.5 A");
}

TEST(TrackPlan, DoesNotDriftOverManyGaps) {
  std::vector<TrackChild> children;
  for (int i = 0; i < 1000; ++i) {
    children.push_back(Gap(1.0 / 3, 24000.0 / 1001));
    children.push_back(Item("A", 7, 0, 25));
  }
  children.back().move = 1.0 / 25;
  const TrackPlan plan = PlanTrack(children, false, "T");
  EXPECT_EQ(std::ranges::count_if(plan.steps, [](const auto& step) { return step.frames.has_value(); }), 1);
  EXPECT_NEAR(plan.steps[1998].frames.value_or(0), 1.0 / 3 + 24000.0 / 1001 / 25, 1e-9);
}

TEST(TrackPlan, RefusesAnOverlap) {
  EXPECT_EQ(Plan({Item("A", 10, 1), Item("B", 10)}), "\"B\" would overlap \"A\".");
  EXPECT_EQ(Plan({Item("A", 10), Gap(3), Item("B", 10, -4)}), "\"B\" would overlap \"A\".");
  EXPECT_EQ(Plan({Gap(3), Item("A", 10, -4)}), "\"A\" would begin before its track \"T\" does.");
}

TEST(TrackPlan, LetsItemsOfDifferentRatesTouch) {
  EXPECT_EQ(Plan({Item("A", 1, 0, 3), Gap(10, 100), Item("B", 10, -1)}), "A gap:0 B");
}

TEST(TrackPlan, TakesAnItemOutOfItsPlaceAndPutsItBeyondAnother) {
  EXPECT_EQ(Plan({Item("A", 10, 25), Item("B", 10), Gap(20), Item("C", 10)}), "new:10 B gap:5 A new:5 C");
  EXPECT_EQ(Plan({Gap(20), Item("A", 10), Gap(5), Item("B", 10, -30)}), "gap:5 B new:5 A gap:15");
}

TEST(TrackPlan, LetsTwoItemsChangePlaces) {
  EXPECT_EQ(Plan({Item("A", 10, 15), Item("B", 15, -10)}), "B A");
}

TEST(TrackPlan, MovesWhatTransitionsJoinAsOne) {
  EXPECT_EQ(Plan({Gap(5), Item("A", 10, 3), Cut(3), Item("B", 10, 3)}), "gap:8 A Dissolve B");
  EXPECT_EQ(Plan({Gap(5), Item("A", 10, 3), Cut(3), Item("B", 10)}),
            "\"B\" and \"A\" are joined by a transition and can only be moved together.");
}

TEST(TrackPlan, KeepsTransitionsAtTheirCut) {
  const std::string refusal =
      "The transition \"Dissolve\" cannot be moved away from the cut where it stands.";
  EXPECT_EQ(Plan({Item("A", 10), Cut(2), Item("B", 10)}), refusal);
  EXPECT_EQ(Plan({Gap(10), Cut(2), Gap(10)}), refusal);
  EXPECT_EQ(Plan({Gap(5), Cut(2), Item("B", 10, 2)}), "gap:7 Dissolve B") << "a fade-in goes with its item";
}

TEST(TrackPlan, KeepsTheLengthWhereItIsFixed) {
  EXPECT_EQ(Plan({Gap(5), Item("A", 10, -5)}, true), "gap:0 A new:5");
  EXPECT_EQ(Plan({Item("A", 10, 3), Gap(5)}, true), "new:3 A gap:2");
  EXPECT_EQ(Plan({Item("A", 10, 6), Gap(5)}, true),
            "\"A\" would reach beyond the end of \"T\", whose length is fixed.");
}

TEST(TrackPlan, LetsTheTrackEndWithItsLastItem) {
  EXPECT_EQ(Plan({Gap(5), Item("A", 10, -5)}), "gap:0 A");
  EXPECT_EQ(Plan({Item("A", 10, 6), Gap(5)}), "new:6 A gap:0");
  EXPECT_EQ(Plan({Item("A", 10, 3), Gap(5)}), "new:3 A gap:2") << "a gap at the end keeps the length";
}

TEST(TrackPlan, LeavesAGapAloneThatHasNoLengthToChange) {
  std::vector<TrackChild> children{Gap(0), Item("A", 10, 3)};
  children[0].isFixed = true;
  EXPECT_EQ(Plan(children), "gap new:3 A");
}

}  // namespace
}  // namespace mur::viewer::test
