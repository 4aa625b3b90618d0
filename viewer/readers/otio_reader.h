#pragma once

#include <string_view>

#include "viewer/readers/document.h"
#include "viewer/readers/progress.h"

namespace mur::viewer {

/// Reads OpenTimelineIO JSON: a timeline, a collection of timelines, or a single stack, track or clip.
///
/// Tracks become groups, clips media objects, transitions scalars centred on their cut, gaps nothing but
/// time. The document starts at the timeline's global start time, as seconds from midnight of the neutral
/// day. Effects are not read: a clip that runs faster or stands still keeps the time that it takes in the
/// edit. Throws ReadError.
Document ReadOtio(std::string_view TextA, Progress& ProgressA);

}  // namespace mur::viewer
