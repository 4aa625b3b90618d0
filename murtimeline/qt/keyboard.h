#pragma once

#include <QObject>

#include <murtimeline/qt/navigation.h>
#include <murtimeline/render/companions/bar_walk.h>
#include <murtimeline/render/companions/scroll_control.h>

class QKeyEvent;

namespace mur::qt {

/// Does by keys what the mouse can do: walks from bar to bar, clicks and nudges them, steps the cursor, zooms
/// and scrolls. The README lists the keys.
class Keyboard final : public QObject {
  Q_OBJECT

 public:
  Keyboard(Ref<MURTimelineRender> ControlA, Ref<MURGraphicCanvas> CanvasA, Ref<MURTimelineScroll> ScrollerA,
           Navigation& NavigationA, RowScroller& RowsA);

  /// False when the key means nothing here. Listeners may have ended the widget, and this object.
  bool Press(const QKeyEvent& EventA);
  /// The bar that keys act on; none before the first step, and when it is gone.
  Ref<ICanvasItem> Current() const;
  /// Makes a bar the current one, without a ring: the pointer does not need it.
  void TakeUp(const Ref<ICanvasItem>& ItemA);
  /// Makes a bar the current one and brings it into view.
  void Focus(const Ref<ICanvasItem>& ItemA);
  /// The keyboard comes to the widget or goes.
  void ShowRing(bool ShowA);

 Q_SIGNALS:
  /// The keyboard acts on another bar.
  void currentChanged();
  /// Drags are to end where they are, after what was dragged was put back.
  void dragsCancelled();

 private:
  bool Walk(WalkStep StepA);
  template <class Work>
  bool Act(Work&& WorkA);
  bool Click(std::int16_t ButtonA, std::int16_t ShiftA);
  bool Nudge(float PixelsA, std::int16_t ShiftA);
  bool StepCursor(double PixelsA);
  bool CursorToEdge(bool ForwardsA);
  bool CursorToMarker(bool ForwardsA);
  bool PutCursor(Date TimeA);
  bool Zoom(int StepsA);
  bool Cancel();
  bool PressMoving(const QKeyEvent& EventA);
  bool PressWalking(const QKeyEvent& EventA);
  std::optional<Date> NextEdge(bool ForwardsA) const;
  std::optional<Date> NextMarker(bool ForwardsA) const;

  Ref<MURTimelineRender> mControl;
  Ref<MURGraphicCanvas> mCanvas;
  Ref<MURTimelineScroll> mScroller;
  Navigation& mNavigation;
  RowScroller& mRows;
  BarWalk mWalk;
  Ref<ICanvasItem> mCurrent;
  bool mActs = false;    // a key presses a bar
  double mZoomedAt = 0;  // pixels
};

}  // namespace mur::qt
