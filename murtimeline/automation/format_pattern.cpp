#include <algorithm>

#include <murtimeline/automation/format_date.h>
#include <murtimeline/automation/format_pattern.h>

namespace mur {

bool StartsWord(StringView TextA, std::size_t PositionA, StringView WordA) {
  return TextA.size() - PositionA >= WordA.size() &&
         std::equal(WordA.begin(), WordA.end(), TextA.begin() + static_cast<std::ptrdiff_t>(PositionA),
                    [](char16_t word, char16_t unit) { return word == AsciiLower(unit); });
}

bool IsWord(StringView TextA, StringView WordA) {
  return TextA.size() == WordA.size() && StartsWord(TextA, 0, WordA);
}

std::optional<PatternSpan> TakeQuoted(StringView PatternA, std::size_t& PositionA) {
  const char16_t opening = PatternA[PositionA];
  if (opening != u'"' && opening != u'\\') return std::nullopt;
  const std::size_t start = PositionA + 1;
  if (opening == u'\\') {
    const PatternSpan escaped{start, std::min<std::size_t>(1, PatternA.size() - start)};
    PositionA = start + escaped.length;
    return escaped;
  }
  const std::size_t end = std::min(PatternA.find(u'"', start), PatternA.size());
  PositionA = std::min(end + 1, PatternA.size());
  return PatternSpan{start, end - start};
}

std::vector<StringView> SplitSections(StringView PatternA) {
  std::vector<StringView> sections;
  std::size_t start = 0;
  for (std::size_t i = 0; i < PatternA.size();) {
    if (TakeQuoted(PatternA, i)) continue;
    if (PatternA[i++] != u';') continue;
    sections.push_back(PatternA.substr(start, i - 1 - start));
    start = i;
  }
  sections.push_back(PatternA.substr(start));
  return sections;
}

PatternKind DecideKind(StringView PatternA) {
  bool changesCase = false;
  for (std::size_t i = 0; i < PatternA.size();) {
    if (TakeQuoted(PatternA, i)) continue;
    const char16_t unit = PatternA[i];
    if (unit == u'0' || unit == u'#' || StartsWord(PatternA, i, kGeneralWord)) return PatternKind::Number;
    if (unit == u'@' || unit == u'&' || unit == u'!') return PatternKind::Text;
    if (IsDatePlaceholder(PatternA, i)) return PatternKind::Date;
    changesCase = changesCase || unit == u'<' || unit == u'>';
    ++i;
  }
  return changesCase ? PatternKind::Text : PatternKind::Number;
}

}  // namespace mur
