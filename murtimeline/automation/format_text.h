#pragma once

#include <vector>

#include <murtimeline/automation/format_letter_case.h>
#include <murtimeline/automation/format_pattern.h>

namespace mur {

enum class TextPart { Literal, CharacterOrSpace, CharacterOrNothing };

/// One section of a text pattern made ready.
struct TextSection {
  struct Token {
    TextPart part;
    PatternSpan span;
  };
  String source;
  std::vector<Token> tokens;
  std::size_t placeholders = 0;
  LetterCase letterCase = LetterCase::AsIs;
  bool leftToRight = false;
};

/// A text pattern made ready: the section for texts, and the one for empty texts and null where given.
struct TextPattern {
  std::vector<TextSection> sections;
};

TextPattern ParseTextPattern(StringView PatternA);

/// A text that is too short leaves the first placeholders empty, or the last where the pattern says "!". What
/// is left of a longer one follows at the end.
String WriteText(StringView ValueA, const TextPattern& PatternA);

}  // namespace mur
