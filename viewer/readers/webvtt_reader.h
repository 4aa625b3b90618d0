#pragma once

#include <string_view>

#include "viewer/readers/document.h"
#include "viewer/readers/progress.h"

namespace mur::viewer {

/// Reads WebVTT subtitles. Comments, styles and regions, cue names and cue settings are skipped. A line of
/// times that cannot be read, or a last block that is cut off, throws ReadError.
Document ReadWebVtt(std::string_view BytesA, Progress& ProgressA);

}  // namespace mur::viewer
