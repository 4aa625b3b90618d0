#pragma once

#include <murtimeline/render/timeline_render.h>

namespace mur::viewer {

/// Shows one bar in the highlight colour of its kind, and gives it its own colours back. (The control's own
/// selection would put all others back to the colours of their kind, which say less.)
class BarHighlight {
 public:
  explicit BarHighlight(Ref<MURTimelineRender> ControlA) : mControl(std::move(ControlA)) {}

  /// None marks nothing.
  void Mark(const IMURTimelineObject* ObjectA);
  /// The bars were given their own colours meanwhile: marks the object again.
  void Renew(const IMURTimelineObject* ObjectA) {
    mItem = nullptr;
    Mark(ObjectA);
  }

 private:
  void Restore();

  Ref<MURTimelineRender> mControl;
  Ref<ICanvasItem> mItem;
  OleColor mBack = 0, mFore = 0;
};

}  // namespace mur::viewer
