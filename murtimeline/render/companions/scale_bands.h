#pragma once

#include <murtimeline/automation/export.h>

namespace mur {

/// A row of the scale over its whole width; pixels.
struct MUR_API ScaleBand {
  float top = 0, height = 0;

  bool IsShown() const { return height > 0; }
  float Bottom() const { return top + height; }
  float Middle() const { return top + height / 2; }
};

/// The rows of a time scale. Seen from the canvas: ticks at the edge towards it, the row of tick labels, and
/// the row of the context (the date) which it shares with the markers' flags.
struct MUR_API ScaleBands {
  static constexpr float kTickLength = 7;

  ScaleBand ticks, labels, context;
};

/// Shares a height out among the rows for labels of that height; the context goes first where there is too
/// little. `TicksBelowA`: the canvas is below the scale.
MUR_API ScaleBands LayOutBands(float HeightA, float LineHeightA, bool TicksBelowA);

/// The pixels of a font size in points, within what can be read.
MUR_API float LabelPixels(int PointsA);
/// The text size of flags beside labels of that size.
inline float FlagTextSize(float LabelSizeA) {
  return LabelSizeA - 1;
}

}  // namespace mur
