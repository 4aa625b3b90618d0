#pragma once

#include <QDateTime>
#include <QImage>
#include <memory>

#include <murtimeline/automation/export.h>
#include <murtimeline/qt/timeline_events.h>
#include <murtimeline/qt/wheel_action.h>

class QAccessibleInterface;
class QPainter;

namespace mur::qt {

/// A time line on a widget: hosts a MURTimelineRender, whose members are this widget's properties and methods
/// under Qt's habits of naming, and whose events are its signals (see TimelineEvents).
///
/// A handler may delete the widget, directly where a call of the host's caused the signal, by `deleteLater`
/// where an event of Qt's did. What a handler throws inside an event of Qt's ends there with a warning.
///
/// The widget is laid out as soon as it has a size, shown or not; a hidden one catches up at the next call to
/// it. Heights and gaps of bars are pixels, timeScaleHeight and trackTop twips (15 to a pixel), colours
/// 32-bit automation colours, times wall clocks to the millisecond; `control` gives all of them as they are.
class MUR_API TimelineWidget : public TimelineEvents {
  Q_OBJECT
  Q_PROPERTY(QDateTime worldTimeT0 READ worldTimeT0 WRITE setWorldTimeT0 NOTIFY visibleRangeChanged)
  Q_PROPERTY(double duration READ duration WRITE setDuration NOTIFY visibleRangeChanged)
  Q_PROPERTY(QDateTime tZero READ tZero WRITE setTZero)
  Q_PROPERTY(int timesOffsetMode READ timesOffsetMode WRITE setTimesOffsetMode)
  Q_PROPERTY(QDateTime cursorTime READ cursorTime WRITE setCursorTime NOTIFY cursorTimeChange)
  Q_PROPERTY(QString formatString READ formatString WRITE setFormatString)
  Q_PROPERTY(int formatStyle READ formatStyle WRITE setFormatStyle)
  Q_PROPERTY(QString durationFormatString READ durationFormatString WRITE setDurationFormatString)
  Q_PROPERTY(int durationFormatStyle READ durationFormatStyle WRITE setDurationFormatStyle)
  Q_PROPERTY(QString timeScaleFormatString READ timeScaleFormatString WRITE setTimeScaleFormatString)
  Q_PROPERTY(int timeScaleFormatStyle READ timeScaleFormatStyle WRITE setTimeScaleFormatStyle)
  Q_PROPERTY(quint32 backColor READ backColor WRITE setBackColor)
  Q_PROPERTY(quint32 timeScaleBackColor READ timeScaleBackColor WRITE setTimeScaleBackColor)
  Q_PROPERTY(quint32 timeScaleForeColor READ timeScaleForeColor WRITE setTimeScaleForeColor)
  Q_PROPERTY(quint32 timeScaleMarkerHighlightColor READ timeScaleMarkerHighlightColor WRITE
                 setTimeScaleMarkerHighlightColor)
  Q_PROPERTY(float timeScaleMarkerHighlightWidth READ timeScaleMarkerHighlightWidth WRITE
                 setTimeScaleMarkerHighlightWidth)
  Q_PROPERTY(float timeScaleHeight READ timeScaleHeight WRITE setTimeScaleHeight)
  Q_PROPERTY(float barHeight READ barHeight WRITE setBarHeight)
  Q_PROPERTY(float barSeparation READ barSeparation WRITE setBarSeparation)
  Q_PROPERTY(float trackSeparation READ trackSeparation WRITE setTrackSeparation)
  Q_PROPERTY(QString autoObjectTooltipText READ autoObjectTooltipText WRITE setAutoObjectTooltipText)
  Q_PROPERTY(bool autoHighlightObjects READ autoHighlightObjects WRITE setAutoHighlightObjects)
  Q_PROPERTY(QVariant selectedKey READ selectedKey)
  Q_PROPERTY(int autoSelectMode READ autoSelectMode WRITE setAutoSelectMode)
  Q_PROPERTY(bool allowObjectDragging READ allowObjectDragging WRITE setAllowObjectDragging)
  Q_PROPERTY(bool followAllStarts READ followAllStarts WRITE setFollowAllStarts)
  Q_PROPERTY(qint16 oleDropMode READ oleDropMode WRITE setOleDropMode)
  Q_PROPERTY(bool showToolTips READ showToolTips WRITE setShowToolTips)
  Q_PROPERTY(QString toolTipText READ toolTipText WRITE setToolTipText)
  Q_PROPERTY(bool navigationEnabled READ navigationEnabled WRITE setNavigationEnabled)
  Q_PROPERTY(mur::qt::WheelAction wheelAction READ wheelAction WRITE setWheelAction)

