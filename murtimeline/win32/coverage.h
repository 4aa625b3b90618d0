#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include <murtimeline/render/port/geometry.h>
#include <murtimeline/win32/platform.h>

namespace mur::win32 {

/// How much of each pixel in a box a shape covers, 0 to 1: what smooth edges are made of.
class Coverage {
 public:
  /// Of a polygon (device pixels), within a box; where it crosses itself the even-odd rule holds.
  static Coverage OfPolygon(std::span<const PointF> PointsA, const RECT& BoxA);
  /// Of the four round corners of a frame that is `WidthA` wide, side by side in a square box; of a filled
  /// shape where that is the radius. Each corner takes the radius rounded up.
  static Coverage OfCorners(double RadiusA, double WidthA);

  /// Of a pixel, wholly.
  static Coverage OfPixel();

  const RECT& Box() const { return mBox; }
  int Width() const { return static_cast<int>(mBox.right - mBox.left); }
  int Height() const { return static_cast<int>(mBox.bottom - mBox.top); }
  /// Of the pixel in a row and a column of the box.
  float At(int RowA, int ColumnA) const { return mShares[Index(RowA, ColumnA)]; }

 private:
  explicit Coverage(const RECT& BoxA);
  std::size_t Index(int RowA, int ColumnA) const {
    return static_cast<std::size_t>(RowA) * static_cast<std::size_t>(Width()) +
           static_cast<std::size_t>(ColumnA);
  }
  void AddSpan(int RowA, double LeftA, double RightA, float ShareA);

  RECT mBox;
  std::vector<float> mShares;
};

}  // namespace mur::win32
