#pragma once

#include <QWidget>
#include <functional>
#include <memory>

#include <murtimeline/automation/string.h>
#include <murtimeline/qt/painter_surface.h>
#include <murtimeline/qt/pointer_router.h>

class QHelpEvent;

namespace mur::qt {

/// A text to show while the pointer rests in an area (pixels); an empty area is all of the widget.
struct HoverText {
  String text;
  RectF area;
};

/// The window of one companion: it paints all of itself at once, hands on what the mouse does and shows tool
/// tips for what lies under the pointer.
class ChildWidget final : public QWidget {
 public:
  using PaintFunction = std::function<void(Surface& SurfaceA, const RectF& DirtyA)>;
  using ToolTipFunction = std::function<HoverText(PointF PointA)>;
  /// True when the event was handled; the widget may be gone then.
  using EventFunction = std::function<bool(QEvent& EventA)>;

  /// `MeasuresA` outlives the widget.
  ChildWidget(TextMeasures& MeasuresA, QWidget* ParentA);

  void SetPaint(PaintFunction PaintA) { mPaint = std::move(PaintA); }
  /// `TargetA` outlives the widget; it keeps itself while it is told something.
  void SetPointer(PointerTarget& TargetA) { mPointer = std::make_unique<PointerRouter>(*this, TargetA); }
  /// Ends what the pointer is doing, without a click.
  void LosePointer() {
    if (mPointer) mPointer->LosePointer();
  }
  /// What hears of all events before the widget itself.
  void SetEvents(EventFunction EventsA) { mEvents = std::move(EventsA); }
  void SetToolTip(ToolTipFunction ToolTipA) { mToolTip = std::move(ToolTipA); }

 protected:
  bool event(QEvent* EventA) override;
  void paintEvent(QPaintEvent* EventA) override;

 private:
  bool HandleEvent(QEvent& EventA);
  bool ShowToolTip(const QHelpEvent& EventA);

  TextMeasures& mMeasures;
  PaintFunction mPaint;
  ToolTipFunction mToolTip;
  EventFunction mEvents;
  std::unique_ptr<PointerRouter> mPointer;
};

}  // namespace mur::qt
