#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include <murtimeline/automation/format_region.h>
#include <murtimeline/automation/string.h>

namespace mur {

/// A number as its decimal digits, 0.d1d2d3... times ten to the power of `Point`.
///
/// A double is taken with the 15 significant digits that it shows, a single with its 7, an integer exactly.
/// That is the value all rounding starts from.
class Decimal {
 public:
  Decimal() = default;
  static Decimal FromDouble(double ValueA);  ///< finite
  static Decimal FromSingle(float ValueA);   ///< finite
  static Decimal FromInteger(std::int64_t ValueA);
  static Decimal FromInteger(std::uint64_t ValueA);

  bool IsZero() const { return mCount == 0; }
  bool IsNegative() const { return mNegative; }
  Decimal Magnitude() const;

  /// The number of digits before the decimal separator; zero or less for a number below one.
  std::ptrdiff_t Point() const { return mPoint; }

  /// The most digits before the decimal separator with which the number's type is still written in full.
  std::ptrdiff_t Precision() const { return mPrecision; }

  /// The number of significant digits behind the decimal separator; zero or less for a whole number.
  std::ptrdiff_t FractionLength() const { return mCount - mPoint; }

  /// The digit at a power of ten: 0 is the units, -1 the tenths.
  char16_t DigitAt(std::ptrdiff_t PowerA) const;

  /// Multiplies by ten to a power.
  void Shift(std::ptrdiff_t PowerA);

  /// Keeps so many digits behind the decimal separator; halves go away from zero.
  void Round(std::ptrdiff_t FractionLengthA);

 private:
  template <class Number>
  static Decimal FromFloating(Number ValueA, int PrecisionA);
  static Decimal FromDigits(std::string_view DigitsA, bool NegativeA);
  void Append(char DigitA);
  void StripZeros();

  static constexpr std::size_t kCapacity = 20;  // the largest 64-bit integer

  bool mNegative = false;
  std::ptrdiff_t mPrecision = kCapacity;
  std::ptrdiff_t mCount = 0;
  std::ptrdiff_t mPoint = 0;
  std::array<char, kCapacity> mDigits{};
};

/// The shortest text of a number; scientific below 0.0001 and from 1E+15 on (a single from 1E+07 on).
/// Integer types are always written in full.
String ShortestText(const Decimal& ValueA, const Region& RegionA);

/// "NaN", "Infinity" or "-Infinity".
StringView NonFiniteText(double ValueA);

}  // namespace mur
