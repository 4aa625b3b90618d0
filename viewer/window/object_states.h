#pragma once

#include <unordered_map>
#include <vector>

#include <murtimeline/model/timeline.h>

namespace mur::viewer {

/// Where an object lies in time.
struct ObjectState {
  Date start;
  double offset = 0;    // seconds
  double duration = 0;  // seconds
  friend bool operator==(const ObjectState&, const ObjectState&) = default;
};

/// An object that was moved.
struct ObjectChange {
  Ref<IMURTimelineObject> object;
  ObjectState before, after;
};

/// The last known place in time of each object of a time line.
class ObjectStates {
 public:
  void Take(const CMURTimeline& TimelineA);
  void Clear() { mStates.clear(); }
  /// How the objects differ from what is known of them, parents before their children; knows their present
  /// places afterwards.
  std::vector<ObjectChange> TakeChanges(const std::vector<Ref<IMURTimelineObject>>& ObjectsA);

  static ObjectState Of(const IMURTimelineObject& ObjectA);

 private:
  // A time line that is watched loses no object.
  std::unordered_map<const IMURTimelineObject*, ObjectState> mStates;
};

/// Puts objects, parents before their children, to where they were before or after a change, to the last bit.
void PutBefore(const std::vector<ObjectChange>& ChangesA);
void PutAfter(const std::vector<ObjectChange>& ChangesA);

}  // namespace mur::viewer
