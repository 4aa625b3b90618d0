#pragma once

#include <cstddef>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "viewer/readers/frame_sum.h"

namespace mur::viewer {

/// A change that the file format cannot say; what() tells why in one sentence.
class NotExpressible : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// A child of a track, which follows its predecessor without a break.
struct TrackChild {
  enum class Kind { Gap, Transition, Item };

  Kind kind = Kind::Item;
  std::string name;      // for messages
  FrameSum length;       // none for transitions
  double rate = 0;       // frames a second; 0 when it has none
  double move = 0;       // seconds by which it is to lie later
  bool isFixed = false;  // a gap whose length cannot be changed
};

/// What a track becomes.
struct TrackPlan {
  struct Step {
    std::optional<std::size_t> child;  // none: a new gap
    std::optional<double> frames;      // the new length of a gap, at its own rate
    double rate = 0;                   // new gaps
  };

  /// The children in their new order; empty when nothing changes.
  std::vector<Step> steps;
};

/// Moves children of a track by letting gaps grow, shrink and come into being; nothing else changes place or
/// length. A move is rounded to frames of what is moved. Items that are joined by transitions move together.
/// An item that is put beyond another one is taken out of its place, which becomes a gap, and put into the
/// gap there. Gaps that shrink to nothing stay, with no length.
///
///     before   |  gap  |  A  | gap |   B   |
///     after    |  gap     |  A  |g|   B    |        A later by some frames
///
/// With `KeepsLengthA` the track ends where it did. Throws NotExpressible where items would overlap, would
/// begin before the track or end behind it, or where a transition is left without its cut.
TrackPlan PlanTrack(const std::vector<TrackChild>& ChildrenA, bool KeepsLengthA,
                    const std::string& TrackNameA);

}  // namespace mur::viewer
