#pragma once

#include <vector>

#include <murtimeline/automation/export.h>
#include <murtimeline/render/companions/marker_board.h>
#include <murtimeline/render/companions/marker_flags.h>
#include <murtimeline/render/companions/scale_bands.h>
#include <murtimeline/render/port/surface.h>

namespace mur {

/// The flags that a scale shows, for painting and for the pointer, which finds what was painted.
class MUR_API ScaleFlags {
 public:
  /// All of them outlive this.
  ScaleFlags(const ChildHost& HostA, const ScaleSettings& SettingsA, const MarkerBoard& BoardA)
      : mHost(HostA), mSettings(SettingsA), mBoard(BoardA) {}

  /// Lays out anew, with texts as the surface measures them.
  const std::vector<MarkerFlag>& LayOut(const Surface& SurfaceA);
  /// The marker whose flag is at a point (pixels). What changed since the last painting is laid out with
  /// texts as they were measured last, those never measured as the fixed font would set them.
  TimeScaleMarker* MarkerAt(PointF PointA) const;
  /// Where around a point the same marker is found; empty where there is none.
  RectF AreaAt(PointF PointA) const;
  const ScaleBands& Bands() const { return mBands; }
  const MarkerOrder& Markers() const { return mBoard.Order(); }

 private:
  /// What the layout depends on beside the surface.
  struct Basis {
    std::uint64_t revision = 0;
    float width = 0, height = 0;
    friend bool operator==(const Basis&, const Basis&) = default;
  };

  Basis PresentBasis() const;
  const MarkerFlag* FlagAt(PointF PointA) const;
  void LayOut(float LineHeightA, const FlagTexts& TextsA) const;

  const ChildHost& mHost;
  const ScaleSettings& mSettings;
  const MarkerBoard& mBoard;
  mutable Basis mBasis;
  mutable ScaleBands mBands;
  mutable std::vector<MarkerFlag> mFlags;
  mutable float mLineShare = 1;  // of a line's height in its text size, as measured last
};

}  // namespace mur
