#include <algorithm>

#include <murtimeline/automation/format_text.h>

namespace mur {
namespace {

TextSection ParseSection(StringView SourceA) {
  TextSection section;
  section.source = SourceA;
  for (std::size_t i = 0; i < SourceA.size();) {
    if (const auto quoted = TakeQuoted(SourceA, i)) {
      section.tokens.push_back({TextPart::Literal, *quoted});
      continue;
    }
    switch (SourceA[i]) {
      case u'@':
        ++section.placeholders;
        section.tokens.push_back({TextPart::CharacterOrSpace, {i, 1}});
        break;
      case u'&':
        ++section.placeholders;
        section.tokens.push_back({TextPart::CharacterOrNothing, {i, 1}});
        break;
      case u'<':
        section.letterCase = LetterCase::Lower;
        break;
      case u'>':
        section.letterCase = LetterCase::Upper;
        break;
      case u'!':
        section.leftToRight = true;
        break;
      default:
        section.tokens.push_back({TextPart::Literal, {i, 1}});
    }
    ++i;
  }
  return section;
}

String WriteSection(StringView ValueA, const TextSection& SectionA) {
  String value(ValueA);
  ApplyLetterCase(value, SectionA.letterCase);
  const std::size_t missing = SectionA.placeholders - std::min(value.size(), SectionA.placeholders);
  std::size_t unfilled = SectionA.leftToRight ? 0 : missing;
  std::size_t next = 0;
  String text;
  for (const TextSection::Token& token : SectionA.tokens) {
    if (token.part == TextPart::Literal) {
      text += StringView(SectionA.source).substr(token.span.offset, token.span.length);
    } else if (unfilled > 0 || next == value.size()) {
      if (unfilled > 0) --unfilled;
      if (token.part == TextPart::CharacterOrSpace) text += u' ';
    } else {
      text += value[next++];
    }
  }
  return text.append(value, next);
}

}  // namespace

TextPattern ParseTextPattern(StringView PatternA) {
  TextPattern pattern;
  for (const StringView section : SplitSections(PatternA)) pattern.sections.push_back(ParseSection(section));
  return pattern;
}

String WriteText(StringView ValueA, const TextPattern& PatternA) {
  const bool useSecond = ValueA.empty() && PatternA.sections.size() > 1;
  return WriteSection(ValueA, PatternA.sections[useSecond ? 1 : 0]);
}

}  // namespace mur
