#pragma once

#include <murtimeline/com/embedding/data_object.h>
#include <murtimeline/com/embedding/extent.h>
#include <murtimeline/com/embedding/in_place.h>
#include <murtimeline/com/embedding/part.h>

namespace mur::com {

/// What makes the control an object in a container: its site, its size, and the verbs that show it.
class OleObject final : public Part<IOleObject> {
 public:
  /// All of them outlive this object.
  OleObject(IUnknown& IdentityA, win32::TimelineWindow& WindowA, Container& ContainerA, InPlace& InPlaceA,
            Extent& ExtentA, DataObject& DataA)
      : Part(IdentityA),
        mWindow(WindowA),
        mContainer(ContainerA),
        mInPlace(InPlaceA),
        mExtent(ExtentA),
        mData(DataA) {}

  STDMETHODIMP SetClientSite(IOleClientSite* SiteA) noexcept override;
  STDMETHODIMP GetClientSite(IOleClientSite** ResultA) noexcept override;
  STDMETHODIMP SetHostNames(LPCOLESTR ProgramA, LPCOLESTR DocumentA) noexcept override;
  STDMETHODIMP Close(DWORD SaveA) noexcept override;
  STDMETHODIMP SetMoniker(DWORD WhichA, IMoniker* MonikerA) noexcept override;
  STDMETHODIMP GetMoniker(DWORD AssignA, DWORD WhichA, IMoniker** ResultA) noexcept override;
  STDMETHODIMP InitFromData(IDataObject* DataA, BOOL CreationA, DWORD ReservedA) noexcept override;
  STDMETHODIMP GetClipboardData(DWORD ReservedA, IDataObject** ResultA) noexcept override;
  STDMETHODIMP DoVerb(LONG VerbA, LPMSG MessageA, IOleClientSite* SiteA, LONG IndexA, HWND ParentA,
                      LPCRECT PlaceA) noexcept override;
  STDMETHODIMP EnumVerbs(IEnumOLEVERB** ResultA) noexcept override;
  STDMETHODIMP Update() noexcept override { return S_OK; }
  STDMETHODIMP IsUpToDate() noexcept override { return S_OK; }
  STDMETHODIMP GetUserClassID(CLSID* ResultA) noexcept override;
  STDMETHODIMP GetUserType(DWORD FormA, LPOLESTR* ResultA) noexcept override;
  STDMETHODIMP SetExtent(DWORD AspectA, SIZEL* SizeA) noexcept override;
  STDMETHODIMP GetExtent(DWORD AspectA, SIZEL* ResultA) noexcept override;
  STDMETHODIMP Advise(IAdviseSink* SinkA, DWORD* ResultA) noexcept override;
  STDMETHODIMP Unadvise(DWORD CookieA) noexcept override;
  STDMETHODIMP EnumAdvise(IEnumSTATDATA** ResultA) noexcept override;
  STDMETHODIMP GetMiscStatus(DWORD AspectA, DWORD* ResultA) noexcept override;
  STDMETHODIMP SetColorScheme(LOGPALETTE* PaletteA) noexcept override;

 private:
  HRESULT Do(LONG VerbA, const InPlace::Hint& HintA);
  HRESULT Show(const InPlace::Hint& HintA, bool WithUiA);

  win32::TimelineWindow& mWindow;
  Container& mContainer;
  InPlace& mInPlace;
  Extent& mExtent;
  DataObject& mData;
  Ref<IOleAdviseHolder> mAdvised;  // made for the first one
};

}  // namespace mur::com
