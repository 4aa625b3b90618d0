#pragma once

#include <murtimeline/automation/export.h>
#include <murtimeline/automation/string.h>
#include <murtimeline/render/companions/canvas_item_interface.h>
#include <murtimeline/render/port/child_host.h>
#include <murtimeline/render/port/surface.h>

namespace mur {

/// The text at the left edge of an item that is being dragged: above it or, where there is no room, below it,
/// always inside the canvas, in the colours of tool tips. That of the cursor stands beside its handle.
class MUR_API DragLabel {
 public:
  void Set(const Ref<ICanvasItem>& ItemA, StringView TextA);
  /// The item; none while nothing is shown.
  const Ref<ICanvasItem>& Item() const { return mItem; }

  /// The band of the canvas in which the label of an item at `BoxA` lies. All are pixels.
  RectF BandFor(const RectF& BoxA, const RectF& AreaA) const;
  void Paint(Surface& SurfaceA, const RectF& BoxA, const RectF& AreaA, const ChildHost& HostA) const;

 private:
  bool IsOfCursor() const { return mItem->Kind() == kCursorItem; }
  float LeftFor(const RectF& BoxA, const RectF& AreaA, float WidthA) const;

  Ref<ICanvasItem> mItem;
  String mText;
};

}  // namespace mur
