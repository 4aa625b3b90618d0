#include <windows.h>

#include "tests/support/platform.h"

namespace mur::test {

bool RunsOn(std::string_view PlatformA) {
  const bool isWine = GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "wine_get_version") != nullptr;
  return PlatformA == "windows" || (PlatformA == "wine" && isWine);
}

}  // namespace mur::test
