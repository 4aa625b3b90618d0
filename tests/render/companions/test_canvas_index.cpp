#include <algorithm>
#include <random>
#include <vector>

#include <gtest/gtest.h>

#include <murtimeline/render/companions/canvas_index.h>

using namespace mur;

namespace {

/// A list of all items, written for clarity.
struct NaiveIndex {
  struct Item {
    ItemPlace place;
    bool onCanvas = false;
  };
  std::vector<Item> items;

  std::vector<CanvasIndex::Slot> Overlapping(const RectF& AreaA) const {
    std::vector<CanvasIndex::Slot> slots;
    for (CanvasIndex::Slot slot = 0; slot < items.size(); ++slot)
      if (items[slot].onCanvas && items[slot].place.Overlaps(AreaA)) slots.push_back(slot);
    return slots;
  }
};

class CanvasIndexAgainstNaive {
 public:
  explicit CanvasIndexAgainstNaive(unsigned SeedA) : mRandom(SeedA) {}

  void Add() {
    const auto slot = mIndex.Add();
    if (slot >= mNaive.items.size()) mNaive.items.resize(slot + 1);
    EXPECT_FALSE(mNaive.items[slot].onCanvas);
    mNaive.items[slot] = {{}, true};
    Move(slot);
  }
  void Remove(CanvasIndex::Slot SlotA) {
    if (!mNaive.items[SlotA].onCanvas) return;
    mNaive.items[SlotA].onCanvas = false;
    mIndex.TakeOff(SlotA);
    mIndex.Release(SlotA);
  }
  void Move(CanvasIndex::Slot SlotA) {
    if (!mNaive.items[SlotA].onCanvas) return;
    const float height = Below(2) == 0 ? 10.0F : 25.0F;
    const float width = Below(10) == 0 ? 500.0F : static_cast<float>(Below(20));
    Place(SlotA, {static_cast<float>(Below(1000)), static_cast<float>(Below(8)) * 12, width, height});
  }
  /// Moves along the axis what is there, as a new time range does.
  void MoveAll(float ScaleA, float OffsetA) {
    for (CanvasIndex::Slot slot = 0; slot < mNaive.items.size(); ++slot)
      if (mNaive.items[slot].onCanvas) {
        ItemPlace place = mNaive.items[slot].place;
        place.left = place.left * ScaleA + OffsetA;
        Place(slot, place);
      }
  }
  void Compare() {
    const RectF area{static_cast<float>(Below(1200)) - 100, static_cast<float>(Below(150)) - 20,
                     static_cast<float>(Below(300)), static_cast<float>(Below(40))};
    std::vector<CanvasIndex::Slot> found;
    mIndex.ForEachOverlapping(area, [&](CanvasIndex::Slot slot) { found.push_back(slot); });
    std::sort(found.begin(), found.end());
    ASSERT_EQ(found, mNaive.Overlapping(area));
    const PointF point{area.left, area.top};
    std::vector<CanvasIndex::Slot> hit;
    mIndex.ForEachAt(point, [&](CanvasIndex::Slot slot) { hit.push_back(slot); });
    std::sort(hit.begin(), hit.end());
    ASSERT_EQ(hit, mNaive.Overlapping({point.x, point.y, 0, 0}));
    ASSERT_TRUE(mIndex.IsConsistent());
  }

  unsigned Below(unsigned BoundA) { return static_cast<unsigned>(mRandom() % BoundA); }
  CanvasIndex::Slot AnySlot() { return Below(static_cast<unsigned>(mNaive.items.size())); }

 private:
  void Place(CanvasIndex::Slot SlotA, const ItemPlace& PlaceA) {
    mNaive.items[SlotA].place = PlaceA;
    mIndex.SetPlace(SlotA, PlaceA);
    EXPECT_EQ(mIndex.PlaceOf(SlotA), PlaceA);
  }

  std::mt19937 mRandom;
  CanvasIndex mIndex;
  NaiveIndex mNaive;
};

std::vector<CanvasIndex::Slot> Found(CanvasIndex& IndexA, const RectF& AreaA) {
  std::vector<CanvasIndex::Slot> slots;
  IndexA.ForEachOverlapping(AreaA, [&](CanvasIndex::Slot slot) { slots.push_back(slot); });
  return slots;
}

}  // namespace

