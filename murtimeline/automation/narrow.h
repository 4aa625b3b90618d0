#pragma once

#include <cmath>
#include <concepts>
#include <limits>
#include <utility>

#include <murtimeline/automation/error.h>

namespace mur {

/// `ValueA` as the integer type `To`; throws Overflow where it does not fit. Fractions round half to even,
/// as the automation runtime converts.
template <std::integral To>
To Narrow(double ValueA) {
  const double rounded = std::nearbyint(ValueA);
  // The upper bound is exclusive because the largest 64-bit integer is not a double.
  if (!(rounded >= static_cast<double>(std::numeric_limits<To>::min()) &&
        rounded < static_cast<double>(std::numeric_limits<To>::max()) + 1.0))
    throw AutomationError(ErrorCode::Overflow);
  return static_cast<To>(rounded);
}

template <std::integral To, std::integral From>
To Narrow(From ValueA) {
  if (!std::in_range<To>(ValueA)) throw AutomationError(ErrorCode::Overflow);
  return static_cast<To>(ValueA);
}

/// A double as the automation runtime's Single; throws Overflow beyond its range. NaN stays NaN.
inline float NarrowToSingle(double ValueA) {
  const float single = static_cast<float>(ValueA);
  if (std::isinf(single) && std::isfinite(ValueA)) throw AutomationError(ErrorCode::Overflow);
  return single;
}

}  // namespace mur
