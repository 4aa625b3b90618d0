#include <murtimeline/model/timeline.h>
#include <murtimeline/model/timeline_owner.h>

#include "bench/com/costs.h"
#include "bench/com/median.h"

namespace mur::bench {

Costs CoreCosts() {
  const OwnedTimeline timeline;
  const auto scene = timeline->Add(murtlotGroup, u"Scene 1");
  volatile double seen = 0;
  Costs costs{};
  costs.get = MedianCost(kCalls, [&] {
    for (int i = 0; i < kCalls; ++i) seen = scene->Duration();
  });
  costs.getByName = costs.get;

  int heard = 0;
  const auto watching =
      timeline->TLObjectPropertyChanged.Connect([&](const auto&, StringView, const Variant&) { ++heard; });
  const auto counting = timeline->TLObjectAdded.Connect([&](const Variant&) { ++heard; });
  costs.put = MedianCost(kCalls, [&] {
    for (int i = 0; i < kCalls; ++i) scene->SetDuration(i);
  });
  costs.add = MedianCost(kMembers, [&] {
    for (int i = 0; i < kMembers; ++i) timeline->Add(murtlotScalar);
  });
  costs.enumerate = MedianCost(timeline->Count(), [&] {
    for (auto members = timeline->NewEnum(); const auto member = members.Next();) seen = 1;
  });
  return costs;
}

}  // namespace mur::bench
