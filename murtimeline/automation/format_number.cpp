#include <algorithm>
#include <cstdlib>
#include <string>

#include <murtimeline/automation/format_number.h>

namespace mur {
namespace {

// Writes one number by one section.
class SectionWriter {
 public:
  SectionWriter(const Decimal& ValueA, const NumberSection& SectionA, const Region& RegionA)
      : mSection(SectionA), mRegion(RegionA), mValue(ValueA) {
    mValue.Shift(mSection.shift);
    if (mSection.scientific)
      SplitExponent();
    else if (mSection.ShowsValue() && !mSection.general)
      mValue.Round(mSection.fractionDigits);
    mNextPower = std::max(mSection.integerDigits, mValue.Point()) - 1;
  }

  bool ShowsZero() const { return mSection.ShowsValue() && mValue.IsZero(); }

  String Write(bool WithMinusA) {
    if (WithMinusA && !mSection.tokens.empty()) mText += u'-';
    for (const NumberSection::Token& token : mSection.tokens) AppendPart(token);
    return std::move(mText);
  }

 private:
  // The mantissa has as many whole digits as the section has placeholders for them.
  void SplitExponent() {
    if (mValue.IsZero()) return;
    mExponent = mValue.Point() - mSection.integerDigits;
    mValue.Shift(-mExponent);
    mValue.Round(mSection.fractionDigits);
    const std::ptrdiff_t carried = mValue.Point() - mSection.integerDigits;
    mValue.Shift(-carried);
    mExponent += carried;
  }

  void AppendPart(const NumberSection::Token& TokenA) {
    switch (TokenA.part) {
      case NumberPart::Literal:
        mText += Span(TokenA);
        break;
      case NumberPart::DateSeparator:
        mText += mRegion.dateSeparator;
        break;
      case NumberPart::TimeSeparator:
        mText += mRegion.timeSeparator;
        break;
      case NumberPart::RequiredDigit:
      case NumberPart::OptionalDigit:
        if (mBehindPoint)
          AppendFractionDigit();
        else
          AppendIntegerDigits(--mPlaceholdersLeft);
        break;
      case NumberPart::DecimalPoint:
        AppendIntegerDigits(0);
        mText += mRegion.decimalSeparator;
        mBehindPoint = true;
        break;
      case NumberPart::Exponent:
        AppendExponent(Span(TokenA));
        break;
      case NumberPart::General:
        AppendGeneral();
        break;
    }
  }

  StringView Span(const NumberSection::Token& TokenA) const {
    return StringView(mSection.source).substr(TokenA.span.offset, TokenA.span.length);
  }

  // Down to and with a power of ten: the first placeholder takes all digits that have no placeholder.
  void AppendIntegerDigits(std::ptrdiff_t LowestPowerA) {
    const std::ptrdiff_t shown = std::max(mSection.requiredIntegerDigits, mValue.Point());
    for (; mNextPower >= LowestPowerA; --mNextPower) {
      if (mNextPower >= shown) continue;
      mText += mValue.DigitAt(mNextPower);
      if (mSection.grouped && IsGroupEnd(mNextPower)) mText += mRegion.groupSeparator;
    }
  }

  bool IsGroupEnd(std::ptrdiff_t PowerA) const {
    const auto primary = static_cast<std::ptrdiff_t>(mRegion.primaryGroup);
    const auto secondary = static_cast<std::ptrdiff_t>(mRegion.secondaryGroup);
    if (primary == 0 || PowerA < primary) return false;
    return (PowerA - primary) % secondary == 0;
  }

  void AppendFractionDigit() {
    ++mFractionDigits;
    if (mFractionDigits <= std::max(mSection.requiredFractionDigits, mValue.FractionLength()))
      mText += mValue.DigitAt(-mFractionDigits);
  }

  void AppendExponent(StringView PlaceholderA) {
    AppendIntegerDigits(0);
    mText += PlaceholderA[0];
    if (mExponent < 0)
      mText += u'-';
    else if (PlaceholderA[1] == u'+')
      mText += u'+';
    const std::string digits = std::to_string(std::abs(mExponent));
    const auto required =
        static_cast<std::size_t>(std::count(PlaceholderA.begin(), PlaceholderA.end(), u'0'));
    if (digits.size() < required) mText.append(required - digits.size(), u'0');
    mText.append(digits.begin(), digits.end());
  }

  void AppendGeneral() { mText += ShortestText(mValue.Magnitude(), mRegion); }

  const NumberSection& mSection;
  const Region& mRegion;
  Decimal mValue;
  std::ptrdiff_t mExponent = 0;
  std::ptrdiff_t mPlaceholdersLeft = mSection.integerDigits;
  std::ptrdiff_t mNextPower = 0;
  std::ptrdiff_t mFractionDigits = 0;
  bool mBehindPoint = false;
  String mText;
};

// A section that is missing or empty stands for the first one.
const NumberSection& SectionOrFirst(const NumberPattern& PatternA, std::size_t IndexA) {
  const auto& sections = PatternA.sections;
  return IndexA < sections.size() && !sections[IndexA].tokens.empty() ? sections[IndexA] : sections.front();
}

String WriteZero(const NumberPattern& PatternA, const Region& RegionA) {
  return SectionWriter(Decimal(), SectionOrFirst(PatternA, 2), RegionA).Write(false);
}

}  // namespace

String WriteNumber(const Decimal& ValueA, const NumberPattern& PatternA, const Region& RegionA) {
  if (ValueA.IsZero()) return WriteZero(PatternA, RegionA);
  const NumberSection& first = PatternA.sections.front();
  const NumberSection& section = ValueA.IsNegative() ? SectionOrFirst(PatternA, 1) : first;
  SectionWriter writer(ValueA, section, RegionA);
  if (!ValueA.IsNegative()) return writer.Write(false);
  // What shows as zero is treated as zero, so that it carries neither a minus nor another negative mark.
  if (writer.ShowsZero()) return WriteZero(PatternA, RegionA);
  return writer.Write(&section == &first);
}

String WriteNull(const NumberPattern& PatternA, const Region& RegionA) {
  if (PatternA.sections.size() < 4) return {};
  return SectionWriter(Decimal(), PatternA.sections[3], RegionA).Write(false);
}

}  // namespace mur
