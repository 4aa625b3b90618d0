#include "tests/com/server.h"

#include <filesystem>
#include <stdexcept>

namespace mur::test {

void Require(HRESULT ResultA, const char* WhatA) {
  if (FAILED(ResultA)) throw std::runtime_error(std::string(WhatA) + ": " + ResultText(ResultA));
}

namespace server {
namespace {

template <class Function>
Function EntryPoint(const char* NameA) {
  const FARPROC found = GetProcAddress(Module(), NameA);
  if (!found) throw std::runtime_error(std::string("the server has no ") + NameA);
  return reinterpret_cast<Function>(reinterpret_cast<void*>(found));
}

}  // namespace

std::wstring Path() {
  wchar_t program[MAX_PATH];
  GetModuleFileNameW(nullptr, program, MAX_PATH);
  return (std::filesystem::path(program).parent_path() / "MURTimeline.ocx").wstring();
}

HMODULE Module() {
  static const HMODULE sModule = LoadLibraryW(Path().c_str());
  if (!sModule) throw std::runtime_error("the server cannot be loaded");
  return sModule;
}

HRESULT GetClassObject(REFCLSID ClassA, REFIID InterfaceA, void** ResultA) {
  static const auto sEntry = EntryPoint<LPFNGETCLASSOBJECT>("DllGetClassObject");
  return sEntry(ClassA, InterfaceA, ResultA);
}

bool IsIdle() {
  static const auto sEntry = EntryPoint<LPFNCANUNLOADNOW>("DllCanUnloadNow");
  return sEntry() == S_OK;
}

ITypeLib& Library() {
  static ITypeLib* sLibrary = [] {
    ITypeLib* library = nullptr;
    Require(LoadTypeLibEx(Path().c_str(), REGKIND_NONE, &library), "LoadTypeLibEx");
    return library;
  }();
  return *sLibrary;
}

Ref<ITypeInfo> TypeOf(REFGUID TypeA) {
  ITypeInfo* found = nullptr;
  Require(Library().GetTypeInfoOfGuid(TypeA, &found), "GetTypeInfoOfGuid");
  return TakeOver(found);
}

Ref<ITypeInfo> TypeNamed(std::wstring_view NameA) {
  for (UINT i = 0; i < Library().GetTypeInfoCount(); ++i) {
    ITypeInfo* found = nullptr;
    Require(Library().GetTypeInfo(i, &found), "GetTypeInfo");
    const auto type = TakeOver(found);
    if (NameIn(*type) == NameA) return type;
  }
  throw std::runtime_error("no type " + ToUtf8(NameA));
}

Ref<IClassFactory> Factory(REFCLSID ClassA) {
  void* found = nullptr;
  Require(GetClassObject(ClassA, IID_IClassFactory, &found), "DllGetClassObject");
  return TakeOver(static_cast<IClassFactory*>(found));
}

Ref<IUnknown> Create(REFCLSID ClassA) {
  void* made = nullptr;
  Require(Factory(ClassA)->CreateInstance(nullptr, IID_IUnknown, &made), "CreateInstance");
  return TakeOver(static_cast<IUnknown*>(made));
}

const std::vector<PublishedClass>& Classes() {
  static const std::vector<PublishedClass> kClasses = {
      {"CMURTimeline", __uuidof(::CMURTimeline)},
      {"CMURTimelineGroup", __uuidof(::CMURTimelineGroup)},
      {"CMURTimelineScalar", __uuidof(::CMURTimelineScalar)},
      {"CMURTimelineMedia", __uuidof(::CMURTimelineMedia)},
      {"CMURTLRenderConfig", __uuidof(::CMURTLRenderConfig)},
      {"MURTimelineRender", __uuidof(::MURTimelineRender)},
  };
  return kClasses;
}

}  // namespace server
}  // namespace mur::test
