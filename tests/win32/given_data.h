#pragma once

#include <cstring>
#include <map>
#include <vector>

#include <murtimeline/automation/string.h>
#include <murtimeline/win32/platform.h>

namespace mur::win32::test {

/// The formats that there are, one after the other.
class FormatList final : public IEnumFORMATETC {
 public:
  explicit FormatList(std::vector<FORMATETC> FormatsA) : mFormats(std::move(FormatsA)) {}
  virtual ~FormatList() = default;

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID, void** ResultA) override {
    *ResultA = nullptr;
    return E_NOINTERFACE;
  }
  ULONG STDMETHODCALLTYPE AddRef() override { return ++mReferences; }
  ULONG STDMETHODCALLTYPE Release() override {
    const ULONG left = --mReferences;
    if (left == 0) delete this;
    return left;
  }
  HRESULT STDMETHODCALLTYPE Next(ULONG CountA, FORMATETC* FormatsA, ULONG* FetchedA) override {
    ULONG fetched = 0;
    while (fetched < CountA && mAt < mFormats.size()) FormatsA[fetched++] = mFormats[mAt++];
    if (FetchedA) *FetchedA = fetched;
    return fetched == CountA ? S_OK : S_FALSE;
  }
  HRESULT STDMETHODCALLTYPE Skip(ULONG) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE Reset() override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE Clone(IEnumFORMATETC**) override { return E_NOTIMPL; }

 private:
  std::vector<FORMATETC> mFormats;
  std::size_t mAt = 0;
  ULONG mReferences = 1;
};

/// What a test drags: bytes by clipboard format. It lives where it is declared; whoever holds it is counted.
class GivenData final : public IDataObject {
 public:
  virtual ~GivenData() = default;

  void Put(CLIPFORMAT FormatA, const void* BytesA, std::size_t CountA) {
    const auto* first = static_cast<const std::byte*>(BytesA);
    mBytes[FormatA] = {first, first + CountA};
  }
  void PutText(StringView TextA) { Put(CF_UNICODETEXT, TextA.data(), (TextA.size() + 1) * sizeof(char16_t)); }
  ULONG Holders() const { return mReferences - 1; }

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID IdA, void** ResultA) override {
    const bool isOurs = IsEqualIID(IdA, IID_IUnknown) || IsEqualIID(IdA, IID_IDataObject);
    *ResultA = isOurs ? this : nullptr;
    if (isOurs) AddRef();
    return isOurs ? S_OK : E_NOINTERFACE;
  }
  ULONG STDMETHODCALLTYPE AddRef() override { return ++mReferences; }
  ULONG STDMETHODCALLTYPE Release() override { return --mReferences; }

  HRESULT STDMETHODCALLTYPE GetData(FORMATETC* FormatA, STGMEDIUM* MediumA) override {
    if (QueryGetData(FormatA) != S_OK) return DV_E_FORMATETC;
    const auto& bytes = mBytes[FormatA->cfFormat];
    MediumA->tymed = TYMED_HGLOBAL;
    MediumA->hGlobal = GlobalAlloc(GMEM_MOVEABLE, bytes.size());
    MediumA->pUnkForRelease = nullptr;
    std::memcpy(GlobalLock(MediumA->hGlobal), bytes.data(), bytes.size());
    GlobalUnlock(MediumA->hGlobal);
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE GetDataHere(FORMATETC*, STGMEDIUM*) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE QueryGetData(FORMATETC* FormatA) override {
    return mBytes.contains(FormatA->cfFormat) ? S_OK : DV_E_FORMATETC;
  }
  HRESULT STDMETHODCALLTYPE GetCanonicalFormatEtc(FORMATETC*, FORMATETC*) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE SetData(FORMATETC*, STGMEDIUM*, BOOL) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE EnumFormatEtc(DWORD, IEnumFORMATETC** ResultA) override {
    std::vector<FORMATETC> formats;
    for (const auto& [format, bytes] : mBytes)
      formats.push_back({format, nullptr, DVASPECT_CONTENT, -1, TYMED_HGLOBAL});
    *ResultA = new FormatList(std::move(formats));
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE DAdvise(FORMATETC*, DWORD, IAdviseSink*, DWORD*) override {
    return OLE_E_ADVISENOTSUPPORTED;
  }
  HRESULT STDMETHODCALLTYPE DUnadvise(DWORD) override { return OLE_E_ADVISENOTSUPPORTED; }
  HRESULT STDMETHODCALLTYPE EnumDAdvise(IEnumSTATDATA**) override { return OLE_E_ADVISENOTSUPPORTED; }

 private:
  std::map<CLIPFORMAT, std::vector<std::byte>> mBytes;
  ULONG mReferences = 1;
};

}  // namespace mur::win32::test
