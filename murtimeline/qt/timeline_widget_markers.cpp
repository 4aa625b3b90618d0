#include <murtimeline/qt/conversions.h>
#include <murtimeline/qt/timeline_widget.h>

// Markers and the appearance of single bars: every member is the control's own, in Qt's types.
namespace mur::qt {

void TimelineWidget::timeScaleMarkersClear() {
  control()->TimeScaleMarkersClear();
}

int TimelineWidget::timeScaleMarkersCount() const {
  return control()->TimeScaleMarkersCount();
}

void TimelineWidget::timeScaleMarkerAdd(const QDateTime& worldTime, const QString& markerKey,
                                        const QString& caption, bool visible) {
  control()->TimeScaleMarkerAdd(ToDate(worldTime), ToString(markerKey), ToString(caption), visible);
}

void TimelineWidget::timeScaleMarkerRemove(const QVariant& keyIndex) {
  control()->TimeScaleMarkerRemove(ToVariant(keyIndex));
}

QDateTime TimelineWidget::timeScaleMarkerWorldTime(const QVariant& keyIndex) const {
  return ToQDateTime(control()->TimeScaleMarkerWorldTime(ToVariant(keyIndex)));
}

void TimelineWidget::setTimeScaleMarkerWorldTime(const QVariant& keyIndex, const QDateTime& worldTime) {
  control()->SetTimeScaleMarkerWorldTime(ToVariant(keyIndex), ToDate(worldTime));
}

QString TimelineWidget::timeScaleMarkerCaption(const QVariant& keyIndex) const {
  return ToQString(control()->TimeScaleMarkerCaption(ToVariant(keyIndex)));
}

void TimelineWidget::setTimeScaleMarkerCaption(const QVariant& keyIndex, const QString& caption) {
  control()->SetTimeScaleMarkerCaption(ToVariant(keyIndex), ToString(caption));
}

QString TimelineWidget::timeScaleMarkerTag(const QVariant& keyIndex) const {
  return ToQString(control()->TimeScaleMarkerTag(ToVariant(keyIndex)));
}

void TimelineWidget::setTimeScaleMarkerTag(const QVariant& keyIndex, const QString& tag) {
  control()->SetTimeScaleMarkerTag(ToVariant(keyIndex), ToString(tag));
}

QVariant TimelineWidget::timeScaleMarkerUserData(const QVariant& keyIndex) const {
  return ToQVariant(control()->TimeScaleMarkerUserData(ToVariant(keyIndex)));
}

void TimelineWidget::setTimeScaleMarkerUserData(const QVariant& keyIndex, const QVariant& userData) {
  control()->SetTimeScaleMarkerUserData(ToVariant(keyIndex), ToVariant(userData));
}

Ref<ITimeScaleMarker> TimelineWidget::timeScaleMarkerDefinition(const QVariant& keyIndex) const {
  return control()->TimeScaleMarkerDefinition(ToVariant(keyIndex));
}

quint32 TimelineWidget::tlObjectBackColor(const QVariant& keyIndex) const {
  return control()->TLObject_BackColor(ToVariant(keyIndex));
}

void TimelineWidget::setTlObjectBackColor(const QVariant& keyIndex, quint32 color) {
  control()->SetTLObject_BackColor(ToVariant(keyIndex), color);
}

quint32 TimelineWidget::tlObjectForeColor(const QVariant& keyIndex) const {
  return control()->TLObject_ForeColor(ToVariant(keyIndex));
}

void TimelineWidget::setTlObjectForeColor(const QVariant& keyIndex, quint32 color) {
  control()->SetTLObject_ForeColor(ToVariant(keyIndex), color);
}

QString TimelineWidget::tlObjectCaption(const QVariant& keyIndex, int captionSite) const {
  return ToQString(control()->TLObject_Caption(ToVariant(keyIndex), captionSite));
}

void TimelineWidget::setTlObjectCaption(const QVariant& keyIndex, int captionSite, const QString& caption) {
  control()->SetTLObject_Caption(ToVariant(keyIndex), captionSite, ToString(caption));
}

bool TimelineWidget::tlObjectVisible(const QVariant& keyIndex) const {
  return control()->TLObject_Visible(ToVariant(keyIndex));
}

void TimelineWidget::setTlObjectVisible(const QVariant& keyIndex, bool visible) {
  control()->SetTLObject_Visible(ToVariant(keyIndex), visible);
}

}  // namespace mur::qt
