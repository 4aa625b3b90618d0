#pragma once

#include <vector>

#include "tests/clients/script_host/event_link.h"

namespace mur::scripts {

/// What scripts know as WScript: Echo, CreateObject with events, ConnectObject and DisconnectObject.
class HostObject final : public Late {
 public:
  /// `ScriptA` has the procedures that hear events and outlives this object.
  explicit HostObject(IActiveScript& ScriptA) : mScript(ScriptA) {}
  /// Ends all connections; with them the last references between script and objects go.
  void DisconnectAll();

  STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR* NamesA, UINT, LCID, DISPID* ResultA) noexcept override;
  STDMETHODIMP Invoke(DISPID IdA, REFIID, LCID, WORD, DISPPARAMS* GivenA, VARIANT* ResultA, EXCEPINFO*,
                      UINT*) noexcept override;

 private:
  struct Connection {
    ComPtr<IUnknown> object;
    ComPtr<EventLink> link;
  };

  void Echo(const std::vector<VARIANT>& GivenA) const;
  void CreateObject(const std::vector<VARIANT>& GivenA, VARIANT* ResultA);
  void ConnectObject(const std::vector<VARIANT>& GivenA);
  void DisconnectObject(const std::vector<VARIANT>& GivenA);
  void Connect(IUnknown* ObjectA, const VARIANT& PrefixA);

  IActiveScript& mScript;
  std::vector<Connection> mConnections;
};

/// Writes a line to the standard output, in UTF-8.
void WriteLine(std::wstring_view LineA);

}  // namespace mur::scripts
