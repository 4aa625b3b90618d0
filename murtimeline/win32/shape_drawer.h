#pragma once

#include <memory>
#include <span>

#include <murtimeline/render/port/geometry.h>
#include <murtimeline/win32/smooth_edges.h>

namespace mur::win32 {

/// How shapes are drawn on a kind of device. Places are device units.
class ShapeDrawer {
 public:
  virtual ~ShapeDrawer() = default;

  virtual void Fill(const RECT& PlaceA, Rgba ColorA) = 0;
  virtual void FillRounded(const RECT& PlaceA, double RadiusA, Rgba ColorA) = 0;
  /// `WidthA` inwards from the edge.
  virtual void FrameRounded(const RECT& PlaceA, double RadiusA, LONG WidthA, Rgba ColorA) = 0;
  virtual void FillPolygon(std::span<const PointF> PointsA, Rgba ColorA) = 0;
};

/// The one for a device context. Both outlive it.
std::unique_ptr<ShapeDrawer> MakeShapeDrawer(HDC DeviceA, CornerTiles& CornersA);

}  // namespace mur::win32
