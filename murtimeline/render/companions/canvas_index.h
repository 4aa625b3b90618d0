#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

#include <murtimeline/automation/export.h>
#include <murtimeline/render/companions/item_place.h>
#include <murtimeline/render/companions/range_maxima.h>

namespace mur {

/// The places of a canvas's items, by slot, and the order in space in which painting and hit testing find
/// them.
///
/// Items of one top and height form a row; rows are ordered by top, the items of a row by left edge. A change
/// of one item costs nothing but a note: noted items are looked through one by one, until there are so many
/// of them that the order is made anew, in one pass. When all items moved along the time axis they have kept
/// their order, and the pass sorts nothing.
class MUR_API CanvasIndex {
 public:
  using Slot = std::uint32_t;

  /// A slot for an item without extent.
  Slot Add();
  /// The item is found no more; its slot keeps a place until it is released.
  void TakeOff(Slot SlotA);
  /// The slot may be used anew. Only after TakeOff.
  void Release(Slot SlotA) { (mStates[SlotA] == 0 ? mFree : mReleased).push_back(SlotA); }

  const ItemPlace& PlaceOf(Slot SlotA) const { return mPlaces[SlotA]; }
  void SetPlace(Slot SlotA, const ItemPlace& PlaceA);

  /// Calls `VisitA(slot)` for each item that overlaps the area, its right and lower edge included. Items of a
  /// row come from left to right, apart from those that changed of late, which come last.
  template <class Visit>
  void ForEachOverlapping(const RectF& AreaA, Visit&& VisitA) {
    Refresh();
    mBottoms.ForEachAbove(
        0, RowsStartingBy(AreaA.Bottom()), AreaA.top, [this](std::size_t row) { return mRows[row].Bottom(); },
        [&](std::size_t row) { VisitRow(row, AreaA, VisitA); });
    for (const Slot slot : mNoted)
      if (mStates[slot] & kOnCanvas && mPlaces[slot].Overlaps(AreaA)) VisitA(slot);
  }

  /// Calls `VisitA(slot)` for each item that has a point inside or on its left or upper edge, in any order.
  template <class Visit>
  void ForEachAt(PointF PointA, Visit&& VisitA) {
    Refresh();
    mBottoms.ForEachAbove(
        0, RowsStartingBy(PointA.y), PointA.y, [this](std::size_t row) { return mRows[row].Bottom(); },
        [&](std::size_t row) { VisitRowAt(row, PointA.x, VisitA); });
    VisitNotedAt(PointA, VisitA);
  }

  /// The lower edge of the lowest item with an extent; 0 without one.
  float Bottom();

  // Walking from item to item. `AcceptA` says which items are met at all.
  using Accept = std::function<bool(Slot)>;
  /// A place in a row: items come by left edge, those of one left edge by slot.
  struct RowSpot {
    float top, left;
    Slot slot;
  };
  /// The item of a row that comes next after a spot, or before it.
  std::optional<Slot> NextInRow(const RowSpot& FromA, bool ForwardsA, const Accept& AcceptA);
  /// The top of the next row, further down or up, that has an item.
  std::optional<float> NextRow(float TopA, bool DownwardsA, const Accept& AcceptA);

  /// Whether everything holds that the order promises; for tests.
  bool IsConsistent() const;

 private:
  // What is known about a slot.
  static constexpr std::uint8_t kOnCanvas = 1;
  static constexpr std::uint8_t kInOrder = 2;  // has an entry, which is out of date while it is noted, too
  static constexpr std::uint8_t kNoted = 4;

  static constexpr std::size_t kBlock = 16;

  struct Entry {
    float left, right;
    Slot slot;
  };
  struct Row {
    float top, height;
    std::size_t end;  // of its entries; they start at the end of the row before
    float Bottom() const { return top + height; }
  };
  // Of sixteen entries in a row.
  struct Block {
    float left;   // of the first one
    float reach;  // the rightmost edge of the entries before it in its row
  };
  struct NotedPlace {
    float left, top, right, bottom;
    Slot slot;
  };
  struct Newcomer {
    float top, height;
    Entry entry;
  };
  using Newcomers = std::vector<Newcomer>;

