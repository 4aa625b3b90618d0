#include <murtimeline/com/objects.h>
#include <murtimeline/com/prepared_call.h>

namespace mur::com {
namespace {

bool IsMissing(const VARIANT* ValueA) {
  return !ValueA || (V_VT(ValueA) == VT_ERROR && V_ERROR(ValueA) == DISP_E_PARAMNOTFOUND);
}

bool IsPut(const Member& MemberA) {
  return MemberA.way == DISPATCH_PROPERTYPUT || MemberA.way == DISPATCH_PROPERTYPUTREF;
}

// Where the platform's list has the argument for a parameter; past its end when there is none. Named
// arguments come first in it, the others backwards behind them.
UINT IndexOf(const Member& MemberA, const DISPPARAMS& GivenA, std::size_t PlaceA) {
  const bool isValue = IsPut(MemberA) && PlaceA + 1 == MemberA.parameters.size();
  const DISPID name = isValue ? DISPID_PROPERTYPUT : static_cast<DISPID>(PlaceA);
  for (UINT i = 0; i < GivenA.cNamedArgs; ++i)
    if (GivenA.rgdispidNamedArgs[i] == name) return i;
  const std::size_t unnamed = GivenA.cArgs - GivenA.cNamedArgs;
  return PlaceA < unnamed ? GivenA.cArgs - 1 - static_cast<UINT>(PlaceA) : GivenA.cArgs;
}

bool NamesAreKnown(const Member& MemberA, const DISPPARAMS& GivenA) {
  for (UINT i = 0; i < GivenA.cNamedArgs; ++i) {
    const DISPID name = GivenA.rgdispidNamedArgs[i];
    const bool isPlace = name >= 0 && static_cast<std::size_t>(name) < MemberA.parameters.size();
    if (!isPlace && !(name == DISPID_PROPERTYPUT && IsPut(MemberA))) return false;
  }
  return true;
}

// What the platform cannot even read is of no type that an argument may have.
HRESULT RefusalOf(HRESULT ResultA) {
  return ResultA == E_INVALIDARG ? DISP_E_BADVARTYPE : ResultA;
}

}  // namespace

HRESULT PreparedCall::Prepare(const Member& MemberA, const DISPPARAMS& GivenA, UINT* WrongA) {
  const std::size_t count = MemberA.parameters.size();
  if (count > kMaxArguments || GivenA.cArgs > count || GivenA.cNamedArgs > GivenA.cArgs)
    return DISP_E_BADPARAMCOUNT;
  if ((GivenA.cArgs && !GivenA.rgvarg) || (GivenA.cNamedArgs && !GivenA.rgdispidNamedArgs))
    return E_INVALIDARG;
  if (!NamesAreKnown(MemberA, GivenA)) return DISP_E_PARAMNOTFOUND;
  for (std::size_t place = 0; place < count; ++place) {
    const UINT index = IndexOf(MemberA, GivenA, place);
    const VARIANT* given = index < GivenA.cArgs ? &GivenA.rgvarg[index] : nullptr;
    const HRESULT result = Take(MemberA.parameters[place], given, place);
    if (FAILED(result)) {
      if (WrongA && given) *WrongA = index;
      return result;
    }
    if (V_VT(&mPassed[place]) == VT_EMPTY) mPassed[place] = mOwned[place].Get();
  }
  std::reverse(mPassed.begin(), mPassed.begin() + static_cast<std::ptrdiff_t>(count));
  mArguments = {mPassed.data(), nullptr, static_cast<UINT>(count), 0};
  if (IsPut(MemberA)) {
    mArguments.rgdispidNamedArgs = &mValueName;
    mArguments.cNamedArgs = 1;
  }
  return S_OK;
}

HRESULT PreparedCall::Take(const Member::Parameter& ParameterA, const VARIANT* GivenA, std::size_t PlaceA) {
  VariantInit(&mPassed[PlaceA]);
  if (IsMissing(GivenA)) return TakeMissing(ParameterA, GivenA != nullptr, PlaceA);
  switch (ParameterA.kind) {
    case ParameterKind::Object:
    case ParameterKind::ObjectReference:
      return TakeObject(ParameterA, *GivenA, PlaceA);
    case ParameterKind::BooleanReference:
      return TakeBoolean(*GivenA, PlaceA);
    case ParameterKind::Plain:
      // Converted here: not every platform's Invoke tells which argument it refused.
      if (ParameterA.type == VT_VARIANT) break;
      return RefusalOf(VariantChangeType(&mOwned[PlaceA], ForReading(GivenA), 0, ParameterA.type));
    case ParameterKind::VariantReference:
      break;
  }
  const HRESULT result = VariantCopyInd(&mOwned[PlaceA], ForReading(GivenA));
  if (FAILED(result)) return result == E_OUTOFMEMORY ? result : DISP_E_BADVARTYPE;
  if (ParameterA.kind == ParameterKind::VariantReference) ReferToVariant(PlaceA);
  return S_OK;
}

HRESULT PreparedCall::TakeMissing(const Member::Parameter& ParameterA, bool WasNamedA, std::size_t PlaceA) {
  if (!ParameterA.isOptional) return WasNamedA ? DISP_E_PARAMNOTOPTIONAL : DISP_E_BADPARAMCOUNT;
  if (ParameterA.kind == ParameterKind::BooleanReference && ParameterA.preset)
    return TakeBoolean(*ParameterA.preset, PlaceA);
  VARIANT& missing = mOwned[PlaceA].Get();
  if (ParameterA.preset) return VariantCopy(&missing, ForReading(ParameterA.preset));
  V_VT(&missing) = VT_ERROR;
  V_ERROR(&missing) = DISP_E_PARAMNOTFOUND;
  if (ParameterA.kind == ParameterKind::VariantReference) ReferToVariant(PlaceA);
  return S_OK;
}

HRESULT PreparedCall::TakeObject(const Member::Parameter& ParameterA, const VARIANT& GivenA,
                                 std::size_t PlaceA) {
  OwnVariant value;
  if (FAILED(VariantCopyInd(&value, ForReading(&GivenA)))) return DISP_E_BADVARTYPE;
  const VARTYPE type = V_VT(&value.Get());
  // Script engines write no object as Null.
  if (type != VT_DISPATCH && type != VT_UNKNOWN && type != VT_NULL) return DISP_E_TYPEMISMATCH;
  IUnknown* given = type == VT_NULL ? nullptr : V_UNKNOWN(&value.Get());
  if (given) mObjects[PlaceA] = WithInterface(given, ParameterA.interfaceId);
  if (given && !mObjects[PlaceA]) return DISP_E_TYPEMISMATCH;
  VARIANT& passed = mPassed[PlaceA];
  V_VT(&passed) = VT_DISPATCH;
  V_UNKNOWN(&passed) = mObjects[PlaceA].Get();
  if (ParameterA.kind == ParameterKind::Object) return S_OK;
  mReferred[PlaceA].object = mObjects[PlaceA].Get();
  V_VT(&passed) = VT_DISPATCH | VT_BYREF;
  V_UNKNOWNREF(&passed) = &mReferred[PlaceA].object;
  return S_OK;
}

HRESULT PreparedCall::TakeBoolean(const VARIANT& GivenA, std::size_t PlaceA) {
  const HRESULT result = VariantChangeType(&mOwned[PlaceA], ForReading(&GivenA), 0, VT_BOOL);
  if (FAILED(result)) return RefusalOf(result);
  mReferred[PlaceA].boolean = V_BOOL(&mOwned[PlaceA].Get());
  V_VT(&mPassed[PlaceA]) = VT_BOOL | VT_BYREF;
  V_BOOLREF(&mPassed[PlaceA]) = &mReferred[PlaceA].boolean;
  return S_OK;
}

void PreparedCall::ReferToVariant(std::size_t PlaceA) {
  V_VT(&mPassed[PlaceA]) = VT_VARIANT | VT_BYREF;
  V_VARIANTREF(&mPassed[PlaceA]) = &mOwned[PlaceA].Get();
}

}  // namespace mur::com
