#pragma once

#include <cstddef>
#include <span>
#include <vector>

namespace mur::viewer {

struct TimeSpan {
  double start = 0;
  double end = 0;
};

/// The lane of each span, counting from 0, such that spans on one lane do not overlap (they may touch). Spans
/// are taken by their start; each goes to the lowest lane that is free, so there are no more lanes than spans
/// at any one instant.
std::vector<std::size_t> AssignLanes(std::span<const TimeSpan> SpansA);

}  // namespace mur::viewer
