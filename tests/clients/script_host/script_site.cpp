#include "tests/clients/script_host/script_site.h"

#include <cstdio>

namespace mur::scripts {

HRESULT ScriptSite::GetItemInfo(LPCOLESTR NameA, DWORD WantedA, IUnknown** ItemA,
                                ITypeInfo** TypeA) noexcept {
  if (TypeA) *TypeA = nullptr;
  if (lstrcmpiW(NameA, L"WScript") != 0 || !(WantedA & SCRIPTINFO_IUNKNOWN)) return TYPE_E_ELEMENTNOTFOUND;
  *ItemA = &mHost;
  mHost.AddRef();
  return S_OK;
}

HRESULT ScriptSite::OnScriptError(IActiveScriptError* ErrorA) noexcept {
  mHasFailed = true;
  EXCEPINFO what{};
  ErrorA->GetExceptionInfo(&what);
  if (what.pfnDeferredFillIn) what.pfnDeferredFillIn(&what);
  DWORD context = 0;
  ULONG line = 0;
  LONG column = 0;
  ErrorA->GetSourcePosition(&context, &line, &column);
  std::printf("%ls(%lu, %ld): %ls [%08lx]\n", mFile.c_str(), line + 1, column + 1,
              what.bstrDescription ? what.bstrDescription : L"an error", static_cast<ULONG>(what.scode));
  SysFreeString(what.bstrDescription);
  SysFreeString(what.bstrSource);
  SysFreeString(what.bstrHelpFile);
  return S_OK;
}

}  // namespace mur::scripts
