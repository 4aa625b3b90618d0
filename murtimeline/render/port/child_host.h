#pragma once

#include <murtimeline/automation/export.h>
#include <murtimeline/render/port/geometry.h>
#include <murtimeline/render/port/pointer_input.h>
#include <murtimeline/util/movable_control.h>

namespace mur {

/// What a face supplies for one child control (the time scale, the canvas): its place in the container, in
/// the container's scale units, which are twips (15 to a logical pixel), and the services of its window.
class MUR_API ChildHost : public MovableControl {
 public:
  static constexpr float kTwipsPerPixel = 15;

  /// The text shown when the pointer rests on the child itself (the container's property of the child).
  virtual String ToolTipText() const = 0;
  virtual void SetToolTipText(StringView TextA) = 0;

  /// Something in `RectA` (pixels of the child) must be painted again soon.
  virtual void Invalidate(const RectF& RectA) = 0;
  /// All of the child must be painted again soon.
  virtual void InvalidateAll() = 0;
  virtual void SetPointerShape(PointerShape ShapeA) = 0;
  /// While captured, the child hears of the pointer wherever that is. Asked for while a button is held; a
  /// platform that does so anyway need not do anything.
  virtual void CapturePointer(bool CaptureA) = 0;
  /// The colour that the platform's palette has now for a system colour index (0 to 30).
  virtual Rgba SystemColor(int IndexA) const = 0;
};

/// `ColorA` as painted: a system colour by the host's palette, else its own red, green and blue.
MUR_API Rgba ResolveColor(OleColor ColorA, const ChildHost& HostA);

}  // namespace mur
