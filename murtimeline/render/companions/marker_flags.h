#pragma once

#include <vector>

#include <murtimeline/automation/export.h>
#include <murtimeline/render/companions/scale_settings.h>
#include <murtimeline/render/companions/text_fit.h>
#include <murtimeline/render/companions/time_scale_marker.h>

namespace mur {

/// A marker as it shows on the scale: a pole at its time and, where there is room, a flag with its caption.
struct MUR_API MarkerFlag {
  const TimeScaleMarker* marker = nullptr;
  float x = 0;  // of the pole
  RectF box;    // of the flag; empty when there is no room
  MeasuredText text;
};

/// The flags of the shown markers from left to right, in a band of the scale. A flag stands to the right of
/// its pole, at the end of the scale to its left; flags never overlap.
MUR_API std::vector<MarkerFlag> LayOutFlags(const Surface& SurfaceA,
                                            const std::vector<const TimeScaleMarker*>& MarkersA,
                                            const ScaleSettings& SettingsA, const RectF& BandA,
                                            const TextStyle& StyleA);

}  // namespace mur
