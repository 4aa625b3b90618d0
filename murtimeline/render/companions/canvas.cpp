#include <algorithm>
#include <utility>

#include <murtimeline/automation/error.h>
#include <murtimeline/automation/selector.h>
#include <murtimeline/render/companions/canvas.h>
#include <murtimeline/render/companions/canvas_painter.h>

namespace mur {
namespace {

constexpr int kTwipsMode = 1;
constexpr std::int16_t kNoDrops = 0;
constexpr int kMovesAlong = 4;  // a drag flag

}  // namespace

MURGraphicCanvas::MURGraphicCanvas(ChildHost& HostA) : mHost(HostA), mScene(Make<CanvasScene>(HostA)) {
  mScene->SetPixelsPerUnit(PixelsPerUnit());
}

MURGraphicCanvas::~MURGraphicCanvas() {
  mScene->CutHost();
}

void MURGraphicCanvas::Paint(Surface& SurfaceA, const RectF& DirtyA) {
  SurfaceA.PushClip(DirtyA);
  SurfaceA.FillRectangle(DirtyA, ResolveColor(mBackColor, mHost));
  const float width = mHost.Width() / ChildHost::kTwipsPerPixel;
  CanvasPainter(SurfaceA, *mScene, mHost, DirtyA, width).Paint();
  if (const auto& item = mLabel.Item(); item && Holds(*item))
    mLabel.Paint(SurfaceA, PixelBounds(*item), Area(), mHost);
  SurfaceA.PopClip();
  mScene->Requests().Painted();
}

void MURGraphicCanvas::Resized() {
  mScene->Requests().RequestAll();
  if (ScrollTop() > 0) SetScrollTop(ScrollTop());
  Repaint.Raise();
}

Ref<ICanvasItem> MURGraphicCanvas::ItemAt(PointF PointA) const {
  return Ref<ICanvasItem>(mScene->TopmostAt({PointA.x * UnitsPerPixel(), PointA.y * UnitsPerPixel()}));
}

String MURGraphicCanvas::ToolTipAt(PointF PointA) const {
  if (!mShowToolTips) return {};
  if (const auto item = ItemAt(PointA))
    if (String text = item->ToolTipText(); !text.empty()) return text;
  return mHost.ToolTipText();
}

RectF MURGraphicCanvas::PixelBounds(const ICanvasItem& ItemA) const {
  const float pixels = PixelsPerUnit();
  const float top = ItemA.Top() - (ItemA.Kind() == kCursorItem ? 0 : mScene->ScrolledUnits());
  return {ItemA.Left() * pixels, top * pixels, ItemA.Width() * pixels, ItemA.Height() * pixels};
}

PointF MURGraphicCanvas::PointOn(const ICanvasItem& ItemA, PointF PointA) const {
  const PointF at = UnitsAt(PointA);
  const float scrolled = ItemA.Kind() == kCursorItem ? mScene->ScrolledUnits() : 0;
  return {at.x - ItemA.Left(), at.y - ItemA.Top() - scrolled};
}

void MURGraphicCanvas::SetScrollTop(float PixelsA) {
  const float farthest = std::max(ContentHeight() - Area().height, 0.0F);
  const float pixels = PixelsA > 0 ? std::min(PixelsA, farthest) : 0;
  mScene->SetScrolledUnits(pixels * UnitsPerPixel());
}

Ref<ICanvasItem> MURGraphicCanvas::FocusedItem() const {
  const auto slot = mScene->Focused();
  return slot ? Ref<ICanvasItem>(&mScene->ItemOf(*slot)) : Ref<ICanvasItem>();
}

void MURGraphicCanvas::SetFocusedItem(const Ref<ICanvasItem>& ItemA) {
  const CanvasItem* item = ItemA ? Own(*ItemA) : nullptr;
  mScene->SetFocused(item ? std::optional(item->SceneSlot()) : std::nullopt);
}

const CanvasItem* MURGraphicCanvas::Own(const ICanvasItem& ItemA) const {
  const std::size_t slot = mItems.SlotOfKey(ItemA.Key());
  const CanvasItem* own = slot == Items::kNone ? nullptr : mItems.At(slot).Get();
  return own == &ItemA ? own : nullptr;
}

RectF MURGraphicCanvas::Area() const {
  return {0, 0, mHost.Width() / ChildHost::kTwipsPerPixel, mHost.Height() / ChildHost::kTwipsPerPixel};
}

// Tells the topmost visible item there, or the background.
template <class ItemEvent, class BackgroundEvent, class... More>
void MURGraphicCanvas::RaiseDrag(const ItemEvent& ItemEventA, const BackgroundEvent& BackgroundEventA,
                                 DragInput& InputA, More&... MoreA) {
  const Ref<MURGraphicCanvas> keep(this);
  auto& [data, effect, pointer] = InputA;
  if (mOLEDropMode == kNoDrops) {
    effect = kDropNone;
    return;
  }
  const Ref<ICanvasItem> item = ItemAt(pointer.at);
  PointF at = item ? PointOn(*item, pointer.at) : UnitsAt(pointer.at);
  if (item)
    ItemEventA.Raise(item, data, effect, pointer.button, pointer.shift, at.x, at.y, MoreA...);
  else
    BackgroundEventA.Raise(data, effect, pointer.button, pointer.shift, at.x, at.y, MoreA...);
}

void MURGraphicCanvas::DraggedOver(DragInput& InputA, std::int16_t StateA) {
  RaiseDrag(ItemOLEDragOver, OLEDragOver, InputA, StateA);
}

void MURGraphicCanvas::Dropped(DragInput& InputA) {
  RaiseDrag(ItemOLEDragDrop, OLEDragDrop, InputA);
}

bool MURGraphicCanvas::IsMovable(const ICanvasItem& ItemA) const {
  return mItemsMovable || (ItemA.DragFlags() & kMovesAlong) != 0;
}

void MURGraphicCanvas::ShowDragLabel(Item ItemA, StringView TextA) {
  if (mLabel.Item()) mScene->Requests().Request(mLabelBand);
  mLabel.Set(ItemA && Holds(*ItemA) ? ItemA : Ref<ICanvasItem>(), TextA);
  if (!mLabel.Item()) return;
  mLabelBand = mLabel.BandFor(PixelBounds(*ItemA), Area());
  mScene->Requests().Request(mLabelBand);
}

void MURGraphicCanvas::SetBackColor(OleColor ColorA) {
  if (std::exchange(mBackColor, ColorA) != ColorA) mScene->Requests().RequestAll();
}

void MURGraphicCanvas::SetScaleMode(int ModeA) {
  if (std::exchange(mScaleMode, ModeA) == ModeA) return;
  mScene->SetPixelsPerUnit(PixelsPerUnit());
  mScene->Requests().RequestAll();
}

double MURGraphicCanvas::DrawingWidth() const {
  return static_cast<double>(mHost.Width()) /
         static_cast<double>(ChildHost::kTwipsPerPixel * PixelsPerUnit());
}

double MURGraphicCanvas::DrawingHeight() const {
  return static_cast<double>(mHost.Height()) /
         static_cast<double>(ChildHost::kTwipsPerPixel * PixelsPerUnit());
}

Ref<ICanvasItem> MURGraphicCanvas::Graphic(const Variant& KeyIndexA) const {
  return ItemInSlot(Selector(KeyIndexA).SlotIn(mItems));
}

std::size_t MURGraphicCanvas::PositionOf(StringView KeyA) const {
  const std::size_t slot = mItems.SlotOfKey(KeyA);
  return slot == Items::kNone ? 0 : mItems.PositionOfSlot(slot);
}

Ref<ICanvasItem> MURGraphicCanvas::GraphicByKey(StringView KeyA) const {
  return ItemInSlot(mItems.SlotOfKey(KeyA));
}

Ref<ICanvasItem> MURGraphicCanvas::AddGraphicSharing(const SharedText& KeyA, int KindA) {
  Ref<CanvasItem> item = Make<CanvasItem>(mScene, KeyA, KindA);
  return mItems.Append(item) ? item : Ref<ICanvasItem>();
}

void MURGraphicCanvas::RemoveGraphic(const Variant& KeyIndexA) {
  const std::size_t slot = Selector(KeyIndexA).SlotIn(mItems);
  if (slot == Items::kNone) throw AutomationError(ErrorCode::SubscriptOutOfRange);
  mScene->TakeOff(mItems.Remove(slot)->SceneSlot());
}

bool MURGraphicCanvas::IsConsistent() const {
  std::size_t count = 0;
  for (std::size_t slot = mItems.NextSlot(0); slot != Items::kNone; slot = mItems.NextSlot(slot + 1)) {
    const CanvasItem& item = *mItems.At(slot);
    if (mItems.SlotOfKey(item.KeyView()) != slot || mItems.SlotOfPosition(++count) != slot) return false;
    if (&mScene->ItemOf(item.SceneSlot()) != &item || !mScene->LookOf(item.SceneSlot()).onCanvas)
      return false;
  }
  return count == mItems.Count() && mScene->IsConsistent();
}

Ref<ICanvasItem> MURGraphicCanvas::ItemInSlot(std::size_t SlotA) const {
  return SlotA == Items::kNone ? Ref<ICanvasItem>() : mItems.At(SlotA);
}

float MURGraphicCanvas::UnitsPerPixel() const {
  return mScaleMode == kTwipsMode ? ChildHost::kTwipsPerPixel : 1;
}

}  // namespace mur
