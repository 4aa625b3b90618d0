#pragma once

#include <optional>

#include <murtimeline/automation/export.h>
#include <murtimeline/render/companions/bar_walk.h>
#include <murtimeline/render/companions/scroll_control.h>
#include <murtimeline/render/timeline_render.h>
#include <murtimeline/render/visible_range.h>

namespace mur {

/// The keys that mean something to a time line.
enum class Key {
  Other,
  Left,
  Right,
  Up,
  Down,
  Home,
  End,
  Enter,
  Space,
  Menu,
  Escape,
  Comma,
  FullStop,
  M,
};

/// A key that goes down, with the modifier keys that are held.
struct MUR_API KeyPress {
  Key key = Key::Other;
  std::int16_t shift = 0;
};

/// Does by keys what the mouse can do: walks from bar to bar, clicks and nudges them, and steps the cursor.
/// The README lists the keys. Listeners may do anything; this object keeps itself and the control meanwhile.
class MUR_API BarKeyboard final : public Object {
 public:
  /// `ControlA` lives at the beginning of each press.
  BarKeyboard(MURTimelineRender& ControlA, Ref<MURGraphicCanvas> CanvasA, Ref<MURTimelineScroll> ScrollerA);

  /// Keys act on another bar.
  Event<> CurrentChanged;
  /// Keys led to a bar, or put the cursor somewhere: a face brings that into view.
  Event<const Ref<ICanvasItem>&> BarReached;
  Event<> CursorPut;
  /// Drags are to end where they are, after what was dragged was put back.
  Event<> DragsCancelled;

  /// False when the key means nothing here.
  bool Press(const KeyPress& PressA);
  /// The bar that keys act on; none before the first step, and when it is gone.
  Ref<ICanvasItem> Current() const;
  /// Makes a bar the current one, without a ring: the pointer does not need it.
  void TakeUp(const Ref<ICanvasItem>& ItemA);
  /// Makes a bar the current one and brings it into view.
  void Focus(const Ref<ICanvasItem>& ItemA);
  /// The keyboard comes or goes.
  void ShowRing(bool ShowA);

 private:
  bool PressPlain(const KeyPress& PressA);
  bool PressControl(const KeyPress& PressA);
  bool Walk(WalkStep StepA);
  template <class Work>
  bool Act(Work&& WorkA);
  bool Click(std::int16_t ButtonA);
  bool Nudge(float PixelsA, std::int16_t ShiftA);
  bool StepCursor(double PixelsA);
  bool CursorTo(std::optional<Date> TimeA);
  bool Cancel();
  std::optional<Date> NextStop(bool ForwardsA) const;
  std::optional<Date> NextEdge(bool ForwardsA) const;
  std::optional<Date> NextMarker(bool ForwardsA) const;
  double Width() const;

  MURTimelineRender& mControl;
  Ref<MURGraphicCanvas> mCanvas;
  Ref<MURTimelineScroll> mScroller;
  BarWalk mWalk;
  Ref<ICanvasItem> mCurrent;
  bool mActs = false;  // a key presses a bar
};

}  // namespace mur
