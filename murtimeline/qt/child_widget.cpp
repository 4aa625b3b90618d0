#include <QHelpEvent>
#include <QPaintEvent>
#include <QPointer>
#include <QTextDocument>
#include <QToolTip>

#include <murtimeline/qt/child_widget.h>
#include <murtimeline/qt/conversions.h>
#include <murtimeline/qt/event_guard.h>

namespace mur::qt {
namespace {

// More rectangles than this are painted as the one around them.
constexpr int kMostRectangles = 8;

// A pixel more all around, so that a fill covers the edge pixels of a fractional scale factor wholly; the
// painter's own clip cuts it.
RectF DirtyOf(const QRect& RectA) {
  const QRectF dirty = QRectF(RectA).adjusted(-1, -1, 1, 1);
  return {static_cast<float>(dirty.left()), static_cast<float>(dirty.top()),
          static_cast<float>(dirty.width()), static_cast<float>(dirty.height())};
}

QString PlainToolTip(const QString& TextA) {
  return Qt::mightBeRichText(TextA) ? Qt::convertFromPlainText(TextA) : TextA;
}

}  // namespace

ChildWidget::ChildWidget(TextMeasures& MeasuresA, QWidget* ParentA) : QWidget(ParentA), mMeasures(MeasuresA) {
  setAttribute(Qt::WA_OpaquePaintEvent);
  setMouseTracking(true);
}

bool ChildWidget::event(QEvent* EventA) {
  bool handled = true;
  GuardEvent([&] { handled = HandleEvent(*EventA); });
  return handled;
}

// What the pointer does may end this widget.
bool ChildWidget::HandleEvent(QEvent& EventA) {
  if (EventA.type() == QEvent::ToolTip) return ShowToolTip(static_cast<const QHelpEvent&>(EventA));
  const QPointer<ChildWidget> self(this);
  if (mEvents && EventFunction(mEvents)(EventA)) return true;
  const bool isDone = self && mPointer && mPointer->Handle(EventA);
  return isDone || !self || QWidget::event(&EventA);
}

void ChildWidget::paintEvent(QPaintEvent* EventA) {
  QPainter painter(this);
  PainterSurface surface(painter, mMeasures);
  if (EventA->region().rectCount() > kMostRectangles) {
    mPaint(surface, DirtyOf(EventA->rect()));
    return;
  }
  for (const QRect& rect : EventA->region()) {
    painter.setClipRect(rect);
    mPaint(surface, DirtyOf(rect));
  }
}

bool ChildWidget::ShowToolTip(const QHelpEvent& EventA) {
  const QPointF at(EventA.pos());
  const HoverText hover = mToolTip({static_cast<float>(at.x()), static_cast<float>(at.y())});
  if (hover.text.empty()) {
    QToolTip::hideText();
    return true;
  }
  const QRectF area(hover.area.left, hover.area.top, hover.area.width, hover.area.height);
  QToolTip::showText(EventA.globalPos(), PlainToolTip(ToQString(hover.text)), this,
                     hover.area.IsEmpty() ? rect() : area.toAlignedRect() & rect());
  return true;
}

}  // namespace mur::qt
