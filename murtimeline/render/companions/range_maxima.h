#pragma once

#include <algorithm>
#include <cstddef>
#include <limits>
#include <utility>
#include <vector>

#include <murtimeline/automation/export.h>

namespace mur {

/// Finds, in a row of values, those above a bound without looking at the others: the maxima of blocks of
/// sixteen values, of blocks of sixteen blocks, and so on.
class MUR_API RangeMaxima {
 public:
  /// `ValueA(index)` is asked for each of `CountA` values once; they must not change afterwards.
  template <class Value>
  void Build(std::size_t CountA, Value&& ValueA) {
    mLevels.clear();
    if (CountA == 0) return;
    mLevels.push_back(Reduced(CountA, ValueA));
    while (mLevels.back().size() > 1) {
      std::vector<float> next =
          Reduced(mLevels.back().size(), [this](std::size_t index) { return mLevels.back()[index]; });
      mLevels.push_back(std::move(next));
    }
  }

  /// Calls `VisitA(index)` for every index in [FromA, EndA) whose value is above `BoundA`, in order. `ValueA`
  /// is the one that was built with.
  template <class Value, class Visit>
  void ForEachAbove(std::size_t FromA, std::size_t EndA, float BoundA, Value&& ValueA, Visit&& VisitA) const {
    for (std::size_t at = NextCandidate(FromA, EndA, BoundA); at < EndA; at = NextCandidate(at, EndA, BoundA))
      for (const std::size_t blockEnd = std::min(EndA, EndOfBlock(at, kFan)); at < blockEnd; ++at)
        if (ValueA(at) > BoundA) VisitA(at);
  }

 private:
  static constexpr std::size_t kFan = 16;

  static std::size_t EndOfBlock(std::size_t IndexA, std::size_t SizeA) {
    return (IndexA / SizeA + 1) * SizeA;
  }

  // The first index at or after `AtA` that lies in no block whose values are all at most `BoundA`.
  std::size_t NextCandidate(std::size_t AtA, std::size_t EndA, float BoundA) const {
    while (AtA < EndA) {
      std::size_t size = 1;
      for (const std::vector<float>& level : mLevels) {
        if (level[AtA / (size * kFan)] > BoundA) break;
        size *= kFan;
      }
      if (size == 1) return AtA;
      AtA = EndOfBlock(AtA, size);
    }
    return EndA;
  }

  template <class Value>
  static std::vector<float> Reduced(std::size_t CountA, Value&& ValueA) {
    std::vector<float> maxima((CountA + kFan - 1) / kFan, std::numeric_limits<float>::lowest());
    for (std::size_t index = 0; index < CountA; ++index)
      maxima[index / kFan] = std::max(maxima[index / kFan], ValueA(index));
    return maxima;
  }

  std::vector<std::vector<float>> mLevels;
};

}  // namespace mur
