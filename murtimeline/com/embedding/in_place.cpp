#include <utility>

#include <murtimeline/com/embedding/in_place.h>
#include <murtimeline/win32/handles.h>

namespace mur::com {

/// What the site says about the place.
struct InPlace::Surroundings {
  HWND parent = nullptr;
  Ref<IOleInPlaceFrame> frame;
  Ref<IOleInPlaceUIWindow> document;
  RECT place{}, clip{};
};

HRESULT InPlace::Activate(const Hint& HintA) {
  HRESULT result = IsActive() ? S_OK : Enter();
  if (FAILED(result)) return result;
  const auto site = mSite;
  if (!site) return E_ABORT;
  result = Open(*site, HintA);
  if (FAILED(result)) {
    // Unless the container ended this itself and has the control elsewhere by now.
    if (mSite == site) Deactivate();
    return result;
  }
  mContainer.ShowObject();
  return S_OK;
}

HRESULT InPlace::Enter() {
  const auto site = mContainer.As<IOleInPlaceSite>();
  if (!site) return E_UNEXPECTED;
  if (site->CanInPlaceActivate() != S_OK) return E_FAIL;
  if (IsActive()) return S_OK;
  mSite = site;
  mState = State::Active;
  const HRESULT result = site->OnInPlaceActivate();
  if (SUCCEEDED(result) || !(mSite == site)) return result;
  mSite = {};
  mState = State::Away;
  return result;
}

HRESULT InPlace::Open(IOleInPlaceSite& SiteA, const Hint& HintA) {
  Surroundings found = Ask(SiteA, HintA);
  if (mSite.Get() != &SiteA) return E_ABORT;
  mFrame = std::move(found.frame);
  mDocument = std::move(found.document);
  if (!ShowIn(found.parent, found.place)) return E_FAIL;
  Clip(found.place, &found.clip);
  return S_OK;
}

InPlace::Surroundings InPlace::Ask(IOleInPlaceSite& SiteA, const Hint& HintA) const {
  Surroundings result;
  if (FAILED(SiteA.GetWindow(&result.parent)) || !result.parent) result.parent = HintA.parent;
  IOleInPlaceFrame* frame = nullptr;
  IOleInPlaceUIWindow* document = nullptr;
  OLEINPLACEFRAMEINFO information{};
  information.cb = sizeof information;
  if (SUCCEEDED(SiteA.GetWindowContext(&frame, &document, &result.place, &result.clip, &information))) {
    result.frame = TakeOver(frame);
    result.document = TakeOver(document);
    return result;
  }
  const SIZE size = mWindow.Size();
  result.place = HintA.place ? *HintA.place : RECT{0, 0, size.cx, size.cy};
  result.clip = {};
  return result;
}

bool InPlace::ShowIn(HWND ParentA, const RECT& PlaceA) {
  if (!ParentA) return false;
  const HWND window = mWindow.Handle();
  if (!window) {
    mIsClipped = false;
    return mWindow.Create(ParentA, PlaceA);
  }
  if (GetParent(window) != ParentA) SetParent(window, ParentA);
  mWindow.Place(PlaceA);
  ShowWindow(window, SW_SHOWNA);
  return true;
}

HRESULT InPlace::ActivateUi() {
  if (!IsActive()) return E_UNEXPECTED;
  if (IsUiActive()) return S_OK;
  const auto site = mSite;
  mState = State::Ui;
  const HRESULT result = site->OnUIActivate();
  if (!IsUiActive() || !(mSite == site)) return result;
  if (FAILED(result)) {
    mState = State::Active;
    return result;
  }
  mWindow.TakeFocus();
  if (!IsUiActive()) return S_OK;
  const auto object = Query<IOleInPlaceActiveObject>(&mIdentity);
  Announce(object.Get());
  return S_OK;
}

// No border is asked for: the container keeps its own tools.
void InPlace::Announce(IOleInPlaceActiveObject* ObjectA) const {
  const auto frame = mFrame;
  const auto document = mDocument;
  const auto announce = [&](IOleInPlaceUIWindow* window) {
    if (!window) return;
    window->SetActiveObject(ObjectA, nullptr);
    if (ObjectA) window->SetBorderSpace(nullptr);
  };
  announce(frame.Get());
  announce(document.Get());
}

HRESULT InPlace::DeactivateUi() {
  if (!IsUiActive()) return S_OK;
  const auto site = mSite;
  mState = State::Active;
  Announce(nullptr);
  site->OnUIDeactivate(FALSE);
  return S_OK;
}

HRESULT InPlace::Deactivate() {
  DeactivateUi();
  if (!IsActive()) return S_OK;
  const auto site = std::exchange(mSite, {});
  mState = State::Away;
  mFrame = {};
  mDocument = {};
  LeaveFocus();
  mWindow.Destroy();
  site->OnInPlaceDeactivate();
  return S_OK;
}

// A window that goes leaves the keyboard nowhere.
void InPlace::LeaveFocus() const {
  if (mWindow.HasFocus()) SetFocus(GetParent(mWindow.Handle()));
}

HRESULT InPlace::Hide() {
  DeactivateUi();
  LeaveFocus();
  if (const HWND window = mWindow.Handle()) ShowWindow(window, SW_HIDE);
  return S_OK;
}

void InPlace::SetRects(const RECT& PlaceA, const RECT* ClipA) {
  mWindow.Place(PlaceA);
  Clip(PlaceA, ClipA);
}

// An empty rectangle is one that the container did not fill in.
void InPlace::Clip(const RECT& PlaceA, const RECT* ClipA) {
  const HWND window = mWindow.Handle();
  if (!window) return;
  RECT shown = PlaceA;
  if (ClipA && !IsRectEmpty(ClipA)) IntersectRect(&shown, &PlaceA, ClipA);
  const bool clips = !EqualRect(&shown, &PlaceA);
  if (!clips && !mIsClipped) return;
  mIsClipped = clips;
  OffsetRect(&shown, -PlaceA.left, -PlaceA.top);
  const HRGN region = clips ? CreateRectRgnIndirect(&shown) : nullptr;
  // The window owns the region then.
  if (!SetWindowRgn(window, region, TRUE) && region) DeleteObject(region);
}

bool InPlace::AskFor(SIZE SizeA) {
  const HWND window = mWindow.Handle();
  if (!window || !mSite) return false;
  const SIZE now = mWindow.Size();
  if ((now.cx == SizeA.cx && now.cy == SizeA.cy) || std::exchange(mAsks, true)) return true;
  RECT place{};
  GetWindowRect(window, &place);
  MapWindowPoints(nullptr, GetParent(window), reinterpret_cast<POINT*>(&place), 2);
  place.right = place.left + SizeA.cx;
  place.bottom = place.top + SizeA.cy;
  Ref(mSite)->OnPosRectChange(&place);
  mAsks = false;
  return true;
}

void InPlace::Forward(const MSG& MessageA) const {
  if (MessageA.message < WM_MOUSEFIRST || MessageA.message > WM_MOUSELAST || !mWindow.Handle()) return;
  POINT at{GET_X_LPARAM(MessageA.lParam), GET_Y_LPARAM(MessageA.lParam)};
  MapWindowPoints(MessageA.hwnd, mWindow.Handle(), &at, 1);
  const HWND child = ChildWindowFromPoint(mWindow.Handle(), at);
  if (!child) return;
  MapWindowPoints(mWindow.Handle(), child, &at, 1);
  PostMessageW(child, MessageA.message, MessageA.wParam, MAKELPARAM(at.x, at.y));
}

}  // namespace mur::com
