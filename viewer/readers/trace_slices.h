#pragma once

#include <cstddef>
#include <optional>
#include <vector>

namespace mur::viewer {

/// A stretch of a thread's time, in the trace's own units. `name` means something to the caller only.
struct Slice {
  double start = 0;
  double end = 0;
  std::size_t name = 0;
};

/// A begin (with its name) or an end, or a slice that is complete by itself.
struct SliceEvent {
  enum class Kind { Begin, End, Complete } kind = Kind::Complete;
  Slice slice;  // for begins and ends: `start` is the time
};

/// A slice among others: which one it lies in, and whether others lie in it.
struct NestedSlice {
  Slice slice;
  std::optional<std::size_t> parent;  // an earlier one of the list
  bool hasChildren = false;
};

/// Pairs the begins and ends of one thread, in the order of their times. Begins without an end last until
/// `TraceEndA`; ends without a begin are left out and counted in `StrayEndsA`.
std::vector<Slice> PairSlices(std::vector<SliceEvent> EventsA, double TraceEndA, std::size_t& StrayEndsA);

/// The slices by time, each nested in the innermost one that is still open where it begins; so no two of the
/// same depth overlap.
std::vector<NestedSlice> NestSlices(std::vector<Slice> SlicesA);

}  // namespace mur::viewer
