#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <vector>

#include <murtimeline/model/span_watcher.h>

namespace mur {

/// The spans of all members of a time line in their order, and which of them are highlighted: side by side,
/// so that a million of them are looked through within a few milliseconds.
class HighlightMemory {
 public:
  using Word = std::uint64_t;
  static constexpr std::size_t kWordBits = 64;

  void Reserve(std::size_t CountA);
  void Clear();
  void Add(const IMURTimelineObject& ObjectA, const TimeSpan& SpanA, bool HighlightedA);

  std::size_t Count() const { return mObjects.size(); }
  const IMURTimelineObject& ObjectAt(std::size_t IndexA) const { return *mObjects[IndexA]; }
  bool IsAt(std::size_t IndexA, const IMURTimelineObject& ObjectA) const {
    return IndexA < Count() && mObjects[IndexA] == &ObjectA;
  }
  void SetSpan(std::size_t IndexA, const TimeSpan& SpanA);
  bool Contains(std::size_t IndexA, Date TimeA) const {
    return mFirsts[IndexA] <= TimeA.Days() && TimeA.Days() <= mLasts[IndexA];
  }
  bool IsHighlighted(std::size_t IndexA) const {
    return (mHighlighted[IndexA / kWordBits] >> (IndexA % kWordBits) & 1) != 0;
  }
  void SetHighlighted(std::size_t IndexA, bool HighlightedA);

  /// Of the members from 64 times `WordA` on, a bit each: whose spans contain a time.
  Word ContainingWord(std::size_t WordA, Date TimeA) const;

  /// Makes `WordOfA(word)` what is highlighted and calls `VisitA(index)` for each member for which that is
  /// new, until one call is false. False then.
  template <class WordOf, class Visit>
  bool Highlight(WordOf&& WordOfA, Visit&& VisitA) {
    for (std::size_t word = 0; word < mHighlighted.size(); ++word) {
      Word flipped = WordOfA(word) ^ mHighlighted[word];
      mHighlighted[word] ^= flipped;
      for (; flipped != 0; flipped &= flipped - 1)
        if (!VisitA(word * kWordBits + static_cast<std::size_t>(std::countr_zero(flipped)))) return false;
    }
    return true;
  }

 private:
  std::vector<const IMURTimelineObject*> mObjects;
  std::vector<double> mFirsts, mLasts;  // days
  std::vector<Word> mHighlighted;       // a bit each
};

}  // namespace mur
