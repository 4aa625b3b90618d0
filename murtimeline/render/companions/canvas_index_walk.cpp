#include <algorithm>
#include <tuple>

#include <murtimeline/render/companions/canvas_index.h>

// Steps from item to item. Those in order are found by halving; the noted ones are looked through, as for
// everything else.
namespace mur {

// Rows are ordered by top: from the last one upwards, none further up ends lower once even the tallest would
// not.
float CanvasIndex::Bottom() {
  Refresh();
  float bottom = 0;
  for (const Slot slot : mNoted)
    if ((mStates[slot] & kOnCanvas) != 0 && mPlaces[slot].IsDrawable())
      bottom = std::max(bottom, mPlaces[slot].Bottom());
  for (std::size_t row = mRows.size(); row > 0 && mRows[row - 1].top + mTallest > bottom; --row)
    if (mRows[row - 1].Bottom() > bottom && HasAny(row - 1, [](Slot) { return true; }))
      bottom = mRows[row - 1].Bottom();
  return bottom;
}

bool CanvasIndex::HasAny(std::size_t RowA, const Accept& AcceptA) const {
  const auto begin = mEntries.begin() + static_cast<std::ptrdiff_t>(RowBegin(RowA));
  const auto end = mEntries.begin() + static_cast<std::ptrdiff_t>(mRows[RowA].end);
  return std::any_of(begin, end,
                     [&](const Entry& entry) { return IsCurrent(entry.slot) && AcceptA(entry.slot); });
}

// Offers the items of a row from a left edge on, until one is nearer than all that are left.
template <class Offer>
void CanvasIndex::OfferFromRow(std::size_t RowA, float LeftA, bool ForwardsA, Offer&& OfferA) const {
  const auto at = [this](std::size_t index) { return mEntries.begin() + static_cast<std::ptrdiff_t>(index); };
  const auto begin = at(RowBegin(RowA)), end = at(mRows[RowA].end);
  const auto offer = [&](const Entry& entry) {
    return !IsCurrent(entry.slot) || OfferA(entry.left, entry.slot);
  };
  if (ForwardsA) {
    auto entry = std::partition_point(begin, end, [LeftA](const Entry& other) { return other.left < LeftA; });
    while (entry != end && offer(*entry)) ++entry;
  } else {
    auto entry =
        std::partition_point(begin, end, [LeftA](const Entry& other) { return other.left <= LeftA; });
    while (entry != begin && offer(*(entry - 1))) --entry;
  }
}

std::optional<CanvasIndex::Slot> CanvasIndex::NextInRow(const RowSpot& FromA, bool ForwardsA,
                                                        const Accept& AcceptA) {
  Refresh();
  using Spot = std::pair<float, Slot>;
  const Spot from{FromA.left, FromA.slot};
  std::optional<Spot> best;
  const auto isNearer = [&](const Spot& nearer, const Spot& farther) {
    return ForwardsA ? nearer < farther : farther < nearer;
  };
  const auto offer = [&](float left, Slot slot) {
    if (best && left != best->first && isNearer(*best, {left, slot})) return false;
    const Spot spot{left, slot};
    if (isNearer(from, spot) && (!best || isNearer(spot, *best)) && AcceptA(slot)) best = spot;
    return true;
  };
  for (std::size_t row = RowsStartingBy(FromA.top); row > 0 && mRows[row - 1].top == FromA.top; --row)
    OfferFromRow(row - 1, FromA.left, ForwardsA, offer);
  for (const Slot slot : mNoted)
    if ((mStates[slot] & kOnCanvas) != 0 && mPlaces[slot].IsDrawable() && mPlaces[slot].top == FromA.top)
      offer(mPlaces[slot].left, slot);
  return best ? std::optional(best->second) : std::nullopt;
}

std::optional<float> CanvasIndex::NextRow(float TopA, bool DownwardsA, const Accept& AcceptA) {
  Refresh();
  std::optional<float> best;
  const auto isBeyond = [&](float top, float other) { return DownwardsA ? top > other : top < other; };
  if (DownwardsA) {
    for (std::size_t row = RowsStartingBy(TopA); row < mRows.size() && !best; ++row)
      if (HasAny(row, AcceptA)) best = mRows[row].top;
  } else {
    for (std::size_t row = RowsStartingBy(TopA); row > 0 && !best; --row)
      if (mRows[row - 1].top < TopA && HasAny(row - 1, AcceptA)) best = mRows[row - 1].top;
  }
  for (const Slot slot : mNoted) {
    const ItemPlace& place = mPlaces[slot];
    if ((mStates[slot] & kOnCanvas) == 0 || !place.IsDrawable() || !isBeyond(place.top, TopA)) continue;
    if ((!best || isBeyond(*best, place.top)) && AcceptA(slot)) best = place.top;
  }
  return best;
}

}  // namespace mur
