#pragma once

#include <murtimeline/com/embedding/in_place.h>
#include <murtimeline/com/embedding/part.h>

namespace mur::com {

/// The window of the control, for interfaces that are built on IOleWindow.
inline HRESULT GiveWindow(const win32::TimelineWindow& WindowA, HWND* ResultA) noexcept {
  const HRESULT result = Put(ResultA, WindowA.Handle());
  return SUCCEEDED(result) && !*ResultA ? E_FAIL : result;
}

/// The control in its place, for the container's site.
class InPlaceObject final : public Part<IOleInPlaceObject, IOleWindow> {
 public:
  /// All of them outlive this object.
  InPlaceObject(IUnknown& IdentityA, win32::TimelineWindow& WindowA, InPlace& InPlaceA)
      : Part(IdentityA), mWindow(WindowA), mInPlace(InPlaceA) {}

  STDMETHODIMP GetWindow(HWND* ResultA) noexcept override { return GiveWindow(mWindow, ResultA); }
  STDMETHODIMP ContextSensitiveHelp(BOOL) noexcept override { return E_NOTIMPL; }
  STDMETHODIMP InPlaceDeactivate() noexcept override {
    return Run([&] { return mInPlace.Deactivate(); });
  }
  STDMETHODIMP UIDeactivate() noexcept override {
    return Run([&] { return mInPlace.DeactivateUi(); });
  }
  STDMETHODIMP SetObjectRects(LPCRECT PlaceA, LPCRECT ClipA) noexcept override {
    if (!PlaceA) return E_POINTER;
    return Run([&] {
      mInPlace.SetRects(*PlaceA, ClipA);
      return S_OK;
    });
  }
  STDMETHODIMP ReactivateAndUndo() noexcept override { return INPLACE_E_NOTUNDOABLE; }

 private:
  win32::TimelineWindow& mWindow;
  InPlace& mInPlace;
};

/// The control in its place, for the container's frame.
class InPlaceActiveObject final : public Part<IOleInPlaceActiveObject> {
 public:
  /// All of them outlive this object.
  InPlaceActiveObject(IUnknown& IdentityA, win32::TimelineWindow& WindowA, Container& ContainerA)
      : Part(IdentityA), mWindow(WindowA), mContainer(ContainerA) {}

  STDMETHODIMP GetWindow(HWND* ResultA) noexcept override { return GiveWindow(mWindow, ResultA); }
  STDMETHODIMP ContextSensitiveHelp(BOOL) noexcept override { return E_NOTIMPL; }
  STDMETHODIMP TranslateAccelerator(LPMSG MessageA) noexcept override;
  // The control has neither menus nor tools to show and hide with the windows around it.
  STDMETHODIMP OnFrameWindowActivate(BOOL) noexcept override { return S_OK; }
  STDMETHODIMP OnDocWindowActivate(BOOL) noexcept override { return S_OK; }
  STDMETHODIMP ResizeBorder(LPCRECT, IOleInPlaceUIWindow*, BOOL) noexcept override { return S_OK; }
  STDMETHODIMP EnableModeless(BOOL) noexcept override { return S_OK; }

 private:
  win32::TimelineWindow& mWindow;
  Container& mContainer;
};

}  // namespace mur::com
