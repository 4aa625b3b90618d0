#pragma once

#include <optional>

#include <murtimeline/automation/export.h>
#include <murtimeline/render/companions/canvas.h>

namespace mur {

/// A step from one bar to another: along its row by left edge, or to the nearest bar of the next row.
enum class WalkStep { Earlier, Later, Above, Below, FirstOfRow, LastOfRow };

/// Which bar comes next for a user without a pointer. Hidden bars and those without an extent are passed
/// over. A step costs O(log n), wherever it leads.
class MUR_API BarWalk {
 public:
  explicit BarWalk(MURGraphicCanvas& CanvasA) : mCanvas(CanvasA) {}

  /// The bar that a step from `FromA` leads to; none where the bars end. From nowhere every step leads to the
  /// first bar of the first row. Steps up and down keep to the time at which they began.
  Ref<ICanvasItem> Step(const Ref<ICanvasItem>& FromA, WalkStep StepA);

 private:
  using Slot = CanvasIndex::Slot;

  std::optional<Slot> FirstBar();
  std::optional<Slot> Along(const ItemPlace& FromA, Slot SlotA, WalkStep StepA);
  std::optional<Slot> Across(const CanvasItem& FromA, const ItemPlace& PlaceA, bool DownwardsA);
  std::optional<Slot> NearestInRow(float TopA, float XA);
  bool IsMet(Slot SlotA) const { return mCanvas.Scene().LookOf(SlotA).visible; }

  MURGraphicCanvas& mCanvas;
  float mHome = 0;                  // where the steps up and down began (canvas units)
  const CanvasItem* mAt = nullptr;  // the bar that the last of them led to; to compare only
};

/// The start or the end of a bar.
struct MUR_API BarEdge {
  Ref<ICanvasItem> item;
  bool isEnd = false;
};

/// The next edge of a bar shown on the canvas's height, to the right or to the left of an x (canvas units).
MUR_API std::optional<BarEdge> EdgeBeyond(const MURGraphicCanvas& CanvasA, float XA, bool ForwardsA);

}  // namespace mur
