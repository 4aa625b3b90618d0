#include <algorithm>
#include <vector>

#include <murtimeline/win32/window_class.h>

namespace mur::win32 {
namespace {

constexpr const wchar_t* kClassName = L"MURTimelineWindow";

class Classes {
 public:
  Classes() = default;
  Classes(const Classes&) = delete;
  Classes& operator=(const Classes&) = delete;
  ~Classes() {
    for (const Entry& entry : mEntries) UnregisterClassW(MAKEINTATOM(entry.atom), entry.module);
  }

  ATOM Of(HINSTANCE ModuleA, WNDPROC ProcedureA) {
    const auto known = std::find_if(mEntries.begin(), mEntries.end(),
                                    [=](const Entry& entry) { return entry.module == ModuleA; });
    if (known != mEntries.end()) return known->atom;
    WNDCLASSEXW description{};
    description.cbSize = sizeof description;
    description.style = CS_DBLCLKS;
    description.lpfnWndProc = ProcedureA;
    description.hInstance = ModuleA;
    description.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    description.lpszClassName = kClassName;
    const ATOM atom = RegisterClassExW(&description);
    if (atom != 0) mEntries.push_back({ModuleA, atom});
    return atom;
  }

 private:
  struct Entry {
    HINSTANCE module;
    ATOM atom;
  };
  std::vector<Entry> mEntries;
};

}  // namespace

ATOM WindowClassOf(HINSTANCE ModuleA, WNDPROC ProcedureA) {
  static Classes classes;
  return classes.Of(ModuleA, ProcedureA);
}

}  // namespace mur::win32
