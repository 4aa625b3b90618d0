#include <utility>

#include <murtimeline/automation/error.h>
#include <murtimeline/automation/narrow.h>
#include <murtimeline/automation/selector.h>
#include <murtimeline/render/companions/scale_painter.h>
#include <murtimeline/render/companions/scroll_control.h>

namespace mur {

MURTimelineScroll::MURTimelineScroll(ChildHost& HostA) : mHost(HostA), mBoard(Make<MarkerBoard>(HostA)) {
  mSettings.worldTimeT0 = mSettings.tZero = Now();
}

MURTimelineScroll::~MURTimelineScroll() {
  mBoard->CutHost();
  MarkersLeave(mMarkers);
}

void MURTimelineScroll::Paint(Surface& SurfaceA, const RectF& DirtyA) {
  const Ref<TimeScaleMarker> highlighted = mPointer.Highlighted();
  SurfaceA.PushClip(DirtyA);
  ScalePainter(SurfaceA, mHost, mSettings, mFlags).Paint(highlighted.Get());
  SurfaceA.PopClip();
}

String MURTimelineScroll::ToolTipAt(PointF PointA) const {
  const TimeScaleMarker* marker = mFlags.MarkerAt(PointA);
  String text = marker ? marker->HoverText() : String();
  return text.empty() ? mHost.ToolTipText() : text;
}

RectF MURTimelineScroll::Area() const {
  return {0, 0, mHost.Width() / ChildHost::kTwipsPerPixel, mHost.Height() / ChildHost::kTwipsPerPixel};
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
  constexpr float kReach = ScalePainter::kCursorReach;
  const RectF area = Area();
  if (const auto x = ShownX(mSettings, mSettings.cursorTime, area.width))
    mHost.Invalidate({*x - kReach, 0, 2 * kReach, area.height});
}

// The records go last: what they carry may run its host's code at its end.
void MURTimelineScroll::MarkersClear() {
  const Markers gone = std::exchange(mMarkers, Markers());
  MarkersLeave(gone);
  mBoard->Changed();
}

void MURTimelineScroll::MarkersLeave(const Markers& MarkersA) {
  mBoard->TakeAll();
  for (std::size_t slot = MarkersA.NextSlot(0); slot != Markers::kNone; slot = MarkersA.NextSlot(slot + 1))
    MarkersA.At(slot)->Leave();
}

std::int32_t MURTimelineScroll::MarkersCount() const {
  return Narrow<std::int32_t>(mMarkers.Count());
}

void MURTimelineScroll::MarkerAdd(Date WorldTimeA, StringView MarkerKeyA, StringView CaptionA,
                                  bool VisibleA) {
  const auto marker = Make<TimeScaleMarker>(WorldTimeA, MarkerKeyA, CaptionA, VisibleA);
  if (mMarkers.Append(marker)) marker->Join(mBoard);
}

void MURTimelineScroll::MarkerRemove(const Variant& KeyIndexA) {
  const std::size_t slot = Selector(KeyIndexA).SlotIn(mMarkers);
  if (slot == Markers::kNone) throw AutomationError(ErrorCode::SubscriptOutOfRange);
  const Ref<TimeScaleMarker> gone = mMarkers.Remove(slot);
  gone->Leave();
  mBoard->Changed();
}

Ref<ITimeScaleMarker> MURTimelineScroll::Marker(const Variant& KeyIndexA) const {
  const std::size_t slot = Selector(KeyIndexA).SlotIn(mMarkers);
  return slot == Markers::kNone ? Ref<ITimeScaleMarker>() : mMarkers.At(slot);
}

}  // namespace mur
