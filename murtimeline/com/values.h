#pragma once

#include <murtimeline/automation/color.h>
#include <murtimeline/automation/date.h>
#include <murtimeline/automation/string.h>
#include <murtimeline/automation/variant.h>
#include <murtimeline/com/contract.h>

namespace mur::com {

/// For functions of the platform's that change nothing but do not say so.
inline VARIANT* ForReading(const VARIANT* ValueA) noexcept {
  return const_cast<VARIANT*>(ValueA);
}

/// Owns an automation variant.
class OwnVariant {
 public:
  OwnVariant() noexcept { VariantInit(&mValue); }
  OwnVariant(OwnVariant&& OtherA) noexcept : mValue(OtherA.mValue) { VariantInit(&OtherA.mValue); }
  OwnVariant& operator=(OwnVariant&& OtherA) noexcept {
    std::swap(mValue, OtherA.mValue);
    return *this;
  }
  ~OwnVariant() { VariantClear(&mValue); }

  VARIANT* operator&() noexcept { return &mValue; }
  const VARIANT& Get() const noexcept { return mValue; }
  VARIANT& Get() noexcept { return mValue; }
  /// Gives the value up.
  VARIANT Detach() noexcept {
    const VARIANT value = mValue;
    VariantInit(&mValue);
    return value;
  }

 private:
  VARIANT mValue;
};

/// Owns an automation string.
class OwnText {
 public:
  OwnText() = default;
  /// Throws std::bad_alloc.
  explicit OwnText(StringView TextA);
  OwnText(const OwnText&) = delete;
  OwnText& operator=(const OwnText&) = delete;
  ~OwnText() { SysFreeString(mText); }

  BSTR* operator&() noexcept { return &mText; }
  BSTR Get() const noexcept { return mText; }
  BSTR Detach() noexcept { return std::exchange(mText, nullptr); }

 private:
  BSTR mText = nullptr;
};

// What comes from a host, as the core has it. A date is kept as it is, in range or not.
StringView Taken(BSTR TextA);
inline bool Taken(VARIANT_BOOL ValueA) {
  return ValueA != VARIANT_FALSE;
}
/// References are followed; objects, arrays and whatever else the core cannot read become foreign values.
Variant Taken(const VARIANT& ValueA);
inline OleColor TakenColor(long ValueA) {
  return static_cast<OleColor>(ValueA);
}

// What goes to a host.
inline void Give(StringView TextA, BSTR* ResultA) {
  *ResultA = OwnText(TextA).Detach();
}
inline void Give(const String& TextA, BSTR* ResultA) {
  Give(StringView(TextA), ResultA);
}
inline void Give(Date DateA, DATE* ResultA) {
  *ResultA = DateA.Days();
}
inline void Give(double ValueA, double* ResultA) {
  *ResultA = ValueA;
}
inline void Give(float ValueA, float* ResultA) {
  *ResultA = ValueA;
}
inline void Give(bool ValueA, VARIANT_BOOL* ResultA) {
  *ResultA = ValueA ? VARIANT_TRUE : VARIANT_FALSE;
}
inline void Give(std::int16_t ValueA, short* ResultA) {
  *ResultA = ValueA;
}
inline void Give(std::int32_t ValueA, long* ResultA) {
  *ResultA = ValueA;
}
inline void Give(OleColor ValueA, long* ResultA) {
  *ResultA = static_cast<long>(ValueA);
}
template <class Number, class Enumeration>
requires std::is_enum_v<Enumeration>
void Give(Number ValueA, Enumeration* ResultA) {
  *ResultA = static_cast<Enumeration>(ValueA);
}
void Give(const Variant& ValueA, VARIANT* ResultA);
/// A text in a variant.
void Give(const String& TextA, VARIANT* ResultA);

}  // namespace mur::com
