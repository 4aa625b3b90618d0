#pragma once

#include <murtimeline/automation/export.h>
#include <murtimeline/render/timeline_render.h>

namespace mur {

/// What an object is called to a user who cannot see its bar: its tag or, where that is blank, its key.
MUR_API String BarName(const IMURTimelineObject& ObjectA);

/// When it is, in the control's own formats, and in which track: "06:00:00 to 06:01:30, in Picture".
MUR_API String BarDescription(const MURTimelineRender& ControlA, const Ref<IMURTimelineObject>& ObjectA);

}  // namespace mur
