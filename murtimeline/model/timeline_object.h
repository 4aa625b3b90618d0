#pragma once

#include <murtimeline/automation/export.h>
#include <murtimeline/model/timeline_object_interface.h>

namespace mur {

/// What groups, scalars and media share: identity, the coupling of world time and offset with the parent, and
/// the reports. Where the classes differ, this class asks them.
///
///     parent  |========================>
///                 offset (s)   child |=====>
///             ^ Parent.WorldTimeT0   ^ WorldTimeT0
///
/// With a parent, offset = (WorldTimeT0 - Parent.WorldTimeT0) x 86400, to floating-point rounding; without
/// one it is 0 whenever the world time is established. Setters never raise: a failing step (a sink that
/// throws, a date out of range) is skipped and the next one runs.
class MUR_API TimelineObject : public IMURTimelineObject {
 public:
  String Key() const final { return String(mKey.View()); }
  void SetKey(StringView KeyA) final { SetKeyText(SharedText(KeyA)); }
  String Tag() const final { return String(mTag.View()); }
  void SetTag(StringView TagA) final;
  Ref<IMURTLObjectEventSink> EventSink() const final { return mEventSink; }
  void SetEventSink(const Ref<IMURTLObjectEventSink>& SinkA) final;
  Ref<IMURTimelineObject> Parent() const final { return mParent; }
  void SetParent(const Ref<IMURTimelineObject>& ParentA) final;
  void Free() override;
  String AsString(StringView IndentA) const final;
  void ParentWorldtimeT0Changed() final { ParentWorldTimeT0Changed(); }
  Date WorldTimeT0() const final { return mWorldTimeT0; }
  /// Acts on a value that differs: stores it, re-establishes the offset, tells the children, reports.
  void SetWorldTimeT0(Date WorldTimeT0A) final;
  double offset() const final { return mOffset; }
  /// Acts on a value that differs: stores it, re-establishes the world time from the parent, reports
  /// "Offset".
  void SetOffset(double OffsetA) final;
  bool LockedToParent() const final { return mLockedToParent; }
  void SetLockedToParent(bool LockedToParentA) final;
  bool SpansTime(Date DateA, bool IncludeBoundariesA = true) const final;

  SharedText KeyText() const final { return mKey; }
  void SetKeyText(const SharedText& KeyA) final;
  bool WatchShape() const final;
  std::optional<TimeSpan> WatchSpan(const IMURTLObjectEventSink& SinkA) const final;
  bool AppendOwnLines(String& TextA, StringView IndentA) const final;

 protected:
  TimelineObject() = default;

  /// Whether a put value counts as new.
  virtual bool Differs(double StoredA, double NewA) const = 0;
  /// The name under which a start time is reported.
  virtual StringView WorldTimeReportName() const = 0;
  /// Tells every child that this object moved.
  virtual void TellChildren() {}
  /// The first line of the dump without indent and line end, and the lines behind the common ones.
  virtual String DumpTitle() const = 0;
  virtual StringView DumpParentLabel() const { return u"  Parent         : "; }
  virtual StringView DumpWorldTimeLabel() const = 0;
  virtual void AppendFurtherLines(String& /*TextA*/, StringView /*IndentA*/) const {}

  /// Sends a report; without a sink, or when the sink fails, nothing happens.
  void Report(StringView PropertyNameA, const Variant& ValueA);
  /// Back to the start values, without a report.
  void ClearCommonState();
  void MoveShapeRevisionIfWatched() const {
    if (mShapeWatched) MoveShapeRevision();
  }
  /// To be called before the duration or the kind changes.
  void TellSpanWatchers() const {
    if (mSpanWatched) TellThemOnce();
  }

  double mDuration = 0;  // seconds

 private:
  void ApplyWorldTimeT0(Date WorldTimeT0A);
  void ApplyOffset(double OffsetA);
  void ParentWorldTimeT0Changed();
  double OffsetFromParent() const;
  TimeSpan Span() const;
  void TellThemOnce() const;

  SharedText mKey;
  SharedText mTag;
  Ref<IMURTLObjectEventSink> mEventSink;
  Ref<IMURTimelineObject> mParent;
  Date mWorldTimeT0;
  double mOffset = 0;  // seconds
  bool mLockedToParent = false;
  mutable bool mShapeWatched = false;
  mutable bool mSpanWatched = false;
};

}  // namespace mur
