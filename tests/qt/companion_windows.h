#pragma once

#include <murtimeline/qt/timeline_widget.h>

namespace mur::test {

/// The window of the time scale, and that of the canvas.
inline QWidget& ScaleOf(const qt::TimelineWidget& WidgetA) {
  return *WidgetA.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly).at(0);
}
inline QWidget& CanvasOf(const qt::TimelineWidget& WidgetA) {
  return *WidgetA.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly).at(1);
}

}  // namespace mur::test
