#pragma once

#include <murtimeline/com/embedding/extent.h>
#include <murtimeline/com/embedding/part.h>

namespace mur::com {

/// The picture of the control, drawn for the container on any device, with a window or without.
class ViewObject final : public Part<IViewObjectEx, IViewObject2, IViewObject> {
 public:
  /// All of them outlive this object.
  ViewObject(IUnknown& IdentityA, win32::TimelineWindow& WindowA, const Extent& ExtentA)
      : Part(IdentityA), mWindow(WindowA), mExtent(ExtentA) {}

  /// Tells the container that the picture changed.
  void TellChanged();

  STDMETHODIMP Draw(DWORD AspectA, LONG IndexA, void* AspectDataA, DVTARGETDEVICE* TargetA, HDC InfoA,
                    HDC DeviceA, LPCRECTL PlaceA, LPCRECTL WindowPlaceA,
                    BOOL(STDMETHODCALLTYPE* ContinueA)(ULONG_PTR), ULONG_PTR ContinueWithA) noexcept override;
  STDMETHODIMP GetColorSet(DWORD AspectA, LONG IndexA, void* AspectDataA, DVTARGETDEVICE* TargetA, HDC InfoA,
                           LOGPALETTE** ResultA) noexcept override;
  STDMETHODIMP Freeze(DWORD AspectA, LONG IndexA, void* AspectDataA, DWORD* ResultA) noexcept override;
  STDMETHODIMP Unfreeze(DWORD FrozenA) noexcept override;
  STDMETHODIMP SetAdvise(DWORD AspectsA, DWORD FlagsA, IAdviseSink* SinkA) noexcept override;
  STDMETHODIMP GetAdvise(DWORD* AspectsA, DWORD* FlagsA, IAdviseSink** SinkA) noexcept override;
  STDMETHODIMP GetExtent(DWORD AspectA, LONG IndexA, DVTARGETDEVICE* TargetA,
                         LPSIZEL ResultA) noexcept override;
  STDMETHODIMP GetRect(DWORD AspectA, LPRECTL ResultA) noexcept override;
  STDMETHODIMP GetViewStatus(DWORD* ResultA) noexcept override;
  STDMETHODIMP QueryHitPoint(DWORD AspectA, LPCRECT BoundsA, POINT PointA, LONG CloseA,
                             DWORD* ResultA) noexcept override;
  STDMETHODIMP QueryHitRect(DWORD AspectA, LPCRECT BoundsA, LPCRECT RectA, LONG CloseA,
                            DWORD* ResultA) noexcept override;
  STDMETHODIMP GetNaturalExtent(DWORD AspectA, LONG IndexA, DVTARGETDEVICE* TargetA, HDC InfoA,
                                DVEXTENTINFO* WantedA, LPSIZEL ResultA) noexcept override;

 private:
  struct Advice {
    DWORD aspects = 0, flags = 0;
    Ref<IAdviseSink> sink;
  };

  win32::TimelineWindow& mWindow;
  const Extent& mExtent;
  Advice mAdvice;
};

}  // namespace mur::com
