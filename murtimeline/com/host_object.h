#pragma once

#include <murtimeline/com/call.h>
#include <murtimeline/com/server_life.h>
#include <murtimeline/model/timeline_object_interface.h>

namespace mur::com {

/// A timeline object that a host wrote, as the core sees it: every call goes to the host, every failure comes
/// back as an exception, and nothing that the host says is trusted.
class HostTimelineObject final : public IMURTimelineObject {
 public:
  HostTimelineObject(Ref<ComTimelineObject> ObjectA, IUnknown* IdentityA);

  const Ref<ComTimelineObject>& Published() const noexcept { return mObject; }

  String Key() const override;
  void SetKey(StringView KeyA) override;
  String Tag() const override;
  void SetTag(StringView TagA) override;
  Ref<IMURTLObjectEventSink> EventSink() const override;
  void SetEventSink(const Ref<IMURTLObjectEventSink>& SinkA) override;
  Ref<IMURTimelineObject> Parent() const override;
  void SetParent(const Ref<IMURTimelineObject>& ParentA) override;
  MURTimelineObjectType ObjectType() const override;
  MURTimelineObjectType GroupType() const override;
  void SetGroupType(MURTimelineObjectType GroupTypeA) override;
  void Clear() override;
  void Free() override;
  String AsString(StringView IndentA) const override;
  std::int16_t Count() const override;
  Ref<IMURTimelineObject> Item(const Variant& KeyIndexA) const override;
  void Add(const Ref<IMURTimelineObject>& ChildA, StringView KeyA) override;
  Ref<IMURTimelineObject> Remove(const Variant& KeyIndexA) override;
  void ParentWorldtimeT0Changed() override;
  double Duration() const override;
  void SetDuration(double DurationA) override;
  Date WorldTimeT0() const override;
  void SetWorldTimeT0(Date WorldTimeT0A) override;
  double offset() const override;
  void SetOffset(double OffsetA) override;
  bool LockedToParent() const override;
  void SetLockedToParent(bool LockedToParentA) override;
  bool SpansTime(Date DateA, bool IncludeBoundariesA) const override;

 private:
  ~HostTimelineObject() override;

  const Ref<ComTimelineObject> mObject;
  const Ref<IUnknown> mIdentity;
  LiveObject mLive;
};

/// A sink that a host wrote, as the core sees it.
class HostEventSink final : public IMURTLObjectEventSink {
 public:
  HostEventSink(Ref<ComEventSink> SinkA, IUnknown* IdentityA);

  const Ref<ComEventSink>& Published() const noexcept { return mSink; }

  void ObjectAdopted(const Ref<IMURTimelineObject>& ParentA, const Ref<IMURTimelineObject>& ChildA) override;
  void ObjectOrphaned(const Ref<IMURTimelineObject>& ParentA, const Ref<IMURTimelineObject>& ChildA) override;
  void ObjectPropertyChanged(const Ref<IMURTimelineObject>& ObjectA, StringView PropertyNameA,
                             const Variant& ValueA) override;

 private:
  ~HostEventSink() override;

  const Ref<ComEventSink> mSink;
  const Ref<IUnknown> mIdentity;
  LiveObject mLive;
};

}  // namespace mur::com
