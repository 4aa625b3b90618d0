#pragma once

#include <vector>

#include <murtimeline/automation/export.h>
#include <murtimeline/render/companions/marker_flags.h>
#include <murtimeline/render/port/surface.h>

namespace mur {

/// Paints the flags of markers in calm tones of the scale's own colours, each with a foot on the ticks at its
/// time; and one of them highlighted, above all others, with its whole caption.
class MUR_API MarkerPainter {
 public:
  /// What the scale looks like.
  struct Look {
    float width = 0;
    Rgba back, fore;
  };

  /// `BandsA` outlives this.
  MarkerPainter(Surface& SurfaceA, const MarkerOrder& MarkersA, const ScaleBands& BandsA, const Look& LookA,
                float TextSizeA);

  void Draw(const MarkerFlag& FlagA);
  /// Nothing for a marker that is not among those shown. `WidthA`: of the pole, in pixels.
  void DrawHighlighted(const std::vector<MarkerFlag>& FlagsA, const TimeScaleMarker& MarkerA, Rgba ColorA,
                       float WidthA);

 private:
  void DrawFoot(float XA, Rgba ColorA);
  void DrawCaption(const RectF& BoxA, StringView CaptionA, const TextStyle& StyleA);
  float Hairline() const;
  float Aligned(float PixelA) const;

  Surface& mSurface;
  const MarkerOrder& mMarkers;
  const ScaleBands& mBands;
  Look mLook;
  float mTextSize;
};

}  // namespace mur