  template <class Visit>
  void VisitRow(std::size_t RowA, const RectF& AreaA, Visit& VisitA) const {
    const std::size_t begin = RowBegin(RowA);
    mRights.ForEachAbove(
        begin, EntriesStartingBy(begin, mRows[RowA].end, AreaA.Right()), AreaA.left,
        [this](std::size_t entry) { return mEntries[entry].right; },
        [&](std::size_t entry) {
          if (const Slot slot = mEntries[entry].slot; mStates[slot] == (kOnCanvas | kInOrder)) VisitA(slot);
        });
  }

  // What a point lies on has begun just before it, as a rule: looks there first, and elsewhere only where
  // something reaches so far.
  template <class Visit>
  void VisitRowAt(std::size_t RowA, float XA, Visit& VisitA) const {
    const std::size_t begin = RowBegin(RowA);
    const std::size_t end = EntriesStartingBy(begin, mRows[RowA].end, XA);
    if (end == begin) return;
    const std::size_t block = (end - 1) / kBlock;
    const std::size_t nearest = std::max(begin, block * kBlock);
    const auto visit = [&](std::size_t entry) {
      if (const Slot slot = mEntries[entry].slot; mStates[slot] == (kOnCanvas | kInOrder)) VisitA(slot);
    };
    for (std::size_t at = nearest; at < end; ++at)
      if (mEntries[at].right > XA) visit(at);
    if (nearest == begin || mBlocks[block].reach <= XA) return;
    mRights.ForEachAbove(
        begin, nearest, XA, [this](std::size_t entry) { return mEntries[entry].right; }, visit);
  }

  // Noted places are gathered side by side when they are asked for, until one of them changes.
  template <class Visit>
  void VisitNotedAt(PointF PointA, Visit& VisitA) {
    if (!mNotedAreGathered) GatherNoted();
    for (const NotedPlace& place : mNotedPlaces)
      if (place.left <= PointA.x && PointA.x < place.right && place.top <= PointA.y &&
          PointA.y < place.bottom)
        VisitA(place.slot);
  }

  std::size_t RowBegin(std::size_t RowA) const { return RowA == 0 ? 0 : mRows[RowA - 1].end; }
  std::size_t RowsStartingBy(float YA) const;
  std::size_t EntriesStartingBy(std::size_t BeginA, std::size_t EndA, float XA) const;

  void BuildBlocks();
  void GatherNoted();
  void Refresh();
  void Rebuild();
  void KeepEntries(bool ReloadA);
  bool Keep(Entry& EntryA, const Row& RowA, bool ReloadA);
  Newcomers TakeNoted();
  void Merge(const Newcomers& NewcomersA);
  bool IsRowConsistent(std::size_t RowA) const;
  bool IsCurrent(Slot SlotA) const { return mStates[SlotA] == (kOnCanvas | kInOrder); }
  bool HasAny(std::size_t RowA, const Accept& AcceptA) const;
  template <class Offer>
  void OfferFromRow(std::size_t RowA, float LeftA, bool ForwardsA, Offer&& OfferA) const;

  std::vector<ItemPlace> mPlaces;
  std::vector<std::uint8_t> mStates;
  std::vector<Slot> mFree;
  std::vector<Slot> mReleased;  // not free yet: the order or the notes may still name them
  std::vector<Slot> mNoted;
  std::vector<NotedPlace> mNotedPlaces;  // of those that can be drawn
  bool mNotedAreGathered = false;
  std::size_t mStale = 0;  // slots off the canvas that the order or the notes still name

  std::vector<Entry> mEntries;
  std::vector<Row> mRows;
  std::vector<Block> mBlocks;
  float mTallest = 0;    // of the rows
  RangeMaxima mRights;   // of the entries
  RangeMaxima mBottoms;  // of the rows
};

}  // namespace mur
