#pragma once

#include <map>

#include "tests/com/container/call_book.h"
#include "tests/com/counted.h"

namespace mur::test {

/// A window of a container around a control's: its frame, or its document.
class FrameWindow final : public Counted<IOleInPlaceFrame> {
 public:
  FrameWindow(std::string NameA, HWND WindowA, CallBook& BookA)
      : mName(std::move(NameA)), mWindow(WindowA), mBook(BookA) {}

  Ref<IOleInPlaceActiveObject> active;

  STDMETHODIMP GetWindow(HWND* ResultA) noexcept override;
  STDMETHODIMP ContextSensitiveHelp(BOOL) noexcept override { return E_NOTIMPL; }
  STDMETHODIMP GetBorder(LPRECT) noexcept override { return INPLACE_E_NOTOOLSPACE; }
  STDMETHODIMP RequestBorderSpace(LPCBORDERWIDTHS) noexcept override { return INPLACE_E_NOTOOLSPACE; }
  STDMETHODIMP SetBorderSpace(LPCBORDERWIDTHS WidthsA) noexcept override;
  STDMETHODIMP SetActiveObject(IOleInPlaceActiveObject* ObjectA, LPCOLESTR NameA) noexcept override;
  STDMETHODIMP InsertMenus(HMENU, LPOLEMENUGROUPWIDTHS) noexcept override { return E_NOTIMPL; }
  STDMETHODIMP SetMenu(HMENU, HOLEMENU, HWND) noexcept override { return E_NOTIMPL; }
  STDMETHODIMP RemoveMenus(HMENU) noexcept override { return E_NOTIMPL; }
  STDMETHODIMP SetStatusText(LPCOLESTR) noexcept override { return E_NOTIMPL; }
  STDMETHODIMP EnableModeless(BOOL) noexcept override { return E_NOTIMPL; }
  STDMETHODIMP TranslateAccelerator(LPMSG, WORD) noexcept override { return S_FALSE; }

 private:
  const std::string mName;
  const HWND mWindow;
  CallBook& mBook;
};

/// The place of a control in a container, by all of the interfaces that controls ask for.
class Site final : public IOleClientSite, public IOleInPlaceSite, public IOleControlSite, public IDispatch {
 public:
  Site(HWND WindowA, CallBook& BookA);
  Site(const Site&) = delete;
  Site& operator=(const Site&) = delete;

  HWND window;
  RECT place{10, 20, 510, 220}, clip{0, 0, 2000, 2000};
  Ref<FrameWindow> frame, document;
  std::map<DISPID, Value> ambient;     ///< unknown members for all others
  HRESULT ambientResult = S_OK;        ///< what all of them answer
  bool isPlain = false;                ///< offers IOleClientSite alone
  Ref<IOleInPlaceObject> repositions;  ///< is given the place that it asks for

  STDMETHODIMP QueryInterface(REFIID InterfaceA, void** ResultA) noexcept override;
  STDMETHODIMP_(ULONG) AddRef() noexcept override { return ++mReferences; }
  STDMETHODIMP_(ULONG) Release() noexcept override;

  STDMETHODIMP SaveObject() noexcept override { return mBook.Note("SaveObject"); }
  STDMETHODIMP GetMoniker(DWORD, DWORD, IMoniker**) noexcept override { return E_NOTIMPL; }
  STDMETHODIMP GetContainer(IOleContainer**) noexcept override { return E_NOINTERFACE; }
  STDMETHODIMP ShowObject() noexcept override { return mBook.Note("ShowObject"); }
  STDMETHODIMP OnShowWindow(BOOL) noexcept override { return mBook.Note("OnShowWindow"); }
  STDMETHODIMP RequestNewObjectLayout() noexcept override { return E_NOTIMPL; }

  STDMETHODIMP GetWindow(HWND* ResultA) noexcept override;
  STDMETHODIMP ContextSensitiveHelp(BOOL) noexcept override { return E_NOTIMPL; }
  STDMETHODIMP CanInPlaceActivate() noexcept override { return mBook.Note("CanInPlaceActivate"); }
  STDMETHODIMP OnInPlaceActivate() noexcept override { return mBook.Note("OnInPlaceActivate"); }
  STDMETHODIMP OnUIActivate() noexcept override { return mBook.Note("OnUIActivate"); }
  STDMETHODIMP GetWindowContext(IOleInPlaceFrame** FrameA, IOleInPlaceUIWindow** DocumentA, LPRECT PlaceA,
                                LPRECT ClipA, LPOLEINPLACEFRAMEINFO InformationA) noexcept override;
  STDMETHODIMP Scroll(SIZE) noexcept override { return E_NOTIMPL; }
  STDMETHODIMP OnUIDeactivate(BOOL) noexcept override { return mBook.Note("OnUIDeactivate"); }
  STDMETHODIMP OnInPlaceDeactivate() noexcept override { return mBook.Note("OnInPlaceDeactivate"); }
  STDMETHODIMP DiscardUndoState() noexcept override { return E_NOTIMPL; }
  STDMETHODIMP DeactivateAndUndo() noexcept override { return E_NOTIMPL; }
  STDMETHODIMP OnPosRectChange(LPCRECT PlaceA) noexcept override;

  STDMETHODIMP OnControlInfoChanged() noexcept override { return mBook.Note("OnControlInfoChanged"); }
  STDMETHODIMP LockInPlaceActive(BOOL) noexcept override { return E_NOTIMPL; }
  STDMETHODIMP GetExtendedControl(IDispatch**) noexcept override { return E_NOTIMPL; }
  STDMETHODIMP TransformCoords(POINTL*, POINTF*, DWORD) noexcept override { return E_NOTIMPL; }
  STDMETHODIMP TranslateAccelerator(MSG*, DWORD ModifiersA) noexcept override;
  STDMETHODIMP OnFocus(BOOL HasA) noexcept override { return mBook.Note(HasA ? "OnFocus" : "OnBlur"); }
  STDMETHODIMP ShowPropertyFrame() noexcept override { return E_NOTIMPL; }

  STDMETHODIMP GetTypeInfoCount(UINT* ResultA) noexcept override;
  STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) noexcept override { return E_NOTIMPL; }
  STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) noexcept override { return E_NOTIMPL; }
  STDMETHODIMP Invoke(DISPID IdA, REFIID, LCID, WORD, DISPPARAMS*, VARIANT* ResultA, EXCEPINFO*,
                      UINT*) noexcept override;

 private:
  ~Site() { --HostObjectsAlive(); }

  CallBook& mBook;
  ULONG mReferences = 0;
};

/// Hears of changes of a control's picture, data and life.
class AdviseSink final : public Counted<IAdviseSink> {
 public:
  explicit AdviseSink(CallBook& BookA) : mBook(BookA) {}

  STDMETHODIMP_(void) OnDataChange(FORMATETC*, STGMEDIUM* MediumA) noexcept override {
    mBook.Note(MediumA && MediumA->tymed != TYMED_NULL ? "OnDataChange with data" : "OnDataChange");
  }
  STDMETHODIMP_(void) OnViewChange(DWORD, LONG) noexcept override { mBook.Note("OnViewChange"); }
  STDMETHODIMP_(void) OnRename(IMoniker*) noexcept override { mBook.Note("OnRename"); }
  STDMETHODIMP_(void) OnSave() noexcept override { mBook.Note("OnSave"); }
  STDMETHODIMP_(void) OnClose() noexcept override { mBook.Note("OnClose"); }

 private:
  CallBook& mBook;
};

}  // namespace mur::test
