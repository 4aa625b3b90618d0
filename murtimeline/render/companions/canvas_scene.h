#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include <murtimeline/automation/export.h>
#include <murtimeline/automation/object.h>
#include <murtimeline/render/companions/canvas_index.h>
#include <murtimeline/render/companions/repaint_requests.h>

namespace mur {

class CanvasItem;

/// How far the ring around the focused item reaches out of it, in pixels.
inline constexpr float kFocusRingReach = 2;

/// What painting needs to know about an item besides its place.
struct MUR_API ItemLook {
  std::int64_t z = 0;
  OleColor backColor = 0x8000000F;  // button face
  bool visible = true;
  bool onCanvas = true;  // false from its removal on
  bool isCursor = false;

  bool IsShown() const noexcept { return visible && onCanvas; }
  /// Where it is drawn and hit among the others: the cursor above all bars, whatever its stacking order.
  std::int64_t Order() const noexcept { return isCursor ? z + kAboveAllBars : z; }

 private:
  static constexpr std::int64_t kAboveAllBars = std::int64_t{1} << 62;
};

/// Geometry, looks and stacking order of a canvas's items, by slot. Canvas and items share it, so that an
/// item can outlive its canvas; it does not keep either of them.
class MUR_API CanvasScene final : public Object {
 public:
  explicit CanvasScene(ChildHost& HostA) : mRequests(HostA) {}

  /// A slot for an item, on top of the others.
  std::uint32_t Add(CanvasItem& ItemA);
  /// The item is off the canvas; its slot stays until it is forgotten.
  void TakeOff(std::uint32_t SlotA);
  /// The item ends.
  void Forget(std::uint32_t SlotA);
  /// The canvas ends.
  void CutHost() noexcept { mRequests.Cut(); }

  const ItemPlace& PlaceOf(std::uint32_t SlotA) const { return mIndex.PlaceOf(SlotA); }
  const ItemLook& LookOf(std::uint32_t SlotA) const { return mLooks[SlotA]; }
  CanvasItem& ItemOf(std::uint32_t SlotA) const { return *mItems[SlotA]; }

  /// Where an item is drawn: bars scroll, the cursor stays.
  ItemPlace ShownPlaceOf(std::uint32_t SlotA) const;

  void SetPlace(std::uint32_t SlotA, const ItemPlace& PlaceA);
  void SetVisible(std::uint32_t SlotA, bool VisibleA);
  void SetBackColor(std::uint32_t SlotA, OleColor ColorA);
  void BringToFront(std::uint32_t SlotA);
  void SendToBack(std::uint32_t SlotA);

  /// See IGraphicCanvas::ColorRevision.
  std::uint64_t ColorRevision() const noexcept { return mColorRevision; }

  /// The place of the item must be painted again.
  void RequestRepaint(std::uint32_t SlotA);
  RepaintRequests& Requests() noexcept { return mRequests; }
  void SetPixelsPerUnit(float PixelsA) noexcept { mPixelsPerUnit = PixelsA; }
  float PixelsPerUnit() const noexcept { return mPixelsPerUnit; }

  /// By how many canvas units the bars are shown further up than they lie.
  float ScrolledUnits() const noexcept { return mScrolledUnits; }
  void SetScrolledUnits(float UnitsA);
  /// The lower edge of the lowest bar (canvas units); 0 without one.
  float Bottom() { return mIndex.Bottom(); }

  /// The item with a ring around it; none at first, and when that item goes.
  std::optional<std::uint32_t> Focused() const noexcept { return mFocused; }
  void SetFocused(std::optional<std::uint32_t> SlotA);

  /// The order of the bars in space.
  CanvasIndex& Index() noexcept { return mIndex; }

  /// The topmost item shown at a point (canvas units, as shown); null when there is none.
  CanvasItem* TopmostAt(PointF PointA);

  /// Calls `VisitA(slot)` for every shown item that overlaps the area (canvas units, as shown); see
  /// CanvasIndex for the order. The cursor comes last.
  template <class Visit>
  void ForEachShown(const RectF& AreaA, Visit&& VisitA) {
    const RectF scrolled{AreaA.left, AreaA.top + mScrolledUnits, AreaA.width, AreaA.height};
    mIndex.ForEachOverlapping(scrolled, [&](std::uint32_t slot) {
      if (mLooks[slot].visible) VisitA(slot);
    });
    for (const std::uint32_t slot : mCursors)
      if (mLooks[slot].visible && PlaceOf(slot).Overlaps(AreaA)) VisitA(slot);
  }

  bool IsConsistent() const { return mIndex.IsConsistent(); }

 private:
  CanvasIndex mIndex;
  std::vector<ItemLook> mLooks;
  std::vector<CanvasItem*> mItems;
  std::vector<std::uint32_t> mCursors;  // apart from the bars: they do not scroll
  std::optional<std::uint32_t> mFocused;
  RepaintRequests mRequests;
  std::uint64_t mColorRevision = 0;
  std::int64_t mFront = 0;
  std::int64_t mBack = 0;
  float mPixelsPerUnit = 1;
  float mScrolledUnits = 0;
};

}  // namespace mur
