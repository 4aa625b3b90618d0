#pragma once

#include <string_view>

#include "viewer/readers/document.h"
#include "viewer/readers/progress.h"

namespace mur::viewer {

/// Reads the trace event format (JSON). Each process becomes a group on a track of its own and each of its
/// threads a group on a track below it; a slice becomes a scalar, or a group of kind kSliceGroup when others
/// lie in it, one level per depth. A control draws one row per level of a track, so that threads in one track
/// would lie upon each other.
///
/// The first event stands at the start of the fine day, to the microsecond and below. Events other than
/// slices, names of processes and threads are counted and left out. Throws ReadError.
Document ReadTrace(std::string_view TextA, Progress& ProgressA);

}  // namespace mur::viewer
