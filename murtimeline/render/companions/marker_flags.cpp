#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <utility>

#include <murtimeline/render/companions/marker_flags.h>
#include <murtimeline/render/companions/scale_range.h>
#include <murtimeline/render/companions/time_scale_marker.h>

namespace mur {
namespace {

constexpr float kStep = kBareFlagWidth + 1;  // from one bare flag to the next
constexpr int kFlagsPerStretch = 9;
constexpr float kFarthest = kFlagsPerStretch * kStep;  // of a flag from its time
constexpr float kWidestCaption = 240;
constexpr float kLeastCaption = 20;
constexpr float kPole = 1;
constexpr float kGap = kStep - kBareFlagWidth;
constexpr std::size_t kMostLanes = 3;

class FlagLayout {
 public:
  FlagLayout(const MarkerOrder& MarkersA, const ScaleSettings& SettingsA, float WidthA)
      : mMarkers(MarkersA),
        mSettings(SettingsA),
        mWidth(WidthA),
        mCellSeconds(std::max(SettingsA.duration * static_cast<double>(kStep / WidthA),
                              std::numeric_limits<double>::min())) {}

  std::vector<MarkerFlag> Flags(const ScaleBand& BandA, const FlagTexts& TextsA) {
    Gather();
    SpreadRightwards();
    SpreadLeftwards();
    Caption(BandA, TextsA);
    return std::move(mFlags);
  }

 private:
  // Time in cells of a bare flag's width, and these in stretches. Both count from date 0, so that what shares
  // a flag stays together while the scale is panned.
  double CellOf(Date TimeA) const { return std::floor(TimeA.Seconds() / mCellSeconds); }
  double StretchOf(Date TimeA) const { return std::floor(CellOf(TimeA) / kFlagsPerStretch); }

  float XOf(std::size_t IndexA) const {
    return ShownX(mSettings, mMarkers.TimeAt(IndexA), mWidth).value_or(0);
  }

  // A flag for each marker, or for each cell in stretches with more of them than flags have room.
  void Gather() {
    const double start = mSettings.StartSeconds();
    std::size_t at = mMarkers.FirstNot([&](Date time) { return ShareOf(time, start) < 0; });
    const std::size_t end = mMarkers.FirstNot([&](Date time) { return ShareOf(time, start) <= 1; }, at);
    while (at < end) {
      const double stretch = StretchOf(mMarkers.TimeAt(at));
      const std::size_t first = mMarkers.FirstNot([&](Date time) { return StretchOf(time) < stretch; });
      const std::size_t next = mMarkers.FirstNot([&](Date time) { return StretchOf(time) <= stretch; }, at);
      const bool isCrowded = next - first > kFlagsPerStretch;
      for (const std::size_t last = std::min(next, end); at < last;) {
        const double cell = CellOf(mMarkers.TimeAt(at));
        const std::size_t beyond =
            isCrowded ? mMarkers.FirstNot([&](Date time) { return CellOf(time) <= cell; }, at) : at + 1;
        mFlags.push_back({at, std::min(beyond, last) - at, XOf(at), {}, false});
        at = std::min(beyond, last);
      }
    }
  }

  double ShareOf(Date TimeA, double StartA) const { return (TimeA.Seconds() - StartA) / mSettings.duration; }

  // Each flag at its time or right of the one before; one that would go too far joins that.
  void SpreadRightwards() {
    std::size_t kept = 0;
    for (MarkerFlag& flag : mFlags) {
      flag.box.left = kept == 0 ? flag.x : std::max(flag.x, mFlags[kept - 1].box.left + kStep);
      if (kept > 0 && flag.box.left - flag.x > kFarthest)
        mFlags[kept - 1].count += flag.count;
      else
        mFlags[kept++] = flag;
    }
    mFlags.resize(kept);
  }

  // The same from the end of the scale, for what stands beyond it.
  void SpreadLeftwards() {
    float limit = std::max(mWidth - kBareFlagWidth, 0.0F);
    std::size_t kept = mFlags.size();
    for (std::size_t i = mFlags.size(); i-- > 0;) {
      MarkerFlag flag = mFlags[i];
      flag.box.left = std::min(flag.box.left, limit);
      if (kept < mFlags.size() && (flag.box.left < 0 || flag.x - flag.box.left > kFarthest)) {
        mFlags[kept].count += flag.count;
        mFlags[kept].first = flag.first;
        mFlags[kept].x = flag.x;
        continue;
      }
      limit = flag.box.left - kStep;
      mFlags[--kept] = flag;
    }
    mFlags.erase(mFlags.begin(), mFlags.begin() + static_cast<std::ptrdiff_t>(kept));
  }

