#pragma once

#include <cstdint>
#include <optional>

#include <murtimeline/automation/event.h>
#include <murtimeline/automation/export.h>
#include <murtimeline/automation/shared_text.h>
#include <murtimeline/render/companions/canvas_item_interface.h>
#include <murtimeline/render/port/geometry.h>

namespace mur {

/// What listeners are told of a pointer or a drag; they may change every argument. Positions are canvas
/// units, on an item from its own left top corner.
template <class... Subject>
using PointerEventOf =
    Event<Subject..., std::int16_t& /*Button*/, std::int16_t& /*Shift*/, float& /*X*/, float& /*Y*/>;
template <class... Subject>
using DragDropEventOf = Event<Subject..., Ref<Object>& /*Data*/, std::int32_t& /*Effect*/,
                              std::int16_t& /*Button*/, std::int16_t& /*Shift*/, float& /*X*/, float& /*Y*/>;
template <class... Subject>
using DragOverEventOf =
    Event<Subject..., Ref<Object>& /*Data*/, std::int32_t& /*Effect*/, std::int16_t& /*Button*/,
          std::int16_t& /*Shift*/, float& /*X*/, float& /*Y*/, std::int16_t& /*State*/>;

/// The drawing canvas, as the control needs it.
///
/// Pointer and drag reports name the topmost visible item there, or the background. From the first press to
/// the last release they name what was pressed, wherever the pointer is. A click follows the release of the
/// button that was pressed last, where that is still on what was pressed.
class MUR_API IGraphicCanvas : public Object {
 public:
  using Item = const Ref<ICanvasItem>&;

  /// The canvas needs a full redraw. Raised by the canvas when its drawing area changes.
  Event<> Repaint;

  Event<> Click;
  Event<> DblClick;
  PointerEventOf<> MouseDown;
  PointerEventOf<> MouseMove;
  PointerEventOf<> MouseUp;
  DragDropEventOf<> OLEDragDrop;
  DragOverEventOf<> OLEDragOver;
  Event<Item> ItemClick;
  Event<Item> ItemDblClick;
  PointerEventOf<Item> ItemMouseDown;
  PointerEventOf<Item> ItemMouseMove;
  PointerEventOf<Item> ItemMouseUp;
  DragDropEventOf<Item> ItemOLEDragDrop;
  DragOverEventOf<Item> ItemOLEDragOver;

  virtual OleColor BackColor() const = 0;
  virtual void SetBackColor(OleColor ColorA) = 0;
  virtual std::int16_t OLEDropMode() const = 0;
  virtual void SetOLEDropMode(std::int16_t ModeA) = 0;
  virtual bool ShowToolTips() const = 0;
  virtual void SetShowToolTips(bool ShowA) = 0;
  /// Coordinate unit of the items: 1 twips, 3 pixels.
  virtual int ScaleMode() const = 0;
  virtual void SetScaleMode(int ModeA) = 0;
  /// Extent of the drawing area, in canvas units.
  virtual double DrawingWidth() const = 0;
  virtual double DrawingHeight() const = 0;

  virtual std::size_t GraphicCount() const = 0;
  /// The item with that key or at that 1-based position; none when there is none.
  virtual Ref<ICanvasItem> Graphic(const Variant& KeyIndexA) const = 0;
  virtual Ref<ICanvasItem> GraphicByKey(StringView KeyA) const { return Graphic(Variant(KeyA)); }
  /// A new item on top of the others; none when the key exists.
  virtual Ref<ICanvasItem> AddGraphic(StringView KeyA, int KindA) = 0;
  /// The same, for canvases that can share the key.
  virtual Ref<ICanvasItem> AddGraphicSharing(const SharedText& KeyA, int KindA) {
    return AddGraphic(KeyA.View(), KindA);
  }
  /// Throws SubscriptOutOfRange when there is no such item.
  virtual void RemoveGraphic(const Variant& KeyIndexA) = 0;

  /// Whether a press takes items up, the cursor included; for the shape of the pointer.
  virtual void SetItemsMovable(bool /*MovableA*/) {}
  /// Shows a text at the left edge of an item that is being dragged, in place of an earlier one; an empty
  /// text takes it away.
  virtual void ShowDragLabel(Item /*ItemA*/, StringView /*TextA*/) {}
  /// A stamp that moves by one whenever an item comes, goes or is put a back colour, the same one included;
  /// none for canvases that keep no such stamp.
  virtual std::optional<std::uint64_t> ColorRevision() const { return std::nullopt; }
};

}  // namespace mur
