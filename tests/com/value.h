#pragma once

#include <concepts>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include <objsafe.h>

#include <murtimeline/com/contract.h>

// Not in the compiler's headers.
__CRT_UUID_DECL(IObjectSafety, 0xcb5bdc81, 0x93c1, 0x11cf, 0x8f, 0x20, 0x00, 0x80, 0x5f, 0x2c, 0xd0, 0x64)

namespace mur::test {

using com::Query;
using com::TakeOver;

/// An automation variant that owns what is in it and is written as the value that it is: `3` is a Long, `3.0`
/// a Double, `L"text"` a string. Two are equal when type and content are.
class Value {
 public:
  Value() noexcept { VariantInit(&mValue); }
  Value(bool ValueA) noexcept;
  Value(short ValueA) noexcept;
  Value(int ValueA) noexcept;
  Value(long ValueA) noexcept;
  Value(float ValueA) noexcept;
  Value(double ValueA) noexcept;
  Value(const wchar_t* TextA) : Value(std::wstring_view(TextA)) {}
  Value(const std::wstring& TextA) : Value(std::wstring_view(TextA)) {}
  Value(std::wstring_view TextA);
  Value(IDispatch* ObjectA) noexcept;
  template <std::derived_from<IDispatch> T>
  Value(const Ref<T>& ObjectA) noexcept : Value(static_cast<IDispatch*>(ObjectA.Get())) {}

  static Value Date(double DaysA) noexcept;
  static Value Null() noexcept;
  /// An optional argument that is left out.
  static Value Missing() noexcept;
  static Value Nothing() noexcept { return Value(static_cast<IDispatch*>(nullptr)); }
  static Value Unknown(IUnknown* ObjectA) noexcept;
  static Value CopyOf(const VARIANT& ValueA);
  /// Any type; all bits of the content but its type are 0.
  static Value Blank(VARTYPE TypeA) noexcept;

  /// What the platform cannot copy has nothing to be owned.
  Value(const Value& OtherA) : Value() {
    if (FAILED(VariantCopy(&mValue, const_cast<VARIANT*>(&OtherA.mValue)))) mValue = OtherA.mValue;
  }
  Value(Value&& OtherA) noexcept : mValue(OtherA.mValue) { VariantInit(&OtherA.mValue); }
  Value& operator=(Value OtherA) noexcept {
    std::swap(mValue, OtherA.mValue);
    return *this;
  }
  ~Value() { VariantClear(&mValue); }

  VARIANT* operator&() noexcept { return &mValue; }
  const VARIANT& Get() const noexcept { return mValue; }
  VARIANT& Get() noexcept { return mValue; }
  VARTYPE Type() const noexcept { return V_VT(&mValue); }
  /// The text in it; none in other values.
  std::wstring_view Text() const noexcept;
  /// The number in it, by the platform's conversion; 0 for what is none.
  double Number() const noexcept;
  /// The object in it; null for other values.
  IUnknown* Object() const noexcept;

  friend bool operator==(const Value& LeftA, const Value& RightA);

 private:
  VARIANT mValue;
};

using Values = std::vector<Value>;

std::string ToUtf8(std::wstring_view TextA);
std::wstring ToWide(std::string_view TextA);
/// "S_OK", "DISP_E_TYPEMISMATCH", "0x800A0006".
std::string ResultText(HRESULT ResultA);

void PrintTo(const Value& ValueA, std::ostream* StreamA);

/// A string of the platform's for one call.
class Text {
 public:
  explicit Text(std::wstring_view TextA)
      : mText(SysAllocStringLen(TextA.data(), static_cast<UINT>(TextA.size()))) {}
  Text(const Text&) = delete;
  Text& operator=(const Text&) = delete;
  ~Text() { SysFreeString(mText); }
  operator BSTR() const noexcept { return mText; }

 private:
  BSTR mText;
};

/// The name of something in a type library.
std::wstring NameIn(ITypeInfo& TypeA, MEMBERID MemberA = MEMBERID_NIL);

}  // namespace mur::test
