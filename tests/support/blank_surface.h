#pragma once

#include <murtimeline/render/port/fixed_metrics.h>
#include <murtimeline/render/port/surface.h>

namespace mur::test {

/// A surface that draws nothing, for tests that watch one kind of call alone.
class BlankSurface : public Surface {
 public:
  float DevicePixelRatio() const override { return 1; }
  void FillRectangle(const RectF&, Rgba) override {}
  void FrameRectangle(const RectF&, Rgba, float) override {}
  void FillRoundedRectangle(const RectF&, float, Rgba) override {}
  void FrameRoundedRectangle(const RectF&, float, Rgba, float) override {}
  void DrawLine(PointF, PointF, Rgba, float) override {}
  void FillPolygon(std::span<const PointF>, Rgba) override {}
  void DrawTextLine(PointF, StringView, const TextStyle&) override {}
  TextExtent MeasureText(StringView TextA, const TextStyle& StyleA) const override {
    return MeasureInFixedFont(TextA, StyleA);
  }
  void PushClip(const RectF&) override {}
  void PopClip() override {}
};

}  // namespace mur::test
