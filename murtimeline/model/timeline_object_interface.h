#pragma once

#include <cstdint>
#include <optional>

#include <murtimeline/automation/date.h>
#include <murtimeline/automation/export.h>
#include <murtimeline/automation/object.h>
#include <murtimeline/automation/shared_text.h>
#include <murtimeline/automation/string.h>
#include <murtimeline/automation/variant.h>
#include <murtimeline/model/enumerations.h>
#include <murtimeline/model/span_watcher.h>

namespace mur {

class IMURTimelineObject;
class SubtreeDepth;

/// Where a timeline object reports its changes, synchronously, before the changing call returns.
class MUR_API IMURTLObjectEventSink : public Object {
 public:
  /// A group took a child in.
  virtual void ObjectAdopted(const Ref<IMURTimelineObject>& ParentA,
                             const Ref<IMURTimelineObject>& ChildA) = 0;
  /// A group let a child go.
  virtual void ObjectOrphaned(const Ref<IMURTimelineObject>& ParentA,
                              const Ref<IMURTimelineObject>& ChildA) = 0;
  /// An object changed; `ValueA` is the new value. Property names are compared as they stand.
  virtual void ObjectPropertyChanged(const Ref<IMURTimelineObject>& ObjectA, StringView PropertyNameA,
                                     const Variant& ValueA) = 0;
};

/// What our own objects know without being walked. A host's own object need not override anything here.
class MUR_API TimelineNode : public Object {
 public:
  /// The key without a copy, for classes that store it.
  virtual SharedText KeyText() const = 0;
  /// Puts the key, for classes that can share it.
  virtual void SetKeyText(const SharedText& KeyA) = 0;
  /// The number of children beyond what 16 bits can say.
  virtual std::size_t ChildCount() const = 0;
  /// 1 + the depth of the deepest child, for classes that keep it; none where one must walk.
  virtual std::optional<int> KnownSubtreeDepth() const { return std::nullopt; }
  /// The book-keeping of a class that keeps its depth; none for all others.
  virtual SubtreeDepth* DepthNode() { return nullptr; }
  /// Asks the object to move `ShapeRevision` whenever its known depth or its parent changes. False when it
  /// cannot promise that.
  virtual bool WatchShape() const { return false; }
  /// The object's span as SpansTime sees it, empty when its end is no date, and the promise to tell the
  /// watchers of this thread before it changes (see SpanWatcher). None when the object's sink is another one
  /// and for classes that cannot promise that.
  virtual std::optional<TimeSpan> WatchSpan(const IMURTLObjectEventSink& /*SinkA*/) const {
    return std::nullopt;
  }
  /// Writes the object's own lines of the dump, up to its children, who follow by the caller's hand. False
  /// when only AsString can tell.
  virtual bool AppendOwnLines(String& /*TextA*/, StringView /*IndentA*/) const { return false; }
};

/// A moving stamp: unchanged as long as nothing watched has changed its depth, its parent or its place in a
/// time line. A layout that was computed at the same stamp is still right.
MUR_API std::uint64_t ShapeRevision() noexcept;
/// Moves the stamp.
MUR_API void MoveShapeRevision() noexcept;

/// The one interface of everything on a time line: groups, scalars, media and objects of the host's own.
/// Durations and offsets are seconds, world times dates.
class MUR_API IMURTimelineObject : public TimelineNode {
 public:
  virtual String Key() const = 0;
  virtual void SetKey(StringView KeyA) = 0;
  virtual String Tag() const = 0;
  virtual void SetTag(StringView TagA) = 0;
  virtual Ref<IMURTLObjectEventSink> EventSink() const = 0;
  virtual void SetEventSink(const Ref<IMURTLObjectEventSink>& SinkA) = 0;
  virtual Ref<IMURTimelineObject> Parent() const = 0;
  /// Stores the reference; recomputes nothing.
  virtual void SetParent(const Ref<IMURTimelineObject>& ParentA) = 0;
  virtual MURTimelineObjectType ObjectType() const = 0;
  virtual MURTimelineObjectType GroupType() const = 0;
  virtual void SetGroupType(MURTimelineObjectType GroupTypeA) = 0;
  /// Resets the object's own state; reports nothing.
  virtual void Clear() = 0;
  /// `Clear`, and lets go of every reference; the object is inert afterwards.
  virtual void Free() = 0;
  /// The object as indented lines of text, each ending in CR LF.
  virtual String AsString(StringView IndentA) const = 0;
  /// The number of children; throws Overflow beyond 32,767.
  virtual std::int16_t Count() const = 0;
  /// The child with that key or 1-based position; none when there is none.
  virtual Ref<IMURTimelineObject> Item(const Variant& KeyIndexA) const = 0;
  virtual void Add(const Ref<IMURTimelineObject>& ChildA, StringView KeyA) = 0;
  virtual Ref<IMURTimelineObject> Remove(const Variant& KeyIndexA) = 0;
  /// A parent tells its child that it moved: a locked child follows, an unlocked one stays and gets a new
  /// offset. (The spelling is contract.)
  virtual void ParentWorldtimeT0Changed() = 0;
  virtual double Duration() const = 0;
  virtual void SetDuration(double DurationA) = 0;
  virtual Date WorldTimeT0() const = 0;
  virtual void SetWorldTimeT0(Date WorldTimeT0A) = 0;
  virtual double offset() const = 0;
  virtual void SetOffset(double OffsetA) = 0;
  virtual bool LockedToParent() const = 0;
  virtual void SetLockedToParent(bool LockedToParentA) = 0;
  /// Whether `DateA` lies between start and end, both included by default.
  virtual bool SpansTime(Date DateA, bool IncludeBoundariesA = true) const = 0;

  SharedText KeyText() const override { return SharedText(Key()); }
  void SetKeyText(const SharedText& KeyA) override { SetKey(KeyA.View()); }
  std::size_t ChildCount() const override {
    const std::int16_t count = Count();
    return count > 0 ? static_cast<std::size_t>(count) : 0;
  }
};

}  // namespace mur
