#pragma once

#include <oleacc.h>

#include <murtimeline/win32/accessible_bars.h>
#include <murtimeline/win32/platform.h>

namespace mur::win32 {

/// A canvas as assistive technology sees it: a list whose items are the bars, each by its number. It may be
/// kept longer than the window lives; it is then disconnected.
class AccessibleTimeline final : public IAccessible {
 public:
  /// `BarsA` lives until Disconnect. The caller holds one reference.
  explicit AccessibleTimeline(AccessibleBars& BarsA) : mBars(&BarsA) {}

  void Disconnect() { mBars = nullptr; }

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID IdA, void** ResultA) override;
  ULONG STDMETHODCALLTYPE AddRef() override { return ++mReferences; }
  ULONG STDMETHODCALLTYPE Release() override;

  // Nobody reads accessible objects by names.
  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* CountA) override;
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override {
    return E_NOTIMPL;
  }
  HRESULT STDMETHODCALLTYPE Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*,
                                   UINT*) override {
    return E_NOTIMPL;
  }

  HRESULT STDMETHODCALLTYPE get_accParent(IDispatch** ParentA) override;
  HRESULT STDMETHODCALLTYPE get_accChildCount(LONG* CountA) override;
  HRESULT STDMETHODCALLTYPE get_accChild(VARIANT ChildA, IDispatch** ResultA) override;
  HRESULT STDMETHODCALLTYPE get_accName(VARIANT ChildA, BSTR* NameA) override;
  HRESULT STDMETHODCALLTYPE get_accValue(VARIANT ChildA, BSTR* ValueA) override;
  HRESULT STDMETHODCALLTYPE get_accDescription(VARIANT ChildA, BSTR* TextA) override;
  HRESULT STDMETHODCALLTYPE get_accRole(VARIANT ChildA, VARIANT* RoleA) override;
  HRESULT STDMETHODCALLTYPE get_accState(VARIANT ChildA, VARIANT* StateA) override;
  HRESULT STDMETHODCALLTYPE get_accHelp(VARIANT, BSTR* TextA) override { return GiveNoText(TextA); }
  HRESULT STDMETHODCALLTYPE get_accHelpTopic(BSTR* FileA, VARIANT, LONG*) override {
    return GiveNoText(FileA);
  }
  HRESULT STDMETHODCALLTYPE get_accKeyboardShortcut(VARIANT, BSTR* KeyA) override { return GiveNoText(KeyA); }
  HRESULT STDMETHODCALLTYPE get_accFocus(VARIANT* ChildA) override;
  HRESULT STDMETHODCALLTYPE get_accSelection(VARIANT* ChildrenA) override;
  HRESULT STDMETHODCALLTYPE get_accDefaultAction(VARIANT ChildA, BSTR* ActionA) override;
  HRESULT STDMETHODCALLTYPE accSelect(LONG FlagsA, VARIANT ChildA) override;
  HRESULT STDMETHODCALLTYPE accLocation(LONG* LeftA, LONG* TopA, LONG* WidthA, LONG* HeightA,
                                        VARIANT ChildA) override;
  HRESULT STDMETHODCALLTYPE accNavigate(LONG DirectionA, VARIANT StartA, VARIANT* EndA) override;
  HRESULT STDMETHODCALLTYPE accHitTest(LONG LeftA, LONG TopA, VARIANT* ChildA) override;
  HRESULT STDMETHODCALLTYPE accDoDefaultAction(VARIANT ChildA) override;
  HRESULT STDMETHODCALLTYPE put_accName(VARIANT, BSTR) override { return DISP_E_MEMBERNOTFOUND; }
  HRESULT STDMETHODCALLTYPE put_accValue(VARIANT, BSTR) override { return DISP_E_MEMBERNOTFOUND; }

 private:
  ~AccessibleTimeline() = default;

  static HRESULT GiveNoText(BSTR* TextA) {
    if (!TextA) return E_POINTER;
    *TextA = nullptr;
    return S_FALSE;
  }

  template <class Work>
  HRESULT Answer(Work&& WorkA);
  template <class OfWindow, class OfBar>
  HRESULT AnswerFor(const VARIANT& ChildA, OfWindow&& OfWindowA, OfBar&& OfBarA);
  HRESULT TextOf(const VARIANT& ChildA, BSTR* TextA, StringView OfWindowA,
                 String (AccessibleBars::*OfBarA)(const ICanvasItem&) const);

  AccessibleBars* mBars;
  ULONG mReferences = 1;
};

}  // namespace mur::win32
