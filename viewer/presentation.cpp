#include "viewer/presentation.h"

#include <algorithm>
#include <cmath>
#include <functional>

#include "viewer/palette.h"

namespace mur::viewer {
namespace {

// Rows are as high as shows all of them, within these limits (pixels).
constexpr float kLowestBar = 18, kHighestBar = 34;
constexpr float kBarSeparation = 2, kTrackSeparation = 8;
constexpr float kTimeScaleTwips = 46 * 15;
// What stays free at either end when everything is shown, as a share of it.
constexpr double kMargin = 0.01;
constexpr double kShortestView = 1e-6;
constexpr double kEmptyView = 60;

void Configure(MURTimelineRender& ControlA, MURTimelineObjectType KindA, const BarColors& ColorsA) {
  const Ref<CMURTLRenderConfig> config = ControlA.AddRenderConfig(KindA);
  config->SetBackColor(ColorsA.back);
  config->SetForeColor(ColorsA.fore);
  config->SetHighlightColor(kSelectedColor);
}

BarColors ScalarColors(FileKind KindA) {
  switch (KindA) {
    case FileKind::OpenTimelineIO:
      return kTransitionColors;
    case FileKind::ChromeTrace:
      return {kSliceColors.front(), kDarkText};
    default:
      return kSubtitleColors;
  }
}

bool IsClipOn(MURTimelineObjectType TrackTypeA, const IMURTimelineObject& ObjectA) {
  if (ObjectA.ObjectType() != murtlotMedia) return false;
  Ref<IMURTimelineObject> group = ObjectA.Parent();
  while (group && group->GroupType() != TrackTypeA) group = group->Parent();
  return static_cast<bool>(group);
}

bool IsSlice(const IMURTimelineObject& ObjectA) {
  return ObjectA.ObjectType() == murtlotScalar ||
         (ObjectA.ObjectType() == murtlotGroup && ObjectA.GroupType() == kSliceGroup);
}

BarColors SliceColors(const IMURTimelineObject& ObjectA) {
  return {kSliceColors[std::hash<String>()(ObjectA.Tag()) % kSliceColors.size()], kDarkText};
}

// The colours of a bar where those of its kind do not say enough.
std::optional<BarColors> OwnColors(const IMURTimelineObject& ObjectA, FileKind KindA) {
  if (KindA == FileKind::ChromeTrace && IsSlice(ObjectA)) return SliceColors(ObjectA);
  if (ObjectA.ObjectType() == murtlotScalar) return ScalarColors(KindA);
  if (IsClipOn(kAudioTrackGroup, ObjectA)) return kAudioColors;
  if (IsClipOn(kSubtitleTrackGroup, ObjectA)) return kSubtitleColors;
  return std::nullopt;
}

// The bar height at which all rows fit into the canvas.
float FittingBarHeight(const MURTimelineRender& ControlA) {
  const Ref<CMURTimeline> timeline = ControlA.Timeline();
  float rows = 0, gaps = 0;
  auto members = timeline->NewEnum();
  while (const Ref<IMURTimelineObject> member = members.Next()) {
    if (timeline->TrackPosition(member->Key()) == 0) continue;
    rows += static_cast<float>(member->KnownSubtreeDepth().value_or(1));
    gaps += kTrackSeparation;
  }
  const auto height = static_cast<float>(ControlA.Collaborators().canvas->DrawingHeight());
  const float fitting = rows > 0 ? (height - gaps) / rows - kBarSeparation : kHighestBar;
  return std::clamp(std::floor(fitting), kLowestBar, kHighestBar);
}

void ShowMarkers(MURTimelineRender& ControlA, const LoadedFile& FileA) {
  const Ref<ITimelineScroll> scale = ControlA.Collaborators().scroller;
  for (const Marker& marker : FileA.markers)
    scale->MarkerAdd(InstantOf(FileA.day, marker.time), marker.key, marker.name, true);
}

// The time scale writes frames at 25 a second only; other files get milliseconds.
void SetFormats(MURTimelineRender& ControlA, const LoadedFile& FileA) {
  constexpr std::int32_t kMilliseconds = 3, kTimecode = 4;
  constexpr double kTimecodeRate = 25;
  ControlA.SetTimeScaleFormatString(u"");
  ControlA.SetTimeScaleFormatStyle(FileA.rate == kTimecodeRate ? kTimecode : kMilliseconds);
}

double ShownLength(const MURTimelineRender& ControlA) {
  const double length = ControlA.Timeline()->Duration();
  return length > 0 ? length : kEmptyView;
}

void ShowRange(MURTimelineRender& ControlA, const LoadedFile& FileA, const VisibleRange& RangeA) {
  const Date start = ControlA.Timeline()->WorldTimeT0();
  ControlA.SetTZero(start);
  ControlA.SetCursorTime(start);
  if (!RangeA.from && !RangeA.duration) return ShowAll(ControlA);
  const Date from = RangeA.from ? ResolveTime(*RangeA.from, FileA.day, start, FileA.rate) : start;
  const double untilEnd = AddSeconds(start, ShownLength(ControlA)).Seconds() - from.Seconds();
  ControlA.SetWorldTimeT0(from);
  ControlA.SetDuration(std::max(RangeA.duration.value_or(untilEnd), kShortestView));
}

}  // namespace

void PrepareControl(MURTimelineRender& ControlA) {
  Configure(ControlA, kTrackGroup, kTrackColors);
  Configure(ControlA, kAudioTrackGroup, kAudioTrackColors);
  Configure(ControlA, kNestedGroup, kNestedColors);
  Configure(ControlA, kSubtitleTrackGroup, kTrackColors);
  Configure(ControlA, murtlotMedia, kVideoColors);
  Configure(ControlA, murtlotScalar, kSubtitleColors);
  ControlA.Collaborators().canvas->SetBackColor(kCanvasColor);
  ControlA.SetAutoHighlightObjects(false);
  ControlA.SetAutoObjectCaption(5, etlctTag);
  ControlA.SetAutoObjectTooltipText(u"$$Tag$$   $$WorldTimeT0$$ \u2013 $$WorldTimeT1$$   ($$Duration$$ s)");
  ControlA.SetDurationFormatStyle(0);
  ControlA.SetBarSeparation(kBarSeparation);
  ControlA.SetTrackSeparation(kTrackSeparation);
  ControlA.SetTimeScaleHeight(kTimeScaleTwips);
}

// Bars keep the height that they were created with until they are told.
void FitRows(MURTimelineRender& ControlA) {
  const float height = FittingBarHeight(ControlA);
  ControlA.SetBarHeight(height);
  const Ref<IGraphicCanvas> canvas = ControlA.Collaborators().canvas;
  auto members = ControlA.Timeline()->NewEnum();
  while (const Ref<IMURTimelineObject> member = members.Next())
    if (const Ref<ICanvasItem> item = canvas->GraphicByKey(member->Key())) item->SetHeight(height);
  ControlA.AlignTracks();
}

void ShowAll(MURTimelineRender& ControlA) {
  const double length = ShownLength(ControlA);
  ControlA.SetWorldTimeT0(AddSeconds(ControlA.Timeline()->WorldTimeT0(), -length * kMargin));
  ControlA.SetDuration(std::max(length * (1 + 2 * kMargin), kShortestView));
}

void ColorBars(MURTimelineRender& ControlA, const LoadedFile& FileA) {
  const Ref<IGraphicCanvas> canvas = ControlA.Collaborators().canvas;
  auto members = ControlA.Timeline()->NewEnum();
  while (const Ref<IMURTimelineObject> member = members.Next()) {
    const auto colors = OwnColors(*member, FileA.kind);
    const Ref<ICanvasItem> item = colors ? canvas->GraphicByKey(member->Key()) : nullptr;
    if (!item) continue;
    item->SetBackColor(colors->back);
    item->SetForeColor(colors->fore);
  }
}

void PresentFile(MURTimelineRender& ControlA, const LoadedFile& FileA, const VisibleRange& RangeA) {
  Configure(ControlA, murtlotScalar, ScalarColors(FileA.kind));
  SetFormats(ControlA, FileA);
  FitRows(ControlA);
  ShowMarkers(ControlA, FileA);
  ShowRange(ControlA, FileA, RangeA);
  ColorBars(ControlA, FileA);
}

}  // namespace mur::viewer
