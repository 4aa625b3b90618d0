#pragma once

#include <vector>

#include <murtimeline/render/bar_keyboard.h>
#include <murtimeline/render/companions/bar_list.h>
#include <murtimeline/win32/hosted_child.h>
#include <murtimeline/win32/window.h>

namespace mur::win32 {

/// What bars tell assistive technology about, and through. All of them outlive what uses it.
struct AccessibleContext {
  WindowOwner& owner;
  const Window& window;  // of the canvas
  const HostedChild& host;
  MURTimelineRender& control;
  Ref<MURGraphicCanvas> canvas;
  Ref<BarKeyboard> keyboard;
};

/// The bars of a canvas as numbered children of its window, 1 for the first: what they are called, where and
/// how they are. Tells the platform what becomes of them.
class AccessibleBars {
 public:
  /// The number of a bar; 0 for the window itself.
  using Id = LONG;

  explicit AccessibleBars(const AccessibleContext& ContextA);

  const AccessibleContext& Context() const { return mContext; }
  LONG Count() const;
  /// None for the window and for numbers of no bar.
  Ref<ICanvasItem> Item(Id IdA) const;
  /// 0 for what is no bar on the canvas.
  Id IdOf(const Ref<ICanvasItem>& ItemA) const;

  /// Empty for a bar whose object is gone.
  String Name(const ICanvasItem& ItemA) const;
  String Description(const ICanvasItem& ItemA) const;
  /// STATE_SYSTEM_ bits.
  LONG State(const Ref<ICanvasItem>& ItemA) const;
  /// The part that the window shows, on the screen.
  RECT Location(const ICanvasItem& ItemA) const;
  /// The bar at a point of the screen; 0 where there is only the window.
  Id At(POINT ScreenA) const;
  Id Focused() const;
  Id Selected() const;
  /// The bar that a step leads to; 0 where bars end.
  Id Beside(const Ref<ICanvasItem>& ItemA, WalkStep StepA) const;

  /// Something on the canvas changed.
  void Follow();
  /// The keyboard came to the window.
  void TellFocus() const;

 private:
  Ref<IMURTimelineObject> ObjectOf(const ICanvasItem& ItemA) const;
  void Listen();
  void TellSelection();
  void Tell(DWORD EventA, Id IdA) const;

  AccessibleContext mContext;
  BarList mBars;
  Ref<CMURTimeline> mTimeline;  // the one that is listened to
  std::vector<Connection> mConnections, mTimelineConnections;
  LONG mCount = 0;  // when it was last told
  Variant mSelected;
};

}  // namespace mur::win32
