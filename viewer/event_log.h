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
  void FollowControl(MURTimelineRender& ControlA);

  LineSink mSink;
  std::vector<Connection> mConnections;
};

}  // namespace mur::viewer
