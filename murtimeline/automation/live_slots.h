#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include <murtimeline/automation/export.h>

namespace mur {

/// Which slots of an append-only array are still in use, with rank and select in O(log n): one bit a slot and
/// a Fenwick tree (P. Fenwick, "A new data structure for cumulative frequency tables", 1994) over the words.
///
/// Slots that go from the very front stay counted in the tree and are only subtracted, so that emptying from
/// the front costs O(1) a slot.
class MUR_API LiveSlots {
 public:
  std::size_t Count() const noexcept { return mCounted - mGoneFromFront; }
  bool IsLive(std::size_t SlotA) const noexcept { return (mWords[SlotA / 64] >> (SlotA % 64) & 1) != 0; }

  /// Adds a live slot at the end.
  void Append();
  void Remove(std::size_t SlotA);
  /// The slot of the `RankA`-th live slot, from 0.
  std::size_t Select(std::size_t RankA) const;
  /// How many live slots lie before `SlotA`, which is live itself.
  std::size_t Rank(std::size_t SlotA) const;
  /// The first live slot at or after `SlotA`; the number of slots when there is none.
  std::size_t NextLive(std::size_t SlotA) const;
  /// All of `CountA` slots live.
  void Reset(std::size_t CountA);

 private:
  std::vector<std::uint64_t> mWords;         // live
  std::vector<std::uint64_t> mCountedWords;  // live, or gone from the front
  std::vector<std::uint32_t> mTree;          // Fenwick tree over the counts of mCountedWords
  std::size_t mSize = 0;
  std::size_t mCounted = 0;
  std::size_t mGoneFromFront = 0;
  std::size_t mFront = 0;  // every slot before it is gone
};

}  // namespace mur
