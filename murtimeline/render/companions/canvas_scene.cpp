#include <utility>

#include <murtimeline/render/companions/canvas_item.h>
#include <murtimeline/render/companions/canvas_scene.h>

namespace mur {
namespace {

constexpr OleColor kCursorColor = 0x002020D0;  // a calm red

RectF InPixels(const ItemPlace& PlaceA, float PixelsPerUnitA) {
  return {PlaceA.left * PixelsPerUnitA, PlaceA.top * PixelsPerUnitA, PlaceA.width * PixelsPerUnitA,
          PlaceA.height * PixelsPerUnitA};
}

// Edges are aligned to device pixels when they are drawn, at most one pixel away.
constexpr float kAlignment = 1;

RectF Widened(const RectF& RectA, float ByA) {
  return {RectA.left - ByA, RectA.top - ByA, RectA.width + 2 * ByA, RectA.height + 2 * ByA};
}

}  // namespace

std::uint32_t CanvasScene::Add(CanvasItem& ItemA) {
  const std::uint32_t slot = mIndex.Add();
  if (slot == mItems.size()) {
    mLooks.emplace_back();
    mItems.emplace_back();
  }
  mLooks[slot] = {};
  mLooks[slot].z = ++mFront;
  if (ItemA.Kind() == kCursorItem) {
    mIndex.TakeOff(slot);
    mCursors.push_back(slot);
    mLooks[slot].isCursor = true;
    mLooks[slot].backColor = kCursorColor;
  }
  mItems[slot] = &ItemA;
  ++mColorRevision;
  return slot;
}

void CanvasScene::TakeOff(std::uint32_t SlotA) {
  if (!mLooks[SlotA].onCanvas) return;
  RequestRepaint(SlotA);
  ++mColorRevision;
  if (mFocused == SlotA) SetFocused(std::nullopt);
  mLooks[SlotA].onCanvas = false;
  if (mLooks[SlotA].isCursor)
    std::erase(mCursors, SlotA);
  else
    mIndex.TakeOff(SlotA);
}

void CanvasScene::Forget(std::uint32_t SlotA) {
  TakeOff(SlotA);
  mItems[SlotA] = nullptr;
  mIndex.Release(SlotA);
}

void CanvasScene::SetPlace(std::uint32_t SlotA, const ItemPlace& PlaceA) {
  if (PlaceOf(SlotA) == PlaceA) return;
  RequestRepaint(SlotA);
  mIndex.SetPlace(SlotA, PlaceA);
  RequestRepaint(SlotA);
}

void CanvasScene::SetVisible(std::uint32_t SlotA, bool VisibleA) {
  if (mLooks[SlotA].visible == VisibleA) return;
  RequestRepaint(SlotA);
  mLooks[SlotA].visible = VisibleA;
  RequestRepaint(SlotA);
}

void CanvasScene::SetBackColor(std::uint32_t SlotA, OleColor ColorA) {
  ++mColorRevision;
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
  if (!mRequests.WantsMore() || !mLooks[SlotA].IsShown() || !PlaceOf(SlotA).IsDrawable()) return;
  const float reach = kAlignment + (mFocused == SlotA ? kFocusRingReach : 0);
  mRequests.Request(Widened(InPixels(ShownPlaceOf(SlotA), mPixelsPerUnit), reach));
}

ItemPlace CanvasScene::ShownPlaceOf(std::uint32_t SlotA) const {
  ItemPlace place = PlaceOf(SlotA);
  if (!mLooks[SlotA].isCursor) place.top -= mScrolledUnits;
  return place;
}

void CanvasScene::SetScrolledUnits(float UnitsA) {
  if (std::exchange(mScrolledUnits, UnitsA) != UnitsA) mRequests.RequestAll();
}

void CanvasScene::SetFocused(std::optional<std::uint32_t> SlotA) {
  if (SlotA == mFocused) return;
  if (mFocused) RequestRepaint(*mFocused);
  mFocused = SlotA;
  if (mFocused) RequestRepaint(*mFocused);
}

CanvasItem* CanvasScene::TopmostAt(PointF PointA) {
  CanvasItem* topmost = nullptr;
  std::int64_t order = 0;
  const auto offer = [&](std::uint32_t slot) {
    if (!mLooks[slot].visible || (topmost && mLooks[slot].Order() < order)) return;
    topmost = mItems[slot];
    order = mLooks[slot].Order();
  };
  for (const std::uint32_t slot : mCursors)
    if (PlaceOf(slot).Overlaps({PointA.x, PointA.y, 0, 0})) offer(slot);
  if (!topmost) mIndex.ForEachAt({PointA.x, PointA.y + mScrolledUnits}, offer);
  return topmost;
}

}  // namespace mur
