#include <limits>

#include <murtimeline/automation/error.h>
#include <murtimeline/render/object_path.h>

namespace mur {

void ObjectPath::Enter(const Ref<IMURTimelineObject>& ObjectA) {
  if (mSteps.size() >= static_cast<std::size_t>(std::numeric_limits<std::int16_t>::max()))
    throw AutomationError(ErrorCode::Overflow);
  const std::size_t count = ObjectA->ChildCount();
  if (!mOnPath.insert(ObjectA.Get()).second) throw AutomationError(ErrorCode::Overflow);
  mSteps.push_back({ObjectA, count});
}

Ref<IMURTimelineObject> ObjectPath::NextChild() {
  Step& step = mSteps.back();
  while (step.met < step.count)
    if (Ref<IMURTimelineObject> child = step.object->Item(static_cast<std::int32_t>(++step.met)))
      return child;
  return {};
}

void ObjectPath::Leave() {
  mOnPath.erase(mSteps.back().object.Get());
  mSteps.pop_back();
}

}  // namespace mur
