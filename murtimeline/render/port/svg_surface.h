#pragma once

#include <string>

#include <murtimeline/automation/export.h>
#include <murtimeline/render/port/surface.h>

namespace mur {

/// A surface that writes a scalable picture (SVG 1.1). Texts are measured by the surface that it is given,
/// and are then set in the system's sans-serif font; without one they are measured in the fixed font and set
/// in a monospaced one, which has nearly the same widths.
class MUR_API SvgSurface final : public Surface {
 public:
  /// `MeasuringA` must outlive this surface.
  SvgSurface(float WidthA, float HeightA, const Surface* MeasuringA = nullptr)
      : mWidth(WidthA), mHeight(HeightA), mMeasuring(MeasuringA) {}

  /// The document as drawn so far, complete, in UTF-8.
  std::string Document() const;

  float DevicePixelRatio() const override { return 1; }
  void FillRectangle(const RectF& RectA, Rgba ColorA) override;
  void FrameRectangle(const RectF& RectA, Rgba ColorA, float WidthA) override;
  void FillRoundedRectangle(const RectF& RectA, float RadiusA, Rgba ColorA) override;
  void FrameRoundedRectangle(const RectF& RectA, float RadiusA, Rgba ColorA, float WidthA) override;
  void DrawLine(PointF FromA, PointF ToA, Rgba ColorA, float WidthA) override;
  void FillPolygon(std::span<const PointF> PointsA, Rgba ColorA) override;
  void DrawTextLine(PointF BaselineA, StringView TextA, const TextStyle& StyleA) override;
  TextExtent MeasureText(StringView TextA, const TextStyle& StyleA) const override;
  void PushClip(const RectF& RectA) override;
  void PopClip() override;

  /// Moves all further drawing by `ByA`, to put several pictures onto one; it ends with the matching PopClip.
  void PushOffset(PointF ByA);

 private:
  float mWidth, mHeight;
  const Surface* mMeasuring;
  std::string mBody;
  int mOpenGroups = 0;
  int mClips = 0;
};

}  // namespace mur
