#pragma once

#include <murtimeline/qt/dragged_data.h>
#include <murtimeline/render/companions/canvas.h>

class QDropEvent;
class QEvent;

namespace mur::qt {

/// Hands what the platform drags over a canvas to it. While its OLEDropMode is 0, drags are left to the
/// widget's parents.
class DropRouter {
 public:
  explicit DropRouter(MURGraphicCanvas& CanvasA) : mCanvas(CanvasA) {}

  /// True when the event was one of a drag. Listeners may have ended the canvas's widget, and this object.
  bool Handle(QEvent& EventA);

 private:
  void DragOver(QDropEvent& EventA, std::int16_t StateA);
  void Leave();
  void Drop(QDropEvent& EventA);
  DragInput InputOf(const QDropEvent& EventA);

  MURGraphicCanvas& mCanvas;
  Ref<DraggedData> mData;  // one for a drag, while it is over the canvas
  PointerInput mLast;
};

}  // namespace mur::qt
