#include <random>

#include <gtest/gtest.h>

#include <murtimeline/automation/live_slots.h>

namespace mur {
namespace {

void ExpectSame(const LiveSlots& SlotsA, const std::vector<bool>& LiveA) {
  std::size_t rank = 0;
  for (std::size_t slot = 0; slot < LiveA.size(); ++slot) {
    ASSERT_EQ(SlotsA.IsLive(slot), LiveA[slot]);
    if (!LiveA[slot]) continue;
    ASSERT_EQ(SlotsA.Rank(slot), rank);
    ASSERT_EQ(SlotsA.Select(rank), slot);
    ASSERT_EQ(SlotsA.NextLive(slot), slot);
    ++rank;
  }
  EXPECT_EQ(SlotsA.Count(), rank);
  EXPECT_EQ(SlotsA.NextLive(LiveA.size()), LiveA.size());
}

TEST(LiveSlots, AreNoneAtFirst) {
  const LiveSlots slots;
  EXPECT_EQ(slots.Count(), 0u);
  EXPECT_EQ(slots.NextLive(0), 0u);
}

TEST(LiveSlots, AgreeWithAPlainListThroughRandomChanges) {
  std::mt19937 random(1);
  for (const unsigned removals : {20u, 50u, 80u}) {
    LiveSlots slots;
    std::vector<bool> live;
    for (int step = 0; step < 2000; ++step) {
      if (slots.Count() == 0 || random() % 100 >= removals) {
        slots.Append();
        live.push_back(true);
      } else {
        const std::size_t slot = random() % 4 == 0 ? slots.Select(0) : slots.Select(random() % slots.Count());
        slots.Remove(slot);
        live[slot] = false;
      }
      if (step % 37 == 0) ExpectSame(slots, live);
    }
    ExpectSame(slots, live);
  }
}

TEST(LiveSlots, EmptyFromTheFrontAndFillAgain) {
  LiveSlots slots;
  slots.Reset(200);
  for (std::size_t i = 0; i < 200; ++i) slots.Remove(slots.Select(0));
  EXPECT_EQ(slots.Count(), 0u);
  slots.Append();
  EXPECT_EQ(slots.Select(0), 200u);
  EXPECT_EQ(slots.Rank(200), 0u);
}

}  // namespace
}  // namespace mur
