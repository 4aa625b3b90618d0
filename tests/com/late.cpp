#include "tests/com/late.h"

#include <algorithm>

namespace mur::test {
namespace {

std::wstring TakenText(BSTR TextA) {
  const std::wstring text(TextA ? TextA : L"", SysStringLen(TextA));
  SysFreeString(TextA);
  return text;
}

Outcome InvokeOn(IDispatch& ObjectA, DISPID IdA, WORD WayA, const Values& ArgumentsA,
                 std::vector<DISPID> NamesA) {
  // Backwards, as the platform has them; borrowed.
  std::vector<VARIANT> arguments;
  for (auto argument = ArgumentsA.rbegin(); argument != ArgumentsA.rend(); ++argument)
    arguments.push_back(argument->Get());
  std::reverse(NamesA.begin(), NamesA.end());
  const bool isPut = (WayA & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF)) != 0;
  if (isPut) NamesA.insert(NamesA.begin(), DISPID_PROPERTYPUT);
  DISPPARAMS given{arguments.data(), NamesA.data(), static_cast<UINT>(arguments.size()),
                   static_cast<UINT>(NamesA.size())};
  Outcome outcome;
  EXCEPINFO error{};
  outcome.result = ObjectA.Invoke(IdA, IID_NULL, LOCALE_USER_DEFAULT, WayA, &given,
                                  isPut ? nullptr : &outcome.value, &error, &outcome.wrong);
  if (error.pfnDeferredFillIn) error.pfnDeferredFillIn(&error);
  outcome.code = error.scode;
  outcome.source = TakenText(error.bstrSource);
  outcome.description = TakenText(error.bstrDescription);
  SysFreeString(error.bstrHelpFile);
  return outcome;
}

}  // namespace

Late::Late(const Value& ValueA) {
  if (ValueA.Type() == VT_DISPATCH) mObject = Ref<IDispatch>(V_DISPATCH(&ValueA.Get()));
}

DISPID Late::IdOf(std::wstring_view MemberA) const {
  std::wstring name(MemberA);
  LPOLESTR pointer = name.data();
  DISPID id = DISPID_UNKNOWN;
  const HRESULT result = mObject->GetIDsOfNames(IID_NULL, &pointer, 1, LOCALE_USER_DEFAULT, &id);
  if (FAILED(result)) throw CallFailed(MemberA, Outcome(result));
  return id;
}

Outcome Late::Invoke(DISPID IdA, WORD WayA, const Values& ArgumentsA) const {
  return InvokeOn(*mObject.Get(), IdA, WayA, ArgumentsA, {});
}

Outcome Late::Try(std::wstring_view MemberA, WORD WayA, const Values& ArgumentsA,
                  const std::vector<std::wstring>& NamesA) const {
  std::vector<std::wstring> names{std::wstring(MemberA)};
  names.insert(names.end(), NamesA.begin(), NamesA.end());
  std::vector<LPOLESTR> pointers;
  for (auto& name : names) pointers.push_back(name.data());
  std::vector<DISPID> ids(names.size());
  const HRESULT found = mObject->GetIDsOfNames(IID_NULL, pointers.data(), static_cast<UINT>(names.size()),
                                               LOCALE_USER_DEFAULT, ids.data());
  if (FAILED(found)) return Outcome(found);
  return InvokeOn(*mObject.Get(), ids[0], WayA, ArgumentsA, {ids.begin() + 1, ids.end()});
}

Value Late::Done(std::wstring_view MemberA, WORD WayA, const Values& ArgumentsA) const {
  Outcome outcome = Try(MemberA, WayA, ArgumentsA);
  if (FAILED(outcome.result)) throw CallFailed(MemberA, std::move(outcome));
  return std::move(outcome.value);
}

void Late::Put(std::wstring_view MemberA, const Values& ArgumentsA) const {
  const bool isObject = !ArgumentsA.empty() && ArgumentsA.back().Type() == VT_DISPATCH;
  Done(MemberA, isObject ? DISPATCH_PROPERTYPUTREF : DISPATCH_PROPERTYPUT, ArgumentsA);
}

Late New(REFCLSID ClassA) {
  return Late(Query<IDispatch>(server::Create(ClassA).Get()));
}

}  // namespace mur::test
