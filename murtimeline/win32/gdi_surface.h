#pragma once

#include <memory>

#include <murtimeline/render/port/surface.h>
#include <murtimeline/win32/gdi_tools.h>
#include <murtimeline/win32/shape_drawer.h>

namespace mur::win32 {

/// Where logical pixels lie on a device: its units at their origin, and to each of them.
struct DevicePlace {
  POINT origin{};
  double x = 1, y = 1;
};

/// Draws on any device context by the platform's plain drawing calls. Straight edges lie on whole units of
/// the device at every scale factor. Curves and slanted edges are smooth on screens and bitmaps; printers and
/// metafiles get them as shapes, and translucent colours there as they look on white. Texts are opaque unless
/// their colour is wholly transparent.
class GdiSurface final : public Surface {
 public:
  /// All of them must outlive the surface, which leaves the device context as it was.
  GdiSurface(HDC DeviceA, const DevicePlace& PlaceA, GdiTools& ToolsA);
  ~GdiSurface() override;
  GdiSurface(const GdiSurface&) = delete;
  GdiSurface& operator=(const GdiSurface&) = delete;

  /// For texts that are read from right to left first.
  void SetRightToLeft(bool IsA) { mTextOptions = IsA ? ETO_RTLREADING : 0; }

  float DevicePixelRatio() const override { return static_cast<float>(mPlace.x); }
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
  LONG DeviceX(double PixelA) const;
  LONG DeviceY(double PixelA) const;
  RECT Snapped(const RectF& RectA) const;
  LONG SnappedWidth(float WidthA) const;

  HDC mDevice;
  DevicePlace mPlace;
  GdiTools& mTools;
  std::unique_ptr<ShapeDrawer> mShapes;
  UINT mTextOptions = 0;
  int mOpenClips = 0;
};

}  // namespace mur::win32
