#include <algorithm>
#include <cmath>
#include <limits>
#include <tuple>
#include <utility>

#include <murtimeline/automation/narrow.h>
#include <murtimeline/render/companions/canvas_index.h>
#include <murtimeline/render/companions/prefetch.h>

namespace mur {
namespace {

// Entries are in order of space, places in order of creation: without looking ahead, each would be waited
// for.
constexpr std::size_t kLookAhead = 16;

template <class Place>
auto RowKey(const Place& PlaceA) {
  return std::pair(PlaceA.top, PlaceA.height);
}

constexpr auto kByLeft = [](const auto& LeftA, const auto& RightA) { return LeftA.left < RightA.left; };

constexpr auto kByRowThenLeft = [](const auto& LeftA, const auto& RightA) {
  return std::tuple(LeftA.top, LeftA.height, LeftA.entry.left) <
         std::tuple(RightA.top, RightA.height, RightA.entry.left);
};

template <class Container, class Less>
void SortUnlessSorted(Container&& ContainerA, Less LessA) {
  if (!std::is_sorted(ContainerA.begin(), ContainerA.end(), LessA))
    std::sort(ContainerA.begin(), ContainerA.end(), LessA);
}

}  // namespace

CanvasIndex::Slot CanvasIndex::Add() {
  if (mFree.empty()) {
    mPlaces.emplace_back();
    mStates.push_back(kOnCanvas);
    return Narrow<Slot>(mPlaces.size() - 1);
  }
  const Slot slot = mFree.back();
  mFree.pop_back();
  mPlaces[slot] = {};
  mStates[slot] = kOnCanvas;
  return slot;
}

void CanvasIndex::TakeOff(Slot SlotA) {
  mStates[SlotA] &= static_cast<std::uint8_t>(~kOnCanvas);
  mNotedAreGathered = false;
  if (mStates[SlotA] == 0) return;
  // Hosts that never paint must not collect what is gone.
  if (++mStale > 256 + mEntries.size() / 2) Rebuild();
}

void CanvasIndex::SetPlace(Slot SlotA, const ItemPlace& PlaceA) {
  mPlaces[SlotA] = PlaceA;
  std::uint8_t& state = mStates[SlotA];
  mNotedAreGathered = false;
  const bool hasOrder = (state & kInOrder) != 0 || PlaceA.IsDrawable();
  if ((state & kOnCanvas) == 0 || (state & kNoted) != 0 || !hasOrder) return;
  state |= kNoted;
  mNoted.push_back(SlotA);
}

std::size_t CanvasIndex::RowsStartingBy(float YA) const {
  const auto end =
      std::partition_point(mRows.begin(), mRows.end(), [YA](const Row& row) { return row.top <= YA; });
  return static_cast<std::size_t>(end - mRows.begin());
}

std::size_t CanvasIndex::EntriesStartingBy(std::size_t BeginA, std::size_t EndA, float XA) const {
  // The blocks that begin within the row lead to the few entries in question.
  const Block* blocks = mBlocks.data();
  const auto nextBlock =
      std::partition_point(blocks + (BeginA + kBlock - 1) / kBlock, blocks + (EndA + kBlock - 1) / kBlock,
                           [XA](const Block& block) { return block.left <= XA; });
  const std::size_t past = static_cast<std::size_t>(nextBlock - blocks);
  std::size_t at = past * kBlock > BeginA + kBlock ? (past - 1) * kBlock : BeginA;
  // What is looked at takes three lines of memory, and waits for one of them when they are asked for
  // together.
  for (std::size_t ahead = 5; ahead < kBlock; ahead += 5)
    Prefetch(mEntries.data() + std::min(at + ahead, EndA));
  while (at < EndA && mEntries[at].left <= XA) ++at;
  return at;
}

void CanvasIndex::BuildBlocks() {
  mBlocks.resize((mEntries.size() + kBlock - 1) / kBlock);
  std::size_t row = 0;
  float reach = std::numeric_limits<float>::lowest();
  for (std::size_t at = 0; at < mEntries.size(); ++at) {
    if (at == mRows[row].end) {
      ++row;
      reach = std::numeric_limits<float>::lowest();
    }
    if (at % kBlock == 0) mBlocks[at / kBlock] = {mEntries[at].left, reach};
    reach = std::max(reach, mEntries[at].right);
  }
}

void CanvasIndex::GatherNoted() {
  mNotedAreGathered = true;
  mNotedPlaces.clear();
  for (const Slot slot : mNoted)
    if ((mStates[slot] & kOnCanvas) != 0 && mPlaces[slot].IsDrawable())
      mNotedPlaces.push_back(
          {mPlaces[slot].left, mPlaces[slot].top, mPlaces[slot].Right(), mPlaces[slot].Bottom(), slot});
}

void CanvasIndex::Refresh() {
  // Looking through the notes costs their number, making the order anew that of the entries: the root
  // balances.
  const double few = std::sqrt(static_cast<double>(mEntries.size())) / 2;
  if (static_cast<double>(mNoted.size()) > std::max(32.0, few)) Rebuild();
}

void CanvasIndex::Rebuild() {
  KeepEntries(mNoted.size() > mEntries.size() / 4);
  if (const Newcomers newcomers = TakeNoted(); !newcomers.empty()) Merge(newcomers);
  BuildBlocks();
  mRights.Build(mEntries.size(), [this](std::size_t entry) { return mEntries[entry].right; });
  mBottoms.Build(mRows.size(), [this](std::size_t row) { return mRows[row].Bottom(); });
  mTallest = 0;
  for (const Row& row : mRows) mTallest = std::max(mTallest, row.height);
  mFree.insert(mFree.end(), mReleased.begin(), mReleased.end());
  mReleased.clear();
  mNotedAreGathered = false;
  mStale = 0;
}

// Drops the entries that left their row. `ReloadA`: so many items changed that those still in their row are
// brought up to date in place, expecting that they are still in order.
void CanvasIndex::KeepEntries(bool ReloadA) {
  std::size_t kept = 0;
  std::size_t keptRows = 0;
  std::size_t from = 0;
  for (Row row : mRows) {
    const std::size_t begin = kept;
    bool ordered = true;
    for (; from < row.end; ++from) {
      if (from + kLookAhead < mEntries.size()) Prefetch(&mPlaces[mEntries[from + kLookAhead].slot]);
      Entry entry = mEntries[from];
      if (!Keep(entry, row, ReloadA)) continue;
      ordered = ordered && (kept == begin || mEntries[kept - 1].left <= entry.left);
      mEntries[kept++] = entry;
    }
    if (!ordered) std::sort(mEntries.data() + begin, mEntries.data() + kept, kByLeft);
    row.end = kept;
    if (kept > begin) mRows[keptRows++] = row;
  }
  mEntries.resize(kept);
  mRows.resize(keptRows);
}

bool CanvasIndex::Keep(Entry& EntryA, const Row& RowA, bool ReloadA) {
  std::uint8_t& state = mStates[EntryA.slot];
  if (state == (kOnCanvas | kInOrder)) return true;
  const ItemPlace& place = mPlaces[EntryA.slot];
  if (ReloadA && (state & kOnCanvas) != 0 && place.IsDrawable() && RowKey(place) == RowKey(RowA)) {
    EntryA.left = place.left;
    EntryA.right = place.Right();
    state = kOnCanvas | kInOrder;
    return true;
  }
  state &= static_cast<std::uint8_t>(~kInOrder);
  return false;
}

CanvasIndex::Newcomers CanvasIndex::TakeNoted() {
  Newcomers newcomers;
  for (const Slot slot : std::exchange(mNoted, {})) {
    std::uint8_t& state = mStates[slot];
    if ((state & kNoted) == 0) continue;  // brought up to date in place
    state &= static_cast<std::uint8_t>(~kNoted);
    const ItemPlace& place = mPlaces[slot];
    if (state != kOnCanvas || !place.IsDrawable()) continue;
    state |= kInOrder;
    newcomers.push_back({place.top, place.height, {place.left, place.Right(), slot}});
  }
  SortUnlessSorted(newcomers, kByRowThenLeft);
  return newcomers;
}

void CanvasIndex::Merge(const Newcomers& NewcomersA) {
  std::vector<Entry> entries;
  std::vector<Row> rows;
  entries.reserve(mEntries.size() + NewcomersA.size());
  auto oldRow = mRows.cbegin();
  auto old = mEntries.cbegin();
  auto fresh = NewcomersA.cbegin();
  while (oldRow != mRows.cend() || fresh != NewcomersA.cend()) {
    const bool oldFirst =
        fresh == NewcomersA.cend() || (oldRow != mRows.cend() && RowKey(*oldRow) <= RowKey(*fresh));
    Row row = oldFirst ? *oldRow : Row{fresh->top, fresh->height, 0};
    const auto oldEnd = oldFirst ? mEntries.cbegin() + static_cast<std::ptrdiff_t>(oldRow++->end) : old;
    while (fresh != NewcomersA.cend() && RowKey(*fresh) == RowKey(row)) {
      const Entry& entry = (fresh++)->entry;
      const auto before =
          std::partition_point(old, oldEnd, [&](const Entry& other) { return other.left <= entry.left; });
      entries.insert(entries.end(), std::exchange(old, before), before);
      entries.push_back(entry);
    }
    entries.insert(entries.end(), std::exchange(old, oldEnd), oldEnd);
    row.end = entries.size();
    rows.push_back(row);
  }
  mEntries = std::move(entries);
  mRows = std::move(rows);
}

bool CanvasIndex::IsConsistent() const {
  std::vector<bool> inOrder(mPlaces.size());
  for (std::size_t row = 0; row < mRows.size(); ++row) {
    if (row > 0 && RowKey(mRows[row - 1]) >= RowKey(mRows[row])) return false;
    if (!IsRowConsistent(row)) return false;
  }
  if ((mRows.empty() ? 0 : mRows.back().end) != mEntries.size()) return false;
  for (const Entry& entry : mEntries) {
    if (inOrder[entry.slot] || (mStates[entry.slot] & kInOrder) == 0) return false;
    inOrder[entry.slot] = true;
  }
  std::vector<bool> noted(mPlaces.size());
  for (const Slot slot : mNoted) noted[slot] = true;
  for (Slot slot = 0; slot < mPlaces.size(); ++slot) {
    if (inOrder[slot] != ((mStates[slot] & kInOrder) != 0) || noted[slot] != ((mStates[slot] & kNoted) != 0))
      return false;
    const bool isFound = inOrder[slot] || noted[slot];
    if ((mStates[slot] & kOnCanvas) != 0 && mPlaces[slot].IsDrawable() && !isFound) return false;
  }
  return true;
}

// Ordered by left edge, and every entry that is up to date shows its item's place.
bool CanvasIndex::IsRowConsistent(std::size_t RowA) const {
  const Row& row = mRows[RowA];
  const std::size_t begin = RowBegin(RowA);
  if (row.end <= begin) return false;
  for (std::size_t at = begin; at < row.end; ++at) {
    const Entry& entry = mEntries[at];
    if (at > begin && mEntries[at - 1].left > entry.left) return false;
    if (mStates[entry.slot] != (kOnCanvas | kInOrder)) continue;
    const ItemPlace& place = mPlaces[entry.slot];
    if (RowKey(place) != RowKey(row) || place.left != entry.left || place.Right() != entry.right)
      return false;
  }
  return true;
}

}  // namespace mur
