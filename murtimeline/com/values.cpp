#include <cstring>
#include <new>

#include <murtimeline/com/foreign_value.h>
#include <murtimeline/com/guard.h>
#include <murtimeline/com/objects.h>
#include <murtimeline/com/values.h>

namespace mur::com {
namespace {

// All simple values of a variant begin at the same place.
template <class Value>
Variant Read(const VARIANT& ValueA) {
  Value value;
  std::memcpy(&value, &V_I8(&ValueA), sizeof value);
  return value;
}

template <class Value>
bool Write(const Variant& ValueA, VARTYPE TypeA, VARIANT& ResultA) {
  const Value* value = ValueA.As<Value>();
  if (!value) return false;
  V_VT(&ResultA) = TypeA;
  std::memcpy(&V_I8(&ResultA), value, sizeof *value);
  return true;
}

bool WriteNumber(const Variant& ValueA, VARIANT& ResultA) {
  return Write<std::int32_t>(ValueA, VT_I4, ResultA) || Write<double>(ValueA, VT_R8, ResultA) ||
         Write<std::int8_t>(ValueA, VT_I1, ResultA) || Write<std::uint8_t>(ValueA, VT_UI1, ResultA) ||
         Write<std::int16_t>(ValueA, VT_I2, ResultA) || Write<std::uint16_t>(ValueA, VT_UI2, ResultA) ||
         Write<std::uint32_t>(ValueA, VT_UI4, ResultA) || Write<std::int64_t>(ValueA, VT_I8, ResultA) ||
         Write<std::uint64_t>(ValueA, VT_UI8, ResultA) || Write<float>(ValueA, VT_R4, ResultA);
}

void WriteObject(const Variant& ValueA, VARIANT& ResultA) {
  if (const auto* object = ValueA.As<Ref<Object>>()) {
    V_VT(&ResultA) = VT_DISPATCH;
    V_DISPATCH(&ResultA) = DispatchOf(*object).Detach();
  } else if (const auto* held = ValueA.As<Ref<ForeignValue>>()) {
    // The core makes no foreign values of its own.
    if (*held)
      RequireSuccess(VariantCopy(&ResultA, ForReading(&static_cast<const HeldValue&>(**held).Value())));
  }
}

bool IsMissing(const VARIANT& ValueA) {
  return V_VT(&ValueA) == VT_ERROR && V_ERROR(&ValueA) == DISP_E_PARAMNOTFOUND;
}

}  // namespace

OwnText::OwnText(StringView TextA)
    : mText(SysAllocStringByteLen(nullptr, static_cast<UINT>(TextA.size() * sizeof(char16_t)))) {
  if (!mText) throw std::bad_alloc();
  std::memcpy(mText, TextA.data(), TextA.size() * sizeof(char16_t));
}

std::optional<double> HeldValue::Number() const noexcept {
  const VARTYPE type = V_VT(&mValue.Get());
  if (type != VT_CY && type != VT_DECIMAL) return std::nullopt;
  OwnVariant number;
  if (FAILED(VariantChangeType(&number, ForReading(&mValue.Get()), 0, VT_R8))) return std::nullopt;
  return V_R8(&number.Get());
}

StringView Taken(BSTR TextA) {
  return {reinterpret_cast<const char16_t*>(TextA), SysStringLen(TextA)};
}

Variant Taken(const VARIANT& ValueA) {
  OwnVariant copy;
  RequireSuccess(VariantCopyInd(&copy, ForReading(&ValueA)));
  const VARIANT& value = copy.Get();
  switch (V_VT(&value)) {
    case VT_EMPTY:
      return {};
    case VT_NULL:
      return Variant::Null();
    case VT_BOOL:
      return V_BOOL(&value) != VARIANT_FALSE;
    case VT_I1:
      return Read<std::int8_t>(value);
    case VT_UI1:
      return Read<std::uint8_t>(value);
    case VT_I2:
      return Read<std::int16_t>(value);
    case VT_UI2:
      return Read<std::uint16_t>(value);
    case VT_I4:
    case VT_INT:
      return Read<std::int32_t>(value);
    case VT_UI4:
    case VT_UINT:
      return Read<std::uint32_t>(value);
    case VT_I8:
      return Read<std::int64_t>(value);
    case VT_UI8:
      return Read<std::uint64_t>(value);
    case VT_R4:
      return Read<float>(value);
    case VT_R8:
      return Read<double>(value);
    case VT_DATE:
      return Date::Unchecked(V_DATE(&value));
    case VT_BSTR:
      return Taken(V_BSTR(&value));
    default:
      break;
  }
  if (IsMissing(value)) return Variant::Missing();
  return Ref<ForeignValue>(Make<HeldValue>(std::move(copy)));
}

void Give(const Variant& ValueA, VARIANT* ResultA) {
  VariantInit(ResultA);
  if (const String* text = ValueA.As<String>()) return Give(*text, ResultA);
  if (WriteNumber(ValueA, *ResultA)) return;
  switch (ValueA.Kind()) {
    case VariantKind::Null:
      V_VT(ResultA) = VT_NULL;
      break;
    case VariantKind::Missing:
      V_VT(ResultA) = VT_ERROR;
      V_ERROR(ResultA) = DISP_E_PARAMNOTFOUND;
      break;
    case VariantKind::Boolean:
      V_VT(ResultA) = VT_BOOL;
      Give(*ValueA.As<bool>(), &V_BOOL(ResultA));
      break;
    case VariantKind::Date:
      V_VT(ResultA) = VT_DATE;
      Give(*ValueA.As<Date>(), &V_DATE(ResultA));
      break;
    default:
      WriteObject(ValueA, *ResultA);
  }
}

void Give(const String& TextA, VARIANT* ResultA) {
  VariantInit(ResultA);
  Give(StringView(TextA), &V_BSTR(ResultA));
  V_VT(ResultA) = VT_BSTR;
}

}  // namespace mur::com
