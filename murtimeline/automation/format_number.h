#pragma once

#include <vector>

#include <murtimeline/automation/format_decimal.h>
#include <murtimeline/automation/format_pattern.h>
#include <murtimeline/automation/format_region.h>

namespace mur {

enum class NumberPart {
  Literal,
  DateSeparator,
  TimeSeparator,
  RequiredDigit,
  OptionalDigit,
  DecimalPoint,
  Exponent,
  General
};

/// One section of a number pattern made ready.
struct NumberSection {
  struct Token {
    NumberPart part;
    PatternSpan span;
  };
  String source;
  std::vector<Token> tokens;
  std::ptrdiff_t integerDigits = 0;           ///< placeholders before the decimal separator
  std::ptrdiff_t requiredIntegerDigits = 0;   ///< those from the leftmost 0 on
  std::ptrdiff_t fractionDigits = 0;          ///< placeholders behind the decimal separator
  std::ptrdiff_t requiredFractionDigits = 0;  ///< those up to the rightmost 0
  std::ptrdiff_t shift = 0;                   ///< power of ten the value is multiplied by (percent, scaling)
  bool grouped = false;
  bool scientific = false;
  bool hasPoint = false;
  bool general = false;

  /// Whether the section shows digits of the value, not only literals.
  bool ShowsValue() const { return integerDigits + fractionDigits > 0 || hasPoint || general; }
};

/// A number pattern made ready: the sections for positive, negative, zero and null values, as far as given.
struct NumberPattern {
  std::vector<NumberSection> sections;
};

NumberPattern ParseNumberPattern(StringView PatternA);

String WriteNumber(const Decimal& ValueA, const NumberPattern& PatternA, const Region& RegionA);

/// The fourth section's literals; without such a section nothing.
String WriteNull(const NumberPattern& PatternA, const Region& RegionA);

}  // namespace mur