 public:
  explicit TimelineWidget(QWidget* parent = nullptr);
  ~TimelineWidget() override;

  /// The control itself, laid out, for hosts that need its values unrounded. It may outlive the widget.
  Ref<MURTimelineRender> control() const;

  Ref<CMURTimeline> timeline() const;
  /// Attaches a time line; see MURTimelineRender::SetTimeline.
  void setTimeline(const Ref<CMURTimeline>& timeline);
  /// Shows what the time line holds already.
  Q_INVOKABLE void showMembers();

  // The control's published properties.
  QDateTime worldTimeT0() const;
  void setWorldTimeT0(const QDateTime& time);
  double duration() const;
  void setDuration(double seconds);
  QDateTime tZero() const;
  void setTZero(const QDateTime& time);
  int timesOffsetMode() const;
  void setTimesOffsetMode(int mode);
  QDateTime cursorTime() const;
  void setCursorTime(const QDateTime& time);
  QString formatString() const;
  void setFormatString(const QString& format);
  int formatStyle() const;
  void setFormatStyle(int style);
  QString durationFormatString() const;
  void setDurationFormatString(const QString& format);
  int durationFormatStyle() const;
  void setDurationFormatStyle(int style);
  QString timeScaleFormatString() const;
  void setTimeScaleFormatString(const QString& format);
  int timeScaleFormatStyle() const;
  void setTimeScaleFormatStyle(int style);
  /// Inert by contract: reads 0.
  quint32 backColor() const;
  void setBackColor(quint32 color);
  quint32 timeScaleBackColor() const;
  void setTimeScaleBackColor(quint32 color);
  quint32 timeScaleForeColor() const;
  void setTimeScaleForeColor(quint32 color);
  quint32 timeScaleMarkerHighlightColor() const;
  void setTimeScaleMarkerHighlightColor(quint32 color);
  float timeScaleMarkerHighlightWidth() const;
  void setTimeScaleMarkerHighlightWidth(float width);
  float timeScaleHeight() const;
  void setTimeScaleHeight(float height);
  float barHeight() const;
  void setBarHeight(float height);
  float barSeparation() const;
  void setBarSeparation(float separation);
  float trackSeparation() const;
  void setTrackSeparation(float separation);
  QString autoObjectTooltipText() const;
  void setAutoObjectTooltipText(const QString& text);
  bool autoHighlightObjects() const;
  void setAutoHighlightObjects(bool highlight);
  QVariant selectedKey() const;
  int autoSelectMode() const;
  void setAutoSelectMode(int mode);
  bool allowObjectDragging() const;
  void setAllowObjectDragging(bool allow);
  /// See MURTimelineRender::FollowAllStarts.
  bool followAllStarts() const;
  void setFollowAllStarts(bool follow);
  qint16 oleDropMode() const;
  void setOleDropMode(qint16 mode);
  bool showToolTips() const;
  void setShowToolTips(bool show);
  QString toolTipText() const;
  void setToolTipText(const QString& text);

  // Its indexed properties and methods.
  Q_INVOKABLE int autoObjectCaption(int captionSite) const;
  Q_INVOKABLE void setAutoObjectCaption(int captionSite, int captionType);
  Q_INVOKABLE QDateTime xToWorldTime(float x) const;
  Q_INVOKABLE float trackTop(const QVariant& trackKeyIndex) const;
  Q_INVOKABLE QString yToTrackKey(float y) const;
  Q_INVOKABLE void alignTracks();
  Ref<CMURTLRenderConfig> defaultRenderConfig() const;
  Ref<CMURTLRenderConfig> renderConfig(const QVariant& keyIndex) const;
  Ref<CMURTLRenderConfig> addRenderConfig(const QVariant& keyIndex);

