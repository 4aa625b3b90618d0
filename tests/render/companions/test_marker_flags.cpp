#include <cmath>
#include <limits>
#include <random>
#include <set>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <murtimeline/render/companions/marker_flags.h>
#include <murtimeline/render/companions/scale_range.h>
#include <murtimeline/render/companions/time_scale_marker.h>

namespace mur::test {
namespace {

constexpr double kStartDays = 36526;
constexpr ScaleBand kBand{0, 16};
constexpr ScaleBand kTwoLanes{0, 32};

// A scale of 600 pixels for 600 seconds; captions are ten pixels a letter.
class MarkerFlags : public ::testing::Test {
 protected:
  MarkerFlags() {
    settings.worldTimeT0 = Date::Unchecked(kStartDays);
    settings.duration = 600;
  }

  void Add(double SecondsA, const char* CaptionA = "") {
    markers.push_back(Make<TimeScaleMarker>(Date::Unchecked(kStartDays + SecondsA / kSecondsPerDay), u"",
                                            FromAscii(CaptionA), true));
    order.Put(*markers.back());
  }
  std::vector<MarkerFlag> Flags(const ScaleBand& BandA = kBand) {
    measured = 0;
    return LayOutFlags(order, settings, width, BandA,
                       {11, [this](const TimeScaleMarker& marker) {
                          ++measured;
                          return 10 * static_cast<float>(marker.CaptionView().size());
                        }});
  }
  /// "left+width" of each flag, "x" with how many share it, "^" before those in the upper lane.
  std::string Text(const std::vector<MarkerFlag>& FlagsA) {
    std::string text;
    for (const MarkerFlag& flag : FlagsA) {
      if (!text.empty()) text += ' ';
      if (flag.box.height < 16.5F && flag.box.top < 1 && band.height > 16) text += '^';
      text += std::to_string(std::lround(flag.box.left)) + '+' + std::to_string(std::lround(flag.box.width));
      if (flag.count > 1) text += 'x' + std::to_string(flag.count);
    }
    return text;
  }
  std::string Text() { return Text(Flags(band)); }

