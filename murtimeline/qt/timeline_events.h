#pragma once

#include <QVariant>
#include <QWidget>
#include <vector>

#include <murtimeline/automation/export.h>
#include <murtimeline/render/timeline_render.h>

namespace mur::qt {

/// The signals of a TimelineWidget: the control's events under their published names with a small first
/// letter. (Those that tell of a property stand beside it.)
///
/// They are emitted inside the call that causes them. Arguments that are references can be changed by
/// handlers; connect to those directly. Buttons are 1 left, 2 right, 4 middle, shift keys 1 Shift, 2 Ctrl,
/// 4 Alt; positions are pixels of the canvas, on a bar or the cursor from its own left top corner. The key of
/// the cursor is always "The Cursor".
class MUR_API TimelineEvents : public QWidget {
  Q_OBJECT

 public:
  using QWidget::QWidget;

 Q_SIGNALS:
  // Of the canvas's background.
  void click();
  void dblClick();
  void mouseDown(qint16& button, qint16& shift, float& x, float& y);
  void mouseMove(qint16& button, qint16& shift, float& x, float& y);
  void mouseUp(qint16& button, qint16& shift, float& x, float& y);
  /// `data` is a DraggedData; `effect` what the drop did (0 nothing, 1 copy, 2 move).
  void oleDragDrop(mur::Ref<mur::Object>& data, qint32& effect, qint16& button, qint16& shift, float& x,
                   float& y);
  /// `effect` is what a drop would do; `state` 0 enters, 1 leaves, 2 is over.
  void oleDragOver(mur::Ref<mur::Object>& data, qint32& effect, qint16& button, qint16& shift, float& x,
                   float& y, qint16& state);

  // Of bars.
  void tlObjectClick(const mur::Ref<mur::IMURTimelineObject>& object);
  void tlObjectDblClick(const mur::Ref<mur::IMURTimelineObject>& object);
  void tlObjectMouseDown(const mur::Ref<mur::IMURTimelineObject>& object, qint16& button, qint16& shift,
                         float& x, float& y);
  void tlObjectMouseMove(const mur::Ref<mur::IMURTimelineObject>& object, qint16& button, qint16& shift,
                         float& x, float& y);
  void tlObjectMouseUp(const mur::Ref<mur::IMURTimelineObject>& object, qint16& button, qint16& shift,
                       float& x, float& y);
  void tlObjectOleDragDrop(const mur::Ref<mur::IMURTimelineObject>& object, mur::Ref<mur::Object>& data,
                           qint32& effect, qint16& button, qint16& shift, float& x, float& y);
  void tlObjectOleDragOver(const mur::Ref<mur::IMURTimelineObject>& object, mur::Ref<mur::Object>& data,
                           qint32& effect, qint16& button, qint16& shift, float& x, float& y, qint16& state);

  // Of the cursor.
  void cursorClick(const QString& key);
  void cursorDblClick(const QString& key);
  void cursorMouseDown(const QString& key, qint16& button, qint16& shift, float& x, float& y);
  void cursorMouseMove(const QString& key, qint16& button, qint16& shift, float& x, float& y);
  void cursorMouseUp(const QString& key, qint16& button, qint16& shift, float& x, float& y);
  void cursorOleDragDrop(const QString& key, mur::Ref<mur::Object>& data, qint32& effect, qint16& button,
                         qint16& shift, float& x, float& y);
  void cursorOleDragOver(const QString& key, mur::Ref<mur::Object>& data, qint32& effect, qint16& button,
                         qint16& shift, float& x, float& y, qint16& state);

  // Of the time scale and its markers; positions are pixels of the scale.
  void timeScaleClick();
  void timeScaleDblClick();
  void timeScaleMouseDown(qint16& button, qint16& shift, float& x, float& y);
  void timeScaleMouseMove(qint16& button, qint16& shift, float& x, float& y);
  void timeScaleMouseUp(qint16& button, qint16& shift, float& x, float& y);
  void markerClick(const QVariant& markerKeyIndex);
  void markerDblClick(const QVariant& markerKeyIndex);
  void markerMouseDown(const QVariant& markerKeyIndex, qint16 button, qint16 shift);
  void markerMouseMove(const QVariant& markerKeyIndex, qint16 button, qint16 shift);
  void markerMouseUp(const QVariant& markerKeyIndex, qint16 button, qint16 shift);

 protected:
  /// Emits the signals of the control's events, as long as the connections last.
  std::vector<Connection> forward(MURTimelineRender& control);
};

}  // namespace mur::qt
