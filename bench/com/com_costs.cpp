#include <string>

#include <murtimeline_contract.h>
#include <wrl/client.h>

#include <murtimeline/win32/platform.h>

#include "bench/com/costs.h"
#include "bench/com/median.h"

using Microsoft::WRL::ComPtr;

namespace mur::bench {
namespace {

void Require(HRESULT ResultA) {
  if (FAILED(ResultA)) throw ResultA;
}

/// A member of an object that is called late bound.
struct Member {
  IDispatch* object;
  DISPID id;

  Member(IDispatch* ObjectA, const wchar_t* NameA) : object(ObjectA), id(IdOf(ObjectA, NameA)) {}

  static DISPID IdOf(IDispatch* ObjectA, const wchar_t* NameA) {
    auto name = const_cast<LPOLESTR>(NameA);
    DISPID id = DISPID_UNKNOWN;
    Require(ObjectA->GetIDsOfNames(IID_NULL, &name, 1, LOCALE_USER_DEFAULT, &id));
    return id;
  }
  VARIANT Get() const { return Invoke(DISPATCH_PROPERTYGET, {}); }
  VARIANT Call(VARIANT ArgumentA) const { return Invoke(DISPATCH_METHOD, {&ArgumentA, nullptr, 1, 0}); }
  void Put(VARIANT ValueA) const {
    DISPID put = DISPID_PROPERTYPUT;
    Invoke(DISPATCH_PROPERTYPUT, {&ValueA, &put, 1, 1});
  }

 private:
  VARIANT Invoke(WORD WayA, DISPPARAMS GivenA) const {
    VARIANT result{};
    Require(object->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, WayA, &GivenA,
                           WayA == DISPATCH_PROPERTYPUT ? nullptr : &result, nullptr, nullptr));
    return result;
  }
};

VARIANT Number(double ValueA) {
  VARIANT value{};
  V_VT(&value) = VT_R8;
  V_R8(&value) = ValueA;
  return value;
}

VARIANT Number(int ValueA) {
  VARIANT value{};
  V_VT(&value) = VT_I4;
  V_I4(&value) = ValueA;
  return value;
}

/// Takes note of each event and does nothing.
class Listener final : public IDispatch {
 public:
  STDMETHODIMP QueryInterface(REFIID InterfaceA, void** ResultA) override {
    *ResultA = InterfaceA == IID_IUnknown || InterfaceA == IID_IDispatch ? this : nullptr;
    return *ResultA ? S_OK : E_NOINTERFACE;
  }
  // It lives on the stack, longer than the connection.
  STDMETHODIMP_(ULONG) AddRef() override { return 2; }
  STDMETHODIMP_(ULONG) Release() override { return 1; }
  STDMETHODIMP GetTypeInfoCount(UINT*) override { return E_NOTIMPL; }
  STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
  STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override { return E_NOTIMPL; }
  STDMETHODIMP Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*, UINT*) override {
    ++mHeard;
    return S_OK;
  }

 private:
  int mHeard = 0;
};

/// A time line of the server beside this program, registered or not.
ComPtr<IDispatch> MakeTimeline() {
  std::wstring path(MAX_PATH, L'\0');
  path.resize(GetModuleFileNameW(nullptr, path.data(), MAX_PATH));
  path.replace(path.rfind(L'\\') + 1, std::wstring::npos, L"MURTimeline.ocx");
  const HMODULE server = LoadLibraryW(path.c_str());
  if (!server) throw HRESULT_FROM_WIN32(GetLastError());
  const auto enter = reinterpret_cast<HRESULT(WINAPI*)(REFCLSID, REFIID, void**)>(
      reinterpret_cast<void*>(GetProcAddress(server, "DllGetClassObject")));
  ComPtr<IClassFactory> factory;
  Require(
      enter(__uuidof(::CMURTimeline), IID_IClassFactory, reinterpret_cast<void**>(factory.GetAddressOf())));
  ComPtr<IDispatch> timeline;
  Require(factory->CreateInstance(nullptr, IID_PPV_ARGS(&timeline)));
  return timeline;
}

void Enumerate(IUnknown* MembersA) {
  ComPtr<IEnumVARIANT> members;
  Require(MembersA->QueryInterface(IID_PPV_ARGS(&members)));
  for (VARIANT member{}; members->Next(1, &member, nullptr) == S_OK;) VariantClear(&member);
}

}  // namespace

Costs ComCosts() {
  const auto timeline = MakeTimeline();
  const Member add(timeline.Get(), L"Add"), count(timeline.Get(), L"Count");
  const VARIANT added = add.Call(Number(murtlotGroup));
  ComPtr<IDispatch> scene;
  scene.Attach(V_DISPATCH(&added));
  const Member duration(scene.Get(), L"Duration");
  Costs costs{};
  costs.get = MedianCost(kCalls, [&] {
    for (int i = 0; i < kCalls; ++i) duration.Get();
  });
  costs.getByName = MedianCost(kCalls, [&] {
    for (int i = 0; i < kCalls; ++i) Member(scene.Get(), L"Duration").Get();
  });

  Listener listener;
  ComPtr<IConnectionPointContainer> container;
  ComPtr<IConnectionPoint> point;
  Require(timeline.As(&container));
  Require(container->FindConnectionPoint(__uuidof(::__CMURTimeline), &point));
  DWORD cookie = 0;
  Require(point->Advise(&listener, &cookie));
  costs.put = MedianCost(kCalls, [&] {
    for (int i = 0; i < kCalls; ++i) duration.Put(Number(static_cast<double>(i)));
  });
  costs.add = MedianCost(kMembers, [&] {
    for (int i = 0; i < kMembers; ++i) {
      VARIANT scalar = add.Call(Number(murtlotScalar));
      VariantClear(&scalar);
    }
  });
  const VARIANT size = count.Get();
  costs.enumerate = MedianCost(V_I4(&size), [&] {
    DISPPARAMS none{};
    VARIANT members{};
    Require(timeline->Invoke(DISPID_NEWENUM, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_PROPERTYGET, &none,
                             &members, nullptr, nullptr));
    Enumerate(V_UNKNOWN(&members));
    VariantClear(&members);
  });
  point->Unadvise(cookie);
  ComPtr<_CMURTimeline> whole;
  Require(timeline.As(&whole));
  Require(whole->Clear());
  return costs;
}

}  // namespace mur::bench
