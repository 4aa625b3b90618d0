#include "measure.h"
#include "samples.h"

namespace mur::bench {
namespace {

void AddScalars(benchmark::State& StateA) {
  const int count = static_cast<int>(StateA.range(0));
  for (auto _ : StateA) {
    const auto sample = std::make_unique<TimelineSample>();
    sample->scalars.reserve(static_cast<std::size_t>(count));
    const double before = HeapBytes();
    Measure(StateA, count, [&] { sample->Add(count); });
    StateA.counters["bytes"] = HeapBytes() - before;
  }
}

void AddSceneItems(benchmark::State& StateA) {
  const int count = static_cast<int>(StateA.range(0));
  for (auto _ : StateA) {
    const auto sample = std::make_unique<SceneSample>();
    sample->items.reserve(static_cast<std::size_t>(count));
    const double before = HeapBytes();
    Measure(StateA, count, [&] { sample->Add(count); });
    StateA.counters["bytes"] = HeapBytes() - before;
  }
}

// By key, as a host does that walks its own list; a position would name another item on the canvas.
void RemoveFromTheFront(benchmark::State& StateA) {
  const int count = static_cast<int>(StateA.range(0));
  for (auto _ : StateA) {
    const auto sample = std::make_unique<TimelineSample>();
    sample->Add(count);
    sample->scalars.clear();
    Measure(StateA, count, [&] {
      while (const auto first = sample->timeline->Item(1)) sample->timeline->Remove(first->Key());
    });
  }
}

void RemoveSceneItemsFromTheFront(benchmark::State& StateA) {
  const int count = static_cast<int>(StateA.range(0));
  for (auto _ : StateA) {
    const auto sample = std::make_unique<SceneSample>();
    sample->Add(count);
    sample->Place(ItemStart(count));
    sample->Settle();
    Measure(StateA, count, [&] {
      for (QGraphicsRectItem* item : sample->items) delete item;
    });
    sample->items.clear();
  }
}

BENCHMARK(AddScalars)->Name("add a scalar to a track, control attached")->Apply(Sizes);
BENCHMARK(AddSceneItems)->Name("add a scalar to a track, control attached [scene]")->Apply(Sizes);
BENCHMARK(RemoveFromTheFront)->Name("remove the first member, control attached")->Apply(Sizes);
BENCHMARK(RemoveSceneItemsFromTheFront)
    ->Name("remove the first member, control attached [scene]")
    ->Apply(Sizes);

}  // namespace
}  // namespace mur::bench
