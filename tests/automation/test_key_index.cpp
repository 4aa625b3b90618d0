#include <map>
#include <random>

#include <gtest/gtest.h>

#include <murtimeline/automation/error.h>
#include <murtimeline/automation/key_index.h>

namespace mur {
namespace {

std::size_t Find(const KeyIndex& IndexA, std::uint32_t HashA, std::size_t SlotA) {
  return IndexA.Find(HashA, [&](std::size_t slot) { return slot == SlotA; });
}

TEST(KeyIndex, FindsNothingAtFirst) {
  EXPECT_EQ(Find(KeyIndex(), 1, 1), KeyIndex::kNone);
}

TEST(KeyIndex, FindsWhatSharesAHash) {
  KeyIndex index;
  for (std::size_t slot = 0; slot < 20; ++slot) index.Insert(5, slot);
  index.Erase(5, 3);
  EXPECT_EQ(Find(index, 5, 3), KeyIndex::kNone);
  EXPECT_EQ(Find(index, 5, 19), 19u);
  EXPECT_EQ(Find(index, 6, 19), KeyIndex::kNone);
  index.Clear();
  EXPECT_EQ(Find(index, 5, 19), KeyIndex::kNone);
}

TEST(KeyIndex, RefusesASlotThatDoesNotFit) {
  KeyIndex index;
  EXPECT_THROW(index.Insert(1, 0xFFFFFFFF), AutomationError);
}

TEST(KeyIndex, AgreesWithAMapThroughRandomChangesWithCrowdedHashes) {
  std::mt19937 random(1);
  KeyIndex index;
  std::map<std::size_t, std::uint32_t> plain;
  for (std::size_t step = 0; step < 20'000; ++step) {
    if (plain.empty() || random() % 2 == 0) {
      const auto hash = static_cast<std::uint32_t>(random() % 16);
      index.Insert(hash, step);
      plain[step] = hash;
    } else {
      const auto victim = std::next(plain.begin(), static_cast<std::ptrdiff_t>(random() % plain.size()));
      index.Erase(victim->second, victim->first);
      plain.erase(victim);
    }
    if (step % 997 != 0) continue;
    for (const auto& [slot, hash] : plain) ASSERT_EQ(Find(index, hash, slot), slot);
  }
}

}  // namespace
}  // namespace mur
