#include <murtimeline/automation/error.h>
#include <murtimeline/automation/narrow.h>
#include <murtimeline/automation/selector.h>
#include <murtimeline/render/companions/scroll_control.h>

namespace mur {

MURTimelineScroll::MURTimelineScroll(ChildHost& HostA) : mHost(HostA), mLink(Make<HostLink>(HostA)) {}

MURTimelineScroll::~MURTimelineScroll() {
  mLink->Cut();
}

void MURTimelineScroll::Paint(Surface& SurfaceA, const RectF& DirtyA) {
  SurfaceA.FillRectangle(DirtyA, ResolveColor(mBackColor, mHost));
}

void MURTimelineScroll::SetWorldTimeT0(Date WorldTimeA) {
  Set(mWorldTimeT0, WorldTimeA);
  VisibleRangeChanged.Raise();
}

void MURTimelineScroll::SetDuration(double SecondsA) {
  Set(mDuration, SecondsA);
  VisibleRangeChanged.Raise();
}

void MURTimelineScroll::SetCursorTime(Date WorldTimeA) {
  Set(mCursorTime, WorldTimeA);
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
