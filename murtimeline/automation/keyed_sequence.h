#pragma once

#include <cstddef>
#include <optional>
#include <utility>
#include <vector>

#include <murtimeline/automation/export.h>
#include <murtimeline/automation/key_index.h>
#include <murtimeline/automation/live_slots.h>
#include <murtimeline/automation/string.h>

namespace mur {

/// Entries in the order in which they were appended, each under a text key that is unique when letter case is
/// ignored. `KeyOf` gives an entry's key, which must not change while the entry is in here.
///
/// Look-up by key is O(1), by position O(log n), appending and removing O(log n) amortised, emptying from the
/// front linear over all. A slot number stays valid until an entry is removed, and while the sequence is
/// pinned.
template <class Entry, class KeyOf>
class MUR_API KeyedSequence {
 public:
  static constexpr std::size_t kNone = static_cast<std::size_t>(-1);

  std::size_t Count() const noexcept { return mLive.Count(); }

  /// False, with nothing changed, when the key is already there.
  bool Append(Entry EntryA) {
    const StringView key = KeyOf()(EntryA);
    const std::uint32_t hash = HashIgnoringCase(key);
    if (FindHashed(key, hash) != kNone) return false;
    mEntries.push_back(std::move(EntryA));
    mLive.Append();
    mIndex.Insert(hash, mEntries.size() - 1);
    return true;
  }

  /// The slot of the entry with that key, kNone when there is none.
  std::size_t SlotOfKey(StringView KeyA) const {
    // A look-up often follows that of the entry before: walks then cost no hashing.
    for (const std::size_t guess : {mFinger + 1, mFinger})
      if (guess < mEntries.size() && mLive.IsLive(guess) && IsSameText(KeyOf()(mEntries[guess]), KeyA))
        return mFinger = guess;
    const std::size_t slot = FindHashed(KeyA, HashIgnoringCase(KeyA));
    if (slot != kNone) mFinger = slot;
    return slot;
  }

  /// The slot of the entry at that 1-based position, kNone when there is none.
  std::size_t SlotOfPosition(std::size_t PositionA) const {
    return PositionA >= 1 && PositionA <= Count() ? mLive.Select(PositionA - 1) : kNone;
  }

  /// The 1-based position of a live slot.
  std::size_t PositionOfSlot(std::size_t SlotA) const { return mLive.Rank(SlotA) + 1; }

  /// The first live slot at or after `SlotA`, kNone when there is none.
  std::size_t NextSlot(std::size_t SlotA) const {
    const std::size_t slot = mLive.NextLive(SlotA);
    return slot < mEntries.size() ? slot : kNone;
  }

  const Entry& At(std::size_t SlotA) const { return mEntries[SlotA]; }

  /// Takes the entry of a live slot out.
  Entry Remove(std::size_t SlotA) {
    mIndex.Erase(HashIgnoringCase(KeyOf()(mEntries[SlotA])), SlotA);
    Entry entry = std::move(mEntries[SlotA]);
    mEntries[SlotA] = Entry();
    mLive.Remove(SlotA);
    Compact();
    return entry;
  }

  /// While pinned, slots keep their numbers.
  void Pin() const noexcept { ++mPins; }
  void Unpin() const noexcept { --mPins; }

 private:
  std::size_t FindHashed(StringView KeyA, std::uint32_t HashA) const {
    return mIndex.Find(HashA,
                       [&](std::size_t slot) { return EqualIgnoringCase(KeyOf()(mEntries[slot]), KeyA); });
  }

  // Drops the slots of removed entries once they are the larger half.
  void Compact() {
    if (mPins > 0 || mEntries.size() < 64 || mEntries.size() < 2 * Count()) return;
    std::size_t kept = 0;
    for (std::size_t slot = 0; slot < mEntries.size(); ++slot)
      if (mLive.IsLive(slot)) {
        if (slot != kept) mEntries[kept] = std::move(mEntries[slot]);
        ++kept;
      }
    mEntries.resize(kept);
    if (mEntries.capacity() > 4 * (kept + 16)) mEntries.shrink_to_fit();
    mLive.Reset(kept);
    mIndex.Clear();
    for (std::size_t slot = 0; slot < kept; ++slot)
      mIndex.Insert(HashIgnoringCase(KeyOf()(mEntries[slot])), slot);
    mFinger = 0;
  }

  std::vector<Entry> mEntries;
  LiveSlots mLive;
  KeyIndex mIndex;
  mutable std::size_t mFinger = 0;
  mutable int mPins = 0;
};

}  // namespace mur
