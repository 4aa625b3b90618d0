#pragma once

#include <QObject>

#include <murtimeline/qt/navigation.h>
#include <murtimeline/render/bar_keyboard.h>

class QKeyEvent;

namespace mur::qt {

/// Hands the keys of Qt to a BarKeyboard, and zooms and scrolls by those that are left. The README lists the
/// keys.
class Keyboard final : public QObject {
  Q_OBJECT

 public:
  Keyboard(Ref<MURTimelineRender> ControlA, Ref<MURGraphicCanvas> CanvasA, Ref<MURTimelineScroll> ScrollerA,
           Navigation& NavigationA, RowScroller& RowsA);

  /// False when the key means nothing here. Listeners may have ended the widget, and this object.
  bool Press(const QKeyEvent& EventA);
  /// See BarKeyboard.
  Ref<ICanvasItem> Current() const { return mBars->Current(); }
  void TakeUp(const Ref<ICanvasItem>& ItemA) { Ref(mBars)->TakeUp(ItemA); }
  void Focus(const Ref<ICanvasItem>& ItemA) { Ref(mBars)->Focus(ItemA); }
  void ShowRing(bool ShowA) { mBars->ShowRing(ShowA); }

 Q_SIGNALS:
  /// The keyboard acts on another bar.
  void currentChanged();
  /// Drags are to end where they are, after what was dragged was put back.
  void dragsCancelled();

 private:
  bool Zoom(int StepsA);
  bool Cancel();
  bool PressMoving(const QKeyEvent& EventA);
  void RevealCursor();

  Ref<MURTimelineRender> mControl;
  Ref<BarKeyboard> mBars;
  Navigation& mNavigation;
  RowScroller& mRows;
  std::vector<Connection> mConnections;
  double mZoomedAt = 0;  // pixels
};

}  // namespace mur::qt
