#include "tests/support/model_invariants.h"

#include <algorithm>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include <gtest/gtest.h>

#include <murtimeline/automation/error.h>

#include "tests/support/value_text.h"

namespace mur::test {
namespace {

Ref<IMURTimelineObject> ItemAt(const IMURTimelineObject& ObjectA, std::size_t PositionA) {
  return ObjectA.Item(static_cast<std::int32_t>(PositionA));
}

// All objects reachable from a root, children before their parents; none when something contains itself.
std::vector<Ref<IMURTimelineObject>> ChildrenFirst(const Ref<IMURTimelineObject>& RootA) {
  struct Level {
    Ref<IMURTimelineObject> object;
    std::size_t next = 1;
  };
  std::vector<Ref<IMURTimelineObject>> order;
  std::unordered_set<const IMURTimelineObject*> done, path{RootA.Get()};
  std::vector<Level> levels{{RootA}};
  while (!levels.empty()) {
    Level& level = levels.back();
    if (level.next <= level.object->ChildCount()) {
      const Ref<IMURTimelineObject> child = ItemAt(*level.object, level.next++);
      if (!child || done.contains(child.Get())) continue;
      if (!path.insert(child.Get()).second) return {};
      levels.push_back({child});
    } else {
      path.erase(level.object.Get());
      done.insert(level.object.Get());
      order.push_back(level.object);
      levels.pop_back();
    }
  }
  return order;
}

void ExpectChildrenReachable(const IMURTimelineObject& ObjectA) {
  const std::size_t count = ObjectA.ChildCount();
  for (std::size_t i = 1; i <= count; ++i)
    EXPECT_TRUE(ItemAt(ObjectA, i)) << "child " << i << " of " << ToUtf8(ObjectA.Key());
  EXPECT_FALSE(ItemAt(ObjectA, 0));
  EXPECT_FALSE(ItemAt(ObjectA, count + 1)) << "one more than the count";
}

}  // namespace

void ExpectSound(const Ref<IMURTimelineObject>& RootA) {
  std::unordered_map<const IMURTimelineObject*, int> depths;
  for (const auto& object : ChildrenFirst(RootA)) {
    ExpectChildrenReachable(*object);
    int deepest = 0;
    for (std::size_t i = 1; i <= object->ChildCount(); ++i)
      if (const auto child = ItemAt(*object, i)) deepest = std::max(deepest, depths[child.Get()]);
    depths[object.Get()] = deepest + 1;
    // A depth that is not kept counts as what was walked.
    EXPECT_EQ(object->KnownSubtreeDepth().value_or(deepest + 1), deepest + 1)
        << "depth of " << ToUtf8(object->Key());
  }
}

void ExpectSound(const CMURTimeline& TimelineA) {
  auto walk = TimelineA.NewEnum();
  std::unordered_set<const IMURTimelineObject*> met;
  for (std::int32_t i = 1; i <= TimelineA.Count(); ++i) {
    const auto member = TimelineA.Item(i);
    ASSERT_TRUE(member) << "member " << i;
    EXPECT_EQ(walk.Next(), member) << "enumeration at " << i;
    if (met.insert(member.Get()).second) ExpectSound(member);
  }
  EXPECT_FALSE(walk.Next()) << "enumeration behind the last member";
  EXPECT_FALSE(TimelineA.Item(0));
  EXPECT_FALSE(TimelineA.Item(TimelineA.Count() + 1));
}

}  // namespace mur::test
