#include <algorithm>
#include <cmath>
#include <limits>

#include <murtimeline/render/companions/marker_flags.h>
#include <murtimeline/render/companions/scale_range.h>

namespace mur {
namespace {

constexpr float kPadding = 3;
constexpr float kGap = 2;
constexpr float kWidestText = 140;
constexpr float kBareFlagWidth = 6;  // of a marker without a caption

/// Fills the band from left to right.
class FlagLayout {
 public:
  FlagLayout(const Surface& SurfaceA, const RectF& BandA, const TextStyle& StyleA)
      : mSurface(SurfaceA), mBand(BandA), mStyle(StyleA), mTaken(BandA.left) {}

  void Place(MarkerFlag& FlagA) {
    const StringView caption = FlagA.marker->CaptionView();
    if (FlagA.x < mTaken) return;
    if (!caption.empty())
      FlagA.text =
          Elided(mSurface, MeasureForRoom(mSurface, caption, mStyle, kWidestText), mStyle, kWidestText);
    const float width = FlagA.text.text.empty() ? kBareFlagWidth : FlagA.text.extent.width + 2 * kPadding;
    const float left = FlagA.x + width <= mBand.Right() ? FlagA.x : FlagA.x - width;
    if (left < mTaken) return;
    FlagA.box = {left, mBand.top, width, mBand.height};
    mTaken = std::max(FlagA.x, FlagA.box.Right()) + kGap;
  }

 private:
  const Surface& mSurface;
  RectF mBand;
  const TextStyle& mStyle;
  float mTaken;  // up to here the band is taken
};

}  // namespace

std::vector<MarkerFlag> LayOutFlags(const Surface& SurfaceA,
                                    const std::vector<const TimeScaleMarker*>& MarkersA,
                                    const ScaleSettings& SettingsA, const RectF& BandA,
                                    const TextStyle& StyleA) {
  std::vector<MarkerFlag> flags;
  for (const TimeScaleMarker* marker : MarkersA)
    if (const auto x = ShownX(SettingsA, marker->WorldTime(), BandA.width); marker->Visible() && x)
      flags.push_back({marker, *x, {}, {}});
  std::stable_sort(flags.begin(), flags.end(),
                   [](const MarkerFlag& left, const MarkerFlag& right) { return left.x < right.x; });
  FlagLayout layout(SurfaceA, BandA, StyleA);
  for (MarkerFlag& flag : flags) layout.Place(flag);
  return flags;
}

}  // namespace mur
