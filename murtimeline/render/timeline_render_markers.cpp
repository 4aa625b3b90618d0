#include <murtimeline/automation/guard.h>
#include <murtimeline/automation/narrow.h>
#include <murtimeline/render/render_parts.h>

namespace mur {
namespace {

/// What `ReadA` finds in the marker of that key or position; the empty value where there is none.
template <class Value>
Value Read(const ITimelineScroll& ScrollerA, const Variant& KeyIndexA,
           Value (ITimeScaleMarker::*ReadA)() const) {
  Value value{};
  ResumeNext([&] {
    if (const Ref<ITimeScaleMarker> marker = ScrollerA.Marker(KeyIndexA)) value = (marker.Get()->*ReadA)();
  });
  return value;
}

template <class Argument, class Value>
void Write(const ITimelineScroll& ScrollerA, const Variant& KeyIndexA,
           void (ITimeScaleMarker::*WriteA)(Argument), const Value& ValueA) {
  ResumeNext([&] {
    if (const Ref<ITimeScaleMarker> marker = ScrollerA.Marker(KeyIndexA)) (marker.Get()->*WriteA)(ValueA);
  });
}

}  // namespace

void MURTimelineRender::TimeScaleMarkersClear() {
  const Ref<MURTimelineRender> keep(this);
  ResumeNext([&] { mParts->state.Scroller().MarkersClear(); });
}

std::int16_t MURTimelineRender::TimeScaleMarkersCount() const {
  std::int16_t count = 0;
  ResumeNext([&] { count = Narrow<std::int16_t>(mParts->state.Scroller().MarkersCount()); });
  return count;
}

void MURTimelineRender::TimeScaleMarkerAdd(Date WorldTimeA, StringView MarkerKeyA, StringView CaptionA,
                                           bool VisibleA) {
  const Ref<MURTimelineRender> keep(this);
  ResumeNext([&] { mParts->state.Scroller().MarkerAdd(WorldTimeA, MarkerKeyA, CaptionA, VisibleA); });
}

void MURTimelineRender::TimeScaleMarkerRemove(const Variant& KeyIndexA) {
  const Ref<MURTimelineRender> keep(this);
  ResumeNext([&] { mParts->state.Scroller().MarkerRemove(KeyIndexA); });
}

Date MURTimelineRender::TimeScaleMarkerWorldTime(const Variant& KeyIndexA) const {
  return Read(mParts->state.Scroller(), KeyIndexA, &ITimeScaleMarker::WorldTime);
}

void MURTimelineRender::SetTimeScaleMarkerWorldTime(const Variant& KeyIndexA, Date WorldTimeA) {
  const Ref<MURTimelineRender> keep(this);
  Write(mParts->state.Scroller(), KeyIndexA, &ITimeScaleMarker::SetWorldTime, WorldTimeA);
}

String MURTimelineRender::TimeScaleMarkerCaption(const Variant& KeyIndexA) const {
  return Read(mParts->state.Scroller(), KeyIndexA, &ITimeScaleMarker::Caption);
}

void MURTimelineRender::SetTimeScaleMarkerCaption(const Variant& KeyIndexA, StringView CaptionA) {
  const Ref<MURTimelineRender> keep(this);
  Write(mParts->state.Scroller(), KeyIndexA, &ITimeScaleMarker::SetCaption, CaptionA);
}

String MURTimelineRender::TimeScaleMarkerTag(const Variant& KeyIndexA) const {
  return Read(mParts->state.Scroller(), KeyIndexA, &ITimeScaleMarker::Tag);
}

void MURTimelineRender::SetTimeScaleMarkerTag(const Variant& KeyIndexA, StringView TagA) {
  const Ref<MURTimelineRender> keep(this);
  Write(mParts->state.Scroller(), KeyIndexA, &ITimeScaleMarker::SetTag, TagA);
}

Variant MURTimelineRender::TimeScaleMarkerUserData(const Variant& KeyIndexA) const {
  return Read(mParts->state.Scroller(), KeyIndexA, &ITimeScaleMarker::UserData);
}

void MURTimelineRender::SetTimeScaleMarkerUserData(const Variant& KeyIndexA, const Variant& UserDataA) {
  const Ref<MURTimelineRender> keep(this);
  Write(mParts->state.Scroller(), KeyIndexA, &ITimeScaleMarker::SetUserData, UserDataA);
}

Ref<ITimeScaleMarker> MURTimelineRender::TimeScaleMarkerDefinition(const Variant& KeyIndexA) const {
  Ref<ITimeScaleMarker> marker;
  ResumeNext([&] { marker = mParts->state.Scroller().Marker(KeyIndexA); });
  return marker;
}

}  // namespace mur
