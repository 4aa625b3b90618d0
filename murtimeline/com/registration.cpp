#include <string>

#include <murtimeline/com/class_factory.h>
#include <murtimeline/com/embedding/misc_status.h>
#include <murtimeline/com/guard.h>
#include <murtimeline/com/registration.h>
#include <murtimeline/com/type_library.h>

// Not in the compiler's headers.
STDAPI RegisterTypeLibForUser(ITypeLib* LibraryA, OLECHAR* PathA, OLECHAR* HelpFolderA);
STDAPI UnRegisterTypeLibForUser(REFGUID LibraryA, WORD MajorA, WORD MinorA, LCID LocaleA, SYSKIND SystemA);

namespace mur::com {
namespace {

constexpr wchar_t kVersion[] = L".1";
constexpr wchar_t kControlCategory[] = L"{40FC6ED4-2438-11CF-A3DB-080036F12502}";

std::wstring TextOf(const GUID& GuidA) {
  wchar_t text[39];
  StringFromGUID2(GuidA, text, 39);
  return text;
}

void RequireNoError(LSTATUS StatusA) {
  if (StatusA != ERROR_SUCCESS) throw ComFailure(HRESULT_FROM_WIN32(static_cast<DWORD>(StatusA)));
}

/// The part of the registry where classes are, for the machine or for the user.
class Registry {
 public:
  explicit Registry(Scope ScopeA) : mRoot(ScopeA == Scope::User ? HKEY_CURRENT_USER : HKEY_LOCAL_MACHINE) {}

  void Write(const std::wstring& KeyA, const std::wstring& ValueA = {},
             const wchar_t* NameA = nullptr) const {
    HKEY key = nullptr;
    RequireNoError(
        RegCreateKeyExW(mRoot, PathOf(KeyA).c_str(), 0, nullptr, 0, KEY_WRITE, nullptr, &key, nullptr));
    const auto size = static_cast<DWORD>((ValueA.size() + 1) * sizeof(wchar_t));
    const LSTATUS status =
        RegSetValueExW(key, NameA, 0, REG_SZ, reinterpret_cast<const BYTE*>(ValueA.c_str()), size);
    RegCloseKey(key);
    RequireNoError(status);
  }
  void Remove(const std::wstring& KeyA) const {
    const LSTATUS status = RegDeleteTreeW(mRoot, PathOf(KeyA).c_str());
    if (status != ERROR_FILE_NOT_FOUND) RequireNoError(status);
  }

 private:
  static std::wstring PathOf(const std::wstring& KeyA) { return L"Software\\Classes\\" + KeyA; }

  const HKEY mRoot;
};

std::wstring ClassKey(const PublishedClass& ClassA) {
  return L"CLSID\\" + TextOf(ClassA.id);
}

void WriteControl(const Registry& RegistryA, const std::wstring& KeyA, const std::wstring& ServerA) {
  RegistryA.Write(KeyA + L"\\Control");
  RegistryA.Write(KeyA + L"\\Implemented Categories\\" + kControlCategory);
  RegistryA.Write(KeyA + L"\\MiscStatus", L"0");
  RegistryA.Write(KeyA + L"\\MiscStatus\\1", std::to_wstring(kMiscStatus));
  RegistryA.Write(KeyA + L"\\ToolboxBitmap32", ServerA + L", 101");
}

void WriteClass(const Registry& RegistryA, const PublishedClass& ClassA, const std::wstring& ServerA,
                const std::wstring& LibraryA) {
  const std::wstring key = ClassKey(ClassA), plain = ClassA.progId, versioned = plain + kVersion;
  RegistryA.Write(key, ClassA.title);
  RegistryA.Write(key + L"\\InprocServer32", ServerA);
  RegistryA.Write(key + L"\\InprocServer32", L"Apartment", L"ThreadingModel");
  RegistryA.Write(key + L"\\ProgID", versioned);
  RegistryA.Write(key + L"\\VersionIndependentProgID", plain);
  RegistryA.Write(key + L"\\TypeLib", LibraryA);
  RegistryA.Write(key + L"\\Version", L"1.0");
  RegistryA.Write(key + L"\\Programmable");
  if (ClassA.isControl) WriteControl(RegistryA, key, ServerA);
  RegistryA.Write(versioned, ClassA.title);
  RegistryA.Write(versioned + L"\\CLSID", TextOf(ClassA.id));
  RegistryA.Write(plain, ClassA.title);
  RegistryA.Write(plain + L"\\CLSID", TextOf(ClassA.id));
  RegistryA.Write(plain + L"\\CurVer", versioned);
}

void RemoveClass(const Registry& RegistryA, const PublishedClass& ClassA) {
  RegistryA.Remove(ClassKey(ClassA));
  RegistryA.Remove(ClassA.progId + std::wstring(kVersion));
  RegistryA.Remove(ClassA.progId);
}

/// The library's own entry in its list, as the functions of the platform want it.
class LibraryEntry {
 public:
  LibraryEntry() {
    if (!TypeLibrary()) throw ComFailure(TYPE_E_CANTLOADLIBRARY);
    RequireSuccess(TypeLibrary()->GetLibAttr(&mAttributes));
  }
  LibraryEntry(const LibraryEntry&) = delete;
  LibraryEntry& operator=(const LibraryEntry&) = delete;
  ~LibraryEntry() { TypeLibrary()->ReleaseTLibAttr(mAttributes); }

  const GUID& Id() const noexcept { return mAttributes->guid; }

  void Register(Scope ScopeA, std::wstring PathA) const {
    const auto write = ScopeA == Scope::User ? &RegisterTypeLibForUser : &RegisterTypeLib;
    RequireSuccess(write(TypeLibrary(), PathA.data(), nullptr));
  }
  void Unregister(Scope ScopeA) const {
    const auto remove = ScopeA == Scope::User ? &UnRegisterTypeLibForUser : &UnRegisterTypeLib;
    remove(mAttributes->guid, mAttributes->wMajorVerNum, mAttributes->wMinorVerNum, mAttributes->lcid,
           mAttributes->syskind);
  }

 private:
  TLIBATTR* mAttributes = nullptr;
};

}  // namespace

HRESULT Register(Scope ScopeA) noexcept {
  const HRESULT result = Guarded([&] {
    const std::wstring server = ServerPath();
    const LibraryEntry library;
    library.Register(ScopeA, server);
    for (const PublishedClass& known : PublishedClasses())
      WriteClass(Registry(ScopeA), known, server, TextOf(library.Id()));
  });
  if (FAILED(result)) Unregister(ScopeA);
  return result;
}

HRESULT Unregister(Scope ScopeA) noexcept {
  return Guarded([&] {
    for (const PublishedClass& known : PublishedClasses()) RemoveClass(Registry(ScopeA), known);
    LibraryEntry().Unregister(ScopeA);
  });
}

}  // namespace mur::com