  // In stairs: a caption may run over the flags after it as long as these stand in lower lanes, down which
  // its pole does not pass.
  void Caption(const ScaleBand& BandA, const FlagTexts& TextsA) {
    const float most = std::floor(BandA.height / std::max(TextsA.lineHeight + 2, 1.0F));
    const std::size_t lanes = static_cast<std::size_t>(std::clamp(most, 1.0F, float{kMostLanes}));
    const float height = BandA.height / static_cast<float>(lanes);
    std::array<float, kMostLanes> taken;
    taken.fill(-1);
    for (std::size_t i = 0; i < mFlags.size(); ++i) {
      MarkerFlag& flag = mFlags[i];
      const float wanted = WantedWidth(flag, TextsA);
      std::size_t lane = 0;
      for (std::size_t above = 0; above < lanes; ++above)
        if (taken[above] > flag.box.left) lane = above + 1;
      if (flag.box.left + wanted <= LeftOf(i + 1)) lane = lanes - 1;
      const float room = LeftOf(i + lanes - lane) - flag.box.left;
      flag.hasCaption = wanted > kBareFlagWidth && room >= std::min(wanted, kLeastCaption);
      if (!flag.hasCaption) lane = lanes - 1;
      const float width = flag.hasCaption ? std::min(wanted, room) : kBareFlagWidth;
      flag.box = {flag.box.left, BandA.top + static_cast<float>(lane) * height, width, height};
      const bool isLast = i + 1 == mFlags.size();
      if (isLast && width < wanted) TurnOver(flag, wanted, *std::max_element(taken.begin(), taken.end()));
      taken[lane] = flag.box.Right();
    }
  }

  // At the end of the scale a caption stands to the left of its time, where there is room.
  static void TurnOver(MarkerFlag& FlagA, float WantedA, float TakenA) {
    const float left = FlagA.box.left + kPole - WantedA;
    if (left < TakenA + kGap) return;
    FlagA.box.left = left;
    FlagA.box.width = WantedA;
    FlagA.hasCaption = true;
  }

  // Where a caption before that flag ends.
  float LeftOf(std::size_t IndexA) const {
    return IndexA < mFlags.size() ? mFlags[IndexA].box.left - kGap : mWidth;
  }

  float WantedWidth(const MarkerFlag& FlagA, const FlagTexts& TextsA) const {
    const TimeScaleMarker& marker = mMarkers.At(FlagA.first);
    if (FlagA.count > 1 || marker.CaptionView().empty()) return kBareFlagWidth;
    return std::min(TextsA.captionWidth(marker), kWidestCaption) + 2 * kFlagPadding;
  }

  const MarkerOrder& mMarkers;
  const ScaleSettings& mSettings;
  float mWidth;
  double mCellSeconds;
  std::vector<MarkerFlag> mFlags;
};

}  // namespace

std::size_t MarkerFlag::MarkerAt(PointF PointA) const {
  const auto pixels = [](float length) { return std::max(std::floor(static_cast<double>(length)), 1.0); };
  const double columns = pixels(box.width), rows = pixels(box.height);
  const double column = std::clamp(std::floor(static_cast<double>(PointA.x - box.left)), 0.0, columns - 1);
  const double row = std::clamp(std::floor(static_cast<double>(PointA.y - box.top)), 0.0, rows - 1);
  const double share = (row * columns + column) / (rows * columns);
  return first + static_cast<std::size_t>(share * static_cast<double>(count));
}

std::vector<MarkerFlag> LayOutFlags(const MarkerOrder& MarkersA, const ScaleSettings& SettingsA, float WidthA,
                                    const ScaleBand& BandA, const FlagTexts& TextsA) {
  if (!HasRange(SettingsA, WidthA) || !BandA.IsShown()) return {};
  return FlagLayout(MarkersA, SettingsA, WidthA).Flags(BandA, TextsA);
}

}  // namespace mur
