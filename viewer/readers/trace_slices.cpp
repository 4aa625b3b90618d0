#include "viewer/readers/trace_slices.h"

#include <algorithm>

namespace mur::viewer {

std::vector<Slice> PairSlices(std::vector<SliceEvent> EventsA, double TraceEndA, std::size_t& StrayEndsA) {
  std::ranges::stable_sort(EventsA, {}, [](const SliceEvent& event) { return event.slice.start; });
  std::vector<Slice> slices;
  std::vector<std::size_t> open;  // positions in `slices`
  for (const SliceEvent& event : EventsA) {
    if (event.kind == SliceEvent::Kind::End) {
      if (open.empty()) {
        ++StrayEndsA;
        continue;
      }
      slices[open.back()].end = event.slice.start;
      open.pop_back();
      continue;
    }
    if (event.kind == SliceEvent::Kind::Begin) open.push_back(slices.size());
    slices.push_back(event.slice);
  }
  for (const std::size_t index : open) slices[index].end = TraceEndA;
  return slices;
}

std::vector<NestedSlice> NestSlices(std::vector<Slice> SlicesA) {
  std::ranges::stable_sort(SlicesA, [](const Slice& left, const Slice& right) {
    return left.start != right.start ? left.start < right.start : left.end > right.end;
  });
  std::vector<NestedSlice> nested;
  nested.reserve(SlicesA.size());
  std::vector<std::size_t> open;
  for (const Slice& slice : SlicesA) {
    while (!open.empty() && nested[open.back()].slice.end <= slice.start) open.pop_back();
    NestedSlice entry{slice, std::nullopt, false};
    if (!open.empty()) {
      entry.parent = open.back();
      nested[open.back()].hasChildren = true;
    }
    open.push_back(nested.size());
    nested.push_back(entry);
  }
  return nested;
}

}  // namespace mur::viewer
