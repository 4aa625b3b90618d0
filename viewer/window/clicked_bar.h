#pragma once

#include <QObject>

#include <murtimeline/model/timeline_object_interface.h>

namespace mur::qt {
class TimelineWidget;
}

namespace mur::viewer {

/// Tells which object the user clicks; what the cursor's line covers can be clicked through it.
class ClickedBar final : public QObject {
  Q_OBJECT

 public:
  /// `WidgetA` outlives this.
  explicit ClickedBar(qt::TimelineWidget& WidgetA);

 Q_SIGNALS:
  /// None for a click on the background.
  void Picked(const mur::Ref<mur::IMURTimelineObject>& object);

 private:
  Ref<IMURTimelineObject> ObjectBesideCursor() const;

  qt::TimelineWidget& mWidget;
  float mCursorY = 0;  // of the last press on the cursor, in pixels of the cursor
};

}  // namespace mur::viewer
