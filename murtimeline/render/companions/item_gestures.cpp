#include <murtimeline/render/companions/item_gestures.h>

namespace mur {
namespace {

void Raise(const PointerEventOf<IGraphicCanvas::Item>& EventA, const Ref<ICanvasItem>& ItemA, PointF AtA,
           std::int16_t ButtonA, std::int16_t ShiftA) {
  EventA.Raise(ItemA, ButtonA, ShiftA, AtA.x, AtA.y);
}

// What was pressed is released, whatever fails between.
template <class Work>
void WhilePressed(MURGraphicCanvas& CanvasA, const Ref<ICanvasItem>& ItemA, std::int16_t ButtonA,
                  std::int16_t ShiftA, Work&& WorkA) {
  const PointF middle{ItemA->Width() / 2, ItemA->Height() / 2};
  try {
    Raise(CanvasA.ItemMouseDown, ItemA, middle, ButtonA, ShiftA);
    if (CanvasA.Holds(*ItemA)) WorkA(middle);
  } catch (...) {
    Raise(CanvasA.ItemMouseUp, ItemA, middle, ButtonA, ShiftA);
    throw;
  }
  Raise(CanvasA.ItemMouseUp, ItemA, middle, ButtonA, ShiftA);
}

}  // namespace

void ClickItem(MURGraphicCanvas& CanvasA, const Ref<ICanvasItem>& ItemA, std::int16_t ButtonA,
               std::int16_t ShiftA) {
  const Ref<MURGraphicCanvas> keep(&CanvasA);
  const Ref<ICanvasItem> item(ItemA.Get());
  if (!item || !CanvasA.Holds(*item)) return;
  WhilePressed(CanvasA, item, ButtonA, ShiftA, [](PointF) {});
  if (CanvasA.Holds(*item)) CanvasA.ItemClick.Raise(item);
}

void NudgeItem(MURGraphicCanvas& CanvasA, const Ref<ICanvasItem>& ItemA, float PixelsA, std::int16_t ShiftA) {
  const Ref<MURGraphicCanvas> keep(&CanvasA);
  const Ref<ICanvasItem> item(ItemA.Get());
  if (!item || !CanvasA.Holds(*item)) return;
  const float units = PixelsA / CanvasA.Scene().PixelsPerUnit();
  WhilePressed(CanvasA, item, kLeftButton, ShiftA, [&](PointF middle) {
    Raise(CanvasA.ItemMouseMove, item, {middle.x + units, middle.y}, kLeftButton, ShiftA);
  });
}

}  // namespace mur
