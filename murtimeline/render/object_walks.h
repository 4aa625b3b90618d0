#pragma once

#include <murtimeline/automation/export.h>
#include <murtimeline/model/timeline_object_interface.h>

namespace mur {

// A ring has more levels than can be counted: each of these throws Overflow for it.

/// The top-level ancestor, the object itself when it has no parent.
MUR_API Ref<IMURTimelineObject> GetRootObject(const Ref<IMURTimelineObject>& ObjectA);

/// 1 + the number of ancestors. Throws Overflow beyond 32,767.
int GetNestingLevel(const Ref<IMURTimelineObject>& ObjectA);

/// 1 + the depth of the deepest child. Throws Overflow beyond 32,767.
int GetSubtreeDepth(const Ref<IMURTimelineObject>& ObjectA);

}  // namespace mur
