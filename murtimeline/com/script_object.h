#pragma once

#include <murtimeline/com/late_calls.h>
#include <murtimeline/com/own_interfaces.h>
#include <murtimeline/com/server_life.h>

namespace mur::com {

/// A published interface upon an object that a script wrote: it calls that one by name. Late-bound calls go
/// there as they are.
template <class Interface>
class ScriptObject : public Interface, public IScriptObject {
 public:
  explicit ScriptObject(LateBound ObjectA) : mObject(std::move(ObjectA)) {}
  virtual ~ScriptObject() = default;

  STDMETHODIMP QueryInterface(REFIID InterfaceA, void** ResultA) noexcept final {
    if (!ResultA) return E_POINTER;
    *ResultA = nullptr;
    if (InterfaceA == __uuidof(IScriptObject))
      *ResultA = static_cast<IScriptObject*>(this);
    else if (InterfaceA == IID_IUnknown || InterfaceA == IID_IDispatch || InterfaceA == __uuidof(Interface))
      *ResultA = static_cast<Interface*>(this);
    else
      return E_NOINTERFACE;
    AddRef();
    return S_OK;
  }
  STDMETHODIMP_(ULONG) AddRef() noexcept final { return ++mReferences; }
  STDMETHODIMP_(ULONG) Release() noexcept final {
    const ULONG rest = --mReferences;
    if (rest == 0) delete this;
    return rest;
  }

  IDispatch* Original() noexcept final { return mObject.Get(); }
  STDMETHODIMP GetTypeInfoCount(UINT* ResultA) noexcept final {
    return Original()->GetTypeInfoCount(ResultA);
  }
  STDMETHODIMP GetTypeInfo(UINT IndexA, LCID LocaleA, ITypeInfo** ResultA) noexcept final {
    return Original()->GetTypeInfo(IndexA, LocaleA, ResultA);
  }
  STDMETHODIMP GetIDsOfNames(REFIID ReservedA, LPOLESTR* NamesA, UINT CountA, LCID LocaleA,
                             DISPID* ResultA) noexcept final {
    return Original()->GetIDsOfNames(ReservedA, NamesA, CountA, LocaleA, ResultA);
  }
  STDMETHODIMP Invoke(DISPID IdA, REFIID ReservedA, LCID LocaleA, WORD WaysA, DISPPARAMS* GivenA,
                      VARIANT* ResultA, EXCEPINFO* ErrorA, UINT* WrongA) noexcept final {
    return Original()->Invoke(IdA, ReservedA, LocaleA, WaysA, GivenA, ResultA, ErrorA, WrongA);
  }

 protected:
  const LateBound mObject;

 private:
  ULONG mReferences = 0;
  LiveObject mLive;
};

// None when the object takes no late-bound calls.
Ref<ComTimelineObject> ScriptTimelineObject(IUnknown* ObjectA);
Ref<ComEventSink> ScriptEventSink(IUnknown* ObjectA);

}  // namespace mur::com
