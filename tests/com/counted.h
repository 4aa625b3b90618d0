#pragma once

#include "tests/com/server.h"

namespace mur::test {

/// How many objects of the tests' own are alive; no test leaves one behind.
inline long& HostObjectsAlive() {
  static long sAlive = 0;
  return sAlive;
}

/// An object of the tests' own that is deleted with its last reference. It has the interface that it is made
/// of, and IDispatch where that is derived from it.
template <class Interface>
class Counted : public Interface {
 public:
  Counted() { ++HostObjectsAlive(); }
  Counted(const Counted&) = delete;
  Counted& operator=(const Counted&) = delete;
  virtual ~Counted() { --HostObjectsAlive(); }

  STDMETHODIMP QueryInterface(REFIID InterfaceA, void** ResultA) noexcept final {
    if (!ResultA) return E_POINTER;
    *ResultA = Offer(InterfaceA);
    if (!*ResultA) return E_NOINTERFACE;
    AddRef();
    return S_OK;
  }
  STDMETHODIMP_(ULONG) AddRef() noexcept final { return ++mReferences; }
  STDMETHODIMP_(ULONG) Release() noexcept final {
    const ULONG rest = --mReferences;
    if (rest == 0) delete this;
    return rest;
  }
  ULONG References() const noexcept { return mReferences; }

 protected:
  virtual void* Offer(REFIID InterfaceA) noexcept {
    const bool known = InterfaceA == IID_IUnknown || InterfaceA == __uuidof(Interface) ||
                       (std::derived_from<Interface, IDispatch> && InterfaceA == IID_IDispatch);
    return known ? static_cast<Interface*>(this) : nullptr;
  }

 private:
  ULONG mReferences = 0;
};

/// The same for a published dual interface, late-bound by its description.
template <class Interface>
class CountedDual : public Counted<Interface> {
 public:
  STDMETHODIMP GetTypeInfoCount(UINT* ResultA) noexcept final {
    *ResultA = 0;
    return S_OK;
  }
  STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) noexcept final { return DISP_E_BADINDEX; }
  STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR* NamesA, UINT CountA, LCID, DISPID* ResultA) noexcept final {
    return server::TypeOf(__uuidof(Interface))->GetIDsOfNames(NamesA, CountA, ResultA);
  }
  STDMETHODIMP Invoke(DISPID IdA, REFIID, LCID, WORD WaysA, DISPPARAMS* GivenA, VARIANT* ResultA,
                      EXCEPINFO* ErrorA, UINT* WrongA) noexcept final {
    return server::TypeOf(__uuidof(Interface))
        ->Invoke(static_cast<Interface*>(this), IdA, WaysA, GivenA, ResultA, ErrorA, WrongA);
  }
};

}  // namespace mur::test
