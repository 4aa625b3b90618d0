#pragma once

#include <string_view>
#include <vector>

#include <murtimeline/com/contract.h>

namespace mur::com {

/// What a parameter needs beyond what the platform's own Invoke does.
enum class ParameterKind {
  Plain,             ///< nothing
  Object,            ///< a published interface; a script's object is given that interface
  ObjectReference,   ///< the same by reference
  VariantReference,  ///< a variant by reference, which may be missing
  BooleanReference,  ///< a Boolean by reference, which may be missing
};

/// One published member, in one of its ways to be called.
struct Member {
  struct Parameter {
    ParameterKind kind = ParameterKind::Plain;
    VARTYPE type = VT_VARIANT;  // of plain ones
    IID interfaceId{};
    bool isOptional = false;
    const VARIANT* preset = nullptr;  // its default value, kept by the type library
  };
  DISPID id = DISPID_UNKNOWN;
  WORD way = 0;  // DISPATCH_METHOD, ...
  std::vector<Parameter> parameters;
};

/// Late-bound calls of one published interface, by its description in the type library.
class Dispatcher {
 public:
  /// The one for that interface, made on first use and kept to the end, when the platform may be gone. Throws
  /// ComFailure where the library is missing.
  template <class Interface>
  static const Dispatcher& For() {
    static const Dispatcher& sKept = *new Dispatcher(__uuidof(Interface));
    return sKept;
  }

  /// The member that such a call means; null when there is none. Calls by the wrong one of two ways are
  /// taken: engines get by METHOD, and some put objects by PROPERTYPUT.
  const Member* Find(DISPID IdA, WORD WaysA) const noexcept;
  bool Has(DISPID IdA) const noexcept { return Find(IdA, kAnyWay) != nullptr; }

  HRESULT IdsOfNames(LPOLESTR* NamesA, UINT CountA, DISPID* ResultA) const noexcept;
  /// Calls a member of `InstanceA`, which is a pointer of the interface's type.
  HRESULT Invoke(void* InstanceA, const Member& MemberA, DISPPARAMS& GivenA, VARIANT* ResultA,
                 EXCEPINFO* ErrorA, UINT* WrongA) const noexcept;

 private:
  static constexpr WORD kAnyWay =
      DISPATCH_METHOD | DISPATCH_PROPERTYGET | DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF;

  explicit Dispatcher(const IID& InterfaceA);

  Ref<ITypeInfo> mDescription;
  std::vector<Member> mMembers;  // by id
};

/// The four methods of IDispatch, for DispatchOn.
namespace dispatch {
using DispatcherOf = const Dispatcher& (*)();
HRESULT GetTypeInfo(const IID& InterfaceA, UINT IndexA, ITypeInfo** ResultA) noexcept;
HRESULT GetIDsOfNames(DispatcherOf OwnA, IDispatch& SelfA, REFIID ReservedA, LPOLESTR* NamesA, UINT CountA,
                      LCID LocaleA, DISPID* ResultA) noexcept;
HRESULT Invoke(DispatcherOf OwnA, IDispatch& SelfA, DISPID IdA, REFIID ReservedA, LCID LocaleA, WORD WaysA,
               DISPPARAMS* GivenA, VARIANT* ResultA, EXCEPINFO* ErrorA, UINT* WrongA) noexcept;
}  // namespace dispatch

/// A published interface with its late-bound half. A pointer of this type answers with the members of this
/// interface first and, beyond these, with those of the object's default interface.
template <class Interface>
class DispatchOn : public Interface {
 public:
  STDMETHODIMP GetTypeInfoCount(UINT* ResultA) noexcept final {
    if (!ResultA) return E_POINTER;
    *ResultA = 1;
    return S_OK;
  }
  STDMETHODIMP GetTypeInfo(UINT IndexA, LCID, ITypeInfo** ResultA) noexcept final {
    return dispatch::GetTypeInfo(__uuidof(Interface), IndexA, ResultA);
  }
  STDMETHODIMP GetIDsOfNames(REFIID ReservedA, LPOLESTR* NamesA, UINT CountA, LCID LocaleA,
                             DISPID* ResultA) noexcept final {
    return dispatch::GetIDsOfNames(&Dispatcher::For<Interface>, *this, ReservedA, NamesA, CountA, LocaleA,
                                   ResultA);
  }
  STDMETHODIMP Invoke(DISPID IdA, REFIID ReservedA, LCID LocaleA, WORD WaysA, DISPPARAMS* GivenA,
                      VARIANT* ResultA, EXCEPINFO* ErrorA, UINT* WrongA) noexcept final {
    return dispatch::Invoke(&Dispatcher::For<Interface>, *this, IdA, ReservedA, LocaleA, WaysA, GivenA,
                            ResultA, ErrorA, WrongA);
  }

  /// This interface, when it is meant; IDispatch means whatever is asked first.
  void* Offer(REFIID InterfaceA) noexcept {
    const bool meant = InterfaceA == __uuidof(Interface) || InterfaceA == IID_IDispatch;
    return meant ? static_cast<Interface*>(this) : nullptr;
  }
};

}  // namespace mur::com