  MarkerOrder order;
  std::vector<Ref<TimeScaleMarker>> markers;
  ScaleSettings settings;
  ScaleBand band = kBand;
  float width = 600;
  int measured = 0;
};

TEST_F(MarkerFlags, StandAtTheirTimesWithTheirWholeCaptions) {
  Add(100, "one");
  Add(300, "three");
  Add(200);
  EXPECT_EQ(Text(), "100+38 200+5 300+58");
}

TEST_F(MarkerFlags, EndWhereTheNextOneBegins) {
  Add(100, "abcdefgh");
  Add(150, "x");
  EXPECT_EQ(Text(), "100+49 150+18");
}

TEST_F(MarkerFlags, LoseTheirCaptionsWhereThereIsTooLittleRoom) {
  Add(100, "abcdefgh");
  Add(115, "x");
  EXPECT_EQ(Text(), "100+5 115+18");
  EXPECT_FALSE(Flags()[0].hasCaption);
}

TEST_F(MarkerFlags, StandSideBySideAtEqualTimes) {
  for (int i = 0; i < 4; ++i) Add(100, "abc");
  Add(102);
  EXPECT_EQ(Text(), "100+5 106+5 112+5 118+5 124+5");
}

TEST_F(MarkerFlags, GiveWayToTheLeftAtTheEndOfTheScale) {
  for (int i = 0; i < 3; ++i) Add(599);
  EXPECT_EQ(Text(), "583+5 589+5 595+5");
}

TEST_F(MarkerFlags, CarryTheirCaptionToTheLeftAtTheEndOfTheScale) {
  Add(580, "abcd");
  EXPECT_EQ(Text(), "533+48");
  Add(540);
  EXPECT_EQ(Text(), "540+5 580+20");
  Add(590, "abcd");
  EXPECT_EQ(Text(), "540+5 580+5 590+5");
}

TEST_F(MarkerFlags, ShareAPlaceWhereThereAreTooManyForAFlagEach) {
  for (int i = 0; i < 300; ++i) Add(300);
  Add(100, "a");
  EXPECT_EQ(Text(), "100+18 300+5x300");
}

TEST_F(MarkerFlags, AreAllReachableWhereTheyShareAPlace) {
  for (int i = 0; i < 70; ++i) Add(300);
  const auto flags = Flags();
  ASSERT_EQ(flags.size(), 1U);
  std::set<std::size_t> met;
  for (float y = 0.5F; y < 16; ++y)
    for (float x = 300.5F; x < 305; ++x) met.insert(flags[0].MarkerAt({x, y}));
  EXPECT_EQ(met.size(), 70U);
  EXPECT_EQ(*met.rbegin(), 69U);
  EXPECT_EQ(flags[0].MarkerAt({0, -5}), 0U);
  EXPECT_EQ(flags[0].MarkerAt({900, 50}), 69U);
}

TEST_F(MarkerFlags, LieOneBelowTheOtherWhereAFewShareAPlace) {
  const MarkerFlag flag{10, 2, 0, {100, 0, 5, 16}, false};
  EXPECT_EQ(flag.MarkerAt({102, 7.5F}), 10U);
  EXPECT_EQ(flag.MarkerAt({102, 8.5F}), 11U);
}

TEST_F(MarkerFlags, DescendInStairsWhereThereIsRoomForSeveralLines) {
  band = kTwoLanes;
  Add(100, "abcdefgh");
  Add(150, "abcdefgh");
  Add(170, "abc");
  EXPECT_EQ(Text(), "^100+69 150+5 170+38");
  Add(300, "abc");
  Add(320, "abc");
  EXPECT_EQ(Text(), "^100+69 150+5 170+38 ^300+38 320+38");
}

TEST_F(MarkerFlags, ShareTheSamePlacesWhereverTheShownRangeBegins) {
  std::mt19937 random(3);
  for (int i = 0; i < 2000; ++i) Add(static_cast<double>(random() % 120000) / 100);
  const auto groups = [this](double fromSeconds) {
    settings.worldTimeT0 = Date::Unchecked(kStartDays + fromSeconds / kSecondsPerDay);
    std::set<std::pair<std::size_t, std::size_t>> all;
    const auto flags = Flags();
    for (const MarkerFlag& flag : flags)
      if (flag.x > 60 && flag.x < 540) all.insert({flag.first, flag.count});
    return all;
  };
  const auto one = groups(0);
  const auto other = groups(37.3);
  std::size_t shared = 0, inBoth = 0;
  for (const auto& group : one) {
    const double x = (order.TimeAt(group.first).Days() - kStartDays) * kSecondsPerDay;
    if (x < 110 || x > 530) continue;
    ++shared;
    inBoth += other.count(group);
  }
  EXPECT_GT(shared, 30U);
  EXPECT_EQ(inBoth, shared);
}

TEST_F(MarkerFlags, NeverOverlapNorLeaveTheScaleAndLoseNoMarker) {
  std::mt19937 random(11);
  const char* const captions[] = {"", "a", "abc", "abcdefgh", "abcdefghijklmnopqrstuvwxyz"};
  for (int round = 0; round < 300; ++round) {
    markers.clear();
    order = MarkerOrder();
    const int count = 1 << random() % 11;
    const unsigned spread = 1U << random() % 12;
    for (int i = 0; i < count; ++i) Add(static_cast<double>(random() % spread), captions[random() % 5]);
    width = static_cast<float>(1 + random() % 800);
    band = {3, static_cast<float>(10 + random() % 60)};
    std::size_t shown = 0;
    for (std::size_t i = 0; i < order.Count(); ++i)
      shown += ShownX(settings, order.TimeAt(i), width) ? 1U : 0U;
    const auto flags = Flags(band);
    std::size_t next = flags.empty() ? 0 : flags[0].first, met = 0;
    for (std::size_t i = 0; i < flags.size(); ++i) {
      const RectF& box = flags[i].box;
      EXPECT_EQ(flags[i].first, next) << round;
      next += flags[i].count;
      met += flags[i].count;
      if (width >= kBareFlagWidth) {
        EXPECT_GE(box.left, 0) << round;
        EXPECT_LE(box.Right(), width + 0.01F) << round;
      }
      EXPECT_GE(box.width, kBareFlagWidth - 0.01F) << round;
      EXPECT_GE(box.top, band.top);
      EXPECT_LE(box.Bottom(), band.Bottom() + 0.01F);
      for (std::size_t j = 0; j < i; ++j) {
        const RectF& other = flags[j].box;
        EXPECT_FALSE(box.left < other.Right() - 0.01F && other.left < box.Right() - 0.01F &&
                     box.top < other.Bottom() - 0.01F && other.top < box.Bottom() - 0.01F)
            << round << ": " << i << " and " << j;
        // Nor does a pole pass through a flag of a lower lane.
        EXPECT_FALSE(other.top > box.top && other.left < box.left && other.Right() > box.left)
            << round << ": " << i << " and " << j;
      }
    }
    EXPECT_EQ(met, shown) << round;
  }
}

TEST_F(MarkerFlags, CostNoMoreForMoreMarkersThanTheScaleHasRoomFor) {
  for (int i = 0; i < 50000; ++i) Add(i * 0.012, "abc");
  EXPECT_LE(Flags().size(), 101U);
  EXPECT_LE(measured, 101);
}

TEST_F(MarkerFlags, AreNoneWhereTheScaleShowsNoTimes) {
  Add(100);
  for (const double duration : {0.0, -1.0, std::nan(""), std::numeric_limits<double>::infinity()}) {
    settings.duration = duration;
    EXPECT_TRUE(Flags().empty());
  }
  settings.duration = 600;
  EXPECT_TRUE(Flags({0, 0}).empty());
  for (const double start : {std::nan(""), HUGE_VAL, -HUGE_VAL, 1e300}) {
    settings.worldTimeT0 = Date::Unchecked(start);
    EXPECT_TRUE(Flags().empty());
  }
  width = 0;
  EXPECT_TRUE(Flags().empty());
}

TEST_F(MarkerFlags, TakeTheShortestAndTheLongestOfRanges) {
  settings.worldTimeT0 = Date::Unchecked(0);
  markers.push_back(Make<TimeScaleMarker>(Date(), u"", u"", true));
  order.Put(*markers.back());
  settings.duration = std::numeric_limits<double>::denorm_min();
  EXPECT_EQ(Text(), "0+5");
  settings.duration = std::numeric_limits<double>::max();
  EXPECT_EQ(Text(), "0+5");
}

}  // namespace
}  // namespace mur::test