  // Markers on the time scale, by key or position there; without such a marker readers find the empty value.
  Q_INVOKABLE void timeScaleMarkersClear();
  Q_INVOKABLE int timeScaleMarkersCount() const;
  Q_INVOKABLE void timeScaleMarkerAdd(const QDateTime& worldTime, const QString& markerKey,
                                      const QString& caption = {}, bool visible = true);
  Q_INVOKABLE void timeScaleMarkerRemove(const QVariant& keyIndex);
  Q_INVOKABLE QDateTime timeScaleMarkerWorldTime(const QVariant& keyIndex) const;
  Q_INVOKABLE void setTimeScaleMarkerWorldTime(const QVariant& keyIndex, const QDateTime& worldTime);
  Q_INVOKABLE QString timeScaleMarkerCaption(const QVariant& keyIndex) const;
  Q_INVOKABLE void setTimeScaleMarkerCaption(const QVariant& keyIndex, const QString& caption);
  Q_INVOKABLE QString timeScaleMarkerTag(const QVariant& keyIndex) const;
  Q_INVOKABLE void setTimeScaleMarkerTag(const QVariant& keyIndex, const QString& tag);
  Q_INVOKABLE QVariant timeScaleMarkerUserData(const QVariant& keyIndex) const;
  Q_INVOKABLE void setTimeScaleMarkerUserData(const QVariant& keyIndex, const QVariant& userData);
  Ref<ITimeScaleMarker> timeScaleMarkerDefinition(const QVariant& keyIndex) const;

  // Appearance of one bar, by key or position on the canvas; lasts until the control writes the same itself.
  Q_INVOKABLE quint32 tlObjectBackColor(const QVariant& keyIndex) const;
  Q_INVOKABLE void setTlObjectBackColor(const QVariant& keyIndex, quint32 color);
  Q_INVOKABLE quint32 tlObjectForeColor(const QVariant& keyIndex) const;
  Q_INVOKABLE void setTlObjectForeColor(const QVariant& keyIndex, quint32 color);
  Q_INVOKABLE QString tlObjectCaption(const QVariant& keyIndex, int captionSite) const;
  Q_INVOKABLE void setTlObjectCaption(const QVariant& keyIndex, int captionSite, const QString& caption);
  Q_INVOKABLE bool tlObjectVisible(const QVariant& keyIndex) const;
  Q_INVOKABLE void setTlObjectVisible(const QVariant& keyIndex, bool visible);

  // Navigation: writes worldTimeT0 and duration as a host would.
  /// Off at first. While on, the wheel with Ctrl (or a pinch) zooms where the pointer is and with Shift it
  /// pans, a drag on the background of the canvas moves times and rows, and walking by keys brings bars into
  /// view.
  bool navigationEnabled() const;
  void setNavigationEnabled(bool enabled);
  /// What the wheel does without a key while navigation is on; ScrollRows at first.
  WheelAction wheelAction() const;
  void setWheelAction(WheelAction action);
  /// Zooms in by a factor above 1, out by one below; the time at `x` (pixels of the canvas) stays where it
  /// is. Factors are taken in steps of a twenty-fourth of a doubling (3 %), so that zooming in and out again
  /// at the same places ends at the same range to the last bit.
  Q_INVOKABLE void zoomAt(double factor, double x);
  Q_INVOKABLE void pan(double seconds);
  /// Shows all members with a little air at both ends; false when there are none.
  Q_INVOKABLE bool fit();
  /// Moves rows and times no further than it takes to see the bar of that key; false when there is none.
  Q_INVOKABLE bool reveal(const QVariant& keyIndex);
  /// Between pixels of the canvas and world times, for status lines and the like.
  Date timeAt(double x) const;
  double xOf(Date time) const;
  Q_INVOKABLE QDateTime dateTimeAt(double x) const;
  Q_INVOKABLE double xOfDateTime(const QDateTime& time) const;

  /// Starts a drag of the platform's for a member: its tag as text, its key and times as kBarFormat, its bar
  /// as the picture. To be called by a handler of a press or a move, whose gesture ends with it. Returns what
  /// was done at the drop, when that is over; the widget may be gone then.
  Qt::DropAction dragObject(const QVariant& keyIndex, Qt::DropActions actions = Qt::CopyAction);

  /// A picture as the widget would look at that size (logical pixels), shown or not. Laying out for another
  /// size than the widget's own repaints the control, twice.
  QImage renderToImage(QSize size, qreal devicePixelRatio = 1);
  /// The same onto any painter, from its origin on.
  void renderToPainter(QPainter& painter, QSizeF size);

  /// Lets the user edit start and duration in a dialog; see MURTimelineRender::ShowEditor.
  Q_INVOKABLE void showEditor();

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 Q_SIGNALS:
  void cursorTimeChange(const QDateTime& cursorTime);
  /// Start or duration was written, by whomever; once for a move of the navigation.
  void visibleRangeChanged();

 protected:
  bool event(QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  struct Parts;

  static QAccessibleInterface* makeAccessible(const QString& className, QObject* object);
  bool handleKeys(QEvent& event);
  void layOut() const;

  std::unique_ptr<Parts> mParts;
};

}  // namespace mur::qt
