#pragma once

#include <murtimeline/model/timeline_object_interface.h>

namespace mur {

/// The top-level ancestor, the object itself when it has no parent. Throws OutOfStackSpace for a ring.
Ref<IMURTimelineObject> GetRootObject(const Ref<IMURTimelineObject>& ObjectA);

/// 1 + the number of ancestors. Throws Overflow beyond 32,767, OutOfStackSpace for a ring.
int GetNestingLevel(const Ref<IMURTimelineObject>& ObjectA);

/// 1 + the depth of the deepest child. Throws Overflow beyond 32,767, OutOfStackSpace for an object that
/// contains itself.
int GetSubtreeDepth(const Ref<IMURTimelineObject>& ObjectA);

}  // namespace mur
