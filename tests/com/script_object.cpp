#include "tests/com/script_object.h"

namespace mur::test {
namespace {

bool IsSameName(std::wstring_view LeftA, std::wstring_view RightA) {
  return CompareStringOrdinal(LeftA.data(), static_cast<int>(LeftA.size()), RightA.data(),
                              static_cast<int>(RightA.size()), TRUE) == CSTR_EQUAL;
}

}  // namespace

void ScriptObject::AddVariable(const std::wstring& NameA, const Value& StartA) {
  members[NameA] = [stored = StartA](WORD way, const Values& arguments) mutable {
    if (way & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF)) stored = arguments.at(0);
    return stored;
  };
}

HRESULT ScriptObject::GetTypeInfoCount(UINT* ResultA) noexcept {
  *ResultA = 0;
  return S_OK;
}

HRESULT ScriptObject::GetIDsOfNames(REFIID, LPOLESTR* NamesA, UINT, LCID, DISPID* ResultA) noexcept {
  if (mKind == Kind::Extended) return E_NOTIMPL;
  return Find(NamesA[0], ResultA);
}

HRESULT ScriptObject::GetDispID(BSTR NameA, DWORD, DISPID* ResultA) noexcept {
  return Find({NameA, SysStringLen(NameA)}, ResultA);
}

// The place in the list of members is the identifier, from 1 on.
HRESULT ScriptObject::Find(std::wstring_view NameA, DISPID* ResultA) const {
  DISPID id = 0;
  for (const auto& [name, member] : members) {
    ++id;
    if (!IsSameName(name, NameA)) continue;
    *ResultA = id;
    return S_OK;
  }
  *ResultA = DISPID_UNKNOWN;
  return DISP_E_UNKNOWNNAME;
}

HRESULT ScriptObject::Invoke(DISPID IdA, REFIID, LCID, WORD WaysA, DISPPARAMS* GivenA, VARIANT* ResultA,
                             EXCEPINFO*, UINT*) noexcept {
  if (IdA < 1 || static_cast<std::size_t>(IdA) > members.size()) return DISP_E_MEMBERNOTFOUND;
  const auto& [name, member] = *std::next(members.begin(), IdA - 1);
  Values arguments;
  for (UINT i = GivenA->cArgs; i-- > 0;) arguments.push_back(Value::CopyOf(GivenA->rgvarg[i]));
  calls.push_back(ToUtf8(name));
  try {
    const Ref<IDispatch> keep(this);
    Value result = member(WaysA, arguments);
    if (ResultA) std::swap(*ResultA, result.Get());
    return S_OK;
  } catch (HRESULT failure) {
    return failure;
  }
}

HRESULT ScriptObject::InvokeEx(DISPID IdA, LCID LocaleA, WORD WaysA, DISPPARAMS* GivenA, VARIANT* ResultA,
                               EXCEPINFO* ErrorA, IServiceProvider*) noexcept {
  return Invoke(IdA, IID_NULL, LocaleA, WaysA, GivenA, ResultA, ErrorA, nullptr);
}

void* ScriptObject::Offer(REFIID InterfaceA) noexcept {
  if (InterfaceA == __uuidof(IDispatchEx)) return mKind == Kind::Extended ? this : nullptr;
  return Counted::Offer(InterfaceA);
}

Ref<ScriptObject> ScriptTimelineObject(ScriptObject::Kind KindA) {
  auto object = ScriptObject::Make(KindA);
  const Value nothing = Value::Nothing();
  for (const auto& [name, start] : std::map<std::wstring, Value>{{L"Key", L""},
                                                                 {L"Tag", L""},
                                                                 {L"EventSink", nothing},
                                                                 {L"Parent", nothing},
                                                                 {L"GroupType", 4},
                                                                 {L"Duration", 0.0},
                                                                 {L"WorldTimeT0", Value::Date(0)},
                                                                 {L"offset", 0.0},
                                                                 {L"LockedToParent", false}})
    object->AddVariable(name, start);
  const auto answer = [&](const wchar_t* name, const Value& value) {
    object->members[name] = [value](WORD, const Values&) { return value; };
  };
  answer(L"ObjectType", 1);
  answer(L"Count", 0);
  answer(L"Item", nothing);
  answer(L"Remove", nothing);
  answer(L"AsString", L"script's object\r\n");
  answer(L"SpansTime", false);
  for (const wchar_t* name : {L"Add", L"Clear", L"ParentWorldtimeT0Changed"}) answer(name, Value());
  object->members[L"Free"] = [self = object.Get()](WORD, const Values&) {
    for (const wchar_t* name : {L"EventSink", L"Parent"})
      self->members[name](DISPATCH_PROPERTYPUTREF, {Value::Nothing()});
    return Value();
  };
  return object;
}

}  // namespace mur::test
