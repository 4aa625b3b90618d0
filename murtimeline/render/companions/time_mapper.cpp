#include <algorithm>
#include <cmath>
#include <limits>

#include <murtimeline/render/companions/time_mapper.h>

namespace mur {

void MURTimeMapper::SetTimeRange(double StartA, double EndA) {
  mTime = Sane(StartA, EndA);
}

void MURTimeMapper::SetPixelRange(double FirstA, double LastA) {
  mPixels = Sane(FirstA, LastA);
}

float MURTimeMapper::SecondsToX(double SecondsA) const {
  constexpr double kLargest = std::numeric_limits<float>::max();
  return static_cast<float>(std::clamp(Map(SecondsA, mTime, mPixels), -kLargest, kLargest));
}

double MURTimeMapper::XToSeconds(float XA) const {
  constexpr double kLargest = std::numeric_limits<double>::max();
  return std::clamp(Map(static_cast<double>(XA), mPixels, mTime), -kLargest, kLargest);
}

MURTimeMapper::Range MURTimeMapper::Sane(double StartA, double EndA) {
  const double start = std::isfinite(StartA) ? StartA : 0;
  return {start, std::isfinite(EndA) ? EndA : start};
}

// The origin is subtracted first, so that a short range far from zero keeps all its digits; the ends map to
// the ends exactly.
double MURTimeMapper::Map(double ValueA, const Range& FromA, const Range& ToA) {
  const double share = (ValueA - FromA.start) / (FromA.end - FromA.start);
  const double mapped = ToA.start + share * (ToA.end - ToA.start);
  return FromA.start == FromA.end || std::isnan(mapped) ? ToA.start : mapped;
}

}  // namespace mur
