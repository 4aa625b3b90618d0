#pragma once

#include <optional>

#include <murtimeline/automation/export.h>

namespace mur {

/// A child control that can be read and placed; coordinates are in its container's scale units.
class MUR_API MovableControl {
 public:
  virtual ~MovableControl() = default;
  virtual float Left() const = 0;
  virtual float Top() const = 0;
  virtual float Width() const = 0;
  virtual float Height() const = 0;
  virtual void SetHeight(float HeightA) = 0;
  /// Moves the control; what is not given stays as it is.
  virtual void Move(float LeftA, std::optional<float> TopA = {}, std::optional<float> WidthA = {},
                    std::optional<float> HeightA = {}) = 0;
};

}  // namespace mur
