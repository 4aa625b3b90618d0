#pragma once

#include <string>
#include <vector>

#include <murtimeline/automation/export.h>
#include <murtimeline/render/port/surface.h>

namespace mur {

/// A surface that writes one readable line per call, such as `fill 0,0 100x20 #ff8000`, and draws nothing.
/// Texts are measured in the fixed font (MeasureInFixedFont).
class MUR_API RecordingSurface final : public Surface {
 public:
  explicit RecordingSurface(float DevicePixelRatioA = 1) : mDevicePixelRatio(DevicePixelRatioA) {}

  const std::vector<std::string>& Lines() const { return mLines; }
  /// All lines, each ended by a line feed.
  std::string Log() const;
  /// The lines that start with `CallA` ("fill", "text", ...).
  std::vector<std::string> LinesOf(std::string_view CallA) const;
  void Clear() { mLines.clear(); }

  float DevicePixelRatio() const override { return mDevicePixelRatio; }
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

 private:
  float mDevicePixelRatio;
  std::vector<std::string> mLines;
};

}  // namespace mur
