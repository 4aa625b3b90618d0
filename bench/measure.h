#pragma once

#include <chrono>

#include <benchmark/benchmark.h>

namespace mur::bench {

/// Runs the work, and hands its wall time and its number of units to the benchmark.
template <class Work>
void Measure(benchmark::State& StateA, double UnitsA, Work&& WorkA) {
  const auto start = std::chrono::steady_clock::now();
  WorkA();
  const std::chrono::duration<double> seconds = std::chrono::steady_clock::now() - start;
  StateA.SetIterationTime(seconds.count());
  StateA.counters["units"] = UnitsA;
}

/// The sizes at which everything is measured.
inline void Sizes(benchmark::internal::Benchmark* BenchmarkA) {
  BenchmarkA->Arg(10'000)->Arg(100'000)->Arg(1'000'000)->Iterations(1)->UseManualTime()->Repetitions(5);
}

}  // namespace mur::bench
