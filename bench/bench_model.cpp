#include <murtimeline/model/timeline_group.h>
#include <murtimeline/model/timeline_scalar.h>

#include "measure.h"
#include "sample_cache.h"

namespace mur::bench {
namespace {

// In which order the members are read: one after the other, or without any locality, so that next to nothing
// is in a cache.
enum class Order { InTurn, Scattered };

std::vector<int> Indices(int CountA, Order OrderA) {
  constexpr long long kStep = 7'368'787;  // a prime that divides no size
  std::vector<int> indices;
  indices.reserve(static_cast<std::size_t>(CountA));
  for (long long i = 0, at = 0; i < CountA; ++i, at = (at + kStep) % CountA)
    indices.push_back(static_cast<int>(OrderA == Order::InTurn ? i : at));
  return indices;
}

void ReadByKey(benchmark::State& StateA, Order OrderA) {
  const int count = static_cast<int>(StateA.range(0));
  TimelineSample& sample = FilledTimeline(count);
  std::vector<String> keys;
  for (const int index : Indices(count, OrderA))
    keys.push_back(sample.scalars[static_cast<std::size_t>(index)]->Key());
  for (auto _ : StateA)
    Measure(StateA, count, [&] {
      for (const String& key : keys) benchmark::DoNotOptimize(sample.timeline->ItemByKey(key).Get());
    });
}

void ReadByPosition(benchmark::State& StateA, Order OrderA) {
  const int count = static_cast<int>(StateA.range(0));
  TimelineSample& sample = FilledTimeline(count);
  const std::vector<int> indices = Indices(count, OrderA);
  for (auto _ : StateA)
    Measure(StateA, count, [&] {
      for (const int index : indices) benchmark::DoNotOptimize(sample.timeline->Item(index + 1).Get());
    });
}

void PutReportedToOneListener(benchmark::State& StateA) {
  constexpr int kPuts = 1'000'000;
  OwnedTimeline timeline;
  const auto scalar = timeline->Add(murtlotScalar);
  double heard = 0;
  const auto listener =
      timeline->TLObjectPropertyChanged.Connect([&](const Ref<IMURTimelineObject>&, StringView,
                                                    const Variant& value) { heard += *value.As<double>(); });
  for (auto _ : StateA)
    Measure(StateA, kPuts, [&] {
      for (int i = 0; i < kPuts; ++i) scalar->SetDuration(i);
    });
  if (heard == 0) StateA.SkipWithError("the listener heard nothing");
}

constexpr int kLockedChildren = 30'000;

Ref<IMURTimelineObject> AddLockedChild(IMURTimelineObject& ParentA, Ref<IMURTimelineObject> ChildA,
                                       int IndexA) {
  ParentA.Add(ChildA, FromAscii("locked " + std::to_string(IndexA)));
  ChildA->SetOffset(IndexA);
  ChildA->SetLockedToParent(true);
  return ChildA;
}

// Moves the parent an hour to and fro, so that every child really moves.
void MeasureMove(benchmark::State& StateA, IMURTimelineObject& ParentA) {
  const Date from = ParentA.WorldTimeT0();
  Measure(StateA, kLockedChildren, [&] { ParentA.SetWorldTimeT0(Date::Unchecked(from.Days() + 1.0 / 24)); });
  ParentA.SetWorldTimeT0(from);
}

// Children of the parent alone, as a group takes them in: they have no sink of their own.
void MoveParentOfLockedChildren(benchmark::State& StateA) {
  TimelineSample& sample = FilledTimeline(static_cast<int>(StateA.range(0)));
  const auto parent = sample.timeline->Add(murtlotGroup);
  parent->SetWorldTimeT0(Date::Unchecked(36526));
  for (int i = 0; i < kLockedChildren; ++i) AddLockedChild(*parent, Make<CMURTimelineScalar>(), i);
  for (auto _ : StateA) MeasureMove(StateA, *parent);
  const String key = parent->Key();
  FreeTree(parent);
  sample.timeline->Remove(key);
}

// Children that are members of the time line too: each reports its new start and offset, and has a bar.
void MoveParentOfLockedMembers(benchmark::State& StateA) {
  TimelineSample& sample = FilledTimeline(static_cast<int>(StateA.range(0)));
  const auto parent = sample.timeline->Add(murtlotGroup);
  parent->SetWorldTimeT0(Date::Unchecked(36526));
  std::vector<String> keys{parent->Key()};
  for (int i = 0; i < kLockedChildren; ++i) {
    const auto child = sample.timeline->Add(murtlotScalar, FromAscii("locked " + std::to_string(i)));
    keys.push_back(AddLockedChild(*parent, child, i)->Key());
  }
  for (auto _ : StateA) MeasureMove(StateA, *parent);
  for (const String& key : keys) sample.timeline->Remove(key);
}

BENCHMARK_CAPTURE(ReadByKey, InTurn, Order::InTurn)->Name("read a member by key, in turn")->Apply(Sizes);
BENCHMARK_CAPTURE(ReadByPosition, InTurn, Order::InTurn)
    ->Name("read a member by position, in turn")
    ->Apply(Sizes);
BENCHMARK_CAPTURE(ReadByKey, Scattered, Order::Scattered)->Name("the same by key, scattered")->Apply(Sizes);
BENCHMARK_CAPTURE(ReadByPosition, Scattered, Order::Scattered)
    ->Name("the same by position, scattered")
    ->Apply(Sizes);
BENCHMARK(MoveParentOfLockedChildren)->Name("move a parent: each of 30,000 locked children")->Apply(Sizes);
BENCHMARK(MoveParentOfLockedMembers)->Name("the same, each reporting and with a bar")->Apply(Sizes);
BENCHMARK(PutReportedToOneListener)
    ->Name("put of a property, one listener")
    ->Arg(1)
    ->Iterations(1)
    ->UseManualTime()
    ->Repetitions(5);

}  // namespace
}  // namespace mur::bench
