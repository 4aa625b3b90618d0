#include <algorithm>

#include <murtimeline/automation/format_number.h>

namespace mur {
namespace {

class SectionParser {
 public:
  explicit SectionParser(StringView SourceA) { mSection.source = SourceA; }

  NumberSection Parse() {
    while (mPosition < Source().size()) Step();
    ScaleByPendingCommas();
    return std::move(mSection);
  }

 private:
  StringView Source() const { return mSection.source; }

  void Step() {
    const std::size_t start = mPosition;
    if (const auto quoted = TakeQuoted(Source(), mPosition)) {
      mSection.tokens.push_back({NumberPart::Literal, *quoted});
    } else if (StartsWord(Source(), start, kGeneralWord)) {
      TakeGeneral();
    } else if (const std::size_t length = ExponentLength()) {
      Push(NumberPart::Exponent, length);
      mSection.scientific = true;
    } else {
      TakeUnit(Source()[mPosition]);
    }
  }

  void TakeUnit(char16_t UnitA) {
    switch (UnitA) {
      case u'0':
      case u'#':
        TakeDigit(UnitA == u'0');
        break;
      case u'.':
        TakePoint();
        break;
      case u',':
        ++mPendingCommas;
        ++mPosition;
        break;
      case u'%':
        mSection.shift += 2;
        Push(NumberPart::Literal, 1);
        break;
      case u'/':
        Push(NumberPart::DateSeparator, 1);
        break;
      case u':':
        Push(NumberPart::TimeSeparator, 1);
        break;
      default:
        Push(NumberPart::Literal, 1);
    }
  }

  void TakeDigit(bool RequiredA) {
    GroupByPendingCommas();
    if (mSection.hasPoint) {
      ++mSection.fractionDigits;
      if (RequiredA) mSection.requiredFractionDigits = mSection.fractionDigits;
    } else {
      ++mSection.integerDigits;
      if (RequiredA || mSection.requiredIntegerDigits > 0) ++mSection.requiredIntegerDigits;
    }
    Push(RequiredA ? NumberPart::RequiredDigit : NumberPart::OptionalDigit, 1);
  }

  void TakePoint() {
    if (mSection.hasPoint) return Push(NumberPart::Literal, 1);
    ScaleByPendingCommas();
    mSection.hasPoint = true;
    Push(NumberPart::DecimalPoint, 1);
  }

  // "General" and "General Number" are the same.
  void TakeGeneral() {
    constexpr StringView kLongForm = u"general number";
    Push(NumberPart::General,
         StartsWord(Source(), mPosition, kLongForm) ? kLongForm.size() : kGeneralWord.size());
    mSection.general = true;
  }

  // The length of "E+00" and the like at the present position; 0 when there is none.
  std::size_t ExponentLength() const {
    if (!mSection.ShowsValue() || mSection.scientific || AsciiLower(Source()[mPosition]) != u'e') return 0;
    const std::size_t sign = mPosition + 1;
    if (sign >= Source().size() || (Source()[sign] != u'+' && Source()[sign] != u'-')) return 0;
    const std::size_t end = std::min(Source().find_first_not_of(u"0#", sign + 1), Source().size());
    return end == sign + 1 ? 0 : end - mPosition;
  }

  // Commas between digits ask for grouping; those next to the end of the whole part divide by thousand each.
  void GroupByPendingCommas() {
    mSection.grouped = mSection.grouped || mPendingCommas > 0;
    mPendingCommas = 0;
  }
  void ScaleByPendingCommas() {
    if (!mSection.hasPoint) mSection.shift -= 3 * mPendingCommas;
    mPendingCommas = 0;
  }

  void Push(NumberPart PartA, std::size_t LengthA) {
    mSection.tokens.push_back({PartA, {mPosition, LengthA}});
    mPosition += LengthA;
  }

  NumberSection mSection;
  std::size_t mPosition = 0;
  std::ptrdiff_t mPendingCommas = 0;
};

}  // namespace

NumberPattern ParseNumberPattern(StringView PatternA) {
  NumberPattern pattern;
  for (const StringView section : SplitSections(PatternA))
    pattern.sections.push_back(SectionParser(section).Parse());
  return pattern;
}

}  // namespace mur
