#include "tests/clients/script_host/host_object.h"

#include <array>
#include <cstdio>

namespace mur::scripts {
namespace {

enum Member : DISPID { kEcho = 1, kCreateObject, kConnectObject, kDisconnectObject };
constexpr std::array kNames{L"Echo", L"CreateObject", L"ConnectObject", L"DisconnectObject"};

std::wstring TextOf(VARIANT ValueA) {
  VARIANT text{};
  Require(VariantChangeType(&text, &ValueA, VARIANT_ALPHABOOL, VT_BSTR));
  std::wstring result(V_BSTR(&text), SysStringLen(V_BSTR(&text)));
  VariantClear(&text);
  return result;
}

/// The arguments of a call in the order in which they are written, none of them by reference.
std::vector<VARIANT> Written(const DISPPARAMS& GivenA) {
  std::vector<VARIANT> arguments(GivenA.rgvarg, GivenA.rgvarg + GivenA.cArgs);
  for (VARIANT& argument : arguments)
    while (V_VT(&argument) == (VT_VARIANT | VT_BYREF)) argument = *V_VARIANTREF(&argument);
  return {arguments.rbegin(), arguments.rend()};
}

const VARIANT& At(const std::vector<VARIANT>& GivenA, std::size_t PositionA) {
  if (PositionA >= GivenA.size()) throw DISP_E_BADPARAMCOUNT;
  return GivenA[PositionA];
}

IUnknown* ObjectAt(const std::vector<VARIANT>& GivenA, std::size_t PositionA) {
  const VARIANT& value = At(GivenA, PositionA);
  if ((V_VT(&value) != VT_DISPATCH && V_VT(&value) != VT_UNKNOWN) || !V_UNKNOWN(&value))
    throw DISP_E_TYPEMISMATCH;
  return V_UNKNOWN(&value);
}

}  // namespace

void WriteLine(std::wstring_view LineA) {
  const int length = static_cast<int>(LineA.size());
  std::string text(LineA.size() * 3, '\0');
  const int size = WideCharToMultiByte(CP_UTF8, 0, LineA.data(), length, text.data(),
                                       static_cast<int>(text.size()), nullptr, nullptr);
  text.resize(static_cast<std::size_t>(size));
  std::puts(text.c_str());
  std::fflush(stdout);
}

void HostObject::DisconnectAll() {
  for (const Connection& connection : mConnections) connection.link->Disconnect();
  mConnections.clear();
}

HRESULT HostObject::GetIDsOfNames(REFIID, LPOLESTR* NamesA, UINT, LCID, DISPID* ResultA) noexcept {
  for (std::size_t i = 0; i < kNames.size(); ++i) {
    if (lstrcmpiW(NamesA[0], kNames[i]) == 0) {
      *ResultA = static_cast<DISPID>(i + 1);
      return S_OK;
    }
  }
  return DISP_E_UNKNOWNNAME;
}

HRESULT HostObject::Invoke(DISPID IdA, REFIID, LCID, WORD, DISPPARAMS* GivenA, VARIANT* ResultA, EXCEPINFO*,
                           UINT*) noexcept {
  try {
    const std::vector<VARIANT> given = Written(*GivenA);
    switch (IdA) {
      case kEcho:
        return Echo(given), S_OK;
      case kCreateObject:
        return CreateObject(given, ResultA), S_OK;
      case kConnectObject:
        return ConnectObject(given), S_OK;
      case kDisconnectObject:
        return DisconnectObject(given), S_OK;
      default:
        return DISP_E_MEMBERNOTFOUND;
    }
  } catch (HRESULT failure) {
    return failure;
  } catch (...) {
    return E_OUTOFMEMORY;
  }
}

void HostObject::Echo(const std::vector<VARIANT>& GivenA) const {
  std::wstring line;
  for (const VARIANT& value : GivenA) line += (line.empty() ? L"" : L" ") + TextOf(value);
  WriteLine(line);
}

void HostObject::CreateObject(const std::vector<VARIANT>& GivenA, VARIANT* ResultA) {
  CLSID id;
  Require(CLSIDFromProgID(TextOf(At(GivenA, 0)).c_str(), &id));
  ComPtr<IDispatch> object;
  Require(CoCreateInstance(id, nullptr, CLSCTX_INPROC_SERVER, IID_PPV_ARGS(&object)));
  if (GivenA.size() > 1) Connect(object.Get(), GivenA[1]);
  if (!ResultA) return;
  V_VT(ResultA) = VT_DISPATCH;
  V_DISPATCH(ResultA) = object.Detach();
}

void HostObject::ConnectObject(const std::vector<VARIANT>& GivenA) {
  Connect(ObjectAt(GivenA, 0), At(GivenA, 1));
}

void HostObject::Connect(IUnknown* ObjectA, const VARIANT& PrefixA) {
  ComPtr<IDispatch> procedures;
  Require(mScript.GetScriptDispatch(nullptr, &procedures));
  ComPtr<EventLink> link;
  link.Attach(new EventLink(ObjectA, procedures.Get(), TextOf(PrefixA)));
  Require(link->Connect());
  mConnections.push_back({ObjectA, link});
}

void HostObject::DisconnectObject(const std::vector<VARIANT>& GivenA) {
  IUnknown* const object = ObjectAt(GivenA, 0);
  std::erase_if(mConnections, [&](const Connection& ConnectionA) {
    const bool matches = ConnectionA.object.Get() == object;
    if (matches) ConnectionA.link->Disconnect();
    return matches;
  });
}

}  // namespace mur::scripts
