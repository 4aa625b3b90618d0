#include <algorithm>
#include <array>

#include <murtimeline/com/guard.h>
#include <murtimeline/com/late_calls.h>

namespace mur::com {

LateBound::LateBound(IUnknown* ObjectA)
    : mDispatch(Query<IDispatch>(ObjectA)), mExtended(Query<IDispatchEx>(ObjectA)) {
  if (!mDispatch && mExtended) mDispatch = mExtended;
}

DISPID LateBound::IdOf(const wchar_t* NameA) const {
  DISPID id = DISPID_UNKNOWN;
  if (mExtended) {
    std::wstring copy = NameA;
    const OwnText name({reinterpret_cast<const char16_t*>(copy.data()), copy.size()});
    if (SUCCEEDED(mExtended->GetDispID(name.Get(), fdexNameCaseInsensitive, &id))) return id;
  }
  LPOLESTR name = const_cast<LPOLESTR>(NameA);
  RequireSuccess(mDispatch->GetIDsOfNames(IID_NULL, &name, 1, LOCALE_USER_DEFAULT, &id));
  return id;
}

OwnVariant LateBound::Call(const wchar_t* NameA, WORD WayA, std::initializer_list<VARIANT> ArgumentsA) const {
  // Whatever the call does, the object outlives it.
  const auto keep = mDispatch;
  std::array<VARIANT, 4> backwards;
  std::reverse_copy(ArgumentsA.begin(), ArgumentsA.end(), backwards.begin());
  DISPID put = DISPID_PROPERTYPUT;
  DISPPARAMS arguments{backwards.data(), nullptr, static_cast<UINT>(ArgumentsA.size()), 0};
  if (WayA & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF)) {
    arguments.rgdispidNamedArgs = &put;
    arguments.cNamedArgs = 1;
  }
  OwnVariant result;
  EXCEPINFO error{};
  const HRESULT called = mDispatch->Invoke(IdOf(NameA), IID_NULL, LOCALE_USER_DEFAULT, WayA, &arguments,
                                           arguments.cNamedArgs ? nullptr : &result, &error, nullptr);
  SysFreeString(error.bstrSource);
  SysFreeString(error.bstrDescription);
  SysFreeString(error.bstrHelpFile);
  RequireSuccess(called == DISP_E_EXCEPTION && FAILED(error.scode) ? error.scode : called);
  return result;
}

void LateBound::WriteObject(const wchar_t* NameA, IDispatch* ValueA) const {
  try {
    Call(NameA, DISPATCH_PROPERTYPUTREF, {Argument(ValueA)});
  } catch (const ComFailure& failure) {
    if (failure.Result() != DISP_E_MEMBERNOTFOUND) throw;
    Call(NameA, DISPATCH_PROPERTYPUT, {Argument(ValueA)});
  }
}

VARIANT Argument(BSTR TextA) {
  VARIANT value;
  V_VT(&value) = VT_BSTR;
  V_BSTR(&value) = TextA;
  return value;
}

VARIANT Argument(IDispatch* ObjectA) {
  VARIANT value;
  V_VT(&value) = VT_DISPATCH;
  V_DISPATCH(&value) = ObjectA;
  return value;
}

VARIANT Argument(double NumberA, VARTYPE TypeA) {
  VARIANT value;
  V_VT(&value) = TypeA;
  V_R8(&value) = NumberA;
  return value;
}

VARIANT Argument(long NumberA, VARTYPE TypeA) {
  VARIANT value;
  V_VT(&value) = TypeA;
  V_I4(&value) = NumberA;
  return value;
}

const VARIANT& As(OwnVariant& ValueA, VARTYPE TypeA) {
  RequireSuccess(VariantChangeType(&ValueA, &ValueA.Get(), 0, TypeA));
  return ValueA.Get();
}

}  // namespace mur::com
