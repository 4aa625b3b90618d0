#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include <murtimeline/automation/case_folding.h>
#include <murtimeline/automation/export.h>

namespace mur {

/// A hash table from key hashes to slot numbers, with linear probing and backward-shift deletion. It holds
/// the hashes beside the slots, so that growing never touches a key.
class MUR_API KeyIndex {
 public:
  static constexpr std::size_t kNone = static_cast<std::size_t>(-1);

  /// The slot for which `IsMatchA(slot)` holds among those with this hash.
  template <class IsMatch>
  std::size_t Find(std::uint32_t HashA, IsMatch&& IsMatchA) const {
    if (mCells.empty()) return kNone;
    for (std::size_t at = Home(HashA); mCells[at].slot != kFree; at = Next(at))
      if (mCells[at].hash == HashA && IsMatchA(std::size_t{mCells[at].slot})) return mCells[at].slot;
    return kNone;
  }

  void Insert(std::uint32_t HashA, std::size_t SlotA);
  void Erase(std::uint32_t HashA, std::size_t SlotA);
  void Clear();

 private:
  static constexpr std::uint32_t kFree = 0xFFFFFFFF;
  struct Cell {
    std::uint32_t hash = 0;
    std::uint32_t slot = kFree;
  };

  std::size_t Home(std::uint32_t HashA) const { return HashA & (mCells.size() - 1); }
  std::size_t Next(std::size_t CellA) const { return (CellA + 1) & (mCells.size() - 1); }
  void Place(Cell CellA);
  void Grow();

  std::vector<Cell> mCells;  // a power of two, at most three quarters in use
  std::size_t mCount = 0;
};

}  // namespace mur
