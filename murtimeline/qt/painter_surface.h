#pragma once

#include <QPainter>

#include <murtimeline/automation/export.h>
#include <murtimeline/qt/text_measures.h>
#include <murtimeline/render/port/surface.h>

namespace mur::qt {

/// Draws with a painter. Straight edges lie on device pixels at every scale factor, wherever the painter's
/// origin lies among them; only curves, slanted lines and texts are smoothed.
class MUR_API PainterSurface final : public Surface {
 public:
  /// Both must outlive the surface, which leaves the painter's state as it was.
  PainterSurface(QPainter& PainterA, TextMeasures& MeasuresA);
  ~PainterSurface() override;
  PainterSurface(const PainterSurface&) = delete;
  PainterSurface& operator=(const PainterSurface&) = delete;

  float DevicePixelRatio() const override;
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
  QPointF Snapped(QPointF PointA) const;
  QRectF Snapped(const RectF& RectA) const;
  qreal SnappedWidth(float WidthA) const;
  void DrawSmoothly(const QPen& PenA, const QBrush& BrushA);

  QPainter& mPainter;
  TextMeasures& mMeasures;
  QTransform mToDevice, mFromDevice;
  int mOpenClips = 0;
};

}  // namespace mur::qt
