#pragma once

#include <string>

#include "tests/clients/script_host/counted.h"

namespace mur::scripts {

/// Where a script engine asks for WScript and tells of errors, which are written after what the script wrote,
/// as `file(line, column): text`.
class ScriptSite final : public Counted<IActiveScriptSite> {
 public:
  ScriptSite(std::wstring FileA, IDispatch& HostA) : mFile(std::move(FileA)), mHost(HostA) {}

  bool HasFailed() const noexcept { return mHasFailed; }

  STDMETHODIMP GetLCID(LCID*) noexcept override { return E_NOTIMPL; }
  STDMETHODIMP GetItemInfo(LPCOLESTR NameA, DWORD WantedA, IUnknown** ItemA,
                           ITypeInfo** TypeA) noexcept override;
  STDMETHODIMP GetDocVersionString(BSTR*) noexcept override { return E_NOTIMPL; }
  STDMETHODIMP OnScriptTerminate(const VARIANT*, const EXCEPINFO*) noexcept override { return S_OK; }
  STDMETHODIMP OnStateChange(SCRIPTSTATE) noexcept override { return S_OK; }
  STDMETHODIMP OnScriptError(IActiveScriptError* ErrorA) noexcept override;
  STDMETHODIMP OnEnterScript() noexcept override { return S_OK; }
  STDMETHODIMP OnLeaveScript() noexcept override { return S_OK; }

 private:
  const std::wstring mFile;
  IDispatch& mHost;
  bool mHasFailed = false;
};

}  // namespace mur::scripts
