#pragma once

#include <unordered_set>
#include <vector>

#include <murtimeline/model/timeline_object_interface.h>

namespace mur {

/// The way from an object down to the one that a walk stands on, so that walks of any depth need no
/// recursion.
class ObjectPath {
 public:
  bool IsEmpty() const { return mSteps.empty(); }
  std::size_t Depth() const { return mSteps.size(); }
  const Ref<IMURTimelineObject>& Current() const { return mSteps.back().object; }

  /// Steps down. Throws Overflow below 32,767 levels and for an object that is on the path already, which has
  /// levels without end.
  void Enter(const Ref<IMURTimelineObject>& ObjectA);
  /// The next child of the current object; none when all were met. The count is read once, on entering.
  Ref<IMURTimelineObject> NextChild();
  void Leave();

 private:
  struct Step {
    Ref<IMURTimelineObject> object;
    std::size_t count;
    std::size_t met = 0;
  };
  std::vector<Step> mSteps;
  std::unordered_set<const IMURTimelineObject*> mOnPath;
};

}  // namespace mur
