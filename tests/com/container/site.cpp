#include "tests/com/container/site.h"

namespace mur::test {

HRESULT FrameWindow::GetWindow(HWND* ResultA) noexcept {
  *ResultA = mWindow;
  return S_OK;
}

HRESULT FrameWindow::SetBorderSpace(LPCBORDERWIDTHS WidthsA) noexcept {
  return mBook.Note(mName + (WidthsA ? " gives a border" : " gives no border"));
}

HRESULT FrameWindow::SetActiveObject(IOleInPlaceActiveObject* ObjectA, LPCOLESTR) noexcept {
  active = Ref(ObjectA);
  return mBook.Note(mName + (ObjectA ? " has an active object" : " has none"));
}

Site::Site(HWND WindowA, CallBook& BookA) : window(WindowA), mBook(BookA) {
  ++HostObjectsAlive();
}

HRESULT Site::QueryInterface(REFIID InterfaceA, void** ResultA) noexcept {
  *ResultA = nullptr;
  if (InterfaceA == IID_IUnknown || InterfaceA == IID_IOleClientSite)
    *ResultA = static_cast<IOleClientSite*>(this);
  else if (isPlain)
    return E_NOINTERFACE;
  else if (InterfaceA == IID_IOleInPlaceSite || InterfaceA == IID_IOleWindow)
    *ResultA = static_cast<IOleInPlaceSite*>(this);
  else if (InterfaceA == IID_IOleControlSite)
    *ResultA = static_cast<IOleControlSite*>(this);
  else if (InterfaceA == IID_IDispatch)
    *ResultA = static_cast<IDispatch*>(this);
  if (!*ResultA) return E_NOINTERFACE;
  AddRef();
  return S_OK;
}

ULONG Site::Release() noexcept {
  const ULONG rest = --mReferences;
  if (rest == 0) delete this;
  return rest;
}

HRESULT Site::GetWindow(HWND* ResultA) noexcept {
  *ResultA = window;
  return mBook.Note("GetWindow");
}

HRESULT Site::GetWindowContext(IOleInPlaceFrame** FrameA, IOleInPlaceUIWindow** DocumentA, LPRECT PlaceA,
                               LPRECT ClipA, LPOLEINPLACEFRAMEINFO) noexcept {
  const HRESULT result = mBook.Note("GetWindowContext");
  if (FAILED(result)) return result;
  *FrameA = Ref<IOleInPlaceFrame>(frame).Detach();
  *DocumentA = Ref<IOleInPlaceUIWindow>(document).Detach();
  *PlaceA = place;
  *ClipA = clip;
  return result;
}

HRESULT Site::OnPosRectChange(LPCRECT PlaceA) noexcept {
  if (repositions) repositions->SetObjectRects(PlaceA, &clip);
  return mBook.Note("OnPosRectChange " + std::to_string(PlaceA->right - PlaceA->left) + "x" +
                    std::to_string(PlaceA->bottom - PlaceA->top));
}

HRESULT Site::TranslateAccelerator(MSG*, DWORD ModifiersA) noexcept {
  return mBook.Note("TranslateAccelerator " + std::to_string(ModifiersA));
}

HRESULT Site::GetTypeInfoCount(UINT* ResultA) noexcept {
  *ResultA = 0;
  return S_OK;
}

HRESULT Site::Invoke(DISPID IdA, REFIID, LCID, WORD, DISPPARAMS*, VARIANT* ResultA, EXCEPINFO*,
                     UINT*) noexcept {
  if (FAILED(ambientResult)) return ambientResult;
  const auto known = ambient.find(IdA);
  if (known == ambient.end()) return DISP_E_MEMBERNOTFOUND;
  return VariantCopy(ResultA, &known->second);
}

}  // namespace mur::test
