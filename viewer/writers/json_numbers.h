#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace mur::viewer {

/// A number as JSON has it; none for anything else, and for what is not finite.
std::optional<double> ReadNumber(std::string_view TokenA);

/// The shortest text that reads back as the same number; a whole number gets a point where `SampleA`, a
/// number of the same file, has one.
std::string NumberLike(double ValueA, std::string_view SampleA);

}  // namespace mur::viewer
