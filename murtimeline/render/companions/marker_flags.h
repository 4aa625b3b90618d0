#pragma once

#include <functional>
#include <vector>

#include <murtimeline/automation/export.h>
#include <murtimeline/render/companions/marker_order.h>
#include <murtimeline/render/companions/scale_bands.h>
#include <murtimeline/render/companions/scale_settings.h>

namespace mur {

/// The flag of one marker or, where they crowd, of several neighbours.
struct MUR_API MarkerFlag {
  std::size_t first = 0, count = 1;  // in the order of the markers
  float x = 0;                       // of the first one's time
  RectF box;                         // of the flag; its caption, if any, is shortened to it
  bool hasCaption = false;

  /// The marker at a point of the box. Those that share a flag lie in it one below the other, or where they
  /// are many in reading order, pixel by pixel.
  std::size_t MarkerAt(PointF PointA) const;
};

/// What the layout needs to know of texts, in pixels.
struct MUR_API FlagTexts {
  float lineHeight = 0;
  std::function<float(const TimeScaleMarker&)> captionWidth;
};

/// The flags of the markers that a scale of that width shows, from left to right.
///
/// A flag stands to the right of its time. None hides another: a caption ends where the next flag begins, and
/// goes when it has too little room for a word; what is left is a bare flag. Flags of equal or close times
/// stand side by side. In a band with room for several lines captions descend in stairs. Markers that are too
/// many for a flag each share one with their neighbours. Which ones do depends on their times alone, not on
/// where the shown range begins.
///
/// The cost follows the width of the scale, not the number of markers.
MUR_API std::vector<MarkerFlag> LayOutFlags(const MarkerOrder& MarkersA, const ScaleSettings& SettingsA,
                                            float WidthA, const ScaleBand& BandA, const FlagTexts& TextsA);

/// The space between a flag's edge and its caption.
inline constexpr float kFlagPadding = 4;
inline constexpr float kBareFlagWidth = 5;

}  // namespace mur
