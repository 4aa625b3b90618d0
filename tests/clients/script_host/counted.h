#pragma once

#include "tests/clients/script_host/platform.h"

namespace mur::scripts {

/// The identity of an object with one interface. It is made with one reference, for its maker.
template <class Interface>
class Counted : public Interface {
 public:
  Counted(const Counted&) = delete;
  Counted& operator=(const Counted&) = delete;
  virtual ~Counted() = default;

  STDMETHODIMP QueryInterface(REFIID InterfaceA, void** ResultA) noexcept override {
    const bool known = InterfaceA == IID_IUnknown || Offers(InterfaceA);
    *ResultA = known ? static_cast<Interface*>(this) : nullptr;
    if (known) AddRef();
    return known ? S_OK : E_NOINTERFACE;
  }
  STDMETHODIMP_(ULONG) AddRef() noexcept override { return ++mReferences; }
  STDMETHODIMP_(ULONG) Release() noexcept override {
    const ULONG rest = --mReferences;
    if (rest == 0) delete this;
    return rest;
  }

 protected:
  Counted() = default;
  virtual bool Offers(REFIID InterfaceA) const noexcept { return InterfaceA == __uuidof(Interface); }

 private:
  ULONG mReferences = 1;
};

/// An object for late-bound calls alone, without a description.
class Late : public Counted<IDispatch> {
 public:
  STDMETHODIMP GetTypeInfoCount(UINT* ResultA) noexcept override {
    *ResultA = 0;
    return S_OK;
  }
  STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) noexcept override { return E_NOTIMPL; }
  STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) noexcept override {
    return DISP_E_UNKNOWNNAME;
  }
};

}  // namespace mur::scripts
