#pragma once

#include "viewer/palette.h"

namespace mur::viewer {

/// The colours that go with a light or with a dark window; those of clips and slices suit both.
struct Scheme {
  OleColor canvas = 0;
  BarColors track, audioTrack, nested;
};

inline constexpr Scheme kLightScheme{kCanvasColor, kTrackColors, kAudioTrackColors, kNestedColors};
inline constexpr Scheme kDarkScheme{FromRgb(0x22262C),
                                    {FromRgb(0x434C59), FromRgb(0xE3E8EF)},
                                    {FromRgb(0x3A5145), FromRgb(0xE0EFE6)},
                                    {FromRgb(0x46588A), FromRgb(0xE6EBFA)}};

}  // namespace mur::viewer
