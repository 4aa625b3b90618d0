#pragma once

#include <string_view>

#include "viewer/readers/document.h"
#include "viewer/readers/progress.h"

namespace mur::viewer {

/// Reads SubRip subtitles. Forgiving where players are: commas or dots, any number of decimals, missing cue
/// numbers, coordinates behind the times, blank lines inside a text. A line of times that cannot be read, or
/// a last cue that is cut off, throws ReadError.
Document ReadSubRip(std::string_view BytesA, Progress& ProgressA);

}  // namespace mur::viewer
