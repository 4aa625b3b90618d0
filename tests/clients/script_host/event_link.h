#pragma once

#include <string>

#include "tests/clients/script_host/counted.h"

namespace mur::scripts {

/// Brings the events of an object to the procedures of a script whose names are a prefix and the event's
/// name.
class EventLink final : public Late {
 public:
  /// Throws an HRESULT when the object has no events.
  EventLink(IUnknown* ObjectA, IDispatch* ScriptA, std::wstring PrefixA);

  /// Listens until Disconnect.
  HRESULT Connect();
  void Disconnect();

  STDMETHODIMP Invoke(DISPID IdA, REFIID, LCID, WORD, DISPPARAMS* GivenA, VARIANT*, EXCEPINFO*,
                      UINT*) noexcept override;

 private:
  bool Offers(REFIID InterfaceA) const noexcept override {
    return InterfaceA == IID_IDispatch || InterfaceA == mEvents;
  }
  DISPID HandlerOf(DISPID IdA) const;

  const ComPtr<IDispatch> mScript;
  const std::wstring mPrefix;
  ComPtr<ITypeInfo> mNames;
  ComPtr<IConnectionPoint> mPoint;
  IID mEvents{};
  DWORD mCookie = 0;
};

}  // namespace mur::scripts
