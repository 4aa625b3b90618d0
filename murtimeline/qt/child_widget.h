#pragma once

#include <QWidget>
#include <functional>

#include <murtimeline/automation/string.h>
#include <murtimeline/qt/painter_surface.h>

class QHelpEvent;

namespace mur::qt {

/// A text to show while the pointer rests in an area (pixels); an empty area is all of the widget.
struct HoverText {
  String text;
  RectF area;
};

/// The window of one companion: it paints all of itself at once and shows tool tips for what lies under the
/// pointer.
class ChildWidget final : public QWidget {
 public:
  using PaintFunction = std::function<void(Surface& SurfaceA, const RectF& DirtyA)>;
  using ToolTipFunction = std::function<HoverText(PointF PointA)>;

  /// `MeasuresA` outlives the widget.
  ChildWidget(TextMeasures& MeasuresA, QWidget* ParentA);

  void SetPaint(PaintFunction PaintA) { mPaint = std::move(PaintA); }
  void SetToolTip(ToolTipFunction ToolTipA) { mToolTip = std::move(ToolTipA); }

 protected:
  bool event(QEvent* EventA) override;
  void paintEvent(QPaintEvent* EventA) override;

 private:
  bool ShowToolTip(const QHelpEvent& EventA);

  TextMeasures& mMeasures;
  PaintFunction mPaint;
  ToolTipFunction mToolTip;
};

}  // namespace mur::qt
