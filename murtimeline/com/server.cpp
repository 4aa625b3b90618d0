#include <murtimeline/com/class_factory.h>
#include <murtimeline/com/registration.h>
#include <murtimeline/com/server_life.h>
#include <murtimeline/com/type_library.h>

// The entry points of the server. A server that was used stays in memory until its process ends: the C++
// run-time leaves a slot of thread-local storage behind each time it is unloaded.

using namespace mur::com;

namespace {

void StayLoaded() noexcept {
  HMODULE module = nullptr;
  GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_PIN | GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS,
                     reinterpret_cast<LPCWSTR>(&StayLoaded), &module);
}

}  // namespace

STDAPI DllGetClassObject(REFCLSID ClassA, REFIID InterfaceA, void** ResultA) {
  StayLoaded();
  return GetClassFactory(ClassA, InterfaceA, ResultA);
}

STDAPI DllCanUnloadNow() {
  return IsServerIdle() ? S_OK : S_FALSE;
}

STDAPI DllRegisterServer() {
  return Register(Scope::Machine);
}

STDAPI DllUnregisterServer() {
  return Unregister(Scope::Machine);
}

// `regsvr32 /n /i:user` registers for the user alone.
STDAPI DllInstall(BOOL InstallA, LPCWSTR CommandA) {
  const bool forUser = CommandA && lstrcmpiW(CommandA, L"user") == 0;
  if (CommandA && *CommandA && !forUser) return E_INVALIDARG;
  const Scope scope = forUser ? Scope::User : Scope::Machine;
  return InstallA ? Register(scope) : Unregister(scope);
}

BOOL WINAPI DllMain(HINSTANCE ModuleA, DWORD ReasonA, void* /*ReservedA*/) {
  if (ReasonA == DLL_PROCESS_ATTACH) DisableThreadLibraryCalls(ModuleA);
  return TRUE;
}
