#include "viewer/window/marker_dragging.h"

#include <QGuiApplication>
#include <QMouseEvent>
#include <QStyleHints>
#include <cmath>

#include <murtimeline/qt/conversions.h>
#include <murtimeline/qt/event_guard.h>
#include <murtimeline/qt/timeline_widget.h>

#include "viewer/window/timeline_page.h"

namespace mur::viewer {

MarkerDragging::MarkerDragging(TimelinePage& PageA, EditHistory& HistoryA)
    : mPage(PageA), mHistory(HistoryA) {
  qt::TimelineWidget& widget = mPage.Timeline();
  for (QWidget* child : widget.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly))
    child->installEventFilter(this);
  connect(&widget, &qt::TimelineWidget::markerMouseDown, this,
          [this](const QVariant& key, qint16 button, qint16 /*shift*/) {
            constexpr qint16 kLeft = 1;
            if (mIsEnabled && button == kLeft) qt::GuardEvent([&] { Press(key); });
          });
}

bool MarkerDragging::eventFilter(QObject* WatchedA, QEvent* EventA) {
  qt::GuardEvent([&] {
    switch (EventA->type()) {
      case QEvent::MouseButtonPress:
        mDrag.reset();
        mX = dynamic_cast<const QMouseEvent&>(*EventA).position().x();
        break;
      case QEvent::MouseMove:
        Move(dynamic_cast<const QMouseEvent&>(*EventA).position().x());
        break;
      case QEvent::MouseButtonRelease:
        End(true);
        break;
      case QEvent::KeyPress:
        if (dynamic_cast<const QKeyEvent&>(*EventA).key() == Qt::Key_Escape) End(false);
        break;
      default:
        break;
    }
  });
  return QObject::eventFilter(WatchedA, EventA);
}

void MarkerDragging::Press(const QVariant& KeyA) {
  const OpenDocument* document = mPage.Document();
  if (!document) return;
  const String key = qt::ToString(KeyA.toString());
  const auto& markers = document->file.markers;
  for (std::size_t i = 0; i < markers.size(); ++i)
    if (markers[i].key == key) mDrag = {i, markers[i].time, mX, false};
}

void MarkerDragging::Move(double XA) {
  mX = XA;
  if (!mDrag || !mPage.Document()) return;
  const double distance = XA - mDrag->x;
  mDrag->hasMoved |= std::abs(distance) >= QGuiApplication::styleHints()->startDragDistance();
  if (!mDrag->hasMoved) return;
  const qt::TimelineWidget& widget = mPage.Timeline();
  const double seconds = (widget.timeAt(XA).Days() - widget.timeAt(mDrag->x).Days()) * kSecondsPerDay;
  const double rate = mPage.Document()->file.rate;
  mPage.MoveMarker(mDrag->marker, mDrag->time + (rate > 0 ? std::round(seconds * rate) / rate : seconds));
}

void MarkerDragging::End(bool KeptA) {
  if (!mDrag) return;
  const Drag drag = *mDrag;
  mDrag.reset();
  const OpenDocument* document = mPage.Document();
  if (!document || drag.marker >= document->file.markers.size()) return;
  if (!KeptA) mPage.MoveMarker(drag.marker, drag.time);
  mHistory.MarkerMoved(drag.marker, drag.time);
}

}  // namespace mur::viewer
