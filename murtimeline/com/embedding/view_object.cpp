#include <utility>

#include <murtimeline/com/embedding/misc_status.h>
#include <murtimeline/com/embedding/view_object.h>

namespace mur::com {
namespace {

// The whole of the control is all that it has to show.
constexpr bool HasPicture(DWORD AspectA) {
  return AspectA == DVASPECT_CONTENT || AspectA == DVASPECT_OPAQUE;
}

}  // namespace

void ViewObject::TellChanged() {
  const auto sink = mAdvice.sink;
  if (!sink) return;
  if (mAdvice.flags & ADVF_ONLYONCE) mAdvice = {};
  sink->OnViewChange(DVASPECT_CONTENT, -1);
}

HRESULT ViewObject::Draw(DWORD AspectA, LONG, void*, DVTARGETDEVICE*, HDC, HDC DeviceA, LPCRECTL PlaceA,
                         LPCRECTL, BOOL(STDMETHODCALLTYPE* ContinueA)(ULONG_PTR),
                         ULONG_PTR ContinueWithA) noexcept {
  if (!HasPicture(AspectA)) return DV_E_DVASPECT;
  if (!DeviceA || !PlaceA) return E_POINTER;
  return Run([&] {
    if (ContinueA && !ContinueA(ContinueWithA)) return E_ABORT;
    mWindow.PaintTo(DeviceA, {PlaceA->left, PlaceA->top, PlaceA->right, PlaceA->bottom});
    return S_OK;
  });
}

// Colours are not taken from a palette.
HRESULT ViewObject::GetColorSet(DWORD, LONG, void*, DVTARGETDEVICE*, HDC, LOGPALETTE** ResultA) noexcept {
  const HRESULT result = Put(ResultA, static_cast<LOGPALETTE*>(nullptr));
  return FAILED(result) ? result : S_FALSE;
}

HRESULT ViewObject::Freeze(DWORD, LONG, void*, DWORD* ResultA) noexcept {
  Put(ResultA, DWORD{0});
  return E_NOTIMPL;
}

HRESULT ViewObject::Unfreeze(DWORD) noexcept {
  return OLE_E_NOCONNECTION;
}

HRESULT ViewObject::SetAdvise(DWORD AspectsA, DWORD FlagsA, IAdviseSink* SinkA) noexcept {
  if (SinkA && !(AspectsA & DVASPECT_CONTENT)) return DV_E_DVASPECT;
  return Run([&] {
    mAdvice = {AspectsA, FlagsA, Ref(SinkA)};
    if (FlagsA & ADVF_PRIMEFIRST) TellChanged();
    return S_OK;
  });
}

HRESULT ViewObject::GetAdvise(DWORD* AspectsA, DWORD* FlagsA, IAdviseSink** SinkA) noexcept {
  Put(AspectsA, mAdvice.aspects);
  Put(FlagsA, mAdvice.flags);
  PutObject(SinkA, mAdvice.sink);
  return S_OK;
}

HRESULT ViewObject::GetExtent(DWORD AspectA, LONG, DVTARGETDEVICE*, LPSIZEL ResultA) noexcept {
  return HasPicture(AspectA) ? Put(ResultA, mExtent.Get()) : DV_E_DVASPECT;
}

HRESULT ViewObject::GetRect(DWORD AspectA, LPRECTL ResultA) noexcept {
  const SIZEL& size = mExtent.Get();
  return HasPicture(AspectA) ? Put(ResultA, RECTL{0, 0, size.cx, size.cy}) : DV_E_DVASPECT;
}

HRESULT ViewObject::GetViewStatus(DWORD* ResultA) noexcept {
  return Put(ResultA, kViewStatus);
}

HRESULT ViewObject::QueryHitPoint(DWORD AspectA, LPCRECT BoundsA, POINT PointA, LONG,
                                  DWORD* ResultA) noexcept {
  if (!HasPicture(AspectA)) return DV_E_DVASPECT;
  if (!BoundsA) return E_POINTER;
  return Put<DWORD>(ResultA, PtInRect(BoundsA, PointA) ? HITRESULT_HIT : HITRESULT_OUTSIDE);
}

HRESULT ViewObject::QueryHitRect(DWORD AspectA, LPCRECT BoundsA, LPCRECT RectA, LONG,
                                 DWORD* ResultA) noexcept {
  if (!HasPicture(AspectA)) return DV_E_DVASPECT;
  if (!BoundsA || !RectA) return E_POINTER;
  RECT both{};
  return Put<DWORD>(ResultA, IntersectRect(&both, BoundsA, RectA) ? HITRESULT_HIT : HITRESULT_OUTSIDE);
}

// Any size that a container would like is as good.
HRESULT ViewObject::GetNaturalExtent(DWORD AspectA, LONG, DVTARGETDEVICE*, HDC, DVEXTENTINFO* WantedA,
                                     LPSIZEL ResultA) noexcept {
  if (AspectA != DVASPECT_CONTENT) return DV_E_DVASPECT;
  if (!WantedA) return E_POINTER;
  const bool asWanted = WantedA->dwExtentMode == DVEXTENT_INTEGRAL && Extent::IsValid(WantedA->sizelProposed);
  return Put(ResultA, asWanted ? WantedA->sizelProposed : Extent::Natural());
}

}  // namespace mur::com
