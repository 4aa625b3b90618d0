#include <algorithm>
#include <cmath>

#include <murtimeline/render/companions/scale_flags.h>
#include <murtimeline/render/companions/text_fit.h>
#include <murtimeline/render/companions/time_scale_marker.h>
#include <murtimeline/render/port/fixed_metrics.h>

namespace mur {
namespace {
constexpr float kMostMeasured = 1000;  // pixels of a caption
}  // namespace

const std::vector<MarkerFlag>& ScaleFlags::LayOut(const Surface& SurfaceA) {
  const float size = LabelPixels(mSettings.labelFontSize);
  const TextStyle style{FlagTextSize(size), false, {}};
  const auto measure = [&](const TimeScaleMarker& marker) {
    marker.KeepCaptionWidth(
        MeasureForRoom(SurfaceA, marker.CaptionView(), style, kMostMeasured).extent.width);
    return marker.CaptionWidth();
  };
  const float line = SurfaceA.MeasureText(u"0", {size, false, {}}).Height();
  mLineShare = line / size;
  LayOut(line, {mLineShare * style.size, measure});
  return mFlags;
}

TimeScaleMarker* ScaleFlags::MarkerAt(PointF PointA) const {
  const MarkerFlag* flag = FlagAt(PointA);
  return flag ? &mBoard.Order().At(flag->MarkerAt(PointA)) : nullptr;
}

RectF ScaleFlags::AreaAt(PointF PointA) const {
  const MarkerFlag* flag = FlagAt(PointA);
  if (!flag) return {};
  return flag->count == 1 ? flag->box : RectF{std::floor(PointA.x), std::floor(PointA.y), 1, 1};
}

const MarkerFlag* ScaleFlags::FlagAt(PointF PointA) const {
  if (!(mBasis == PresentBasis())) {
    const float size = LabelPixels(mSettings.labelFontSize);
    const TextStyle style{FlagTextSize(size), false, {}};
    const auto remember = [&](const TimeScaleMarker& marker) {
      return marker.CaptionWidth() >= 0 ? marker.CaptionWidth()
                                        : MeasureInFixedFont(marker.CaptionView(), style).width;
    };
    LayOut(mLineShare * size, {mLineShare * style.size, remember});
  }
  // Flags stand from left to right, up to the one at the end by their boxes' left edges too.
  const auto beyond = std::upper_bound(mFlags.begin(), mFlags.end(), PointA.x,
                                       [](float x, const MarkerFlag& flag) { return x < flag.box.left; });
  constexpr std::ptrdiff_t kMostAbove = 3;
  for (auto flag = beyond; flag != mFlags.begin() && beyond - flag < kMostAbove;)
    if (--flag; flag->box.Contains(PointA)) return &*flag;
  return nullptr;
}

ScaleFlags::Basis ScaleFlags::PresentBasis() const {
  return {mBoard.Revision(), mHost.Width() / ChildHost::kTwipsPerPixel,
          mHost.Height() / ChildHost::kTwipsPerPixel};
}

void ScaleFlags::LayOut(float LineHeightA, const FlagTexts& TextsA) const {
  mBasis = PresentBasis();
  mBands = LayOutBands(mBasis.height, LineHeightA, mSettings.tickEdge == 1);
  mFlags = mSettings.showMarkers
               ? LayOutFlags(mBoard.Order(), mSettings, mBasis.width, mBands.context, TextsA)
               : std::vector<MarkerFlag>();
}

}  // namespace mur
