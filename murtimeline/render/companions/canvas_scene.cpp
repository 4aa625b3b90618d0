#include <murtimeline/automation/narrow.h>
#include <murtimeline/render/companions/canvas_item.h>
#include <murtimeline/render/companions/canvas_scene.h>

namespace mur {
namespace {

RectF InPixels(const ItemPlace& PlaceA, float PixelsPerUnitA) {
  return {PlaceA.left * PixelsPerUnitA, PlaceA.top * PixelsPerUnitA, PlaceA.width * PixelsPerUnitA,
          PlaceA.height * PixelsPerUnitA};
}

// Edges are aligned to device pixels when they are drawn, at most one pixel away.
RectF Widened(const RectF& RectA) {
  return {RectA.left - 1, RectA.top - 1, RectA.width + 2, RectA.height + 2};
}

}  // namespace

std::uint32_t CanvasScene::Add(CanvasItem& ItemA) {
  std::uint32_t slot = 0;
  if (mFreeSlots.empty()) {
    slot = Narrow<std::uint32_t>(mPlaces.size());
    mPlaces.emplace_back();
    mLooks.emplace_back();
    mItems.emplace_back();
  } else {
    slot = mFreeSlots.back();
    mFreeSlots.pop_back();
  }
  mPlaces[slot] = {};
  mLooks[slot] = {};
  mLooks[slot].z = ++mFront;
  mLooks[slot].isCursor = ItemA.Kind() == kCursorItem;
  mItems[slot] = &ItemA;
  return slot;
}

void CanvasScene::TakeOff(std::uint32_t SlotA) {
  RequestRepaint(SlotA);
  mLooks[SlotA].onCanvas = false;
}

void CanvasScene::Forget(std::uint32_t SlotA) {
  mLooks[SlotA].onCanvas = false;
  mItems[SlotA] = nullptr;
  mFreeSlots.push_back(SlotA);
}

void CanvasScene::SetPlace(std::uint32_t SlotA, const ItemPlace& PlaceA) {
  if (mPlaces[SlotA] == PlaceA) return;
  RequestRepaint(SlotA);
  mPlaces[SlotA] = PlaceA;
  RequestRepaint(SlotA);
}

void CanvasScene::SetVisible(std::uint32_t SlotA, bool VisibleA) {
  if (mLooks[SlotA].visible == VisibleA) return;
  RequestRepaint(SlotA);
  mLooks[SlotA].visible = VisibleA;
  RequestRepaint(SlotA);
}

void CanvasScene::SetBackColor(std::uint32_t SlotA, OleColor ColorA) {
  if (std::exchange(mLooks[SlotA].backColor, ColorA) != ColorA) RequestRepaint(SlotA);
}

void CanvasScene::BringToFront(std::uint32_t SlotA) {
  mLooks[SlotA].z = ++mFront;
  RequestRepaint(SlotA);
}

void CanvasScene::SendToBack(std::uint32_t SlotA) {
  mLooks[SlotA].z = --mBack;
  RequestRepaint(SlotA);
}

void CanvasScene::RequestRepaint(std::uint32_t SlotA) {
  if (!mRequests.WantsMore() || !mLooks[SlotA].IsShown() || !mPlaces[SlotA].IsDrawable()) return;
  mRequests.Request(Widened(InPixels(mPlaces[SlotA], mPixelsPerUnit)));
}

CanvasItem* CanvasScene::TopmostAt(PointF PointA) const {
  CanvasItem* topmost = nullptr;
  std::int64_t order = 0;
  ForEachShown({PointA.x, PointA.y, 0, 0}, [&](std::uint32_t slot) {
    if (topmost && mLooks[slot].Order() < order) return;
    topmost = mItems[slot];
    order = mLooks[slot].Order();
  });
  return topmost;
}

}  // namespace mur
