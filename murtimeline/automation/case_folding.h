#pragma once

#include <cstdint>

#include <murtimeline/automation/export.h>
#include <murtimeline/automation/string.h>

namespace mur {

/// The folded form of a code point outside ASCII (simple case folding of the Unicode character database).
MUR_API char32_t FoldWideCase(char32_t CodePointA);

/// Whether two texts are equal when letter case is ignored, code point by code point. A lone surrogate is
/// equal to itself only.
MUR_API bool EqualIgnoringCase(StringView LeftA, StringView RightA);

/// A hash that is equal for texts that are EqualIgnoringCase.
MUR_API std::uint32_t HashIgnoringCase(StringView TextA);

/// Where `PatternA` occurs in `TextA` at or after `FromA`, letter case ignored; npos when it does not.
MUR_API std::size_t FindIgnoringCase(StringView TextA, StringView PatternA, std::size_t FromA = 0);

}  // namespace mur
