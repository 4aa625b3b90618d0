#include <algorithm>
#include <array>
#include <cmath>

#include <murtimeline/render/companions/color_math.h>

namespace mur {
namespace {

constexpr Rgba kBlack{0, 0, 0, 255};
constexpr Rgba kWhite{255, 255, 255, 255};
constexpr double kReadable = 4.5;

// The light that each value of a colour part stands for in the sRGB colour space, 0 to 1.
std::array<double, 256> MakeLights() {
  std::array<double, 256> lights{};
  for (std::size_t value = 0; value < lights.size(); ++value) {
    const double part = static_cast<double>(value) / 255;
    lights[value] = part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
  }
  return lights;
}

double Luminance(Rgba ColorA) {
  static const std::array<double, 256> lights = MakeLights();
  return 0.2126 * lights[ColorA.red] + 0.7152 * lights[ColorA.green] + 0.0722 * lights[ColorA.blue];
}

std::uint8_t MixedPart(std::uint8_t FromA, std::uint8_t ToA, float ShareA) {
  const float from = FromA;
  return static_cast<std::uint8_t>(
      std::lround(from + (static_cast<float>(ToA) - from) * std::clamp(ShareA, 0.0F, 1.0F)));
}

}  // namespace

double ContrastRatio(Rgba LeftA, Rgba RightA) {
  const auto [darker, lighter] = std::minmax({Luminance(LeftA), Luminance(RightA)});
  return (lighter + 0.05) / (darker + 0.05);
}

Rgba ReadableOn(Rgba BackA, Rgba TextA) {
  if (ContrastRatio(BackA, TextA) >= kReadable) return TextA;
  return ContrastRatio(BackA, kBlack) >= ContrastRatio(BackA, kWhite) ? kBlack : kWhite;
}

Rgba FrameColorOf(Rgba FillA) {
  constexpr double kNearlyBlack = 0.02;
  return Luminance(FillA) < kNearlyBlack ? Mixed(FillA, kWhite, 0.35F) : Mixed(FillA, kBlack, 0.35F);
}

Rgba Mixed(Rgba FromA, Rgba ToA, float ShareA) {
  return {MixedPart(FromA.red, ToA.red, ShareA), MixedPart(FromA.green, ToA.green, ShareA),
          MixedPart(FromA.blue, ToA.blue, ShareA), FromA.alpha};
}

}  // namespace mur
