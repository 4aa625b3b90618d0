#include <algorithm>

#include <murtimeline/com/class_factory.h>
#include <murtimeline/com/embedding/misc_status.h>
#include <murtimeline/com/embedding/ole_object.h>
#include <murtimeline/com/embedding/verbs.h>

namespace mur::com {
namespace {

// The only aspect that the control has.
constexpr bool IsContent(DWORD AspectA) {
  return AspectA == DVASPECT_CONTENT;
}

const wchar_t* Title() {
  const auto classes = PublishedClasses();
  const auto control = std::find_if(classes.begin(), classes.end(), [](const PublishedClass& one) {
    return one.id == __uuidof(::MURTimelineRender);
  });
  return control->title;
}

}  // namespace

HRESULT OleObject::SetClientSite(IOleClientSite* SiteA) noexcept {
  return Run([&] {
    if (SiteA != mContainer.Site().Get()) mInPlace.Deactivate();
    mContainer.SetSite(SiteA);
    if (SiteA) mWindow.SetAmbience(AmbienceOf(SiteA));
    return S_OK;
  });
}

HRESULT OleObject::GetClientSite(IOleClientSite** ResultA) noexcept {
  return PutObject(ResultA, mContainer.Site());
}

// For the captions of windows that objects open beside their container: this one has none.
HRESULT OleObject::SetHostNames(LPCOLESTR, LPCOLESTR) noexcept {
  return S_OK;
}

// There is never anything to save.
HRESULT OleObject::Close(DWORD SaveA) noexcept {
  if (SaveA > OLECLOSE_PROMPTSAVE) return E_INVALIDARG;
  return Run([&] {
    mInPlace.Deactivate();
    mData.TellStopped();
    if (const auto advised = mAdvised) advised->SendOnClose();
    return S_OK;
  });
}

HRESULT OleObject::SetMoniker(DWORD, IMoniker*) noexcept {
  return E_NOTIMPL;
}

HRESULT OleObject::GetMoniker(DWORD, DWORD, IMoniker** ResultA) noexcept {
  PutObject<IMoniker>(ResultA, {});
  return E_NOTIMPL;
}

HRESULT OleObject::InitFromData(IDataObject*, BOOL, DWORD) noexcept {
  return E_NOTIMPL;
}

HRESULT OleObject::GetClipboardData(DWORD, IDataObject** ResultA) noexcept {
  return PutObject(ResultA, Ref<IDataObject>(&mData));
}

HRESULT OleObject::DoVerb(LONG VerbA, LPMSG MessageA, IOleClientSite* SiteA, LONG /*IndexA*/, HWND ParentA,
                          LPCRECT PlaceA) noexcept {
  return Run([&] {
    if (!mContainer.Site() && SiteA) SetClientSite(SiteA);
    const HRESULT result = Do(VerbA, {ParentA, PlaceA});
    if (SUCCEEDED(result) && MessageA && mInPlace.IsActive()) mInPlace.Forward(*MessageA);
    return result;
  });
}

HRESULT OleObject::Do(LONG VerbA, const InPlace::Hint& HintA) {
  switch (VerbA) {
    case OLEIVERB_PRIMARY:
    case OLEIVERB_UIACTIVATE:
      return Show(HintA, true);
    case OLEIVERB_SHOW:
    case OLEIVERB_INPLACEACTIVATE:
      return Show(HintA, false);
    case OLEIVERB_HIDE:
      return mInPlace.Hide();
    case OLEIVERB_DISCARDUNDOSTATE:
      return S_OK;
    default:
      break;
  }
  // Of the platform's own verbs, those for a window apart and for property pages; the control has neither.
  if (VerbA < 0) return E_NOTIMPL;
  const HRESULT result = Show(HintA, true);
  return FAILED(result) ? result : OLEOBJ_S_INVALIDVERB;
}

HRESULT OleObject::Show(const InPlace::Hint& HintA, bool WithUiA) {
  const HRESULT result = mInPlace.Activate(HintA);
  return FAILED(result) || !WithUiA ? result : mInPlace.ActivateUi();
}

HRESULT OleObject::EnumVerbs(IEnumOLEVERB** ResultA) noexcept {
  return Run([&] { return PutObject(ResultA, EnumerateVerbs()); });
}

HRESULT OleObject::GetUserClassID(CLSID* ResultA) noexcept {
  return Put(ResultA, __uuidof(::MURTimelineRender));
}

HRESULT OleObject::GetUserType(DWORD FormA, LPOLESTR* ResultA) noexcept {
  if (!ResultA) return E_POINTER;
  *ResultA = nullptr;
  if (FormA < USERCLASSTYPE_FULL || FormA > USERCLASSTYPE_APPNAME) return E_INVALIDARG;
  return Run([&] { return Put(ResultA, TaskText(Title())); });
}

HRESULT OleObject::SetExtent(DWORD AspectA, SIZEL* SizeA) noexcept {
  if (!IsContent(AspectA)) return DV_E_DVASPECT;
  if (!SizeA) return E_POINTER;
  if (!Extent::IsValid(*SizeA)) return E_INVALIDARG;
  return Run([&] {
    mExtent.Set(*SizeA);
    const SIZE pixels = mExtent.Pixels();
    if (!mInPlace.AskFor(pixels)) mWindow.SetSize(pixels);
    return S_OK;
  });
}

HRESULT OleObject::GetExtent(DWORD AspectA, SIZEL* ResultA) noexcept {
  return IsContent(AspectA) ? Put(ResultA, mExtent.Get()) : DV_E_DVASPECT;
}

HRESULT OleObject::Advise(IAdviseSink* SinkA, DWORD* ResultA) noexcept {
  return Run([&] {
    IOleAdviseHolder* made = nullptr;
    if (!mAdvised) RequireSuccess(CreateOleAdviseHolder(&made));
    if (made) mAdvised = TakeOver(made);
    return mAdvised->Advise(SinkA, ResultA);
  });
}

HRESULT OleObject::Unadvise(DWORD CookieA) noexcept {
  return Run([&] { return mAdvised ? mAdvised->Unadvise(CookieA) : OLE_E_NOCONNECTION; });
}

HRESULT OleObject::EnumAdvise(IEnumSTATDATA** ResultA) noexcept {
  if (!ResultA) return E_POINTER;
  *ResultA = nullptr;
  return Run([&] { return mAdvised ? mAdvised->EnumAdvise(ResultA) : S_OK; });
}

HRESULT OleObject::GetMiscStatus(DWORD AspectA, DWORD* ResultA) noexcept {
  if (IsContent(AspectA)) return Put(ResultA, kMiscStatus);
  Put(ResultA, DWORD{0});
  return DV_E_DVASPECT;
}

HRESULT OleObject::SetColorScheme(LOGPALETTE*) noexcept {
  return E_NOTIMPL;
}

}  // namespace mur::com
