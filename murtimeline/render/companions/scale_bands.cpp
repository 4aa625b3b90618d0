#include <algorithm>
#include <cmath>

#include <murtimeline/render/companions/scale_bands.h>

namespace mur {

ScaleBands LayOutBands(float HeightA, float LineHeightA, bool TicksBelowA) {
  ScaleBands bands;
  constexpr float kTicks = ScaleBands::kTickLength;
  bands.ticks = {TicksBelowA ? HeightA - kTicks : 0, kTicks};
  const float room = HeightA - kTicks - 1;
  const float rows = std::clamp(std::floor(room / std::max(LineHeightA, 1.0F)), 0.0F, 2.0F);
  if (!(rows > 0)) return bands;
  const float height = room / rows;
  bands.labels = {TicksBelowA ? room - height : HeightA - room, height};
  if (rows == 2) bands.context = {TicksBelowA ? 0 : HeightA - height, height};
  return bands;
}

float LabelPixels(int PointsA) {
  return static_cast<float>(std::clamp(PointsA, 5, 72)) * 96 / 72;
}

}  // namespace mur
