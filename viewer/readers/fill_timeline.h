#pragma once

#include <murtimeline/model/timeline.h>

#include "viewer/readers/document.h"
#include "viewer/readers/progress.h"

namespace mur::viewer {

/// Throws ReadError, naming the object, when one lies outside the range of dates.
void RequireTimesInRange(const Document& DocumentA);

/// Empties the time line and fills it with the document. Every object becomes a member of the time line and,
/// below a group, a locked child of that group as well. Gives the keys of the objects in the order of the
/// document's entries. Cancelling leaves the time line empty.
std::vector<String> FillTimeline(CMURTimeline& TimelineA, const Document& DocumentA, Progress& ProgressA);

}  // namespace mur::viewer
