#include <algorithm>
#include <array>
#include <cmath>

#include <murtimeline/render/companions/bar_captions.h>
#include <murtimeline/render/companions/canvas_item.h>
#include <murtimeline/render/companions/canvas_painter.h>
#include <murtimeline/render/companions/color_math.h>

namespace mur {
namespace {

constexpr float kRadius = 3;
constexpr float kCursorHandleHeight = 8;
// Boxes are cut this far outside of what is painted: hosts may give bars of any length, surfaces dislike
// them.
constexpr float kMargin = 16;

}  // namespace

CanvasPainter::CanvasPainter(Surface& SurfaceA, CanvasScene& SceneA, const ChildHost& HostA,
                             const RectF& DirtyA, float DrawingWidthA)
    : mSurface(SurfaceA),
      mScene(SceneA),
      mHost(HostA),
      mDirty(DirtyA),
      mDrawingWidth(DrawingWidthA),
      mRatio(SurfaceA.DevicePixelRatio()),
      mUnit(SceneA.PixelsPerUnit()) {}

void CanvasPainter::Paint() {
  Collect();
  std::sort(mDrawn.begin(), mDrawn.end(),
            [](const Drawn& left, const Drawn& right) { return left.order < right.order; });
  for (const Drawn& drawn : mDrawn) Draw(drawn);
  DrawFocusRing();
}

void CanvasPainter::Collect() {
  SliverFolder folder([this](const SliverRun& run) { AddRun(run); });
  const RectF area{(mDirty.left - 1) / mUnit, (mDirty.top - 1) / mUnit, (mDirty.width + 2) / mUnit,
                   (mDirty.height + 2) / mUnit};
  mScene.ForEachShown(area, [&](std::uint32_t slot) {
    const ItemPlace place = mScene.ShownPlaceOf(slot);
    const ItemLook& look = mScene.LookOf(slot);
    if (look.isCursor || place.width * mUnit * mRatio >= 1) {
      mDrawn.push_back({look.Order(), PixelBox(place), slot, look.backColor});
      return;
    }
    const float column = std::floor(std::max(place.left * mUnit, mDirty.left - kMargin) * mRatio);
    folder.Add({place.top, place.height, static_cast<std::int32_t>(column), 1, look.backColor, look.Order()});
  });
  folder.Finish();
}

void CanvasPainter::AddRun(const SliverRun& RunA) {
  RectF box = PixelBox({0, RunA.top, 0, RunA.height});
  box.left = static_cast<float>(RunA.firstColumn) / mRatio;
  box.width = static_cast<float>(RunA.columns) / mRatio;
  mDrawn.push_back({RunA.order, box, kNoSlot, RunA.color});
}

void CanvasPainter::Draw(const Drawn& DrawnA) {
  const Rgba color = ResolveColor(DrawnA.color, mHost);
  if (DrawnA.slot == kNoSlot) {
    mSurface.FillRectangle(DrawnA.box, color);
  } else if (mScene.LookOf(DrawnA.slot).isCursor) {
    DrawCursor(DrawnA.box, color);
  } else {
    DrawBar(DrawnA.box, color);
    DrawTexts(DrawnA.slot, color);
  }
}

void CanvasPainter::DrawBar(const RectF& BoxA, Rgba ColorA) {
  constexpr float kLeastFramed = 3;
  constexpr float kLeastRoundedWidth = 12;
  constexpr float kLeastRoundedHeight = 10;
  if (BoxA.width < kLeastFramed || BoxA.height < kLeastFramed) {
    mSurface.FillRectangle(BoxA, ColorA);
  } else if (BoxA.width < kLeastRoundedWidth || BoxA.height < kLeastRoundedHeight) {
    // Two fills are less work than a fill and a frame of four sides.
    mSurface.FillRectangle(BoxA, FrameColorOf(ColorA));
    const float edge = std::max(1.0F, std::floor(mRatio)) / mRatio;  // whole device pixels
    mSurface.FillRectangle({BoxA.left + edge, BoxA.top + edge, BoxA.width - 2 * edge, BoxA.height - 2 * edge},
                           ColorA);
  } else {
    mSurface.FillRoundedRectangle(BoxA, kRadius, ColorA);
    mSurface.FrameRoundedRectangle(BoxA, kRadius, FrameColorOf(ColorA), 1);
  }
}

// Captions keep to the part of the bar that the canvas shows, whatever part of it is painted just now.
void CanvasPainter::DrawTexts(std::uint32_t SlotA, Rgba ColorA) {
  const CanvasItem& item = mScene.ItemOf(SlotA);
  if (!item.Texts().HasCaptions()) return;
  const ItemPlace place = mScene.ShownPlaceOf(SlotA);
  const float left = std::max(place.left * mUnit, 0.0F);
  const float right = std::min(place.Right() * mUnit, mDrawingWidth);
  const float top = place.top * mUnit;
  DrawCaptions(mSurface, {Aligned(left), top, Aligned(right) - Aligned(left), place.height * mUnit},
               item.Texts(), ReadableOn(ColorA, ResolveColor(item.ForeColor(), mHost)));
}

// A line in the middle of the item, with a handle at its top.
void CanvasPainter::DrawCursor(const RectF& BoxA, Rgba ColorA) {
  const float middle = Aligned(BoxA.left + (BoxA.width - 1) / 2);
  mSurface.FillRectangle({middle, BoxA.top, 1, BoxA.height}, ColorA);
  const float shoulder = BoxA.top + kCursorHandleHeight / 2;
  const std::array<PointF, 5> handle = {{{BoxA.left, BoxA.top},
                                         {BoxA.Right(), BoxA.top},
                                         {BoxA.Right(), shoulder},
                                         {BoxA.left + BoxA.width / 2, BoxA.top + kCursorHandleHeight},
                                         {BoxA.left, shoulder}}};
  mSurface.FillPolygon(handle, ColorA);
}

// Around the bar rather than on it, so that it shows on any colour; a line between the two keeps them apart.
void CanvasPainter::DrawFocusRing() {
  constexpr int kHighlight = 13;  // a system colour
  const auto focused = mScene.Focused();
  if (!focused || !mScene.LookOf(*focused).IsShown() || !mScene.PlaceOf(*focused).IsDrawable()) return;
  const auto grown = [](const RectF& box, float by) {
    return RectF{box.left - by, box.top - by, box.width + 2 * by, box.height + 2 * by};
  };
  const RectF box = PixelBox(mScene.ShownPlaceOf(*focused));
  const Rgba ring = mHost.SystemColor(kHighlight);
  mSurface.FrameRoundedRectangle(grown(box, kFocusRingReach), kRadius + kFocusRingReach, ring,
                                 kFocusRingReach);
  mSurface.FrameRoundedRectangle(box, kRadius, ReadableOn(ring, ring), 1);
}

float CanvasPainter::Aligned(float PixelA) const {
  return std::round(PixelA * mRatio) / mRatio;
}

// The place with its edges on device pixels, at least one of them wide and high.
RectF CanvasPainter::PixelBox(const ItemPlace& PlaceA) const {
  const auto edge = [this](float unit, float first, float last) {
    return Aligned(std::clamp(unit * mUnit, first - kMargin, last + kMargin));
  };
  const float left = edge(PlaceA.left, mDirty.left, mDirty.Right());
  const float right = edge(PlaceA.Right(), mDirty.left, mDirty.Right());
  const float top = edge(PlaceA.top, mDirty.top, mDirty.Bottom());
  const float bottom = edge(PlaceA.Bottom(), mDirty.top, mDirty.Bottom());
  return {left, top, std::max(right - left, 1 / mRatio), std::max(bottom - top, 1 / mRatio)};
}

}  // namespace mur
