#include <algorithm>
#include <cmath>
#include <random>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <murtimeline/render/companions/marker_order.h>
#include <murtimeline/render/companions/time_scale_marker.h>

namespace mur::test {
namespace {

Ref<TimeScaleMarker> Marker(double DaysA, const char* KeyA = "", bool VisibleA = true) {
  return Make<TimeScaleMarker>(Date::Unchecked(DaysA), FromAscii(KeyA), u"", VisibleA);
}

std::string Keys(const MarkerOrder& OrderA) {
  std::string keys;
  for (std::size_t i = 0; i < OrderA.Count(); ++i) keys += ToUtf8(OrderA.At(i).Key());
  return keys;
}

TEST(MarkerOrder, PutsMarkersByTimeAndEqualTimesByTheirAddition) {
  MarkerOrder order;
  const auto a = Marker(3, "a"), b = Marker(1, "b"), c = Marker(3, "c"), d = Marker(2, "d");
  for (const auto& marker : {a, b, c, d}) order.Put(*marker);
  EXPECT_EQ(Keys(order), "bdac");
  EXPECT_EQ(order.IndexOf(*a), 2U);
  EXPECT_EQ(order.IndexOf(*c), 3U);
}

TEST(MarkerOrder, LeavesOutWhatCannotBeShown) {
  MarkerOrder order;
  const auto hidden = Marker(1, "h", false), far = Marker(1e9, "f"), none = Marker(std::nan(""), "n");
  const auto shown = Marker(1, "s");
  for (const auto& marker : {hidden, far, none, shown}) order.Put(*marker);
  EXPECT_EQ(Keys(order), "s");
  shown->SetVisible(false);
  order.Put(*shown);
  order.Take(*hidden);
  EXPECT_EQ(Keys(order), "");
}

TEST(MarkerOrder, KeepsThePlaceAmongEqualTimesOfAMarkerThatComesBack) {
  MarkerOrder order;
  const auto a = Marker(1, "a"), b = Marker(1, "b");
  order.Put(*a);
  order.Put(*b);
  EXPECT_EQ(Keys(order), "ab");
  a->SetWorldTime(Date::Unchecked(2));
  order.Put(*a);
  EXPECT_EQ(Keys(order), "ba");
  a->SetWorldTime(Date::Unchecked(1));
  order.Put(*a);
  EXPECT_EQ(Keys(order), "ab");
}

TEST(MarkerOrder, IsThatOfASortedListAfterAnyChanges) {
  std::mt19937 random(7);
  MarkerOrder order;
  std::vector<Ref<TimeScaleMarker>> all;
  for (int i = 0; i < 60; ++i) all.push_back(Marker(0, std::string(1, static_cast<char>('A' + i)).c_str()));
  std::vector<Ref<TimeScaleMarker>> firstPut;
  std::vector<bool> isIn(all.size());
  for (int step = 0; step < 5000; ++step) {
    const std::size_t which = random() % all.size();
    TimeScaleMarker& marker = *all[which];
    if (random() % 3 == 0) {
      order.Take(marker);
      isIn[which] = false;
    } else {
      marker.SetWorldTime(Date::Unchecked(static_cast<double>(random() % 10)));
      order.Put(marker);
      isIn[which] = true;
      if (std::find(firstPut.begin(), firstPut.end(), all[which]) == firstPut.end())
        firstPut.push_back(all[which]);
    }
    if (random() % 4 != 0) continue;
    std::vector<Ref<TimeScaleMarker>> expected;
    for (const auto& each : firstPut)
      if (isIn[static_cast<std::size_t>(std::find(all.begin(), all.end(), each) - all.begin())])
        expected.push_back(each);
    std::stable_sort(expected.begin(), expected.end(), [](const auto& left, const auto& right) {
      return left->WorldTime() < right->WorldTime();
    });
    std::string keys;
    for (const auto& each : expected) keys += ToUtf8(each->Key());
    ASSERT_EQ(Keys(order), keys) << step;
  }
}

TEST(MarkerOrder, CanBeClearedAndFilledAgain) {
  MarkerOrder order;
  const auto a = Marker(2, "a"), b = Marker(1, "b");
  order.Put(*a);
  EXPECT_EQ(Keys(order), "a");
  order.Put(*b);
  order.Clear();
  EXPECT_EQ(Keys(order), "");
  order.Take(*a);
  order.Put(*a);
  order.Put(*b);
  EXPECT_EQ(Keys(order), "ba");
}

TEST(MarkerOrder, FindsTheFirstAtOrAfterATime) {
  MarkerOrder order;
  std::vector<Ref<TimeScaleMarker>> all;
  for (const double days : {1.0, 2.0, 2.0, 5.0}) order.Put(*all.emplace_back(Marker(days)));
  const auto before = [](double days) { return [days](Date time) { return time.Days() < days; }; };
  EXPECT_EQ(order.FirstNot(before(2)), 1U);
  EXPECT_EQ(order.FirstNot(before(0)), 0U);
  EXPECT_EQ(order.FirstNot(before(9)), 4U);
  EXPECT_EQ(order.FirstNot(before(2), 2), 2U);
}

}  // namespace
}  // namespace mur::test
