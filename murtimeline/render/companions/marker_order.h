#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include <murtimeline/automation/date.h>
#include <murtimeline/automation/export.h>

namespace mur {

class TimeScaleMarker;

/// Where a marker stands in a MarkerOrder; the marker keeps it for the order.
struct MUR_API MarkerPlace {
  static constexpr std::size_t kSettled = static_cast<std::size_t>(-1);

  std::uint64_t serial = 0;  // of the marker's addition; 0 before it
  double days = 0;           // the time by which it stands there
  std::size_t newcomer = kSettled;
  bool isIn = false;
};

/// The markers that can be shown (visible, at a time in the date range) by their times; equal times in the
/// order of their addition.
///
/// Changes cost O(log n); the order is brought up to date, in linear time, when it is asked for something. A
/// marker is taken out before its end.
class MUR_API MarkerOrder {
 public:
  /// Puts a marker where its time belongs, also one that is in already; one that cannot be shown goes.
  void Put(TimeScaleMarker& MarkerA);
  void Take(TimeScaleMarker& MarkerA);
  /// Takes all of them out.
  void Clear();

  std::size_t Count() const;
  TimeScaleMarker& At(std::size_t IndexA) const { return *Settled()[IndexA].marker; }
  /// Of a marker that is in.
  std::size_t IndexOf(const TimeScaleMarker& MarkerA) const;
  Date TimeAt(std::size_t IndexA) const { return Date::Unchecked(Settled()[IndexA].days); }
  /// The first index from `FromA` on whose time answers false, where no later time answers true.
  template <class Predicate>
  std::size_t FirstNot(Predicate PredicateA, std::size_t FromA = 0) const {
    std::size_t first = FromA;
    std::size_t last = Count();
    while (first < last) {
      const std::size_t middle = first + (last - first) / 2;
      if (PredicateA(TimeAt(middle)))
        first = middle + 1;
      else
        last = middle;
    }
    return first;
  }

 private:
  struct Entry {
    double days = 0;
    std::uint64_t serial = 0;
    TimeScaleMarker* marker = nullptr;  // none once it was taken out
  };

  static bool IsBefore(const Entry& LeftA, const Entry& RightA);
  const std::vector<Entry>& Settled() const;

  mutable std::vector<Entry> mEntries;    // in order
  mutable std::vector<Entry> mNewcomers;  // in any order, not among the entries yet
  mutable std::size_t mGone = 0;          // entries without a marker, newcomers included
  std::uint64_t mLastSerial = 0;
};

}  // namespace mur
