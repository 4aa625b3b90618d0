#include <atomic>

#include <murtimeline/com/type_library.h>

namespace mur::com {
namespace {

ITypeLib* Load() noexcept {
  ITypeLib* library = nullptr;
  try {
    LoadTypeLibEx(ServerPath().c_str(), REGKIND_NONE, &library);
  } catch (...) {
    // Out of memory: without a library, then.
  }
  return library;
}

std::atomic<ITypeLib*> gLibrary = nullptr;

}  // namespace

HINSTANCE ServerModule() noexcept {
  HMODULE module = nullptr;
  GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                     reinterpret_cast<LPCWSTR>(&ServerModule), &module);
  return module;
}

std::wstring ServerPath() {
  const HINSTANCE module = ServerModule();
  std::wstring path(MAX_PATH, L'\0');
  for (;;) {
    const DWORD length = GetModuleFileNameW(module, path.data(), static_cast<DWORD>(path.size()));
    if (length < path.size()) return path.substr(0, length);
    path.resize(path.size() * 2);
  }
}

ITypeLib* TypeLibrary() noexcept {
  if (ITypeLib* known = gLibrary) return known;
  ITypeLib* loaded = Load();
  ITypeLib* other = nullptr;
  // Two threads may come here at once; the platform gives both the same library.
  if (loaded && !gLibrary.compare_exchange_strong(other, loaded)) {
    loaded->Release();
    return other;
  }
  return loaded;
}

HRESULT TypeInfoOf(const GUID& TypeA, ITypeInfo** ResultA) noexcept {
  ITypeLib* library = TypeLibrary();
  return library ? library->GetTypeInfoOfGuid(TypeA, ResultA) : TYPE_E_CANTLOADLIBRARY;
}

}  // namespace mur::com
