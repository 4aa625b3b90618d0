#include <algorithm>
#include <utility>

#include <murtimeline/render/companions/marker_order.h>
#include <murtimeline/render/companions/time_scale_marker.h>

namespace mur {

void MarkerOrder::Put(TimeScaleMarker& MarkerA) {
  MarkerPlace& place = MarkerA.Place();
  if (!MarkerA.Visible() || !MarkerA.WorldTime().InRange()) return Take(MarkerA);
  const double days = MarkerA.WorldTime().Days();
  if (place.serial == 0) place.serial = ++mLastSerial;
  if (place.isIn && place.newcomer != MarkerPlace::kSettled) {
    mNewcomers[place.newcomer].days = place.days = days;
    return;
  }
  Take(MarkerA);
  place = {place.serial, days, mNewcomers.size(), true};
  mNewcomers.push_back({days, place.serial, &MarkerA});
}

void MarkerOrder::Take(TimeScaleMarker& MarkerA) {
  MarkerPlace& place = MarkerA.Place();
  if (!std::exchange(place.isIn, false)) return;
  ++mGone;
  if (const std::size_t newcomer = std::exchange(place.newcomer, MarkerPlace::kSettled);
      newcomer != MarkerPlace::kSettled) {
    mNewcomers[newcomer].marker = nullptr;
    return;
  }
  const Entry sought{place.days, place.serial, nullptr};
  std::lower_bound(mEntries.begin(), mEntries.end(), sought, IsBefore)->marker = nullptr;
}

void MarkerOrder::Clear() {
  for (const Entry& entry : Settled()) entry.marker->Place().isIn = false;
  mEntries.clear();
}

std::size_t MarkerOrder::Count() const {
  return Settled().size();
}

std::size_t MarkerOrder::IndexOf(const TimeScaleMarker& MarkerA) const {
  const std::vector<Entry>& entries = Settled();
  const Entry sought{MarkerA.Place().days, MarkerA.Place().serial, nullptr};
  return static_cast<std::size_t>(std::lower_bound(entries.begin(), entries.end(), sought, IsBefore) -
                                  entries.begin());
}

bool MarkerOrder::IsBefore(const Entry& LeftA, const Entry& RightA) {
  return LeftA.days != RightA.days ? LeftA.days < RightA.days : LeftA.serial < RightA.serial;
}

const std::vector<MarkerOrder::Entry>& MarkerOrder::Settled() const {
  if (mNewcomers.empty() && mGone == 0) return mEntries;
  const auto isGone = [](const Entry& entry) { return entry.marker == nullptr; };
  if (std::exchange(mGone, 0) > 0) {
    std::erase_if(mEntries, isGone);
    std::erase_if(mNewcomers, isGone);
  }
  std::sort(mNewcomers.begin(), mNewcomers.end(), IsBefore);
  for (const Entry& entry : mNewcomers) entry.marker->Place().newcomer = MarkerPlace::kSettled;
  const auto settled = static_cast<std::ptrdiff_t>(mEntries.size());
  mEntries.insert(mEntries.end(), mNewcomers.begin(), mNewcomers.end());
  mNewcomers.clear();
  std::inplace_merge(mEntries.begin(), mEntries.begin() + settled, mEntries.end(), IsBefore);
  return mEntries;
}

}  // namespace mur
