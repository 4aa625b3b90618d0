#include <algorithm>
#include <charconv>
#include <cmath>

#include <murtimeline/automation/format_decimal.h>

namespace mur {
namespace {

constexpr std::ptrdiff_t kMostLeadingZeros = 3;

template <class... Arguments>
std::string_view ToChars(std::array<char, 32>& BufferA, Arguments... ArgumentsA) {
  const auto result = std::to_chars(BufferA.data(), BufferA.data() + BufferA.size(), ArgumentsA...);
  return {BufferA.data(), static_cast<std::size_t>(result.ptr - BufferA.data())};
}

void AppendExponent(String& TextA, std::ptrdiff_t ExponentA) {
  std::array<char, 32> buffer;
  const std::string_view digits = ToChars(buffer, std::abs(ExponentA));
  TextA += ExponentA < 0 ? u"E-" : u"E+";
  if (digits.size() < 2) TextA += u'0';
  TextA.append(digits.begin(), digits.end());
}

// All digits from a power of ten down to another, the decimal separator where it belongs.
void AppendDigits(String& TextA, const Decimal& ValueA, const Region& RegionA) {
  const std::ptrdiff_t highest = std::max<std::ptrdiff_t>(ValueA.Point() - 1, 0);
  for (std::ptrdiff_t power = highest; power >= -ValueA.FractionLength() || power >= 0; --power) {
    if (power == -1) TextA += RegionA.decimalSeparator;
    TextA += ValueA.DigitAt(power);
  }
}

}  // namespace

template <class Number>
Decimal Decimal::FromFloating(Number ValueA, int PrecisionA) {
  // One digit, a point, more digits, "e", the exponent's sign, the exponent.
  std::array<char, 32> buffer;
  const std::string_view text =
      ToChars(buffer, std::fabs(ValueA), std::chars_format::scientific, PrecisionA - 1);
  const std::size_t e = text.find('e');
  Decimal decimal;
  decimal.mNegative = std::signbit(ValueA);
  decimal.mPrecision = PrecisionA;
  decimal.Append(text.front());
  for (const char digit : text.substr(2, e - 2)) decimal.Append(digit);
  std::ptrdiff_t exponent = 0;
  std::from_chars(text.data() + e + 2, text.data() + text.size(), exponent);
  decimal.mPoint = (text[e + 1] == '-' ? -exponent : exponent) + 1;
  decimal.StripZeros();
  return decimal;
}

Decimal Decimal::FromDouble(double ValueA) {
  return FromFloating(ValueA, 15);
}

Decimal Decimal::FromSingle(float ValueA) {
  return FromFloating(ValueA, 7);
}

Decimal Decimal::FromInteger(std::int64_t ValueA) {
  std::array<char, 32> buffer;
  std::string_view text = ToChars(buffer, ValueA);
  if (ValueA < 0) text.remove_prefix(1);
  return FromDigits(text, ValueA < 0);
}

Decimal Decimal::FromInteger(std::uint64_t ValueA) {
  std::array<char, 32> buffer;
  return FromDigits(ToChars(buffer, ValueA), false);
}

Decimal Decimal::FromDigits(std::string_view DigitsA, bool NegativeA) {
  Decimal decimal;
  decimal.mNegative = NegativeA;
  for (const char digit : DigitsA) decimal.Append(digit);
  decimal.mPoint = decimal.mCount;
  decimal.StripZeros();
  return decimal;
}

void Decimal::Append(char DigitA) {
  mDigits[static_cast<std::size_t>(mCount++)] = DigitA;
}

void Decimal::StripZeros() {
  while (mCount > 0 && mDigits[static_cast<std::size_t>(mCount - 1)] == '0') --mCount;
  if (mCount == 0) *this = Decimal();
}

Decimal Decimal::Magnitude() const {
  Decimal magnitude = *this;
  magnitude.mNegative = false;
  return magnitude;
}

char16_t Decimal::DigitAt(std::ptrdiff_t PowerA) const {
  const std::ptrdiff_t index = mPoint - 1 - PowerA;
  return index >= 0 && index < mCount ? static_cast<char16_t>(mDigits[static_cast<std::size_t>(index)])
                                      : u'0';
}

void Decimal::Shift(std::ptrdiff_t PowerA) {
  if (!IsZero()) mPoint += PowerA;
}

void Decimal::Round(std::ptrdiff_t FractionLengthA) {
  const std::ptrdiff_t kept = mPoint + FractionLengthA;
  if (kept >= mCount) return;
  const bool up = kept >= 0 && mDigits[static_cast<std::size_t>(kept)] >= '5';
  mCount = std::max<std::ptrdiff_t>(kept, 0);
  if (up) {
    while (mCount > 0 && mDigits[static_cast<std::size_t>(mCount - 1)] == '9') --mCount;
    if (mCount > 0) {
      ++mDigits[static_cast<std::size_t>(mCount - 1)];
    } else {
      ++mPoint;
      Append('1');
    }
  }
  StripZeros();
}

String ShortestText(const Decimal& ValueA, const Region& RegionA) {
  String text;
  if (ValueA.IsNegative()) text += u'-';
  const bool isLarge = ValueA.Point() > ValueA.Precision();
  if (!isLarge && ValueA.Point() >= -kMostLeadingZeros) {
    AppendDigits(text, ValueA, RegionA);
    return text;
  }
  Decimal mantissa = ValueA;
  mantissa.Shift(1 - ValueA.Point());
  AppendDigits(text, mantissa, RegionA);
  AppendExponent(text, ValueA.Point() - 1);
  return text;
}

StringView NonFiniteText(double ValueA) {
  if (std::isnan(ValueA)) return u"NaN";
  return ValueA < 0 ? u"-Infinity" : u"Infinity";
}

}  // namespace mur
