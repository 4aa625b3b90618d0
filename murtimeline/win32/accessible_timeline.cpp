#include <murtimeline/render/companions/item_gestures.h>
#include <murtimeline/win32/accessible_timeline.h>
#include <murtimeline/win32/message_guard.h>

namespace mur::win32 {
namespace {

constexpr StringView kWindowName = u"Time line";
constexpr StringView kAction = u"Click";

HRESULT Give(BSTR* TargetA, StringView TextA) {
  *TargetA = TextA.empty() ? nullptr
                           : SysAllocStringLen(reinterpret_cast<const OLECHAR*>(TextA.data()),
                                               static_cast<UINT>(TextA.size()));
  return *TargetA ? S_OK : S_FALSE;
}

HRESULT Give(VARIANT* TargetA, LONG NumberA) {
  TargetA->vt = VT_I4;
  TargetA->lVal = NumberA;
  return S_OK;
}

HRESULT GiveNothing(VARIANT* TargetA) {
  TargetA->vt = VT_EMPTY;
  return S_FALSE;
}

}  // namespace

HRESULT AccessibleTimeline::QueryInterface(REFIID IdA, void** ResultA) {
  if (!ResultA) return E_POINTER;
  const bool isOurs = IsEqualIID(IdA, IID_IUnknown) || IsEqualIID(IdA, IID_IDispatch) ||
                      IsEqualIID(IdA, __uuidof(IAccessible));
  *ResultA = isOurs ? static_cast<IAccessible*>(this) : nullptr;
  if (!isOurs) return E_NOINTERFACE;
  AddRef();
  return S_OK;
}

ULONG AccessibleTimeline::Release() {
  const ULONG left = --mReferences;
  if (left == 0) delete this;
  return left;
}

HRESULT AccessibleTimeline::GetTypeInfoCount(UINT* CountA) {
  if (!CountA) return E_POINTER;
  *CountA = 0;
  return S_OK;
}

// What is asked may run handlers of the host, which may end the window. The subject goes first, and may be
// what holds the owner.
template <class Work>
HRESULT AccessibleTimeline::Answer(Work&& WorkA) {
  if (!mBars || !mBars->Context().window.Exists()) return CO_E_OBJNOTCONNECTED;
  const Ref<WindowOwner> owner(&mBars->Context().owner);
  const Ref<Object> subject = owner->Subject();
  HRESULT result = E_FAIL;
  GuardCallback([&] { result = WorkA(*mBars); });
  return result;
}

template <class OfWindow, class OfBar>
HRESULT AccessibleTimeline::AnswerFor(const VARIANT& ChildA, OfWindow&& OfWindowA, OfBar&& OfBarA) {
  if (ChildA.vt != VT_I4) return E_INVALIDARG;
  return Answer([&](AccessibleBars& bars) -> HRESULT {
    if (ChildA.lVal == CHILDID_SELF) return OfWindowA(bars);
    const Ref<ICanvasItem> item = bars.Item(ChildA.lVal);
    return item ? OfBarA(bars, item) : E_INVALIDARG;
  });
}

HRESULT AccessibleTimeline::TextOf(const VARIANT& ChildA, BSTR* TextA, StringView OfWindowA,
                                   String (AccessibleBars::*OfBarA)(const ICanvasItem&) const) {
  if (!TextA) return E_POINTER;
  *TextA = nullptr;
  return AnswerFor(
      ChildA, [&](AccessibleBars&) { return Give(TextA, OfWindowA); },
      [&](AccessibleBars& bars, const Ref<ICanvasItem>& item) { return Give(TextA, (bars.*OfBarA)(*item)); });
}

HRESULT AccessibleTimeline::get_accParent(IDispatch** ParentA) {
  if (!ParentA) return E_POINTER;
  *ParentA = nullptr;
  return Answer([&](AccessibleBars& bars) {
    return AccessibleObjectFromWindow(bars.Context().window.Handle(), static_cast<DWORD>(OBJID_WINDOW),
                                      IID_IDispatch, reinterpret_cast<void**>(ParentA));
  });
}

HRESULT AccessibleTimeline::get_accChildCount(LONG* CountA) {
  if (!CountA) return E_POINTER;
  *CountA = 0;
  return Answer([&](AccessibleBars& bars) {
    *CountA = bars.Count();
    return S_OK;
  });
}

// Bars are no objects of their own.
HRESULT AccessibleTimeline::get_accChild(VARIANT ChildA, IDispatch** ResultA) {
  if (!ResultA) return E_POINTER;
  *ResultA = nullptr;
  return AnswerFor(
      ChildA, [](AccessibleBars&) { return E_INVALIDARG; },
      [](AccessibleBars&, const Ref<ICanvasItem>&) { return S_FALSE; });
}

HRESULT AccessibleTimeline::get_accName(VARIANT ChildA, BSTR* NameA) {
  return TextOf(ChildA, NameA, kWindowName, &AccessibleBars::Name);
}

HRESULT AccessibleTimeline::get_accValue(VARIANT ChildA, BSTR* ValueA) {
  return TextOf(ChildA, ValueA, {}, &AccessibleBars::Description);
}

HRESULT AccessibleTimeline::get_accDescription(VARIANT ChildA, BSTR* TextA) {
  return TextOf(ChildA, TextA, {}, &AccessibleBars::Description);
}

HRESULT AccessibleTimeline::get_accRole(VARIANT ChildA, VARIANT* RoleA) {
  if (!RoleA) return E_POINTER;
  return AnswerFor(
      ChildA, [&](AccessibleBars&) { return Give(RoleA, ROLE_SYSTEM_LIST); },
      [&](AccessibleBars&, const Ref<ICanvasItem>&) { return Give(RoleA, ROLE_SYSTEM_LISTITEM); });
}

HRESULT AccessibleTimeline::get_accState(VARIANT ChildA, VARIANT* StateA) {
  if (!StateA) return E_POINTER;
  return AnswerFor(
      ChildA,
      [&](AccessibleBars& bars) {
        const bool isFocused = GetFocus() == bars.Context().window.Handle();
        return Give(StateA, STATE_SYSTEM_FOCUSABLE | (isFocused ? STATE_SYSTEM_FOCUSED : 0));
      },
      [&](AccessibleBars& bars, const Ref<ICanvasItem>& item) { return Give(StateA, bars.State(item)); });
}

HRESULT AccessibleTimeline::get_accFocus(VARIANT* ChildA) {
  if (!ChildA) return E_POINTER;
  return Answer([&](AccessibleBars& bars) {
    if (GetFocus() != bars.Context().window.Handle()) return GiveNothing(ChildA);
    return Give(ChildA, bars.Focused());
  });
}

HRESULT AccessibleTimeline::get_accSelection(VARIANT* ChildrenA) {
  if (!ChildrenA) return E_POINTER;
  return Answer([&](AccessibleBars& bars) {
    const AccessibleBars::Id selected = bars.Selected();
    return selected != 0 ? Give(ChildrenA, selected) : GiveNothing(ChildrenA);
  });
}

HRESULT AccessibleTimeline::get_accDefaultAction(VARIANT ChildA, BSTR* ActionA) {
  if (!ActionA) return E_POINTER;
  *ActionA = nullptr;
  return AnswerFor(
      ChildA, [](AccessibleBars&) { return S_FALSE; },
      [&](AccessibleBars&, const Ref<ICanvasItem>&) { return Give(ActionA, kAction); });
}

// Which bar is selected is for clicks to say.
HRESULT AccessibleTimeline::accSelect(LONG FlagsA, VARIANT ChildA) {
  if (FlagsA != SELFLAG_TAKEFOCUS) return E_INVALIDARG;
  const auto takeKeyboard = [](AccessibleBars& bars) {
    SetFocus(bars.Context().window.Handle());
    return S_OK;
  };
  return AnswerFor(ChildA, takeKeyboard, [&](AccessibleBars& bars, const Ref<ICanvasItem>& item) {
    const Ref<BarKeyboard> keyboard = bars.Context().keyboard;
    takeKeyboard(bars);
    keyboard->Focus(item);
    return S_OK;
  });
}

HRESULT AccessibleTimeline::accLocation(LONG* LeftA, LONG* TopA, LONG* WidthA, LONG* HeightA,
                                        VARIANT ChildA) {
  if (!LeftA || !TopA || !WidthA || !HeightA) return E_POINTER;
  const auto give = [&](const RECT& place) {
    *LeftA = place.left;
    *TopA = place.top;
    *WidthA = place.right - place.left;
    *HeightA = place.bottom - place.top;
    return S_OK;
  };
  return AnswerFor(
      ChildA,
      [&](AccessibleBars& bars) {
        RECT place{};
        GetWindowRect(bars.Context().window.Handle(), &place);
        return give(place);
      },
      [&](AccessibleBars& bars, const Ref<ICanvasItem>& item) { return give(bars.Location(*item)); });
}

HRESULT AccessibleTimeline::accNavigate(LONG DirectionA, VARIANT StartA, VARIANT* EndA) {
  if (!EndA) return E_POINTER;
  const auto give = [&](AccessibleBars::Id id) { return id != 0 ? Give(EndA, id) : GiveNothing(EndA); };
  return AnswerFor(
      StartA,
      [&](AccessibleBars& bars) {
        const LONG count = bars.Count();
        if (DirectionA == NAVDIR_FIRSTCHILD) return give(count > 0 ? 1 : 0);
        return give(DirectionA == NAVDIR_LASTCHILD ? count : 0);
      },
      [&](AccessibleBars& bars, const Ref<ICanvasItem>& item) {
        switch (DirectionA) {
          case NAVDIR_NEXT:
            return give(StartA.lVal < bars.Count() ? StartA.lVal + 1 : 0);
          case NAVDIR_PREVIOUS:
            return give(StartA.lVal - 1);
          case NAVDIR_LEFT:
            return give(bars.Beside(item, WalkStep::Earlier));
          case NAVDIR_RIGHT:
            return give(bars.Beside(item, WalkStep::Later));
          case NAVDIR_UP:
            return give(bars.Beside(item, WalkStep::Above));
          case NAVDIR_DOWN:
            return give(bars.Beside(item, WalkStep::Below));
          default:
            return give(0);
        }
      });
}

HRESULT AccessibleTimeline::accHitTest(LONG LeftA, LONG TopA, VARIANT* ChildA) {
  if (!ChildA) return E_POINTER;
  return Answer([&](AccessibleBars& bars) {
    RECT place{};
    GetWindowRect(bars.Context().window.Handle(), &place);
    const POINT at{LeftA, TopA};
    return PtInRect(&place, at) ? Give(ChildA, bars.At(at)) : GiveNothing(ChildA);
  });
}

HRESULT AccessibleTimeline::accDoDefaultAction(VARIANT ChildA) {
  return AnswerFor(
      ChildA, [](AccessibleBars&) { return DISP_E_MEMBERNOTFOUND; },
      [](AccessibleBars& bars, const Ref<ICanvasItem>& item) {
        const Ref<MURGraphicCanvas> canvas = bars.Context().canvas;
        ClickItem(*canvas, item, kLeftButton, 0);
        return S_OK;
      });
}

}  // namespace mur::win32
