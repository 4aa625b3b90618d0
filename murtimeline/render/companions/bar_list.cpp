#include <murtimeline/automation/narrow.h>
#include <murtimeline/render/companions/bar_list.h>

namespace mur {

// 0 while there is no cursor.
std::size_t BarList::CursorPosition() const {
  return mCanvas.PositionOf(u"The Cursor");
}

std::size_t BarList::Count() const {
  return mCanvas.GraphicCount() - (CursorPosition() > 0 ? 1 : 0);
}

Ref<ICanvasItem> BarList::At(std::size_t PlaceA) const {
  if (PlaceA >= Count()) return {};
  const std::size_t cursor = CursorPosition(), position = PlaceA + 1;
  const bool isPastCursor = cursor > 0 && position >= cursor;
  return mCanvas.Graphic(Variant(Narrow<std::int32_t>(isPastCursor ? position + 1 : position)));
}

std::optional<std::size_t> BarList::PlaceOf(const ICanvasItem& ItemA) const {
  if (ItemA.Kind() == kCursorItem || !mCanvas.Holds(ItemA)) return std::nullopt;
  const std::size_t cursor = CursorPosition(), position = mCanvas.PositionOf(ItemA.Key());
  return position - (cursor > 0 && position > cursor ? 2 : 1);
}

bool BarList::IsInView(const ICanvasItem& ItemA) const {
  const RectF bounds = mCanvas.PixelBounds(ItemA), area = mCanvas.Area();
  return !bounds.IsEmpty() && bounds.left < area.width && bounds.Right() > 0 && bounds.top < area.height &&
         bounds.Bottom() > 0;
}

}  // namespace mur
