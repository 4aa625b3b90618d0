#pragma once

#include <cstdint>

#include <murtimeline/automation/color.h>
#include <murtimeline/automation/export.h>
#include <murtimeline/automation/string.h>

namespace mur {

/// A point on a surface: pixels, y down.
struct MUR_API PointF {
  float x = 0, y = 0;
  friend bool operator==(const PointF&, const PointF&) = default;
};

/// A rectangle on a surface: pixels, y down; empty when an extent is not positive.
struct MUR_API RectF {
  float left = 0, top = 0, width = 0, height = 0;
  float Right() const { return left + width; }
  float Bottom() const { return top + height; }
  bool IsEmpty() const { return !(width > 0 && height > 0); }
  bool Contains(PointF PointA) const {
    return PointA.x >= left && PointA.x < Right() && PointA.y >= top && PointA.y < Bottom();
  }
  friend bool operator==(const RectF&, const RectF&) = default;
};

/// A colour as painted; alpha 255 is opaque.
struct MUR_API Rgba {
  std::uint8_t red = 0, green = 0, blue = 0, alpha = 255;
  friend bool operator==(const Rgba&, const Rgba&) = default;
};

}  // namespace mur
