#pragma once

#include <murtimeline/automation/export.h>
#include <murtimeline/automation/keyed_sequence.h>
#include <murtimeline/render/companions/canvas_interface.h>
#include <murtimeline/render/companions/canvas_item.h>
#include <murtimeline/render/companions/canvas_pointer.h>
#include <murtimeline/render/companions/drag_label.h>
#include <murtimeline/render/port/child_host.h>
#include <murtimeline/render/port/surface.h>

namespace mur {

/// The drawing canvas. Items are kept in the order in which they were added, under keys that are unique when
/// letter case is ignored; the spatial order behind painting and hit testing is brought up to date only when
/// something is asked of it. It starts with scale mode 1 (twips), the platform's application workspace
/// colour, tool tips shown and `OLEDropMode` 0.
class MUR_API MURGraphicCanvas final : public IGraphicCanvas, public PointerTarget, public DropTarget {
 public:
  /// `HostA` outlives the canvas.
  explicit MURGraphicCanvas(ChildHost& HostA);
  ~MURGraphicCanvas() override;

  /// Draws what `DirtyA` (pixels) touches, background included.
  void Paint(Surface& SurfaceA, const RectF& DirtyA);
  /// The face tells that the drawing area has another extent; raises Repaint.
  void Resized();
  /// The topmost visible item at a point (pixels): the cursor before all bars, as it is drawn.
  Ref<ICanvasItem> ItemAt(PointF PointA) const;
  /// What to show while the pointer rests there: the item's tool tip, else that of the canvas; empty while
  /// tool tips are off.
  String ToolTipAt(PointF PointA) const;
  /// Where an item is shown, in pixels.
  RectF PixelBounds(const ICanvasItem& ItemA) const;
  /// The same for a point, the other way round: pixels to the canvas units in which bars lie.
  PointF UnitsAt(PointF PointA) const {
    return {PointA.x * UnitsPerPixel(), PointA.y * UnitsPerPixel() + mScene->ScrolledUnits()};
  }
  /// A point (pixels) as an item sees it: canvas units from its left top corner.
  PointF PointOn(const ICanvasItem& ItemA, PointF PointA) const;
  /// The drawing area, in pixels.
  RectF Area() const;

  // Scrolling, in pixels: bars are shown further up than they lie, the cursor stays.
  float ScrollTop() const { return mScene->ScrolledUnits() * PixelsPerUnit(); }
  /// As far as there is something to see: 0 to what the content is higher than the drawing area.
  void SetScrollTop(float PixelsA);
  /// The lower edge of the lowest bar.
  float ContentHeight() const { return mScene->Bottom() * PixelsPerUnit(); }

  /// The item with a ring around it, as for the one that the keyboard acts on; none when it goes.
  Ref<ICanvasItem> FocusedItem() const;
  void SetFocusedItem(const Ref<ICanvasItem>& ItemA);
  /// Geometry and looks of the items by slot, for what looks around among them.
  CanvasScene& Scene() const { return *mScene; }
  /// The item itself when it is on this canvas; null otherwise.
  const CanvasItem* Own(const ICanvasItem& ItemA) const;
  /// Whether an item is on this canvas still.
  bool Holds(const ICanvasItem& ItemA) const { return Own(ItemA) != nullptr; }
  ChildHost& Host() const { return mHost; }

  // The pointer: see CanvasPointer.
  void PointerPressed(const PointerInput& InputA) override { mPointer.Press(InputA, false); }
  void PointerDoublePressed(const PointerInput& InputA) override { mPointer.Press(InputA, true); }
  void PointerMoved(const PointerInput& InputA) override { mPointer.Move(InputA); }
  void PointerReleased(const PointerInput& InputA) override { mPointer.Release(InputA); }
  void PointerLeft() override {}
  void PointerLost() override { mPointer.Lose(); }
  // What is dragged goes to the topmost visible item there or to the background; nothing is dropped while
  // OLEDropMode is 0.
  void DraggedOver(DragInput& InputA, std::int16_t StateA) override;
  void Dropped(DragInput& InputA) override;

  /// Whether keys, positions and the spatial order agree; for tests.
  bool IsConsistent() const;

  OleColor BackColor() const override { return mBackColor; }
  void SetBackColor(OleColor ColorA) override;
  std::int16_t OLEDropMode() const override { return mOLEDropMode; }
  void SetOLEDropMode(std::int16_t ModeA) override { mOLEDropMode = ModeA; }
  bool ShowToolTips() const override { return mShowToolTips; }
  void SetShowToolTips(bool ShowA) override { mShowToolTips = ShowA; }
  int ScaleMode() const override { return mScaleMode; }
  void SetScaleMode(int ModeA) override;
  double DrawingWidth() const override;
  double DrawingHeight() const override;

  std::size_t GraphicCount() const override { return mItems.Count(); }
  Ref<ICanvasItem> Graphic(const Variant& KeyIndexA) const override;
  /// The 1-based position of the item with that key; 0 when there is none.
  std::size_t PositionOf(StringView KeyA) const;
  Ref<ICanvasItem> GraphicByKey(StringView KeyA) const override;
  Ref<ICanvasItem> AddGraphic(StringView KeyA, int KindA) override {
    return AddGraphicSharing(SharedText(KeyA), KindA);
  }
  Ref<ICanvasItem> AddGraphicSharing(const SharedText& KeyA, int KindA) override;
  void RemoveGraphic(const Variant& KeyIndexA) override;
  void SetItemsMovable(bool MovableA) override { mItemsMovable = MovableA; }
  /// Whether the left button would drag an item along the time axis.
  bool IsMovable(const ICanvasItem& ItemA) const;
  void ShowDragLabel(Item ItemA, StringView TextA) override;
  std::optional<std::uint64_t> ColorRevision() const override { return mScene->ColorRevision(); }

 private:
  struct KeyOf {
    StringView operator()(const Ref<CanvasItem>& ItemA) const { return ItemA->KeyView(); }
  };
  using Items = KeyedSequence<Ref<CanvasItem>, KeyOf>;

  template <class ItemEvent, class BackgroundEvent, class... More>
  void RaiseDrag(const ItemEvent& ItemEventA, const BackgroundEvent& BackgroundEventA, DragInput& InputA,
                 More&... MoreA);
  Ref<ICanvasItem> ItemInSlot(std::size_t SlotA) const;
  float UnitsPerPixel() const;
  float PixelsPerUnit() const { return 1 / UnitsPerPixel(); }

  ChildHost& mHost;
  Ref<CanvasScene> mScene;
  Items mItems;
  OleColor mBackColor = 0x8000000C;  // application workspace
  int mScaleMode = 1;
  std::int16_t mOLEDropMode = 0;
  bool mShowToolTips = true;
  bool mItemsMovable = false;
  DragLabel mLabel;
  RectF mLabelBand;  // where it was put
  CanvasPointer mPointer{*this};
};

}  // namespace mur
