#include <algorithm>
#include <vector>

#include <murtimeline/automation/error.h>
#include <murtimeline/automation/narrow.h>
#include <murtimeline/render/object_path.h>
#include <murtimeline/render/object_walks.h>

namespace mur {
namespace {

// Calls `VisitA` for the object and each of its ancestors. A ring is found as Brent does (R. P. Brent, "An
// improved Monte Carlo factorization algorithm", 1980): an earlier object is kept and met again.
template <class Visit>
void ForEachUpwards(const Ref<IMURTimelineObject>& ObjectA, Visit&& VisitA) {
  Ref<IMURTimelineObject> landmark = ObjectA;
  std::size_t steps = 0, limit = 2;
  for (Ref<IMURTimelineObject> object = ObjectA; object;) {
    VisitA(object);
    object = object->Parent();
    if (object == landmark) throw AutomationError(ErrorCode::Overflow);
    if (++steps == limit) {
      landmark = object;
      steps = 0;
      limit *= 2;
    }
  }
}

}  // namespace

Ref<IMURTimelineObject> GetRootObject(const Ref<IMURTimelineObject>& ObjectA) {
  Ref<IMURTimelineObject> root;
  ForEachUpwards(ObjectA, [&](const Ref<IMURTimelineObject>& object) { root = object; });
  return root;
}

int GetNestingLevel(const Ref<IMURTimelineObject>& ObjectA) {
  std::size_t level = 0;
  ForEachUpwards(ObjectA, [&](const Ref<IMURTimelineObject>&) { ++level; });
  return Narrow<std::int16_t>(level);
}

int GetSubtreeDepth(const Ref<IMURTimelineObject>& ObjectA) {
  if (const auto known = ObjectA->KnownSubtreeDepth()) return *known;
  std::size_t deepest = 1;
  ObjectPath path;
  path.Enter(ObjectA);
  while (!path.IsEmpty()) {
    const Ref<IMURTimelineObject> child = path.NextChild();
    if (!child) {
      path.Leave();
    } else if (const auto known = child->KnownSubtreeDepth()) {
      deepest = std::max(deepest, path.Depth() + static_cast<std::size_t>(*known));
    } else {
      path.Enter(child);
      deepest = std::max(deepest, path.Depth());
    }
  }
  return Narrow<std::int16_t>(deepest);
}

}  // namespace mur
