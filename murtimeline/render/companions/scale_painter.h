#pragma once

#include <vector>

#include <murtimeline/automation/export.h>
#include <murtimeline/render/companions/scale_flags.h>
#include <murtimeline/render/companions/scale_range.h>
#include <murtimeline/render/companions/scale_texts.h>
#include <murtimeline/render/companions/text_fit.h>
#include <murtimeline/render/port/child_host.h>
#include <murtimeline/render/port/surface.h>

namespace mur {

/// Paints a time scale: see ScaleBands for its rows.
class MUR_API ScalePainter {
 public:
  ScalePainter(Surface& SurfaceA, const ChildHost& HostA, const ScaleSettings& SettingsA, ScaleFlags& FlagsA);

  /// `HighlightedA`: the marker under the pointer, if any.
  void Paint(const TimeScaleMarker* HighlightedA);

  /// How far the cursor reaches to both sides of its time.
  static constexpr float kCursorReach = 6;

 private:
  void DrawTicks(const ScaleRange& RangeA, const TickStep& MajorA);
  void DrawTexts(const ScaleRange& RangeA, const TickStep& MajorA);
  ScaleBand TickBand(float LengthA) const;
  const TickStep* MajorStep(const ScaleRange& RangeA) const;
  const TickStep* MinorStep(const ScaleRange& RangeA, const TickStep& MajorA) const;
  float WidestLabel(const ScaleRange& RangeA, const TickStep& StepA) const;
  void DrawLines(const ScaleRange& RangeA, const TickStep& StepA, const ScaleBand& BandA, Rgba ColorA);
  void DrawLabels(const ScaleRange& RangeA, const TickStep& StepA);
  void DrawContext(const ScaleRange& RangeA, const TickStep& ContextA);
  void DrawContextSpan(const TickStep& StepA, std::int64_t TimeA, float LeftA, float RightA);
  float PastFlags(float LeftA, float WidthA) const;
  void DrawCursor();

  float Aligned(float PixelA) const;
  void DrawText(float LeftA, const ScaleBand& BandA, const MeasuredText& TextA, const TextStyle& StyleA);

  Surface& mSurface;
  const ChildHost& mHost;
  const ScaleSettings& mSettings;
  ScaleTexts mTexts;
  float mWidth, mHeight;
  bool mTicksBelow;
  Rgba mBack, mFore;
  TextStyle mLabelStyle, mContextStyle;
  const ScaleFlags& mFlags;
  const std::vector<MarkerFlag>& mShown;
  const ScaleBands& mBands;
};

}  // namespace mur
