#include <algorithm>
#include <cmath>
#include <vector>

#include <murtimeline/qt/conversions.h>
#include <murtimeline/qt/painter_surface.h>

namespace mur::qt {

PainterSurface::PainterSurface(QPainter& PainterA, TextMeasures& MeasuresA)
    : mPainter(PainterA),
      mMeasures(MeasuresA),
      mToDevice(PainterA.deviceTransform()),
      mFromDevice(mToDevice.inverted()) {
  mPainter.save();
}

PainterSurface::~PainterSurface() {
  while (mOpenClips > 0) PopClip();
  mPainter.restore();
}

float PainterSurface::DevicePixelRatio() const {
  return static_cast<float>(mToDevice.m11());
}

void PainterSurface::FillRectangle(const RectF& RectA, Rgba ColorA) {
  if (RectA.IsEmpty()) return;
  mPainter.setRenderHint(QPainter::Antialiasing, false);
  mPainter.fillRect(Snapped(RectA), ToQColor(ColorA));
}

void PainterSurface::FrameRectangle(const RectF& RectA, Rgba ColorA, float WidthA) {
  if (RectA.IsEmpty()) return;
  const QRectF outer = Snapped(RectA);
  const qreal width = std::min({SnappedWidth(WidthA), outer.width() / 2, outer.height() / 2});
  const QRectF inner = outer.adjusted(width, width, -width, -width);
  const QColor color = ToQColor(ColorA);
  mPainter.setRenderHint(QPainter::Antialiasing, false);
  mPainter.fillRect(QRectF(outer.topLeft(), QPointF(outer.right(), inner.top())), color);
  mPainter.fillRect(QRectF(QPointF(outer.left(), inner.bottom()), outer.bottomRight()), color);
  mPainter.fillRect(QRectF(QPointF(outer.left(), inner.top()), inner.bottomLeft()), color);
  mPainter.fillRect(QRectF(inner.topRight(), QPointF(outer.right(), inner.bottom())), color);
}

void PainterSurface::FillRoundedRectangle(const RectF& RectA, float RadiusA, Rgba ColorA) {
  if (RectA.IsEmpty()) return;
  DrawSmoothly(Qt::NoPen, ToQColor(ColorA));
  mPainter.drawRoundedRect(Snapped(RectA), static_cast<qreal>(RadiusA), static_cast<qreal>(RadiusA));
}

// A pen runs along the middle of its line, so a frame inside the rectangle is drawn half its width further
// in.
void PainterSurface::FrameRoundedRectangle(const RectF& RectA, float RadiusA, Rgba ColorA, float WidthA) {
  if (RectA.IsEmpty()) return;
  const qreal width = SnappedWidth(WidthA);
  const qreal half = width / 2;
  const qreal radius = std::max(static_cast<qreal>(RadiusA) - half, 0.0);
  DrawSmoothly(QPen(ToQColor(ColorA), width, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin), Qt::NoBrush);
  mPainter.drawRoundedRect(Snapped(RectA).adjusted(half, half, -half, -half), radius, radius);
}

void PainterSurface::DrawLine(PointF FromA, PointF ToA, Rgba ColorA, float WidthA) {
  if (FromA.x == ToA.x || FromA.y == ToA.y) {
    const float half = WidthA / 2;
    const bool upright = FromA.x == ToA.x;
    const float left = std::min(FromA.x, ToA.x), top = std::min(FromA.y, ToA.y);
    const float length = std::max(std::fabs(ToA.x - FromA.x), std::fabs(ToA.y - FromA.y));
    FillRectangle(upright ? RectF{left - half, top, WidthA, length} : RectF{left, top - half, length, WidthA},
                  ColorA);
    return;
  }
  DrawSmoothly(QPen(ToQColor(ColorA), SnappedWidth(WidthA), Qt::SolidLine, Qt::FlatCap), Qt::NoBrush);
  mPainter.drawLine(QPointF(FromA.x, FromA.y), QPointF(ToA.x, ToA.y));
}

void PainterSurface::FillPolygon(std::span<const PointF> PointsA, Rgba ColorA) {
  QPolygonF polygon;
  for (const PointF& point : PointsA) polygon << QPointF(point.x, point.y);
  DrawSmoothly(Qt::NoPen, ToQColor(ColorA));
  mPainter.drawPolygon(polygon);
}

// The baseline lies on a device pixel, so that all texts are equally sharp.
void PainterSurface::DrawTextLine(PointF BaselineA, StringView TextA, const TextStyle& StyleA) {
  mPainter.setFont(mMeasures.FontOf(StyleA));
  mPainter.setPen(ToQColor(StyleA.color));
  mPainter.drawText(Snapped(QPointF(BaselineA.x, BaselineA.y)), ToQString(TextA));
}

TextExtent PainterSurface::MeasureText(StringView TextA, const TextStyle& StyleA) const {
  return mMeasures.Measure(TextA, StyleA);
}

void PainterSurface::PushClip(const RectF& RectA) {
  mPainter.save();
  ++mOpenClips;
  mPainter.setClipRect(Snapped(RectA), Qt::IntersectClip);
}

void PainterSurface::PopClip() {
  if (mOpenClips == 0) return;
  mPainter.restore();
  --mOpenClips;
}

QPointF PainterSurface::Snapped(QPointF PointA) const {
  const QPointF device = mToDevice.map(PointA);
  return mFromDevice.map(QPointF(std::round(device.x()), std::round(device.y())));
}

// At least a device pixel wide and high: what there is can be seen.
QRectF PainterSurface::Snapped(const RectF& RectA) const {
  if (RectA.IsEmpty()) return {};
  const QPointF topLeft = Snapped(QPointF(RectA.left, RectA.top));
  const QPointF bottomRight = Snapped(QPointF(RectA.Right(), RectA.Bottom()));
  const qreal width = bottomRight.x() - topLeft.x(), height = bottomRight.y() - topLeft.y();
  return {topLeft.x(), topLeft.y(), std::max(width, SnappedWidth(0)), std::max(height, SnappedWidth(0))};
}

// Whole device pixels, at least one; a half is dropped, so that thin lines stay thin at 1.5.
qreal PainterSurface::SnappedWidth(float WidthA) const {
  const qreal ratio = mToDevice.m11();
  return std::max(std::ceil(static_cast<qreal>(WidthA) * ratio - 0.5), 1.0) / ratio;
}

void PainterSurface::DrawSmoothly(const QPen& PenA, const QBrush& BrushA) {
  mPainter.setRenderHint(QPainter::Antialiasing);
  mPainter.setPen(PenA);
  mPainter.setBrush(BrushA);
}

}  // namespace mur::qt
