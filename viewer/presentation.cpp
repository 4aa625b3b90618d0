#include "viewer/presentation.h"

#include <algorithm>
#include <cmath>
#include <functional>

#include "viewer/palette.h"

namespace mur::viewer {
namespace {

// Rows are as high as shows all of them, within these limits (pixels).
constexpr float kLowestBar = 18, kHighestBar = 34;
constexpr float kTimeScaleTwips = 46 * 15;
// What stays free at either end when everything is shown, as a share of it.
constexpr double kMargin = 0.01;
constexpr double kShortestView = 1e-6;
constexpr double kEmptyView = 60;

void Configure(MURTimelineRender& ControlA, MURTimelineObjectType KindA, const BarColors& ColorsA,
               OleColor SelectionA) {
  const Ref<CMURTLRenderConfig> config = ControlA.AddRenderConfig(KindA);
  config->SetBackColor(ColorsA.back);
  config->SetForeColor(ColorsA.fore);
  config->SetHighlightColor(SelectionA);
}

BarColors ScalarColors(FileKind KindA, const Appearance& ChosenA) {
  switch (KindA) {
    case FileKind::OpenTimelineIO:
      return ChosenA.ColorsOf(BarKind::Transition, kTransitionColors);
    case FileKind::ChromeTrace:
      return {kSliceColors.front(), kDarkText};
    default:
      return ChosenA.ColorsOf(BarKind::Subtitle, kSubtitleColors);
  }
}

void ConfigureKinds(MURTimelineRender& ControlA, FileKind KindA, const Look& LookA) {
  const Appearance& chosen = LookA.chosen;
  const OleColor selection = chosen.SelectionColor();
  const BarColors track = chosen.ColorsOf(BarKind::Track, LookA.scheme.track);
  Configure(ControlA, kTrackGroup, track, selection);
  Configure(ControlA, kSubtitleTrackGroup, track, selection);
  Configure(ControlA, kAudioTrackGroup, chosen.ColorsOf(BarKind::AudioTrack, LookA.scheme.audioTrack),
            selection);
  Configure(ControlA, kNestedGroup, chosen.ColorsOf(BarKind::Nested, LookA.scheme.nested), selection);
  Configure(ControlA, murtlotMedia, chosen.ColorsOf(BarKind::Clip, kVideoColors), selection);
  Configure(ControlA, murtlotScalar, ScalarColors(KindA, chosen), selection);
  ControlA.Collaborators().canvas->SetBackColor(LookA.scheme.canvas);
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
std::optional<BarColors> OwnColors(const IMURTimelineObject& ObjectA, FileKind KindA,
                                   const Appearance& ChosenA) {
  if (KindA == FileKind::ChromeTrace && IsSlice(ObjectA)) return SliceColors(ObjectA);
  if (IsClipOn(kAudioTrackGroup, ObjectA)) return ChosenA.ColorsOf(BarKind::AudioClip, kAudioColors);
  if (IsClipOn(kSubtitleTrackGroup, ObjectA)) return ChosenA.ColorsOf(BarKind::Subtitle, kSubtitleColors);
  return std::nullopt;
}

BarColors ColorsOf(const MURTimelineRender& ControlA, const IMURTimelineObject& ObjectA, FileKind KindA,
                   const Appearance& ChosenA) {
  if (const auto own = OwnColors(ObjectA, KindA, ChosenA)) return *own;
  const bool isGroup = ObjectA.ObjectType() == murtlotGroup;
  const Ref<CMURTLRenderConfig> config =
      ControlA.RenderConfig(isGroup ? ObjectA.GroupType() : ObjectA.ObjectType());
  return config ? BarColors{config->BackColor(), config->ForeColor()} : BarColors{};
}

// A site without an automatic caption keeps what it had; it is to be empty.
void ShowBarsAnew(MURTimelineRender& ControlA, FileKind KindA, const Appearance& ChosenA) {
  const Ref<IGraphicCanvas> canvas = ControlA.Collaborators().canvas;
  auto members = ControlA.Timeline()->NewEnum();
  while (const Ref<IMURTimelineObject> member = members.Next()) {
    const Ref<ICanvasItem> item = canvas->GraphicByKey(member->Key());
    if (!item) continue;
    const BarColors colors = ColorsOf(ControlA, *member, KindA, ChosenA);
    item->SetBackColor(colors.back);
    item->SetForeColor(colors.fore);
    for (std::size_t site = 0; site < kCaptionSites; ++site)
      if (ChosenA.captions[site] == etlctNoAutoCaption) item->SetCaption(static_cast<int>(site) + 1, {});
  }
  canvas->Repaint.Raise();  // captions change with a full repaint
}

void SetTexts(MURTimelineRender& ControlA, const Appearance& ChosenA) {
  for (std::size_t site = 0; site < kCaptionSites; ++site)
    ControlA.SetAutoObjectCaption(static_cast<std::int32_t>(site) + 1, ChosenA.captions[site]);
  ControlA.SetFormatString(ChosenA.worldTime.text);
  ControlA.SetFormatStyle(ChosenA.worldTime.style);
  ControlA.SetDurationFormatString(ChosenA.duration.text);
  ControlA.SetDurationFormatStyle(ChosenA.duration.style);
}

// The bar height at which all rows fit into the canvas.
float FittingBarHeight(const MURTimelineRender& ControlA) {
  const Ref<CMURTimeline> timeline = ControlA.Timeline();
  float rows = 0, gaps = 0;
  auto members = timeline->NewEnum();
  while (const Ref<IMURTimelineObject> member = members.Next()) {
    if (timeline->TrackPosition(member->Key()) == 0) continue;
    rows += static_cast<float>(member->KnownSubtreeDepth().value_or(1));
    gaps += ControlA.TrackSeparation();
  }
  const auto height = static_cast<float>(ControlA.Collaborators().canvas->DrawingHeight());
  const float fitting = rows > 0 ? (height - gaps) / rows - ControlA.BarSeparation() : kHighestBar;
  return std::clamp(std::floor(fitting), kLowestBar, kHighestBar);
}

void ShowMarkers(MURTimelineRender& ControlA, const LoadedFile& FileA) {
  const Ref<ITimelineScroll> scale = ControlA.Collaborators().scroller;
  for (const Marker& marker : FileA.markers) {
    scale->MarkerAdd(InstantOf(FileA.day, marker.time), marker.key, marker.name, true);
    const Ref<ITimeScaleMarker> shown = scale->Marker(Variant(marker.key));
    if (!shown) continue;
    shown->SetTag(marker.comment);
    shown->SetUserData(Variant(marker.color));
  }
}

// The time scale writes frames at 25 a second only; other files get milliseconds.
void SetTimeScaleFormat(MURTimelineRender& ControlA, const LoadedFile& FileA, const Appearance& ChosenA) {
  constexpr std::int32_t kMilliseconds = 3, kTimecode = 4;
  constexpr double kTimecodeRate = 25;
  const TimeFormat usual{{}, FileA.rate == kTimecodeRate ? kTimecode : kMilliseconds};
  const TimeFormat format = ChosenA.timeScale.value_or(usual);
  ControlA.SetTimeScaleFormatString(format.text);
  ControlA.SetTimeScaleFormatStyle(format.style);
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

void PrepareControl(MURTimelineRender& ControlA, const Look& LookA) {
  ConfigureKinds(ControlA, FileKind::SubRip, LookA);
  SetTexts(ControlA, LookA.chosen);
  ControlA.SetAutoHighlightObjects(false);
  ControlA.SetAutoObjectTooltipText(u"$$Tag$$   $$WorldTimeT0$$ \u2013 $$WorldTimeT1$$   ($$Duration$$ s)");
  ControlA.SetBarSeparation(LookA.chosen.barSeparation);
  ControlA.SetTrackSeparation(LookA.chosen.trackSeparation);
  ControlA.SetTimeScaleHeight(kTimeScaleTwips);
}

// Bars keep the height that they were created with until they are told.
void FitRows(MURTimelineRender& ControlA, const Look& LookA) {
  const float height = LookA.chosen.barHeight.value_or(FittingBarHeight(ControlA));
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

void ApplyLook(MURTimelineRender& ControlA, const LoadedFile& FileA, const Look& LookA) {
  ConfigureKinds(ControlA, FileA.kind, LookA);
  SetTexts(ControlA, LookA.chosen);
  SetTimeScaleFormat(ControlA, FileA, LookA.chosen);
  ControlA.SetBarSeparation(LookA.chosen.barSeparation);
  ControlA.SetTrackSeparation(LookA.chosen.trackSeparation);
  FitRows(ControlA, LookA);
  ShowBarsAnew(ControlA, FileA.kind, LookA.chosen);
}

void PresentFile(MURTimelineRender& ControlA, const LoadedFile& FileA, const VisibleRange& RangeA,
                 const Look& LookA) {
  ApplyLook(ControlA, FileA, LookA);
  ShowMarkers(ControlA, FileA);
  ShowRange(ControlA, FileA, RangeA);
}

}  // namespace mur::viewer
