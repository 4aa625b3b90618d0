#include <murtimeline/automation/error.h>
#include <murtimeline/render/companions/canvas_item.h>

namespace mur {

CanvasItem::CanvasItem(Ref<CanvasScene> SceneA, SharedText KeyA, int KindA)
    : mKind(KindA), mSlot(SceneA->Add(*this)), mScene(std::move(SceneA)), mKey(std::move(KeyA)) {}

CanvasItem::~CanvasItem() {
  mScene->Forget(mSlot);
}

void CanvasItem::SetHeight(float HeightA) {
  ItemPlace place = mScene->PlaceOf(mSlot);
  place.height = HeightA;
  mScene->SetPlace(mSlot, place);
}

void CanvasItem::Move(float LeftA, std::optional<float> TopA, std::optional<float> WidthA,
                      std::optional<float> HeightA) {
  const ItemPlace& old = mScene->PlaceOf(mSlot);
  mScene->SetPlace(mSlot,
                   {LeftA, TopA.value_or(old.top), WidthA.value_or(old.width), HeightA.value_or(old.height)});
}

void CanvasItem::ZOrder(const Variant& PositionA) {
  const auto position = PositionA.Is(VariantKind::Missing) ? 0.0 : PositionA.Number();
  if (position == 0) {
    mScene->BringToFront(mSlot);
  } else if (position == 1) {
    mScene->SendToBack(mSlot);
  } else {
    throw AutomationError(ErrorCode::InvalidProcedureCall);
  }
}

String CanvasItem::Caption(int SiteA) const {
  return String(mTexts.Caption(SiteA));
}

void CanvasItem::SetCaption(int SiteA, StringView CaptionA) {
  if (mTexts.SetCaption(SiteA, CaptionA)) mScene->RequestRepaint(mSlot);
}

void CanvasItem::SetBackColor(OleColor ColorA) {
  mScene->SetBackColor(mSlot, ColorA);
}

void CanvasItem::SetForeColor(OleColor ColorA) {
  if (std::exchange(mForeColor, ColorA) != ColorA) mScene->RequestRepaint(mSlot);
}

void CanvasItem::SetVisible(bool VisibleA) {
  mScene->SetVisible(mSlot, VisibleA);
}

}  // namespace mur
