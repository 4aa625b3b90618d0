#pragma once

#include <optional>

#include <murtimeline/automation/export.h>
#include <murtimeline/automation/object.h>
#include <murtimeline/automation/string.h>
#include <murtimeline/automation/variant.h>
#include <murtimeline/render/port/geometry.h>

namespace mur {

/// Item kinds that the control uses.
inline constexpr int kObjectBarItem = 1;
inline constexpr int kCursorItem = 2;

/// One drawing item of a canvas. Geometry is in canvas units (pixels under ScaleMode 3).
class MUR_API ICanvasItem : public Object {
 public:
  virtual String Key() const = 0;
  virtual int Kind() const = 0;
  virtual float Left() const = 0;
  virtual float Top() const = 0;
  virtual float Width() const = 0;
  virtual float Height() const = 0;
  virtual void SetHeight(float HeightA) = 0;
  /// What is not given stays as it is.
  virtual void Move(float LeftA, std::optional<float> TopA = {}, std::optional<float> WidthA = {},
                    std::optional<float> HeightA = {}) = 0;
  /// 1 sends the item to the back, 0 brings it to the front.
  virtual void ZOrder(const Variant& PositionA) = 0;
  /// Sites 1 to 9, three columns by three rows in reading order; another site throws SubscriptOutOfRange.
  virtual String Caption(int SiteA) const = 0;
  virtual void SetCaption(int SiteA, StringView CaptionA) = 0;
  virtual String ToolTipText() const = 0;
  virtual void SetToolTipText(StringView TextA) = 0;
  virtual OleColor BackColor() const = 0;
  virtual void SetBackColor(OleColor ColorA) = 0;
  virtual OleColor ForeColor() const = 0;
  virtual void SetForeColor(OleColor ColorA) = 0;
  virtual bool Visible() const = 0;
  virtual void SetVisible(bool VisibleA) = 0;
  /// Hints for the pointer shape: bit 1 left edge, 2 right edge, 4 horizontal move, 8 vertical move.
  virtual int DragFlags() const = 0;
  virtual void SetDragFlags(int FlagsA) = 0;
};

}  // namespace mur
