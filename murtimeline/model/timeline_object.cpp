#include <cmath>

#include <murtimeline/automation/guard.h>
#include <murtimeline/automation/regional.h>
#include <murtimeline/automation/stack.h>
#include <murtimeline/model/text_dump.h>
#include <murtimeline/model/timeline_object.h>

namespace mur {

void TimelineObject::SetKeyText(const SharedText& KeyA) {
  TellSpanWatchers();
  mKey = KeyA;
  if (mEventSink) Report(u"Key", mKey.View());
}

void TimelineObject::SetTag(StringView TagA) {
  mTag = SharedText(TagA);
  if (mEventSink) Report(u"Tag", mTag.View());
}

void TimelineObject::SetEventSink(const Ref<IMURTLObjectEventSink>& SinkA) {
  TellSpanWatchers();
  mEventSink = SinkA;
}

void TimelineObject::SetParent(const Ref<IMURTimelineObject>& ParentA) {
  // The old parent may hold the last reference to this object's new one: keep it until all is stored.
  const Ref<IMURTimelineObject> old = std::exchange(mParent, ParentA);
  MoveShapeRevisionIfWatched();
}

void TimelineObject::SetLockedToParent(bool LockedToParentA) {
  if (mLockedToParent == LockedToParentA) return;
  mLockedToParent = LockedToParentA;
  Report(u"LockedToParent", mLockedToParent);
}

void TimelineObject::SetWorldTimeT0(Date WorldTimeT0A) {
  if (Differs(mWorldTimeT0.Days(), WorldTimeT0A.Days())) ResumeNext([&] { ApplyWorldTimeT0(WorldTimeT0A); });
}

void TimelineObject::SetOffset(double OffsetA) {
  if (Differs(mOffset, OffsetA)) ResumeNext([&] { ApplyOffset(OffsetA); });
}

// The two routines below call each other through the public setters and so end as soon as a recomputation
// reproduces the stored value. The reports carry the value stored at that moment.

void TimelineObject::ApplyWorldTimeT0(Date WorldTimeT0A) {
  RequireStackSpace();
  const Ref<TimelineObject> keep(this);
  TellSpanWatchers();
  mWorldTimeT0 = WorldTimeT0A;
  ResumeNext([&] { SetOffset(OffsetFromParent()); });
  ResumeNext([&] { TellChildren(); });
  Report(WorldTimeReportName(), mWorldTimeT0);
}

void TimelineObject::ApplyOffset(double OffsetA) {
  RequireStackSpace();
  const Ref<TimelineObject> keep(this);
  mOffset = OffsetA;
  if (const Ref<IMURTimelineObject> parent = mParent)
    ResumeNext([&] { SetWorldTimeT0(AddSeconds(parent->WorldTimeT0(), OffsetA)); });
  Report(u"Offset", mOffset);
}

double TimelineObject::OffsetFromParent() const {
  const Ref<IMURTimelineObject> parent = mParent;
  if (!parent) return 0;
  const double offset = (mWorldTimeT0.Days() - parent->WorldTimeT0().Days()) * kSecondsPerDay;
  if (!std::isfinite(offset)) throw AutomationError(ErrorCode::Overflow);
  return offset;
}

void TimelineObject::ParentWorldTimeT0Changed() {
  ResumeNext([&] {
    if (mLockedToParent)
      ApplyOffset(mOffset);
    else
      ApplyWorldTimeT0(mWorldTimeT0);
  });
}

bool TimelineObject::SpansTime(Date DateA, bool IncludeBoundariesA) const {
  const TimeSpan span = Span();
  return IncludeBoundariesA ? span.Contains(DateA) : span.first < DateA && DateA < span.last;
}

// What AddSeconds gives, without an error where that would be none of the caller's business.
TimeSpan TimelineObject::Span() const {
  const Date length = Date::Unchecked(Duration() / kSecondsPerDay);
  const Date end = Date::Unchecked(length.Days() + mWorldTimeT0.Days());
  return length.InRange() && end.InRange() ? TimeSpan{mWorldTimeT0, end} : TimeSpan();
}

std::optional<TimeSpan> TimelineObject::WatchSpan(const IMURTLObjectEventSink& SinkA) const {
  if (mEventSink.Get() != &SinkA) return std::nullopt;
  mSpanWatched = true;
  return Span();
}

// Watched objects have a sink: that it goes is among what is told.
void TimelineObject::TellThemOnce() const {
  mSpanWatched = false;
  SpanWatcher::TellAll(*this, *mEventSink);
}

void TimelineObject::Report(StringView PropertyNameA, const Variant& ValueA) {
  const Ref<IMURTLObjectEventSink> sink = mEventSink;
  if (!sink) return;
  ResumeNext([&] {
    RequireStackSpace();
    sink->ObjectPropertyChanged(Ref<IMURTimelineObject>(this), PropertyNameA, ValueA);
  });
}

void TimelineObject::ClearCommonState() {
  const Ref<TimelineObject> keep(this);  // the parent may hold the last reference
  TellSpanWatchers();
  mKey = SharedText();
  mTag = SharedText();
  mEventSink = nullptr;
  SetParent(nullptr);
  mDuration = 0;
  mWorldTimeT0 = Date();
  mOffset = 0;
  mLockedToParent = false;
}

void TimelineObject::Free() {
  Clear();
}

bool TimelineObject::WatchShape() const {
  return mShapeWatched = true;
}

String TimelineObject::AsString(StringView IndentA) const {
  String text;
  AppendDump(text, *this, String(IndentA));
  return text;
}

bool TimelineObject::AppendOwnLines(String& TextA, StringView IndentA) const {
  AppendDumpLine(TextA, IndentA, DumpTitle(), {});
  AppendDumpLine(TextA, IndentA, DumpParentLabel(), mParent ? mParent->Key() : String(u"## No Parent ##"));
  AppendDumpLine(TextA, IndentA, u"  Duration       : ", SecondsText(Duration()));
  AppendDumpLine(TextA, IndentA, DumpWorldTimeLabel(), Regional().DateToText(mWorldTimeT0));
  AppendDumpLine(TextA, IndentA, u"  Offset         : ", SecondsText(mOffset));
  AppendDumpLine(TextA, IndentA, u"  LockedToParent : ", BooleanText(mLockedToParent));
  AppendFurtherLines(TextA, IndentA);
  return true;
}

}  // namespace mur
