#pragma once

#include <array>

#include <murtimeline/automation/color.h>

namespace mur::viewer {

/// A fill and a text colour that can be read on it.
struct BarColors {
  OleColor back = 0, fore = 0;
};

/// 0xRRGGBB as an automation colour.
constexpr OleColor FromRgb(OleColor RgbA) {
  return (RgbA & 0xFFU) << 16U | (RgbA & 0xFF00U) | RgbA >> 16U;
}

inline constexpr OleColor kDarkText = FromRgb(0x1F2937);
inline constexpr OleColor kLightText = FromRgb(0xFFFFFF);
inline constexpr OleColor kCanvasColor = FromRgb(0xF3F5F8);
inline constexpr OleColor kSelectedColor = FromRgb(0xF9A03F);

inline constexpr BarColors kTrackColors{FromRgb(0xD5DCE6), kDarkText};
inline constexpr BarColors kAudioTrackColors{FromRgb(0xD2E5D9), kDarkText};
inline constexpr BarColors kNestedColors{FromRgb(0xB9C8EC), kDarkText};
inline constexpr BarColors kVideoColors{FromRgb(0x3F79B8), kLightText};
inline constexpr BarColors kAudioColors{FromRgb(0x2F7A54), kLightText};
inline constexpr BarColors kTransitionColors{FromRgb(0x8057C8), kLightText};
inline constexpr BarColors kSubtitleColors{FromRgb(0xF3C04B), kDarkText};

/// Slices of a trace, by name; all of them carry dark text.
inline constexpr std::array kSliceColors = {FromRgb(0x9CC3E6), FromRgb(0xA8D8B9), FromRgb(0xF2C28B),
                                            FromRgb(0xD9B3E3), FromRgb(0xF0A8A0), FromRgb(0x9EDBD6),
                                            FromRgb(0xE3D58A), FromRgb(0xB6BDF0)};

}  // namespace mur::viewer
