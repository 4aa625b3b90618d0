#pragma once

#include <murtimeline/automation/export.h>
#include <murtimeline/render/companions/canvas_interface.h>
#include <murtimeline/render/companions/scroll_interface.h>
#include <murtimeline/render/companions/time_interfaces.h>

namespace mur {

/// The collaborators of a control. A host may pass its own; the control makes its own where one is missing.
struct MUR_API Companions {
  Ref<IGraphicCanvas> canvas;
  Ref<ITimelineScroll> scroller;
  Ref<ITimeMapper> timeMapper;
  Ref<ITimeText> timeText;
};

}  // namespace mur
