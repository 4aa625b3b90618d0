#pragma once

#include <vector>

#include <murtimeline/com/event_source.h>
#include <murtimeline/render/timeline_render.h>

namespace mur::com {

/// Passes every event of a control on to the listeners of a source; what they change goes back.
std::vector<Connection> ConnectRenderEvents(MURTimelineRender& ControlA, EventSource& SourceA);

}  // namespace mur::com
