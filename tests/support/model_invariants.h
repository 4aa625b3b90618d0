#pragma once

#include <murtimeline/model/timeline.h>

namespace mur::test {

/// Adds a failure for each rule that a time line and the objects below it break: positions, keys and items
/// agree, enumeration meets every member once in order, known subtree depths equal walked ones, no count
/// differs from what can be reached.
void ExpectSound(const CMURTimeline& TimelineA);
/// The same for an object and all below it.
void ExpectSound(const Ref<IMURTimelineObject>& RootA);

}  // namespace mur::test
