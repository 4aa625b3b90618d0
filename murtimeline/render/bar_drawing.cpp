#include <vector>

#include <murtimeline/automation/guard.h>
#include <murtimeline/automation/narrow.h>
#include <murtimeline/render/bar_drawing.h>
#include <murtimeline/render/object_path.h>
#include <murtimeline/render/object_walks.h>

namespace mur {
namespace {
constexpr int kTagSite = 5;
constexpr std::int16_t kToBack = 1;
}  // namespace

Ref<ICanvasItem> BarDrawing::ItemOf(const IMURTimelineObject& ObjectA) const {
  return mState.Canvas().GraphicByKey(ObjectA.KeyText().View());
}

void BarDrawing::AddBar(const Ref<IMURTimelineObject>& ObjectA) {
  ResumeNext([&] {
    const Ref<ICanvasItem> item = mState.Canvas().AddGraphicSharing(ObjectA->KeyText(), kObjectBarItem);
    if (!item) return;
    item->SetHeight(mState.barHeight);
    PlaceObjectItemTree(ObjectA, GetNestingLevel(ObjectA));
    item->SetCaption(kTagSite, ObjectA->Tag());
    ColorItem(*ObjectA, *item);
    if (const Ref<ICanvasItem> cursor = mState.Canvas().GraphicByKey(kCursorKey)) cursor->ZOrder(kToBack);
  });
}

// Moves the object's item to its row; gives the item, or none when there is none.
Ref<ICanvasItem> BarDrawing::PlaceItem(const Ref<IMURTimelineObject>& ObjectA, int LevelA) {
  Ref<ICanvasItem> item = ItemOf(*ObjectA);
  if (item)
    item->Move(item->Left(),
               mTracks.ComputeTrackTop(ObjectA) + mTracks.RowStep() * static_cast<float>(LevelA - 1));
  return item;
}

// Each item goes to the back after its children, so that parents lie behind them. A failure ends the placing
// of the object that it befell and of those below it, no more.
void BarDrawing::PlaceObjectItemTree(const Ref<IMURTimelineObject>& ObjectA, int LevelA) {
  ObjectPath path;
  std::vector<Ref<ICanvasItem>> items;
  const auto place = [&](const Ref<IMURTimelineObject>& object) {
    const int level = Narrow<std::int16_t>(LevelA + static_cast<std::int64_t>(path.Depth()));
    const Ref<ICanvasItem> item = PlaceItem(object, level);
    if (!item) return;
    if (object->ChildCount() == 0) return item->ZOrder(kToBack);
    path.Enter(object);
    items.push_back(item);
  };
  ResumeNext([&] { place(ObjectA); });
  while (!path.IsEmpty()) {
    Ref<IMURTimelineObject> child;
    const bool met = ResumeNext([&] { child = path.NextChild(); });
    if (child) {
      ResumeNext([&] { place(child); });
      continue;
    }
    if (met) ResumeNext([&] { items.back()->ZOrder(kToBack); });
    items.pop_back();
    path.Leave();
  }
}

void BarDrawing::SpanItem(const IMURTimelineObject& ObjectA, ICanvasItem& ItemA, double DurationA) const {
  const double start = ObjectA.WorldTimeT0().Seconds();
  const float x0 = XOf(start);
  const float x1 = XOf(start + DurationA);
  ItemA.Move(ItemA.Left(), {}, x1 - x0);
}

void BarDrawing::MoveItem(ICanvasItem& ItemA, Date StartA) const {
  ItemA.Move(XOf(StartA.Seconds()));
}

void BarDrawing::UpdateItemSpan(const IMURTimelineObject& ObjectA, double DurationA) {
  ResumeNext([&] {
    const Ref<ICanvasItem> item = ItemOf(ObjectA);
    if (!item) return;
    SpanItem(ObjectA, *item, DurationA);
    mCaptions.ApplyAutoCaptions(ObjectA, *item);
  });
}

void BarDrawing::UpdateItemLeft(const IMURTimelineObject& ObjectA, Date StartA) {
  ResumeNext([&] {
    const Ref<ICanvasItem> item = ItemOf(ObjectA);
    if (!item) return;
    MoveItem(*item, StartA);
    mCaptions.ApplyAutoCaptions(ObjectA, *item);
  });
}

void BarDrawing::ReplaceAllBars() {
  const bool automatic = mCaptions.AreAutomatic();
  auto objects = mState.timeline->NewEnum();
  while (const Ref<IMURTimelineObject> object = objects.Next()) {
    // Span, left edge and captions in one go: what each does depends on none of the others.
    ResumeNext([&] {
      const Ref<ICanvasItem> item = ItemOf(*object);
      if (!item) return;
      ResumeNext([&] { SpanAndMoveItem(*object, *item); });
      if (automatic) mCaptions.ApplyAutoCaptions(*object, *item);
    });
  }
}

// An object that cannot tell its duration is moved all the same.
void BarDrawing::SpanAndMoveItem(const IMURTimelineObject& ObjectA, ICanvasItem& ItemA) const {
  const double start = ObjectA.WorldTimeT0().Seconds();
  const float left = XOf(start);
  std::optional<float> width;
  ResumeNext([&] { width = XOf(start + ObjectA.Duration()) - left; });
  ItemA.Move(left, {}, width);
}

void BarDrawing::RefreshCaptions(const IMURTimelineObject& ObjectA) {
  if (!mCaptions.AreAutomatic()) return;
  ResumeNext([&] {
    if (const Ref<ICanvasItem> item = ItemOf(ObjectA)) mCaptions.ApplyAutoCaptions(ObjectA, *item);
  });
}

void BarDrawing::RefreshTooltip(const IMURTimelineObject& ObjectA) {
  ResumeNext([&] {
    if (const Ref<ICanvasItem> item = ItemOf(ObjectA))
      item->SetToolTipText(mCaptions.ExpandTooltipTemplate(ObjectA));
  });
}

void BarDrawing::RefreshColors(const IMURTimelineObject& ObjectA) {
  if (const Ref<ICanvasItem> item = ItemOf(ObjectA)) ColorItem(ObjectA, *item);
}

void BarDrawing::ColorItem(const IMURTimelineObject& ObjectA, ICanvasItem& ItemA) const {
  const Ref<CMURTLRenderConfig> config = mConfigs.Resolve(ObjectA);
  ItemA.SetForeColor(config->ForeColor());
  ItemA.SetBackColor(config->BackColor());
}

}  // namespace mur
