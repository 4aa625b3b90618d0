#pragma once

#include <limits>

#include <murtimeline/automation/export.h>
#include <murtimeline/render/port/geometry.h>

namespace mur {

/// Where an item lies, in canvas units, as it was given.
struct MUR_API ItemPlace {
  float left = 0, top = 0, width = 0, height = 0;

  float Right() const noexcept { return left + width; }
  float Bottom() const noexcept { return top + height; }
  /// Whether it can be drawn: a positive extent, and all edges are finite.
  bool IsDrawable() const noexcept {
    return width > 0 && height > 0 && IsFinite(left) && IsFinite(top) && IsFinite(Right()) &&
           IsFinite(Bottom());
  }
  bool Overlaps(const RectF& AreaA) const noexcept {
    return IsDrawable() && left <= AreaA.Right() && AreaA.left < Right() && top <= AreaA.Bottom() &&
           AreaA.top < Bottom();
  }
  friend bool operator==(const ItemPlace&, const ItemPlace&) = default;

 private:
  static bool IsFinite(float ValueA) noexcept {
    return ValueA >= std::numeric_limits<float>::lowest() && ValueA <= std::numeric_limits<float>::max();
  }
};

}  // namespace mur
