#include <algorithm>
#include <limits>

#include <murtimeline/render/companions/bar_walk.h>

namespace mur {
namespace {

constexpr float kFarLeft = -std::numeric_limits<float>::infinity();
constexpr float kFarRight = std::numeric_limits<float>::infinity();
constexpr CanvasIndex::Slot kLowestSlot = 0;
constexpr CanvasIndex::Slot kHighestSlot = std::numeric_limits<CanvasIndex::Slot>::max();

}  // namespace

Ref<ICanvasItem> BarWalk::Step(const Ref<ICanvasItem>& FromA, WalkStep StepA) {
  CanvasScene& scene = mCanvas.Scene();
  const CanvasItem* from = FromA ? mCanvas.Own(*FromA) : nullptr;
  const bool isAcross = StepA == WalkStep::Above || StepA == WalkStep::Below;
  std::optional<Slot> next;
  if (!from)
    next = FirstBar();
  else if (isAcross)
    next = Across(*from, scene.PlaceOf(from->SceneSlot()), StepA == WalkStep::Below);
  else
    next = Along(scene.PlaceOf(from->SceneSlot()), from->SceneSlot(), StepA);
  if (!next) return {};
  CanvasItem& item = scene.ItemOf(*next);
  mAt = from && isAcross ? &item : nullptr;
  return Ref<ICanvasItem>(&item);
}

std::optional<CanvasIndex::Slot> BarWalk::FirstBar() {
  CanvasIndex& index = mCanvas.Scene().Index();
  const auto accept = [this](Slot slot) { return IsMet(slot); };
  const auto top = index.NextRow(std::numeric_limits<float>::lowest(), true, accept);
  return top ? index.NextInRow({*top, kFarLeft, kLowestSlot}, true, accept) : std::nullopt;
}

std::optional<CanvasIndex::Slot> BarWalk::Along(const ItemPlace& FromA, Slot SlotA, WalkStep StepA) {
  CanvasIndex& index = mCanvas.Scene().Index();
  const auto accept = [this](Slot slot) { return IsMet(slot); };
  switch (StepA) {
    case WalkStep::Earlier:
      return index.NextInRow({FromA.top, FromA.left, SlotA}, false, accept);
    case WalkStep::Later:
      return index.NextInRow({FromA.top, FromA.left, SlotA}, true, accept);
    case WalkStep::FirstOfRow:
      return index.NextInRow({FromA.top, kFarLeft, kLowestSlot}, true, accept);
    default:
      return index.NextInRow({FromA.top, kFarRight, kHighestSlot}, false, accept);
  }
}

std::optional<CanvasIndex::Slot> BarWalk::Across(const CanvasItem& FromA, const ItemPlace& PlaceA,
                                                 bool DownwardsA) {
  if (&FromA != mAt) mHome = PlaceA.left + PlaceA.width / 2;
  const auto accept = [this](Slot slot) { return IsMet(slot); };
  const auto top = mCanvas.Scene().Index().NextRow(PlaceA.top, DownwardsA, accept);
  return top ? NearestInRow(*top, mHome) : std::nullopt;
}

// The last bar that starts by `XA` or the first that starts after it.
std::optional<CanvasIndex::Slot> BarWalk::NearestInRow(float TopA, float XA) {
  CanvasScene& scene = mCanvas.Scene();
  const auto accept = [this](Slot slot) { return IsMet(slot); };
  const auto before = scene.Index().NextInRow({TopA, XA, kHighestSlot}, false, accept);
  const auto after = scene.Index().NextInRow({TopA, XA, kHighestSlot}, true, accept);
  if (!before || !after) return before ? before : after;
  const float toBefore = std::max(XA - scene.PlaceOf(*before).Right(), 0.0F);
  return toBefore <= scene.PlaceOf(*after).left - XA ? before : after;
}

// Looks through ever wider stretches, so that it meets little more than what lies up to the edge.
std::optional<BarEdge> EdgeBeyond(const MURGraphicCanvas& CanvasA, float XA, bool ForwardsA) {
  constexpr float kSame = 1.0F / 64;  // pixels: ends are sums of two roundings
  constexpr float kFirstStretch = 32;
  constexpr float kFarthest = 1e9F;
  CanvasScene& scene = CanvasA.Scene();
  const float unit = 1 / scene.PixelsPerUnit();
  for (float stretch = kFirstStretch * unit; stretch < kFarthest * unit; stretch *= 2) {
    std::optional<BarEdge> nearest;
    float distance = stretch;
    const auto offer = [&](std::uint32_t slot, float edge, bool isEnd) {
      const float beyond = ForwardsA ? edge - XA : XA - edge;
      if (!(beyond > kSame * unit && beyond < distance)) return;
      distance = beyond;
      nearest = BarEdge{Ref<ICanvasItem>(&scene.ItemOf(slot)), isEnd};
    };
    const float left = ForwardsA ? XA : XA - stretch;
    scene.ForEachShown({left, 0, stretch, CanvasA.Area().height * unit}, [&](std::uint32_t slot) {
      if (scene.LookOf(slot).isCursor) return;
      offer(slot, scene.PlaceOf(slot).left, false);
      offer(slot, scene.PlaceOf(slot).Right(), true);
    });
    if (nearest) return nearest;
  }
  return std::nullopt;
}

}  // namespace mur
