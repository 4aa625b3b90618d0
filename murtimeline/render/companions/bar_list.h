#pragma once

#include <murtimeline/automation/export.h>
#include <murtimeline/render/companions/canvas.h>

namespace mur {

/// The bars of a canvas in the order of their positions, without the cursor.
class MUR_API BarList {
 public:
  /// `CanvasA` outlives the list.
  explicit BarList(const MURGraphicCanvas& CanvasA) : mCanvas(CanvasA) {}

  std::size_t Count() const;
  /// The bar at a place counted from 0; none beyond the last.
  Ref<ICanvasItem> At(std::size_t PlaceA) const;
  /// The place of a bar; none for what is no bar on the canvas.
  std::optional<std::size_t> PlaceOf(const ICanvasItem& ItemA) const;
  /// Whether any part of a bar is shown.
  bool IsInView(const ICanvasItem& ItemA) const;

 private:
  std::size_t CursorPosition() const;

  const MURGraphicCanvas& mCanvas;
};

}  // namespace mur
