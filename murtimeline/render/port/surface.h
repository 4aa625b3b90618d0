#pragma once

#include <span>

#include <murtimeline/automation/export.h>
#include <murtimeline/render/port/geometry.h>

namespace mur {

/// How a text is set. Sizes are logical pixels.
struct MUR_API TextStyle {
  float size = 12;
  bool bold = false;
  Rgba color;
  friend bool operator==(const TextStyle&, const TextStyle&) = default;
};

/// The box that a text takes: its advance width, and its extent above and below the baseline.
struct MUR_API TextExtent {
  float width = 0, ascent = 0, descent = 0;
  float Height() const { return ascent + descent; }
};

/// What a face supplies for drawing. Coordinates are logical pixels, y down; a face scales them to the device
/// and keeps edges sharp (`DevicePixelRatio` says by how much, so that callers can align to device pixels).
class MUR_API Surface {
 public:
  virtual ~Surface() = default;

  virtual float DevicePixelRatio() const = 0;
  virtual void FillRectangle(const RectF& RectA, Rgba ColorA) = 0;
  /// A frame of `WidthA` pixels that lies wholly inside the rectangle.
  virtual void FrameRectangle(const RectF& RectA, Rgba ColorA, float WidthA) = 0;
  virtual void FillRoundedRectangle(const RectF& RectA, float RadiusA, Rgba ColorA) = 0;
  /// As FrameRectangle, with rounded corners.
  virtual void FrameRoundedRectangle(const RectF& RectA, float RadiusA, Rgba ColorA, float WidthA) = 0;
  virtual void DrawLine(PointF FromA, PointF ToA, Rgba ColorA, float WidthA) = 0;
  virtual void FillPolygon(std::span<const PointF> PointsA, Rgba ColorA) = 0;
  /// Sets one line of text with its baseline starting at `BaselineA`. No wrapping, no eliding.
  virtual void DrawTextLine(PointF BaselineA, StringView TextA, const TextStyle& StyleA) = 0;
  virtual TextExtent MeasureText(StringView TextA, const TextStyle& StyleA) const = 0;
  /// Limits drawing to the rectangle too, until the matching PopClip.
  virtual void PushClip(const RectF& RectA) = 0;
  virtual void PopClip() = 0;
};

}  // namespace mur
