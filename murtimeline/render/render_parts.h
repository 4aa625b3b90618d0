#pragma once

#include <vector>

#include <murtimeline/render/interaction.h>
#include <murtimeline/render/reactions.h>
#include <murtimeline/render/timeline_render.h>

namespace mur {

/// What a control is made of.
struct MURTimelineRender::Parts {
  Parts(MURTimelineRender& OwnerA, ControlHost& HostA, Companions CompanionsA)
      : state{HostA, std::move(CompanionsA), Make<CMURTimeline>()},
        drawing(state),
        axis(state, drawing, OwnerA.CursorTimeChange),
        reactions(OwnerA, state, drawing, axis),
        highlight(state, drawing),
        interaction(OwnerA, state, highlight, axis) {}

  RenderState state;
  BarDrawing drawing;
  TimeAxis axis;
  TimelineReactions reactions;
  ObjectHighlight highlight;
  Interaction interaction;
  std::vector<Connection> companionEvents;
};

}  // namespace mur
