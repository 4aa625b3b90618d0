#include "viewer/window/object_states.h"

#include <algorithm>

namespace mur::viewer {
namespace {

// Enough for every tree; parents may stand in a ring.
constexpr int kDeepest = 100'000;

int DepthOf(const IMURTimelineObject& ObjectA) {
  int depth = 0;
  for (Ref<IMURTimelineObject> parent = ObjectA.Parent(); parent && depth < kDeepest;
       parent = parent->Parent())
    ++depth;
  return depth;
}

// Start and offset follow from each other and from the parent's start. Setting the start alone gives back the
// offset that it had, unless the two did not agree to begin with: then each is set without the parent.
void Put(IMURTimelineObject& ObjectA, const ObjectState& StateA) {
  ObjectA.SetWorldTimeT0(StateA.start);
  if (ObjectA.WorldTimeT0() != StateA.start || ObjectA.offset() != StateA.offset) {
    const Ref<IMURTimelineObject> parent = ObjectA.Parent();
    ObjectA.SetParent({});
    ObjectA.SetWorldTimeT0(StateA.start);
    ObjectA.SetOffset(StateA.offset);
    ObjectA.SetParent(parent);
  }
  if (ObjectA.Duration() != StateA.duration) ObjectA.SetDuration(StateA.duration);
}

}  // namespace

ObjectState ObjectStates::Of(const IMURTimelineObject& ObjectA) {
  return {ObjectA.WorldTimeT0(), ObjectA.offset(), ObjectA.Duration()};
}

void ObjectStates::Take(const CMURTimeline& TimelineA) {
  Clear();
  mStates.reserve(static_cast<std::size_t>(TimelineA.Count()));
  auto members = TimelineA.NewEnum();
  while (const Ref<IMURTimelineObject> member = members.Next()) mStates[member.Get()] = Of(*member);
}

std::vector<ObjectChange> ObjectStates::TakeChanges(const std::vector<Ref<IMURTimelineObject>>& ObjectsA) {
  std::vector<std::pair<int, ObjectChange>> found;
  for (const Ref<IMURTimelineObject>& object : ObjectsA) {
    const auto known = mStates.find(object.Get());
    if (known == mStates.end()) continue;
    const ObjectState now = Of(*object);
    if (now == known->second) continue;
    found.emplace_back(DepthOf(*object), ObjectChange{object, known->second, now});
    known->second = now;
  }
  std::ranges::stable_sort(found, {}, [](const auto& entry) { return entry.first; });
  std::vector<ObjectChange> changes;
  for (auto& entry : found) changes.push_back(std::move(entry.second));
  return changes;
}

void PutBefore(const std::vector<ObjectChange>& ChangesA) {
  for (const ObjectChange& change : ChangesA) Put(*change.object, change.before);
}

void PutAfter(const std::vector<ObjectChange>& ChangesA) {
  for (const ObjectChange& change : ChangesA) Put(*change.object, change.after);
}

}  // namespace mur::viewer
