#include <vector>

#include <murtimeline/automation/error.h>
#include <murtimeline/automation/narrow.h>
#include <murtimeline/automation/selector.h>
#include <murtimeline/render/companions/scale_painter.h>
#include <murtimeline/render/companions/scroll_control.h>

namespace mur {

MURTimelineScroll::MURTimelineScroll(ChildHost& HostA) : mHost(HostA), mLink(Make<HostLink>(HostA)) {
  mSettings.worldTimeT0 = mSettings.tZero = Now();
}

MURTimelineScroll::~MURTimelineScroll() {
  mLink->Cut();
}

void MURTimelineScroll::Paint(Surface& SurfaceA, const RectF& DirtyA) {
  std::vector<const TimeScaleMarker*> markers;
  for (std::size_t slot = mMarkers.NextSlot(0); slot != Markers::kNone; slot = mMarkers.NextSlot(slot + 1))
    markers.push_back(mMarkers.At(slot).Get());
  SurfaceA.PushClip(DirtyA);
  ScalePainter(SurfaceA, mHost, mSettings).Paint(markers);
  SurfaceA.PopClip();
}

void MURTimelineScroll::SetWorldTimeT0(Date WorldTimeA) {
  if (mSettings.worldTimeT0 == WorldTimeA) return;
  Set(mSettings.worldTimeT0, WorldTimeA);
  VisibleRangeChanged.Raise();
}

void MURTimelineScroll::SetDuration(double SecondsA) {
  if (mSettings.duration == SecondsA) return;
  Set(mSettings.duration, SecondsA);
  VisibleRangeChanged.Raise();
}

void MURTimelineScroll::SetCursorTime(Date WorldTimeA) {
  InvalidateCursor();
  mSettings.cursorTime = WorldTimeA;
  InvalidateCursor();
}

void MURTimelineScroll::InvalidateCursor() const {
  const float width = mHost.Width() / ChildHost::kTwipsPerPixel;
  constexpr float kReach = ScalePainter::kCursorReach;
  if (const auto x = ShownX(mSettings, mSettings.cursorTime, width))
    mLink->Invalidate({*x - kReach, 0, 2 * kReach, mHost.Height() / ChildHost::kTwipsPerPixel});
}

void MURTimelineScroll::MarkersClear() {
  mMarkers = Markers();
  mLink->InvalidateAll();
}

std::int32_t MURTimelineScroll::MarkersCount() const {
  return Narrow<std::int32_t>(mMarkers.Count());
}

void MURTimelineScroll::MarkerAdd(Date WorldTimeA, StringView MarkerKeyA, StringView CaptionA,
                                  bool VisibleA) {
  if (mMarkers.Append(Make<TimeScaleMarker>(mLink, WorldTimeA, MarkerKeyA, CaptionA, VisibleA)))
    mLink->InvalidateAll();
}

void MURTimelineScroll::MarkerRemove(const Variant& KeyIndexA) {
  const std::size_t slot = Selector(KeyIndexA).SlotIn(mMarkers);
  if (slot == Markers::kNone) throw AutomationError(ErrorCode::SubscriptOutOfRange);
  mMarkers.Remove(slot);
  mLink->InvalidateAll();
}

Ref<ITimeScaleMarker> MURTimelineScroll::Marker(const Variant& KeyIndexA) const {
  const std::size_t slot = Selector(KeyIndexA).SlotIn(mMarkers);
  return slot == Markers::kNone ? Ref<ITimeScaleMarker>() : mMarkers.At(slot);
}

}  // namespace mur