TEST(CanvasIndex, FindsTheSameAsANaiveScanWhateverHappens) {
  for (const unsigned seed : {1U, 2U, 3U}) {
    CanvasIndexAgainstNaive both(seed);
    for (int count = 0; count < 300; ++count) both.Add();
    for (int step = 0; step < 4000; ++step) {
      const unsigned what = both.Below(100);
      if (what < 10) {
        both.Add();
      } else if (what < 20) {
        both.Remove(both.AnySlot());
      } else if (what < 21) {
        both.MoveAll(1.0F + 0.01F * static_cast<float>(both.Below(3)), -1);
      } else if (what < 22) {
        for (int count = 0; count < 200; ++count) both.Move(both.AnySlot());
      } else if (what < 23) {
        for (int count = 0; count < 100; ++count) both.Remove(both.AnySlot());
      } else {
        both.Move(both.AnySlot());
      }
      if (step % 3 == 0) both.Compare();
      if (::testing::Test::HasFatalFailure()) return;
    }
  }
}

TEST(CanvasIndex, FindsALongItemThatStartsFarToTheLeft) {
  CanvasIndex index;
  const auto longOne = index.Add();
  index.SetPlace(longOne, {0, 0, 1e6F, 10});
  for (int number = 0; number < 5000; ++number)
    index.SetPlace(index.Add(), {static_cast<float>(number) * 10, 0, 5, 10});
  EXPECT_EQ(Found(index, {30007, 5, 0, 0}), std::vector{longOne});
}

TEST(CanvasIndex, HitsTheSameWhateverReachesThere) {
  CanvasIndex index;
  NaiveIndex naive;
  std::mt19937 random(5);
  const auto below = [&](unsigned bound) { return static_cast<float>(random() % bound); };
  for (int number = 0; number < 3000; ++number) {
    const ItemPlace place{below(1000), below(3) * 12, random() % 100 == 0 ? below(800) : below(3), 10};
    naive.items.push_back({place, true});
    index.SetPlace(index.Add(), place);
  }
  for (int number = 0; number < 3000; ++number) {
    const PointF point{below(1100) - 20, below(50) - 5};
    std::vector<CanvasIndex::Slot> hit;
    index.ForEachAt(point, [&](CanvasIndex::Slot slot) { hit.push_back(slot); });
    std::sort(hit.begin(), hit.end());
    ASSERT_EQ(hit, naive.Overlapping({point.x, point.y, 0, 0}));
  }
}

TEST(CanvasIndex, ComesThroughARowFromLeftToRight) {
  CanvasIndex index;
  for (int number = 0; number < 100; ++number)
    index.SetPlace(index.Add(), {static_cast<float>(99 - number), 0, 0.5F, 10});
  const auto slots = Found(index, {0, 0, 1000, 5});
  ASSERT_EQ(slots.size(), 100U);
  EXPECT_TRUE(std::is_sorted(slots.rbegin(), slots.rend()));
}

TEST(CanvasIndex, UsesSlotsAnewWithoutEverBeingAsked) {
  CanvasIndex index;
  CanvasIndex::Slot highest = 0;
  for (int round = 0; round < 10000; ++round) {
    const auto slot = index.Add();
    highest = std::max(highest, slot);
    index.SetPlace(slot, {0, 0, 1, 1});
    index.TakeOff(slot);
    index.Release(slot);
  }
  EXPECT_LT(highest, 1000U);
  EXPECT_TRUE(index.IsConsistent());
}

TEST(CanvasIndex, FindsNothingForAnAreaThatIsNoNumber) {
  CanvasIndex index;
  index.SetPlace(index.Add(), {0, 0, 10, 10});
  const float nan = std::numeric_limits<float>::quiet_NaN();
  EXPECT_TRUE(Found(index, {nan, nan, nan, nan}).empty());
}

TEST(CanvasIndex, StoresThePlaceOfAnItemThatWasTakenOff) {
  CanvasIndex index;
  const auto slot = index.Add();
  index.TakeOff(slot);
  index.SetPlace(slot, {1, 2, 3, 4});
  EXPECT_EQ(index.PlaceOf(slot), (ItemPlace{1, 2, 3, 4}));
  EXPECT_TRUE(Found(index, {0, 0, 10, 10}).empty());
}
