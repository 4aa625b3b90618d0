#pragma once

#include <vector>

#include <murtimeline/render/timeline_render.h>

#include "viewer/exact_table.h"

namespace mur::viewer {

/// Writes each event of a time line and of a control as a line, in the order in which they are raised, while
/// it lives. Made before the control is attached it reports causes ahead of their effects.
class EventLog {
 public:
  EventLog(CMURTimeline& TimelineA, MURTimelineRender& ControlA, LineSink SinkA);

 private:
  void FollowTimeline(CMURTimeline& TimelineA);
  void FollowObjects(CMURTimeline& TimelineA);
  void FollowPointer(MURTimelineRender& ControlA);
  void FollowDragAndDrop(MURTimelineRender& ControlA);
  void FollowTimeScale(MURTimelineRender& ControlA);

  /// Connects an event whose arguments are written as they stand.
  template <class... Arguments>
  void Follow(Event<Arguments...>& EventA, const char* NameA);

  LineSink mSink;
  std::vector<Connection> mConnections;
};

}  // namespace mur::viewer
