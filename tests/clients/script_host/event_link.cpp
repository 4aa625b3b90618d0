#include "tests/clients/script_host/event_link.h"

#include <cstring>
#include <vector>

namespace mur::scripts {
namespace {

std::size_t SizeOf(VARTYPE TypeA) {
  switch (TypeA) {
    case VT_I2:
    case VT_BOOL:
      return 2;
    case VT_I4:
    case VT_R4:
      return 4;
    case VT_R8:
    case VT_DATE:
      return 8;
    default:
      return 0;
  }
}

/// An argument as scripts can change it: by-reference numbers become by-reference variants for the time of
/// the call, since script engines know no others.
class ScriptArgument {
 public:
  explicit ScriptArgument(const VARIANT& GivenA) : mGiven(GivenA) {
    if (IsChangeable()) VariantCopyInd(&mValue, &mGiven);
  }
  ScriptArgument(ScriptArgument&&) = default;
  ~ScriptArgument() { VariantClear(&mValue); }

  VARIANT ForScript() {
    if (!IsChangeable()) return mGiven;
    VARIANT reference{};
    V_VT(&reference) = VT_VARIANT | VT_BYREF;
    V_VARIANTREF(&reference) = &mValue;
    return reference;
  }
  void PutBack() {
    const auto type = static_cast<VARTYPE>(V_VT(&mGiven) & ~VT_BYREF);
    if (IsChangeable() && SUCCEEDED(VariantChangeType(&mValue, &mValue, 0, type)))
      std::memcpy(V_BYREF(&mGiven), &V_I1(&mValue), SizeOf(type));
  }

 private:
  bool IsChangeable() const {
    return (V_VT(&mGiven) & VT_BYREF) && SizeOf(static_cast<VARTYPE>(V_VT(&mGiven) & ~VT_BYREF)) > 0;
  }

  VARIANT mGiven;
  VARIANT mValue{};
};

}  // namespace

EventLink::EventLink(IUnknown* ObjectA, IDispatch* ScriptA, std::wstring PrefixA)
    : mScript(ScriptA), mPrefix(std::move(PrefixA)) {
  ComPtr<IProvideClassInfo2> described;
  Require(ObjectA->QueryInterface(IID_PPV_ARGS(&described)));
  Require(described->GetGUID(GUIDKIND_DEFAULT_SOURCE_DISP_IID, &mEvents));
  ComPtr<ITypeInfo> type;
  Require(described->GetClassInfo(&type));
  ComPtr<ITypeLib> library;
  UINT index = 0;
  Require(type->GetContainingTypeLib(&library, &index));
  Require(library->GetTypeInfoOfGuid(mEvents, &mNames));
  ComPtr<IConnectionPointContainer> container;
  Require(ObjectA->QueryInterface(IID_PPV_ARGS(&container)));
  Require(container->FindConnectionPoint(mEvents, &mPoint));
}

HRESULT EventLink::Connect() {
  return mPoint->Advise(this, &mCookie);
}

void EventLink::Disconnect() {
  mPoint->Unadvise(mCookie);
}

DISPID EventLink::HandlerOf(DISPID IdA) const {
  BSTR event = nullptr;
  UINT count = 0;
  if (FAILED(mNames->GetNames(IdA, &event, 1, &count)) || count == 0) return DISPID_UNKNOWN;
  std::wstring name = mPrefix + event;
  SysFreeString(event);
  LPOLESTR text = name.data();
  DISPID handler = DISPID_UNKNOWN;
  mScript->GetIDsOfNames(IID_NULL, &text, 1, LOCALE_USER_DEFAULT, &handler);
  return handler;
}

HRESULT EventLink::Invoke(DISPID IdA, REFIID, LCID, WORD, DISPPARAMS* GivenA, VARIANT*, EXCEPINFO*,
                          UINT*) noexcept {
  const DISPID handler = HandlerOf(IdA);
  if (handler == DISPID_UNKNOWN) return S_OK;
  std::vector<ScriptArgument> arguments(GivenA->rgvarg, GivenA->rgvarg + GivenA->cArgs);
  std::vector<VARIANT> handed;
  for (ScriptArgument& argument : arguments) handed.push_back(argument.ForScript());
  DISPPARAMS parameters{handed.data(), nullptr, GivenA->cArgs, 0};
  const HRESULT result = mScript->Invoke(handler, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &parameters,
                                         nullptr, nullptr, nullptr);
  for (ScriptArgument& argument : arguments) argument.PutBack();
  return result;
}

}  // namespace mur::scripts
