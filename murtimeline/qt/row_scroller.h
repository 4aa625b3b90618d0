#pragma once

#include <QObject>

#include <murtimeline/render/companions/canvas.h>

class QScrollBar;
class QWidget;

namespace mur::qt {

/// Scrolls the rows of a canvas. A scroll bar lies over the right edge of the canvas while the rows are
/// higher than that; nothing else is laid out anew for it, so that times keep their places.
class RowScroller final : public QObject {
 public:
  /// The scroll bar belongs to `CanvasWidgetA`, which outlives this.
  RowScroller(Ref<MURGraphicCanvas> CanvasA, QWidget& CanvasWidgetA);

  /// Brings the scroll bar in step with the canvas.
  void Follow();

  bool CanScroll() const;
  double Top() const { return static_cast<double>(mCanvas->ScrollTop()); }
  void ScrollTo(double TopA);
  void ScrollByPages(int PagesA);
  /// Shows a bar, as far as it fits.
  void Reveal(const ICanvasItem& BarA);

 private:
  Ref<MURGraphicCanvas> mCanvas;
  QWidget& mCanvasWidget;
  QScrollBar& mBar;
  bool mFollows = false;
};

}  // namespace mur::qt
