#include <murtimeline/qt/conversions.h>
#include <murtimeline/qt/timeline_widget_parts.h>

// Every member is the control's own, in Qt's types.
namespace mur::qt {

QDateTime TimelineWidget::worldTimeT0() const {
  return ToQDateTime(control()->WorldTimeT0());
}

void TimelineWidget::setWorldTimeT0(const QDateTime& time) {
  control()->SetWorldTimeT0(ToDate(time));
}

double TimelineWidget::duration() const {
  return control()->Duration();
}

void TimelineWidget::setDuration(double seconds) {
  control()->SetDuration(seconds);
}

QDateTime TimelineWidget::tZero() const {
  return ToQDateTime(control()->TZero());
}

void TimelineWidget::setTZero(const QDateTime& time) {
  control()->SetTZero(ToDate(time));
}

int TimelineWidget::timesOffsetMode() const {
  return control()->TimesOffsetMode();
}

void TimelineWidget::setTimesOffsetMode(int mode) {
  control()->SetTimesOffsetMode(mode);
}

QDateTime TimelineWidget::cursorTime() const {
  return ToQDateTime(control()->CursorTime());
}

void TimelineWidget::setCursorTime(const QDateTime& time) {
  control()->SetCursorTime(ToDate(time));
}

QString TimelineWidget::formatString() const {
  return ToQString(control()->FormatString());
}

void TimelineWidget::setFormatString(const QString& format) {
  control()->SetFormatString(ToString(format));
}

int TimelineWidget::formatStyle() const {
  return control()->FormatStyle();
}

void TimelineWidget::setFormatStyle(int style) {
  control()->SetFormatStyle(style);
}

QString TimelineWidget::durationFormatString() const {
  return ToQString(control()->DurationFormatString());
}

void TimelineWidget::setDurationFormatString(const QString& format) {
  control()->SetDurationFormatString(ToString(format));
}

int TimelineWidget::durationFormatStyle() const {
  return control()->DurationFormatStyle();
}

void TimelineWidget::setDurationFormatStyle(int style) {
  control()->SetDurationFormatStyle(style);
}

QString TimelineWidget::timeScaleFormatString() const {
  return ToQString(control()->TimeScaleFormatString());
}

void TimelineWidget::setTimeScaleFormatString(const QString& format) {
  control()->SetTimeScaleFormatString(ToString(format));
}

int TimelineWidget::timeScaleFormatStyle() const {
  return control()->TimeScaleFormatStyle();
}

void TimelineWidget::setTimeScaleFormatStyle(int style) {
  control()->SetTimeScaleFormatStyle(style);
}

quint32 TimelineWidget::backColor() const {
  return control()->BackColor();
}

void TimelineWidget::setBackColor(quint32 color) {
  control()->SetBackColor(color);
}

quint32 TimelineWidget::timeScaleBackColor() const {
  return control()->TimeScaleBackColor();
}

void TimelineWidget::setTimeScaleBackColor(quint32 color) {
  control()->SetTimeScaleBackColor(color);
}

quint32 TimelineWidget::timeScaleForeColor() const {
  return control()->TimeScaleForeColor();
}

void TimelineWidget::setTimeScaleForeColor(quint32 color) {
  control()->SetTimeScaleForeColor(color);
}

quint32 TimelineWidget::timeScaleMarkerHighlightColor() const {
  return control()->TimeScaleMarkerHighlightColor();
}

void TimelineWidget::setTimeScaleMarkerHighlightColor(quint32 color) {
  control()->SetTimeScaleMarkerHighlightColor(color);
}

float TimelineWidget::timeScaleMarkerHighlightWidth() const {
  return control()->TimeScaleMarkerHighlightWidth();
}

void TimelineWidget::setTimeScaleMarkerHighlightWidth(float width) {
  control()->SetTimeScaleMarkerHighlightWidth(width);
}

float TimelineWidget::timeScaleHeight() const {
  return control()->TimeScaleHeight();
}

void TimelineWidget::setTimeScaleHeight(float height) {
  control()->SetTimeScaleHeight(height);
}

float TimelineWidget::barHeight() const {
  return control()->BarHeight();
}

void TimelineWidget::setBarHeight(float height) {
  control()->SetBarHeight(height);
}

float TimelineWidget::barSeparation() const {
  return control()->BarSeparation();
}

void TimelineWidget::setBarSeparation(float separation) {
  control()->SetBarSeparation(separation);
}

float TimelineWidget::trackSeparation() const {
  return control()->TrackSeparation();
}

void TimelineWidget::setTrackSeparation(float separation) {
  control()->SetTrackSeparation(separation);
}

QString TimelineWidget::autoObjectTooltipText() const {
  return ToQString(control()->AutoObjectTooltipText());
}

void TimelineWidget::setAutoObjectTooltipText(const QString& text) {
  control()->SetAutoObjectTooltipText(ToString(text));
}

bool TimelineWidget::autoHighlightObjects() const {
  return control()->AutoHighlightObjects();
}

void TimelineWidget::setAutoHighlightObjects(bool highlight) {
  control()->SetAutoHighlightObjects(highlight);
}

int TimelineWidget::autoSelectMode() const {
  return control()->AutoSelectMode();
}

void TimelineWidget::setAutoSelectMode(int mode) {
  control()->SetAutoSelectMode(mode);
}

bool TimelineWidget::allowObjectDragging() const {
  return control()->AllowObjectDragging();
}

void TimelineWidget::setAllowObjectDragging(bool allow) {
  control()->SetAllowObjectDragging(allow);
}

bool TimelineWidget::followAllStarts() const {
  return control()->FollowAllStarts();
}

void TimelineWidget::setFollowAllStarts(bool follow) {
  control()->SetFollowAllStarts(follow);
}

qint16 TimelineWidget::oleDropMode() const {
  return control()->OLEDropMode();
}

void TimelineWidget::setOleDropMode(qint16 mode) {
  control()->SetOLEDropMode(mode);
}

bool TimelineWidget::showToolTips() const {
  return control()->ShowToolTips();
}

void TimelineWidget::setShowToolTips(bool show) {
  control()->SetShowToolTips(show);
}

QString TimelineWidget::toolTipText() const {
  return ToQString(control()->ToolTipText());
}

void TimelineWidget::setToolTipText(const QString& text) {
  control()->SetToolTipText(ToString(text));
}

QVariant TimelineWidget::selectedKey() const {
  return ToQVariant(control()->SelectedKey());
}

int TimelineWidget::autoObjectCaption(int captionSite) const {
  return control()->AutoObjectCaption(captionSite);
}

void TimelineWidget::setAutoObjectCaption(int captionSite, int captionType) {
  control()->SetAutoObjectCaption(captionSite, captionType);
}

QDateTime TimelineWidget::xToWorldTime(float x) const {
  return ToQDateTime(control()->XToWorldTime(x));
}

float TimelineWidget::trackTop(const QVariant& trackKeyIndex) const {
  return control()->TrackTop(ToVariant(trackKeyIndex));
}

QString TimelineWidget::yToTrackKey(float y) const {
  return ToQString(control()->YToTrackKey(y));
}

void TimelineWidget::alignTracks() {
  control()->AlignTracks();
}

Ref<CMURTLRenderConfig> TimelineWidget::defaultRenderConfig() const {
  return control()->DefaultRenderConfig();
}

Ref<CMURTLRenderConfig> TimelineWidget::renderConfig(const QVariant& keyIndex) const {
  return control()->RenderConfig(ToVariant(keyIndex));
}

Ref<CMURTLRenderConfig> TimelineWidget::addRenderConfig(const QVariant& keyIndex) {
  return control()->AddRenderConfig(ToVariant(keyIndex));
}

}  // namespace mur::qt
