#include "viewer/appearance.h"

#include <cmath>

namespace mur::viewer {
namespace {

double Linear(OleColor ColorA, unsigned ShiftA) {
  const double value = static_cast<double>(ColorA >> ShiftA & 0xFFU) / 255;
  return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
}

double Luminance(OleColor ColorA) {
  return 0.2126 * Linear(ColorA, 0) + 0.7152 * Linear(ColorA, 8) + 0.0722 * Linear(ColorA, 16);
}

double Contrast(OleColor OneA, OleColor OtherA) {
  const double one = Luminance(OneA) + 0.05, other = Luminance(OtherA) + 0.05;
  return one > other ? one / other : other / one;
}

}  // namespace

OleColor TextColorOn(OleColor FillA) {
  return Contrast(FillA, kLightText) >= Contrast(FillA, kDarkText) ? kLightText : kDarkText;
}

BarColors Appearance::ColorsOf(BarKind KindA, const BarColors& UsualA) const {
  const auto& fill = fills[static_cast<std::size_t>(KindA)];
  return fill ? BarColors{*fill, TextColorOn(*fill)} : UsualA;
}

}  // namespace mur::viewer
