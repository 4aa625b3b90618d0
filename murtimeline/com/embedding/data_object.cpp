#include <algorithm>
#include <array>
#include <utility>

#include <murtimeline/com/embedding/data_object.h>
#include <murtimeline/com/embedding/metafile.h>
#include <murtimeline/com/enumerator.h>

namespace mur::com {
namespace {

struct Format {
  CLIPFORMAT id;
  DWORD medium;
  STGMEDIUM (*make)(win32::TimelineWindow& WindowA, const SIZEL& SizeA);

  FORMATETC Handed() const { return {id, nullptr, DVASPECT_CONTENT, -1, medium}; }
  static void Drop(const FORMATETC&) noexcept {}
};

// The better one first.
constexpr std::array kFormats = {
    Format{CF_ENHMETAFILE, TYMED_ENHMF, &EnhancedMetafileOf},
    Format{CF_METAFILEPICT, TYMED_MFPICT, &MetafilePictureOf},
};

using FormatEnumerator = Enumerator<IEnumFORMATETC, FORMATETC, Snapshot<FORMATETC, Format>>;

// The one that is meant, or why there is none.
HRESULT Find(const FORMATETC* WantedA, const Format** ResultA) {
  if (!WantedA) return E_POINTER;
  const auto known = std::find_if(kFormats.begin(), kFormats.end(),
                                  [&](const Format& one) { return one.id == WantedA->cfFormat; });
  if (known == kFormats.end()) return DV_E_FORMATETC;
  if (WantedA->dwAspect != DVASPECT_CONTENT) return DV_E_DVASPECT;
  if (WantedA->lindex != -1) return DV_E_LINDEX;
  if (!(WantedA->tymed & known->medium)) return DV_E_TYMED;
  *ResultA = &*known;
  return S_OK;
}

}  // namespace

// The holder asks for the data, which nobody may be told of again meanwhile.
void DataObject::Tell(DWORD FlagsA) {
  const auto advised = mAdvised;
  if (!advised || std::exchange(mTells, true)) return;
  advised->SendOnDataChange(this, 0, FlagsA);
  mTells = false;
}

HRESULT DataObject::GetData(FORMATETC* FormatA, STGMEDIUM* ResultA) noexcept {
  if (!ResultA) return E_POINTER;
  *ResultA = {};
  return Run([&] {
    const Format* format = nullptr;
    const HRESULT found = Find(FormatA, &format);
    if (SUCCEEDED(found)) *ResultA = format->make(mWindow, mExtent.Get());
    return found;
  });
}

HRESULT DataObject::GetDataHere(FORMATETC*, STGMEDIUM*) noexcept {
  return E_NOTIMPL;
}

HRESULT DataObject::QueryGetData(FORMATETC* FormatA) noexcept {
  const Format* format = nullptr;
  return Find(FormatA, &format);
}

HRESULT DataObject::GetCanonicalFormatEtc(FORMATETC* FormatA, FORMATETC* ResultA) noexcept {
  if (!FormatA || !ResultA) return E_POINTER;
  *ResultA = *FormatA;
  ResultA->ptd = nullptr;
  return FormatA->ptd ? S_OK : DATA_S_SAMEFORMATETC;
}

HRESULT DataObject::SetData(FORMATETC*, STGMEDIUM*, BOOL) noexcept {
  return E_NOTIMPL;
}

HRESULT DataObject::EnumFormatEtc(DWORD DirectionA, IEnumFORMATETC** ResultA) noexcept {
  if (!ResultA) return E_POINTER;
  *ResultA = nullptr;
  if (DirectionA != DATADIR_GET) return E_NOTIMPL;
  return Run([&] {
    const Snapshot<FORMATETC, Format> formats({kFormats.begin(), kFormats.end()});
    return PutObject(ResultA, Ref<IEnumFORMATETC>(new FormatEnumerator(formats)));
  });
}

HRESULT DataObject::DAdvise(FORMATETC* FormatA, DWORD FlagsA, IAdviseSink* SinkA, DWORD* ResultA) noexcept {
  return Run([&] {
    IDataAdviseHolder* made = nullptr;
    if (!mAdvised) RequireSuccess(CreateDataAdviseHolder(&made));
    if (made) mAdvised = TakeOver(made);
    return mAdvised->Advise(this, FormatA, FlagsA, SinkA, ResultA);
  });
}

HRESULT DataObject::DUnadvise(DWORD CookieA) noexcept {
  return Run([&] { return mAdvised ? mAdvised->Unadvise(CookieA) : OLE_E_NOCONNECTION; });
}

HRESULT DataObject::EnumDAdvise(IEnumSTATDATA** ResultA) noexcept {
  if (!ResultA) return E_POINTER;
  *ResultA = nullptr;
  return Run([&] { return mAdvised ? mAdvised->EnumAdvise(ResultA) : S_OK; });
}

}  // namespace mur::com
