#include <murtimeline/qt/conversions.h>
#include <murtimeline/qt/timeline_widget_parts.h>

namespace mur::qt {

bool TimelineWidget::navigationEnabled() const {
  return mParts->navigation.IsEnabled();
}

void TimelineWidget::setNavigationEnabled(bool enabled) {
  mParts->navigation.SetEnabled(enabled);
}

WheelAction TimelineWidget::wheelAction() const {
  return mParts->navigation.Wheel();
}

void TimelineWidget::setWheelAction(WheelAction action) {
  mParts->navigation.SetWheel(action);
}

void TimelineWidget::zoomAt(double factor, double x) {
  layOut();
  mParts->navigation.ZoomAt(factor, x);
}

void TimelineWidget::pan(double seconds) {
  mParts->navigation.Pan(seconds);
}

bool TimelineWidget::fit() {
  return mParts->navigation.Fit();
}

bool TimelineWidget::reveal(const QVariant& keyIndex) {
  layOut();
  const Ref<ICanvasItem> bar = mParts->canvas->Graphic(ToVariant(keyIndex));
  if (!bar) return false;
  mParts->navigation.Reveal(*bar);
  return true;
}

Date TimelineWidget::timeAt(double x) const {
  layOut();
  return mParts->navigation.TimeAt(x);
}

double TimelineWidget::xOf(Date time) const {
  layOut();
  return mParts->navigation.XOf(time);
}

QDateTime TimelineWidget::dateTimeAt(double x) const {
  return ToQDateTime(timeAt(x));
}

double TimelineWidget::xOfDateTime(const QDateTime& time) const {
  return xOf(ToDate(time));
}

}  // namespace mur::qt
