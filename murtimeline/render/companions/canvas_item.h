#pragma once

#include <murtimeline/automation/export.h>
#include <murtimeline/render/companions/canvas_item_interface.h>
#include <murtimeline/render/companions/canvas_scene.h>
#include <murtimeline/render/companions/item_texts.h>

namespace mur {

/// An item of MURGraphicCanvas. It may be kept after its removal, and after the canvas's end; it then keeps
/// its properties and is drawn nowhere. Its geometry and look live in the scene, side by side with those of
/// the other items, so that painting reads them in one go.
class MUR_API CanvasItem final : public ICanvasItem {
 public:
  CanvasItem(Ref<CanvasScene> SceneA, SharedText KeyA, int KindA);
  ~CanvasItem() override;

  StringView KeyView() const noexcept { return mKey.View(); }
  const ItemTexts& Texts() const noexcept { return mTexts; }
  std::uint32_t SceneSlot() const noexcept { return mSlot; }

  String Key() const override { return String(KeyView()); }
  int Kind() const override { return mKind; }
  float Left() const override { return mScene->PlaceOf(mSlot).left; }
  float Top() const override { return mScene->PlaceOf(mSlot).top; }
  float Width() const override { return mScene->PlaceOf(mSlot).width; }
  float Height() const override { return mScene->PlaceOf(mSlot).height; }
  void SetHeight(float HeightA) override;
  void Move(float LeftA, std::optional<float> TopA = {}, std::optional<float> WidthA = {},
            std::optional<float> HeightA = {}) override;
  /// Throws InvalidProcedureCall for a position other than 0 and 1; left out it is 0.
  void ZOrder(const Variant& PositionA) override;
  String Caption(int SiteA) const override;
  void SetCaption(int SiteA, StringView CaptionA) override;
  String ToolTipText() const override { return String(mTexts.ToolTip()); }
  void SetToolTipText(StringView TextA) override { mTexts.SetToolTip(TextA); }
  OleColor BackColor() const override { return mScene->LookOf(mSlot).backColor; }
  void SetBackColor(OleColor ColorA) override;
  OleColor ForeColor() const override { return mForeColor; }
  void SetForeColor(OleColor ColorA) override;
  bool Visible() const override { return mScene->LookOf(mSlot).visible; }
  void SetVisible(bool VisibleA) override;
  int DragFlags() const override { return mDragFlags; }
  void SetDragFlags(int FlagsA) override { mDragFlags = FlagsA; }

 private:
  int mDragFlags = 0;
  int mKind;
  OleColor mForeColor = 0x80000012;  // button text
  std::uint32_t mSlot;
  Ref<CanvasScene> mScene;
  SharedText mKey;
  ItemTexts mTexts;
};

}  // namespace mur
