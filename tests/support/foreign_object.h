#pragma once

#include <map>
#include <string>
#include <vector>

#include <murtimeline/model/timeline_object_interface.h>

namespace mur::test {

/// A timeline object of a host's own making, with its own storage and nothing of ours but the interface.
class ForeignObject : public IMURTimelineObject {
 public:
  String Key() const override { return mKey; }
  void SetKey(StringView KeyA) override { mKey = KeyA; }
  String Tag() const override { return mTag; }
  void SetTag(StringView TagA) override { mTag = TagA; }
  Ref<IMURTLObjectEventSink> EventSink() const override { return mSink; }
  void SetEventSink(const Ref<IMURTLObjectEventSink>& SinkA) override { mSink = SinkA; }
  Ref<IMURTimelineObject> Parent() const override { return mParent; }
  void SetParent(const Ref<IMURTimelineObject>& ParentA) override { mParent = ParentA; }
  MURTimelineObjectType ObjectType() const override { return mObjectType; }
  MURTimelineObjectType GroupType() const override { return mGroupType; }
  void SetGroupType(MURTimelineObjectType GroupTypeA) override { mGroupType = GroupTypeA; }
  void Clear() override;
  void Free() override;
  String AsString(StringView IndentA) const override;
  std::int16_t Count() const override { return static_cast<std::int16_t>(mChildren.size()); }
  Ref<IMURTimelineObject> Item(const Variant& KeyIndexA) const override;
  void Add(const Ref<IMURTimelineObject>& ChildA, StringView KeyA) override;
  Ref<IMURTimelineObject> Remove(const Variant& KeyIndexA) override;
  void ParentWorldtimeT0Changed() override { ++timesToldThatTheParentMoved; }
  double Duration() const override { return mDuration; }
  void SetDuration(double DurationA) override { mDuration = DurationA; }
  Date WorldTimeT0() const override { return mWorldTimeT0; }
  void SetWorldTimeT0(Date WorldTimeT0A) override { mWorldTimeT0 = WorldTimeT0A; }
  double offset() const override { return mOffset; }
  void SetOffset(double OffsetA) override { mOffset = OffsetA; }
  bool LockedToParent() const override { return mLockedToParent; }
  void SetLockedToParent(bool LockedToParentA) override { mLockedToParent = LockedToParentA; }
  bool SpansTime(Date DateA, bool IncludeBoundariesA) const override;

  int timesToldThatTheParentMoved = 0;
  int timesFreed = 0;

 private:
  String mKey, mTag;
  Ref<IMURTLObjectEventSink> mSink;
  Ref<IMURTimelineObject> mParent;
  MURTimelineObjectType mObjectType = murtlotGroup;
  MURTimelineObjectType mGroupType = murtlotUnknown;
  std::vector<Ref<IMURTimelineObject>> mChildren;
  double mDuration = 0, mOffset = 0;
  Date mWorldTimeT0;
  bool mLockedToParent = false;
};

/// A host's object that cannot be trusted. Name a member in `failing` and it throws something that is no
/// automation error; its count lies and its items are not there.
class HostileObject final : public ForeignObject {
 public:
  String Key() const override { return Fail("Key"), ForeignObject::Key(); }
  void SetKey(StringView KeyA) override { Fail("SetKey"), ForeignObject::SetKey(KeyA); }
  String Tag() const override { return Fail("Tag"), ForeignObject::Tag(); }
  void SetEventSink(const Ref<IMURTLObjectEventSink>& SinkA) override {
    Fail("SetEventSink"), ForeignObject::SetEventSink(SinkA);
  }
  void SetParent(const Ref<IMURTimelineObject>& ParentA) override {
    Fail("SetParent"), ForeignObject::SetParent(ParentA);
  }
  void Free() override { Fail("Free"), ForeignObject::Free(); }
  String AsString(StringView IndentA) const override {
    return Fail("AsString"), ForeignObject::AsString(IndentA);
  }
  std::int16_t Count() const override { return Fail("Count"), count; }
  Ref<IMURTimelineObject> Item(const Variant&) const override { return Fail("Item"), nullptr; }
  void ParentWorldtimeT0Changed() override { Fail("ParentWorldtimeT0Changed"); }
  Date WorldTimeT0() const override { return Fail("WorldTimeT0"), ForeignObject::WorldTimeT0(); }

  std::string failing;
  std::int16_t count = 0;

 private:
  void Fail(const std::string& MemberA) const {
    if (failing == MemberA) throw 42;
  }
};

}  // namespace mur::test
