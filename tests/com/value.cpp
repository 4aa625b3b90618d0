#include "tests/com/value.h"

#include <cstring>
#include <map>

#include <murtimeline/automation/string.h>

namespace mur::test {
namespace {

template <class T>
VARIANT Made(VARTYPE TypeA, T ValueA) noexcept {
  VARIANT value{};
  V_VT(&value) = TypeA;
  std::memcpy(&V_I8(&value), &ValueA, sizeof ValueA);
  return value;
}

// Simple values have their content in the first eight bytes.
bool IsSameContent(const VARIANT& LeftA, const VARIANT& RightA) {
  if (V_VT(&LeftA) == VT_DECIMAL) return std::memcmp(&LeftA, &RightA, sizeof(DECIMAL)) == 0;
  switch (V_VT(&LeftA)) {
    case VT_I1:
    case VT_UI1:
      return V_UI1(&LeftA) == V_UI1(&RightA);
    case VT_BOOL:
    case VT_I2:
    case VT_UI2:
      return V_I2(&LeftA) == V_I2(&RightA);
    case VT_ERROR:
    case VT_INT:
    case VT_UINT:
    case VT_I4:
    case VT_UI4:
    case VT_R4:
      return V_I4(&LeftA) == V_I4(&RightA);
    case VT_EMPTY:
    case VT_NULL:
      return true;
    default:
      return V_I8(&LeftA) == V_I8(&RightA);
  }
}

}  // namespace

Value::Value(bool ValueA) noexcept : mValue(Made(VT_BOOL, ValueA ? VARIANT_TRUE : VARIANT_FALSE)) {}
Value::Value(short ValueA) noexcept : mValue(Made(VT_I2, ValueA)) {}
Value::Value(int ValueA) noexcept : mValue(Made(VT_I4, ValueA)) {}
Value::Value(long ValueA) noexcept : mValue(Made(VT_I4, ValueA)) {}
Value::Value(float ValueA) noexcept : mValue(Made(VT_R4, ValueA)) {}
Value::Value(double ValueA) noexcept : mValue(Made(VT_R8, ValueA)) {}

Value::Value(std::wstring_view TextA)
    : mValue(Made(VT_BSTR, SysAllocStringLen(TextA.data(), static_cast<UINT>(TextA.size())))) {}

Value::Value(IDispatch* ObjectA) noexcept : mValue(Made(VT_DISPATCH, ObjectA)) {
  if (ObjectA) ObjectA->AddRef();
}

Value Value::Date(double DaysA) noexcept {
  return Value::CopyOf(Made(VT_DATE, DaysA));
}

Value Value::Null() noexcept {
  return Blank(VT_NULL);
}

Value Value::Missing() noexcept {
  return Value::CopyOf(Made(VT_ERROR, DISP_E_PARAMNOTFOUND));
}

Value Value::Unknown(IUnknown* ObjectA) noexcept {
  return Value::CopyOf(Made(VT_UNKNOWN, ObjectA));
}

Value Value::CopyOf(const VARIANT& ValueA) {
  Value value;
  VariantCopy(&value, const_cast<VARIANT*>(&ValueA));
  return value;
}

Value Value::Blank(VARTYPE TypeA) noexcept {
  Value value;
  value.mValue = VARIANT{};
  V_VT(&value.mValue) = TypeA;
  return value;
}

std::wstring_view Value::Text() const noexcept {
  if (Type() != VT_BSTR) return {};
  return {V_BSTR(&mValue), SysStringLen(V_BSTR(&mValue))};
}

double Value::Number() const noexcept {
  Value number;
  VariantChangeType(&number, const_cast<VARIANT*>(&mValue), 0, VT_R8);
  return number.Type() == VT_R8 ? V_R8(&number.mValue) : 0;
}

IUnknown* Value::Object() const noexcept {
  return Type() == VT_DISPATCH || Type() == VT_UNKNOWN ? V_UNKNOWN(&mValue) : nullptr;
}

bool operator==(const Value& LeftA, const Value& RightA) {
  if (LeftA.Type() != RightA.Type()) return false;
  if (LeftA.Type() == VT_BSTR) return LeftA.Text() == RightA.Text();
  return IsSameContent(LeftA.mValue, RightA.mValue);
}

std::string ToUtf8(std::wstring_view TextA) {
  return mur::ToUtf8({reinterpret_cast<const char16_t*>(TextA.data()), TextA.size()});
}

std::wstring ToWide(std::string_view TextA) {
  const String text = FromUtf8(TextA);
  return {text.begin(), text.end()};
}

std::string ResultText(HRESULT ResultA) {
  static const std::map<HRESULT, const char*> kNames = {
      {S_OK, "S_OK"},
      {S_FALSE, "S_FALSE"},
      {E_POINTER, "E_POINTER"},
      {E_INVALIDARG, "E_INVALIDARG"},
      {E_NOINTERFACE, "E_NOINTERFACE"},
      {E_UNEXPECTED, "E_UNEXPECTED"},
      {E_FAIL, "E_FAIL"},
      {DISP_E_EXCEPTION, "DISP_E_EXCEPTION"},
      {DISP_E_TYPEMISMATCH, "DISP_E_TYPEMISMATCH"},
      {DISP_E_OVERFLOW, "DISP_E_OVERFLOW"},
      {DISP_E_BADVARTYPE, "DISP_E_BADVARTYPE"},
      {DISP_E_BADPARAMCOUNT, "DISP_E_BADPARAMCOUNT"},
      {DISP_E_PARAMNOTOPTIONAL, "DISP_E_PARAMNOTOPTIONAL"},
      {DISP_E_PARAMNOTFOUND, "DISP_E_PARAMNOTFOUND"},
      {DISP_E_MEMBERNOTFOUND, "DISP_E_MEMBERNOTFOUND"},
      {DISP_E_UNKNOWNNAME, "DISP_E_UNKNOWNNAME"},
      {DISP_E_UNKNOWNINTERFACE, "DISP_E_UNKNOWNINTERFACE"},
  };
  if (const auto known = kNames.find(ResultA); known != kNames.end()) return known->second;
  char text[16];
  std::snprintf(text, sizeof text, "0x%08lX", static_cast<unsigned long>(ResultA));
  return text;
}

void PrintTo(const Value& ValueA, std::ostream* StreamA) {
  *StreamA << "type " << ValueA.Type() << ": ";
  if (ValueA.Type() == VT_BSTR)
    *StreamA << '"' << ToUtf8(ValueA.Text()) << '"';
  else if (ValueA.Object())
    *StreamA << "an object";
  else
    *StreamA << ValueA.Number();
}

std::wstring NameIn(ITypeInfo& TypeA, MEMBERID MemberA) {
  BSTR name = nullptr;
  if (FAILED(TypeA.GetDocumentation(MemberA, &name, nullptr, nullptr, nullptr))) return {};
  const std::wstring result(name, SysStringLen(name));
  SysFreeString(name);
  return result;
}

}  // namespace mur::test
