#include "viewer/readers/lanes.h"

#include <algorithm>
#include <functional>
#include <numeric>
#include <queue>
#include <utility>

namespace mur::viewer {
namespace {
template <class T>
using LowestFirst = std::priority_queue<T, std::vector<T>, std::greater<>>;
}

std::vector<std::size_t> AssignLanes(std::span<const TimeSpan> SpansA) {
  std::vector<std::size_t> order(SpansA.size());
  std::iota(order.begin(), order.end(), std::size_t{0});
  std::ranges::stable_sort(order, {}, [&](std::size_t index) { return SpansA[index].start; });

  std::vector<std::size_t> lanes(SpansA.size());
  LowestFirst<std::pair<double, std::size_t>> busy;  // until when, lane
  LowestFirst<std::size_t> free;
  std::size_t count = 0;
  for (const std::size_t index : order) {
    for (; !busy.empty() && busy.top().first <= SpansA[index].start; busy.pop()) free.push(busy.top().second);
    if (free.empty()) free.push(count++);
    lanes[index] = free.top();
    free.pop();
    busy.emplace(SpansA[index].end, lanes[index]);
  }
  return lanes;
}

}  // namespace mur::viewer
