#pragma once

#include <murtimeline/com/embedding/container.h>

namespace mur::com {

/// The control's place in a window of the container's: none, one of its own, and one that the user works in.
/// The container hears of every step, may refuse it, and may undo it before it is told of the next.
///
/// Where the container's window goes first, the control keeps the state that the container knows, and makes
/// itself a new window when it is shown again.
class InPlace {
 public:
  /// All of them outlive this object.
  InPlace(IUnknown& IdentityA, Container& ContainerA, win32::TimelineWindow& WindowA)
      : mIdentity(IdentityA), mContainer(ContainerA), mWindow(WindowA) {}

  /// What a container says about the place beside what its site says; either may be missing.
  struct Hint {
    HWND parent = nullptr;
    const RECT* place = nullptr;
  };

  bool IsActive() const noexcept { return mState != State::Away; }
  bool IsUiActive() const noexcept { return mState == State::Ui; }

  /// Shows the control in the container's window; moves it there from another one.
  HRESULT Activate(const Hint& HintA);
  /// Makes it the one that the user works with. Asked for of an active one only.
  HRESULT ActivateUi();
  HRESULT DeactivateUi();
  HRESULT Deactivate();
  HRESULT Hide();
  /// Places the window (device pixels of its parent) and shows as much of it as is in `ClipA`, if any.
  void SetRects(const RECT& PlaceA, const RECT* ClipA);
  /// Asks the container for a size in device pixels. False when there is no window that could have one.
  bool AskFor(SIZE SizeA);
  /// Hands over the mouse message that the container activated the control by.
  void Forward(const MSG& MessageA) const;

 private:
  enum class State { Away, Active, Ui };
  struct Surroundings;

  HRESULT Enter();
  HRESULT Open(IOleInPlaceSite& SiteA, const Hint& HintA);
  Surroundings Ask(IOleInPlaceSite& SiteA, const Hint& HintA) const;
  bool ShowIn(HWND ParentA, const RECT& PlaceA);
  void Clip(const RECT& PlaceA, const RECT* ClipA);
  void LeaveFocus() const;
  void Announce(IOleInPlaceActiveObject* ObjectA) const;

  IUnknown& mIdentity;
  Container& mContainer;
  win32::TimelineWindow& mWindow;
  State mState = State::Away;
  Ref<IOleInPlaceSite> mSite;  // as long as active
  Ref<IOleInPlaceFrame> mFrame;
  Ref<IOleInPlaceUIWindow> mDocument;
  bool mIsClipped = false;
  bool mAsks = false;
};

}  // namespace mur::com
