#include "viewer/window/pointer_readout.h"

#include <QMouseEvent>

#include <murtimeline/qt/event_guard.h>
#include <murtimeline/qt/timeline_widget.h>

#include "viewer/time_texts.h"

namespace mur::viewer {

PointerReadout::PointerReadout(qt::TimelineWidget& WidgetA) : mWidget(WidgetA) {
  setObjectName(QStringLiteral("pointerTime"));
  setToolTip(QStringLiteral("The time under the pointer, as the file counts it and as world time"));
  for (QWidget* child : mWidget.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly))
    child->installEventFilter(this);
  connect(&mWidget, &qt::TimelineWidget::visibleRangeChanged, this,
          [this] { qt::GuardEvent([this] { Show(mX); }); });
}

void PointerReadout::SetFile(const LoadedFile& FileA) {
  mFile.kind = FileA.kind;
  mFile.day = FileA.day;
  mFile.rate = FileA.rate;
  Show(mX);
}

bool PointerReadout::eventFilter(QObject* WatchedA, QEvent* EventA) {
  qt::GuardEvent([&] {
    if (EventA->type() == QEvent::MouseMove) Show(dynamic_cast<const QMouseEvent&>(*EventA).position().x());
    if (EventA->type() == QEvent::Leave) Show(std::nullopt);
  });
  return QLabel::eventFilter(WatchedA, EventA);
}

void PointerReadout::Show(std::optional<double> XA) {
  mX = XA;
  if (!mX) return clear();
  const Date time = mWidget.timeAt(*mX);
  setText(FileTimeText(mFile, time) + QStringLiteral("     ") + WorldTimeText(time));
}

}  // namespace mur::viewer
