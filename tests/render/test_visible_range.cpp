#include <cmath>
#include <limits>

#include <gmock/gmock.h>

#include <murtimeline/render/visible_range.h>

namespace mur {
namespace {

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinity = std::numeric_limits<double>::infinity();

VisibleRange Range(double DaysA, double SecondsA) {
  return {Date::Unchecked(DaysA), SecondsA};
}

// Zooms along `SharesA` by a few steps each, and back the same way.
VisibleRange ThereAndBack(const VisibleRange& FromA, const std::vector<double>& SharesA, int StepsA) {
  ZoomTrail trail;
  VisibleRange range = FromA;
  for (const double share : SharesA) range = trail.Zoom(range, StepsA, share);
  for (auto share = SharesA.rbegin(); share != SharesA.rend(); ++share)
    range = trail.Zoom(range, -StepsA, *share);
  return range;
}

TEST(VisibleRange, ATimeAndItsShareBelongTogether) {
  EXPECT_EQ(Range(10, 86400).TimeAt(0.25), Date::Unchecked(10.25));
  EXPECT_EQ(Range(10, 86400).ShareOf(Date::Unchecked(10.25)), 0.25);
}

TEST(VisibleRange, AnEmptyRangeHasNoShares) {
  EXPECT_EQ(Range(10, 0).ShareOf(Date::Unchecked(11)), 0);
  EXPECT_EQ(Range(kNaN, 1).TimeAt(0.5), Date());
}

TEST(VisibleRange, AbsurdRangesBecomeNavigable) {
  EXPECT_EQ(Range(45000, 60).Sane(), Range(45000, 60));
  EXPECT_EQ(Range(45000, 0).Sane(), Range(45000, 3600));
  EXPECT_EQ(Range(45000, -5).Sane(), Range(45000, 3600));
  EXPECT_EQ(Range(45000, kNaN).Sane(), Range(45000, 3600));
  EXPECT_EQ(Range(45000, kInfinity).Sane(), Range(45000, VisibleRange::kLongest));
  EXPECT_EQ(Range(45000, 1e-300).Sane(), Range(45000, VisibleRange::kShortest));
  EXPECT_EQ(Range(kNaN, 60).Sane(), Range(0, 60));
  EXPECT_EQ(Range(1e300, 60).Sane(), Range(Date::kHighestDays, 60));
  EXPECT_EQ(Range(-1e300, 60).Sane(), Range(Date::kLowestDays, 60));
}

TEST(ZoomTrail, ADoublingIsTwentyFourSteps) {
  EXPECT_EQ(ZoomTrail::StepsOf(2), 24);
  EXPECT_EQ(ZoomTrail::StepsOf(0.5), -24);
  EXPECT_EQ(ZoomTrail::StepsOf(1), 0);
  EXPECT_EQ(ZoomTrail::StepsOf(1.25), 8);
}

TEST(ZoomTrail, WhatIsNoFactorIsNoStep) {
  EXPECT_EQ(ZoomTrail::StepsOf(0), 0);
  EXPECT_EQ(ZoomTrail::StepsOf(-2), 0);
  EXPECT_EQ(ZoomTrail::StepsOf(kNaN), 0);
  EXPECT_EQ(ZoomTrail::StepsOf(kInfinity), 2400);
}

TEST(ZoomTrail, TheTimeAtTheShareStays) {
  ZoomTrail trail;
  EXPECT_EQ(trail.Zoom(Range(10, 86400), 24, 0.5), Range(10.25, 43200));
  EXPECT_EQ(trail.Zoom(Range(10.25, 43200), 24, 0), Range(10.25, 21600));
}

TEST(ZoomTrail, TheSameWayBackEndsAtTheSameRangeToTheLastBit) {
  const VisibleRange from = Range(45123.456789, 1234.5678);
  EXPECT_EQ(ThereAndBack(from, {0.3}, 8), from);
  EXPECT_EQ(ThereAndBack(from, {0.3, 0.7, 0.123, 0.7, 0.3}, 5), from);
  EXPECT_EQ(ThereAndBack(from, {0.9, 0.1}, -7), from);
  EXPECT_EQ(ThereAndBack(from, std::vector<double>(40, 0.37), 3), from);
}

TEST(ZoomTrail, TheDurationComesBackWhereverOneZoomsOut) {
  ZoomTrail trail;
  const VisibleRange closer = trail.Zoom(Range(45000.3, 777.7), 11, 0.2);
  EXPECT_EQ(trail.Zoom(closer, -11, 0.8).duration, 777.7);
}

TEST(ZoomTrail, PanningKeepsTheLadderOfDurations) {
  ZoomTrail trail;
  const VisibleRange panned = trail.Zoom(Range(45000, 777.7), 11, 0.2).MovedBy(13);
  EXPECT_EQ(trail.Zoom(panned, -11, 0.2).duration, 777.7);
}

TEST(ZoomTrail, ARangeOfSomebodyElsesBeginsAnew) {
  ZoomTrail trail;
  trail.Zoom(Range(45000, 100), 24, 0);
  EXPECT_EQ(trail.Zoom(Range(1, 86400), -24, 0), Range(1, 172800));
}

TEST(ZoomTrail, ZoomingEndsAtTheLimits) {
  ZoomTrail trail;
  VisibleRange range = Range(45000, 60);
  for (int turn = 0; turn < 100; ++turn) range = trail.Zoom(range, 100, 0.5);
  EXPECT_GE(range.duration, VisibleRange::kShortest);
  EXPECT_LT(range.duration, VisibleRange::kShortest * 1.03);
  for (int turn = 0; turn < 100; ++turn) range = trail.Zoom(range, -100, 0.5);
  EXPECT_LE(range.duration, VisibleRange::kLongest);
  EXPECT_GT(range.duration, VisibleRange::kLongest / 1.03);
  EXPECT_EQ(range.start, Date::Unchecked(Date::kLowestDays));
}

TEST(ZoomTrail, AbsurdRangesCanBeLeftByZooming) {
  for (const VisibleRange& absurd : {Range(kNaN, kNaN), Range(1e300, -1), Range(0, kInfinity)}) {
    ZoomTrail trail;
    EXPECT_EQ(trail.Zoom(absurd, 24, kNaN).duration, absurd.Sane().duration / 2);
  }
}

}  // namespace
}  // namespace mur
