#pragma once

#include <algorithm>
#include <array>
#include <chrono>

namespace mur::bench {

inline constexpr int kCalls = 20'000;
inline constexpr int kMembers = 2'000;

/// The median of several runs of the work, in nanoseconds for each of its units.
template <class Work>
double MedianCost(int UnitsA, Work&& WorkA) {
  std::array<double, 9> costs{};
  for (double& cost : costs) {
    const auto start = std::chrono::steady_clock::now();
    WorkA();
    const std::chrono::duration<double, std::nano> spent = std::chrono::steady_clock::now() - start;
    cost = spent.count() / UnitsA;
  }
  std::nth_element(costs.begin(), costs.begin() + costs.size() / 2, costs.end());
  return costs[costs.size() / 2];
}

}  // namespace mur::bench
