#pragma once

#include <QPointF>
#include <QTimer>
#include <optional>

#include <murtimeline/qt/navigation.h>

class QTouchEvent;

namespace mur::qt {

/// Fingers on the canvas. One finger taps, which clicks; drags a bar or the cursor that may be dragged, and
/// moves times and rows from anywhere else; held down in one place it clicks with the right button. Two
/// fingers zoom about the middle at which they began.
class TouchInput final : public QObject {
 public:
  TouchInput(MURGraphicCanvas& CanvasA, Navigation& NavigationA);

  /// True when the event was one of fingers. Listeners may have ended the widget, and this object.
  bool Handle(QEvent& EventA);

 private:
  enum class Mode { None, Undecided, Drags, Pans, Zooms, Over };
  struct Pinch {
    double distance;
    double x;
    int steps = 0;  // zoomed so far
  };

  void Begin(QPointF AtA);
  void MoveOne(QPointF AtA);
  void MoveTwo(QPointF FirstA, QPointF SecondA);
  void End(QPointF AtA);
  void Stop();
  void LongPress();
  void Tap();
  bool IsDraggableAt(QPointF AtA) const;

  MURGraphicCanvas& mCanvas;
  Navigation& mNavigation;
  QTimer mLongPress;
  Mode mMode = Mode::None;
  QPointF mBegan, mLast;
  std::optional<Pinch> mPinch;
  std::optional<QPointF> mLastTap;
  quint64 mTapped = 0;  // when, in milliseconds
  quint64 mNow = 0;
};

}  // namespace mur::qt
