#include <algorithm>

#include <murtimeline/com/dispatcher.h>
#include <murtimeline/com/guard.h>
#include <murtimeline/com/objects.h>
#include <murtimeline/com/prepared_call.h>
#include <murtimeline/com/type_library.h>

namespace mur::com {
namespace {

// IUnknown's and IDispatch's own methods are in the description too; nobody is to call them late bound.
bool IsCallable(const FUNCDESC& FunctionA) {
  return !(FunctionA.wFuncFlags & FUNCFLAG_FRESTRICTED) || FunctionA.memid == DISPID_NEWENUM;
}

IID InterfaceOf(ITypeInfo& DescriptionA, HREFTYPE ReferenceA) {
  ITypeInfo* found = nullptr;
  RequireSuccess(DescriptionA.GetRefTypeInfo(ReferenceA, &found));
  const auto type = TakeOver(found);
  TYPEATTR* attributes = nullptr;
  RequireSuccess(type->GetTypeAttr(&attributes));
  const IID result = attributes->guid;
  type->ReleaseTypeAttr(attributes);
  return result;
}

Member::Parameter ParameterOf(ITypeInfo& DescriptionA, const ELEMDESC& ElementA) {
  Member::Parameter parameter;
  const USHORT flags = ElementA.paramdesc.wParamFlags;
  parameter.isOptional = (flags & PARAMFLAG_FOPT) != 0;
  if (flags & PARAMFLAG_FHASDEFAULT) parameter.preset = &ElementA.paramdesc.pparamdescex->varDefaultValue;
  // The only types of our own that are passed by value are enumerations.
  parameter.type = ElementA.tdesc.vt == VT_USERDEFINED ? VARTYPE{VT_I4} : ElementA.tdesc.vt;
  if (parameter.type != VT_PTR) return parameter;
  const TYPEDESC* target = ElementA.tdesc.lptdesc;
  parameter.kind = target->vt == VT_PTR       ? ParameterKind::ObjectReference
                   : target->vt == VT_VARIANT ? ParameterKind::VariantReference
                   : target->vt == VT_BOOL    ? ParameterKind::BooleanReference
                                              : ParameterKind::Object;
  if (target->vt == VT_PTR) target = target->lptdesc;
  if (target->vt == VT_USERDEFINED) parameter.interfaceId = InterfaceOf(DescriptionA, target->hreftype);
  return parameter;
}

struct ById {
  bool operator()(const Member& LeftA, const Member& RightA) const { return LeftA.id < RightA.id; }
  bool operator()(const Member& LeftA, DISPID RightA) const { return LeftA.id < RightA; }
  bool operator()(DISPID LeftA, const Member& RightA) const { return LeftA < RightA.id; }
};

}  // namespace

Dispatcher::Dispatcher(const IID& InterfaceA) {
  ITypeInfo* found = nullptr;
  RequireSuccess(TypeInfoOf(InterfaceA, &found));
  mDescription = TakeOver(found);
  TYPEATTR* attributes = nullptr;
  RequireSuccess(mDescription->GetTypeAttr(&attributes));
  const UINT count = attributes->cFuncs;
  mDescription->ReleaseTypeAttr(attributes);
  for (UINT i = 0; i < count; ++i) {
    // Kept for ever: default values are referred to.
    FUNCDESC* function = nullptr;
    RequireSuccess(mDescription->GetFuncDesc(i, &function));
    if (!IsCallable(*function)) continue;
    Member member{function->memid, static_cast<WORD>(function->invkind), {}};
    for (SHORT p = 0; p < function->cParams; ++p)
      member.parameters.push_back(ParameterOf(*mDescription, function->lprgelemdescParam[p]));
    mMembers.push_back(std::move(member));
  }
  std::stable_sort(mMembers.begin(), mMembers.end(), ById());
}

const Member* Dispatcher::Find(DISPID IdA, WORD WaysA) const noexcept {
  const auto [first, last] = std::equal_range(mMembers.begin(), mMembers.end(), IdA, ById());
  const auto by = [first = first, last = last](WORD WaysToTakeA) -> const Member* {
    const auto found =
        std::find_if(first, last, [&](const Member& MemberA) { return MemberA.way & WaysToTakeA; });
    return found == last ? nullptr : &*found;
  };
  constexpr WORD kPut = DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF;
  if (const Member* found = by(WaysA)) return found;
  if (WaysA & DISPATCH_METHOD) return by(DISPATCH_PROPERTYGET);
  return WaysA & kPut ? by(kPut) : nullptr;
}

HRESULT Dispatcher::IdsOfNames(LPOLESTR* NamesA, UINT CountA, DISPID* ResultA) const noexcept {
  const HRESULT result = mDescription->GetIDsOfNames(NamesA, CountA, ResultA);
  return SUCCEEDED(result) && !Has(ResultA[0]) ? DISP_E_UNKNOWNNAME : result;
}

HRESULT Dispatcher::Invoke(void* InstanceA, const Member& MemberA, DISPPARAMS& GivenA, VARIANT* ResultA,
                           EXCEPINFO* ErrorA, UINT* WrongA) const noexcept {
  HRESULT result = S_OK;
  const HRESULT guarded = Guarded([&] {
    PreparedCall call;
    result = call.Prepare(MemberA, GivenA, WrongA);
    if (FAILED(result)) return;
    // Nothing is handed out by a call that fails.
    OwnVariant value;
    result = mDescription->Invoke(InstanceA, MemberA.id, MemberA.way, &call.Arguments(),
                                  ResultA ? &value : nullptr, ErrorA, WrongA);
    if (FAILED(result) || !ResultA) return;
    ShowHostObject(value.Get());
    *ResultA = value.Detach();
  });
  return FAILED(guarded) ? guarded : result;
}

namespace dispatch {
namespace {

// The default interface of the object, where that is another one.
Ref<IDispatch> DefaultOf(IDispatch& SelfA) {
  auto standard = Query<IDispatch>(&SelfA);
  return standard.Get() == &SelfA ? Ref<IDispatch>() : standard;
}

void UnknownNames(UINT CountA, DISPID* ResultA) {
  std::fill_n(ResultA, CountA, DISPID_UNKNOWN);
}

}  // namespace

HRESULT GetTypeInfo(const IID& InterfaceA, UINT IndexA, ITypeInfo** ResultA) noexcept {
  if (!ResultA) return E_POINTER;
  *ResultA = nullptr;
  return IndexA == 0 ? TypeInfoOf(InterfaceA, ResultA) : DISP_E_BADINDEX;
}

HRESULT GetIDsOfNames(DispatcherOf OwnA, IDispatch& SelfA, REFIID ReservedA, LPOLESTR* NamesA, UINT CountA,
                      LCID LocaleA, DISPID* ResultA) noexcept {
  if (ReservedA != IID_NULL) return DISP_E_UNKNOWNINTERFACE;
  if (!NamesA || !ResultA) return E_POINTER;
  if (CountA == 0) return E_INVALIDARG;
  HRESULT result = DISP_E_UNKNOWNNAME;
  const HRESULT guarded = Guarded([&] {
    const Dispatcher& own = OwnA();
    result = own.IdsOfNames(NamesA, CountA, ResultA);
    if (result != DISP_E_UNKNOWNNAME) return;
    const auto standard = DefaultOf(SelfA);
    if (standard) result = standard->GetIDsOfNames(ReservedA, NamesA, CountA, LocaleA, ResultA);
    // The same number may mean something else here.
    if (SUCCEEDED(result) && own.Has(ResultA[0])) result = DISP_E_UNKNOWNNAME;
    if (result == DISP_E_UNKNOWNNAME) UnknownNames(CountA, ResultA);
  });
  return FAILED(guarded) ? guarded : result;
}

HRESULT Invoke(DispatcherOf OwnA, IDispatch& SelfA, DISPID IdA, REFIID ReservedA, LCID LocaleA, WORD WaysA,
               DISPPARAMS* GivenA, VARIANT* ResultA, EXCEPINFO* ErrorA, UINT* WrongA) noexcept {
  if (ReservedA != IID_NULL) return DISP_E_UNKNOWNINTERFACE;
  if (!GivenA) return E_POINTER;
  SetErrorInfo(0, nullptr);
  HRESULT result = DISP_E_MEMBERNOTFOUND;
  const HRESULT guarded = Guarded([&] {
    const Dispatcher& own = OwnA();
    if (const Member* member = own.Find(IdA, WaysA)) {
      // A call may let the last reference go.
      const Ref<IDispatch> keep(&SelfA);
      result = own.Invoke(&SelfA, *member, *GivenA, ResultA, ErrorA, WrongA);
    } else if (const auto standard = own.Has(IdA) ? Ref<IDispatch>() : DefaultOf(SelfA)) {
      result = standard->Invoke(IdA, ReservedA, LocaleA, WaysA, GivenA, ResultA, ErrorA, WrongA);
    }
  });
  return FAILED(guarded) ? guarded : result;
}

}  // namespace dispatch
}  // namespace mur::com
