#pragma once

#include <string>
#include <string_view>

#include "viewer/writers/json_text.h"

namespace mur::viewer {

/// A new gap of `FramesA` frames, laid out as the item `ModelA` of the same text is; `RateA` is the rate as
/// that text writes it.
std::string NewGapText(std::string_view TextA, const JsonNode& ModelA, double FramesA,
                       std::string_view RateA);

}  // namespace mur::viewer
