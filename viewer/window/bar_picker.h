#pragma once

#include <QObject>
#include <QPointF>
#include <optional>

#include <murtimeline/model/timeline_object_interface.h>
#include <murtimeline/render/companions/canvas_item_interface.h>

namespace mur::qt {
class TimelineWidget;
}

namespace mur::viewer {

/// Tells which object's bar the user clicks.
class BarPicker final : public QObject {
  Q_OBJECT

 public:
  /// `WidgetA` outlives the picker.
  explicit BarPicker(qt::TimelineWidget& WidgetA);

 Q_SIGNALS:
  /// None for a click on the background.
  void Picked(const mur::Ref<mur::IMURTimelineObject>& object);

 protected:
  bool eventFilter(QObject* WatchedA, QEvent* EventA) override;

 private:
  void Press(QPointF PointA);
  void Release(QPointF PointA);
  Ref<ICanvasItem> BarAt(QPointF PointA) const;

  qt::TimelineWidget& mWidget;
  std::optional<QPointF> mPressed;  // in pixels of the widget
};

}  // namespace mur::viewer
