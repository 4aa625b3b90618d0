#pragma once

#include <vector>

#include <murtimeline/automation/export.h>
#include <murtimeline/render/companions/canvas_scene.h>
#include <murtimeline/render/companions/sliver_runs.h>
#include <murtimeline/render/port/surface.h>

namespace mur {

/// Paints the items of a scene that a rectangle touches: bars by stacking order, the cursor last.
class MUR_API CanvasPainter {
 public:
  /// `DrawingWidthA`: of the canvas, in pixels; captions keep within it.
  CanvasPainter(Surface& SurfaceA, CanvasScene& SceneA, const ChildHost& HostA, const RectF& DirtyA,
                float DrawingWidthA);

  void Paint();

 private:
  struct Drawn {
    std::int64_t order;
    RectF box;
    std::uint32_t slot;  // kNoSlot for a run of bars
    OleColor color;
  };
  static constexpr std::uint32_t kNoSlot = 0xFFFFFFFF;

  void Collect();
  void AddItem(std::uint32_t SlotA);
  void AddRun(const SliverRun& RunA);
  void Draw(const Drawn& DrawnA);
  void DrawBar(const RectF& BoxA, Rgba ColorA);
  void DrawTexts(std::uint32_t SlotA, Rgba ColorA);
  void DrawCursor(const RectF& BoxA, Rgba ColorA);
  void DrawFocusRing();

  float Aligned(float PixelA) const;
  RectF PixelBox(const ItemPlace& PlaceA) const;

  Surface& mSurface;
  CanvasScene& mScene;
  const ChildHost& mHost;
  RectF mDirty;
  float mDrawingWidth;
  float mRatio;  // device pixels to a pixel
  float mUnit;   // pixels to a canvas unit
  std::vector<Drawn> mDrawn;
};

}  // namespace mur
