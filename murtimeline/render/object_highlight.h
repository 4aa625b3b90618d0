#pragma once

#include <murtimeline/render/bar_drawing.h>

namespace mur {

/// Which bars show the highlight colour of their configuration in place of its back colour.
class ObjectHighlight {
 public:
  ObjectHighlight(RenderState& StateA, BarDrawing& DrawingA) : mState(StateA), mDrawing(DrawingA) {}

  /// Those of the objects that span the cursor's time, ends included, or none when automatic highlighting is
  /// off; does nothing then unless forced. Raises no error.
  void RefreshAtCursor(bool ForceA);
  /// That of the object with this key, letter case included, and no other. Raises no error.
  void ShowSelection(StringView KeyA);

 private:
  RenderState& mState;
  BarDrawing& mDrawing;
};

}  // namespace mur
