#pragma once

#include <murtimeline/com/call.h>
#include <murtimeline/com/dispatcher.h>
#include <murtimeline/render/timeline_render.h>

namespace mur::com {

/// What the parts of the control's face stand on.
class RenderFaceBase : public Face<DispatchOn<ComRender>> {
 public:
  explicit RenderFaceBase(MURTimelineRender& ControlA)
      : Face(ControlA, __uuidof(::MURTimelineRender)), mControl(ControlA) {}

 protected:
  MURTimelineRender& mControl;
};

}  // namespace mur::com
