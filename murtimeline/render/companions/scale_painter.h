#pragma once

#include <optional>
#include <vector>

#include <murtimeline/automation/export.h>
#include <murtimeline/render/companions/marker_flags.h>
#include <murtimeline/render/companions/scale_range.h>
#include <murtimeline/render/companions/scale_texts.h>
#include <murtimeline/render/port/child_host.h>
#include <murtimeline/render/port/surface.h>

namespace mur {

/// Paints a time scale. Seen from the canvas: ticks at the edge towards it, the row of tick labels, and the
/// row of the context (the date) which it shares with the markers' flags.
class MUR_API ScalePainter {
 public:
  ScalePainter(Surface& SurfaceA, const ChildHost& HostA, const ScaleSettings& SettingsA);

  void Paint(const std::vector<const TimeScaleMarker*>& MarkersA);

  /// How far the cursor reaches to both sides of its time.
  static constexpr float kCursorReach = 6;

 private:
  struct Band {
    float top = 0, height = 0;
    bool IsShown() const { return height > 0; }
    float Middle() const { return top + height / 2; }
  };

  void LayOutBands();
  void DrawTicks(const ScaleRange& RangeA, const TickStep& MajorA);
  void DrawTexts(const ScaleRange& RangeA, const TickStep& MajorA);
  Band TickBand(float LengthA) const;
  const TickStep* MajorStep(const ScaleRange& RangeA) const;
  const TickStep* MinorStep(const ScaleRange& RangeA, const TickStep& MajorA) const;
  float WidestLabel(const ScaleRange& RangeA, const TickStep& StepA) const;
  void DrawLines(const ScaleRange& RangeA, const TickStep& StepA, const Band& BandA, Rgba ColorA);
  void DrawLabels(const ScaleRange& RangeA, const TickStep& StepA);
  void DrawContext(const ScaleRange& RangeA, const TickStep& ContextA);
  void DrawContextSpan(const TickStep& StepA, std::int64_t TimeA, float LeftA, float RightA);
  float PastFlags(float LeftA, float WidthA) const;
  void DrawFlags();
  void DrawCursor();

  float Aligned(float PixelA) const;
  void DrawText(float LeftA, const Band& BandA, const MeasuredText& TextA, const TextStyle& StyleA);

  Surface& mSurface;
  const ScaleSettings& mSettings;
  ScaleTexts mTexts;
  float mWidth, mHeight;
  bool mTicksBelow;
  Rgba mBack, mFore, mHighlight;
  TextStyle mLabelStyle, mContextStyle, mFlagStyle;
  Band mLabels, mContext;
  std::vector<MarkerFlag> mFlags;
};

}  // namespace mur
