#pragma once

#include <cstddef>
#include <optional>
#include <vector>

#include <murtimeline/automation/string.h>

namespace mur {

/// What a user-defined pattern formats its value as.
enum class PatternKind { Number, Date, Text };

/// A stretch of a pattern's own text.
struct PatternSpan {
  std::size_t offset = 0;
  std::size_t length = 0;
};

constexpr char16_t AsciiLower(char16_t UnitA) {
  return UnitA >= u'A' && UnitA <= u'Z' ? static_cast<char16_t>(UnitA + 32) : UnitA;
}

/// Whether `TextA` goes on with `WordA` (in lower case) at `PositionA`; the case of ASCII letters is ignored.
bool StartsWord(StringView TextA, std::size_t PositionA, StringView WordA);

/// Whether `TextA` is `WordA` (in lower case); the case of ASCII letters is ignored.
bool IsWord(StringView TextA, StringView WordA);

/// The literal in quotes or behind a backslash that starts at `PositionA`, which moves behind it; none when
/// there is no such literal. A quote that is never closed runs to the end; a backslash at the end is empty.
std::optional<PatternSpan> TakeQuoted(StringView PatternA, std::size_t& PositionA);

/// The sections between the semicolons that are not part of a literal; always at least one.
std::vector<StringView> SplitSections(StringView PatternA);

/// The first placeholder decides. A pattern of literals only counts as a number pattern.
PatternKind DecideKind(StringView PatternA);

/// The word for the default number text inside a number pattern, in lower case.
inline constexpr StringView kGeneralWord = u"general";

}  // namespace mur
