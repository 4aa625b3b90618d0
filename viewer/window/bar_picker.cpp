#include "viewer/window/bar_picker.h"

#include <QGuiApplication>
#include <QMouseEvent>
#include <QStyleHints>
#include <utility>

#include <murtimeline/qt/event_guard.h>
#include <murtimeline/qt/timeline_widget.h>
#include <murtimeline/render/companions/canvas.h>

namespace mur::viewer {
namespace {

PointF ToPoint(QPointF PointA) {
  return {static_cast<float>(PointA.x()), static_cast<float>(PointA.y())};
}

}  // namespace

BarPicker::BarPicker(qt::TimelineWidget& WidgetA) : mWidget(WidgetA) {
  for (QWidget* child : mWidget.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly))
    child->installEventFilter(this);
}

bool BarPicker::eventFilter(QObject* WatchedA, QEvent* EventA) {
  qt::GuardEvent([&] {
    const bool press = EventA->type() == QEvent::MouseButtonPress;
    if (!press && EventA->type() != QEvent::MouseButtonRelease) return;
    const auto& mouse = dynamic_cast<const QMouseEvent&>(*EventA);
    if (mouse.button() != Qt::LeftButton) return;
    const QPointF point = qobject_cast<QWidget*>(WatchedA)->mapTo(&mWidget, mouse.position());
    press ? Press(point) : Release(point);
  });
  return QObject::eventFilter(WatchedA, EventA);
}

void BarPicker::Press(QPointF PointA) {
  mPressed = PointA;
}

// A pointer that was dragged meant something else.
void BarPicker::Release(QPointF PointA) {
  const auto pressed = std::exchange(mPressed, std::nullopt);
  const int farthest = QGuiApplication::styleHints()->startDragDistance();
  if (!pressed || (PointA - *pressed).manhattanLength() >= farthest) return;
  const double canvasTop = mWidget.height() - mWidget.control()->Collaborators().canvas->DrawingHeight();
  if (PointA.y() < canvasTop) return;
  const Ref<ICanvasItem> bar = BarAt(PointA - QPointF(0, canvasTop));
  const Ref<CMURTimeline> timeline = mWidget.timeline();
  Q_EMIT Picked(bar && timeline ? timeline->Item(Variant(bar->Key())) : nullptr);
}

// The cursor covers what lies beneath it; a bar there can be met beside it.
Ref<ICanvasItem> BarPicker::BarAt(QPointF PointA) const {
  const auto* canvas = dynamic_cast<const MURGraphicCanvas*>(mWidget.control()->Collaborators().canvas.Get());
  if (!canvas) return {};
  Ref<ICanvasItem> item = canvas->ItemAt(ToPoint(PointA));
  if (!item || item->Kind() != kCursorItem) return item;
  const RectF cursor = canvas->PixelBounds(*item);
  for (const float beside : {cursor.left - 1, cursor.Right() + 1}) {
    item = canvas->ItemAt({beside, static_cast<float>(PointA.y())});
    if (item && item->Kind() != kCursorItem) return item;
  }
  return {};
}

}  // namespace mur::viewer
