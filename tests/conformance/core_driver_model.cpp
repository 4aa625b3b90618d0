#include "tests/conformance/core_driver_model.h"

#include <stdexcept>

#include <murtimeline/model/render_config.h>
#include <murtimeline/model/timeline.h>
#include <murtimeline/model/timeline_group.h>
#include <murtimeline/model/timeline_media.h>
#include <murtimeline/model/timeline_owner.h>
#include <murtimeline/model/timeline_scalar.h>

namespace mur::test {
namespace {

using binding::Bind;
using binding::Members;

// A sink of the host's own that passes every call on.
class HostSink final : public IMURTLObjectEventSink {
 public:
  void ObjectAdopted(const Ref<IMURTimelineObject>& ParentA, const Ref<IMURTimelineObject>& ChildA) override {
    if (listener) listener("ObjectAdopted", {ParentA, ChildA});
  }
  void ObjectOrphaned(const Ref<IMURTimelineObject>& ParentA,
                      const Ref<IMURTimelineObject>& ChildA) override {
    if (listener) listener("ObjectOrphaned", {ParentA, ChildA});
  }
  void ObjectPropertyChanged(const Ref<IMURTimelineObject>& ObjectA, StringView PropertyNameA,
                             const Variant& ValueA) override {
    if (listener) listener("ObjectPropertyChanged", {ObjectA, PropertyNameA, ValueA});
  }

  ScenarioDriver::Listener listener;
};

const Members& TimelineMembers() {
  using T = CMURTimeline;
  static const Members kMembers = {
      {"Add", {Bind(&T::Add, {Variant::Missing(), false}), {}}},
      {"AddTrackKey", {Bind(&T::AddTrackKey), {}}},
      {"AsString", {Bind(&T::AsString), {}}},
      {"AutoID", {Bind(&T::AutoID), Bind(&T::SetAutoID)}},
      {"Clear", {Bind(&T::Clear), {}}},
      {"Count", {Bind(&T::Count), {}}},
      {"Duration", {Bind(&T::Duration), Bind(&T::SetDuration)}},
      {"EnumerateProperties", {Bind(&T::EnumerateProperties), {}}},
      {"Insert", {Bind(&T::Insert, {Variant::Missing()}), {}}},
      {"Item", {Bind(&T::Item), {}}},
      {"NTrackKeys", {Bind(&T::NTrackKeys), {}}},
      {"Remove", {Bind(&T::Remove), {}}},
      {"RemoveTrackKey", {Bind(&T::RemoveTrackKey), {}}},
      {"Specifics_AsString", {Bind(&T::Specifics_AsString), {}}},
      {"Tag", {Bind(&T::Tag), Bind(&T::SetTag)}},
      {"TrackKey", {Bind(&T::TrackKey), {}}},
      {"WorldTimeT0", {Bind(&T::WorldTimeT0), Bind(&T::SetWorldTimeT0)}},
  };
  return kMembers;
}

const Members& ObjectMembers() {
  using T = IMURTimelineObject;
  static const Members kMembers = {
      {"Add", {Bind(&T::Add), {}}},
      {"AsString", {Bind(&T::AsString), {}}},
      {"Clear", {Bind(&T::Clear), {}}},
      {"Count", {Bind(&T::Count), {}}},
      {"Duration", {Bind(&T::Duration), Bind(&T::SetDuration)}},
      {"EventSink", {Bind(&T::EventSink), Bind(&T::SetEventSink)}},
      {"Free", {Bind(&T::Free), {}}},
      {"GroupType", {Bind(&T::GroupType), Bind(&T::SetGroupType)}},
      {"Item", {Bind(&T::Item), {}}},
      {"Key", {Bind(&T::Key), Bind(&T::SetKey)}},
      {"LockedToParent", {Bind(&T::LockedToParent), Bind(&T::SetLockedToParent)}},
      {"ObjectType", {Bind(&T::ObjectType), {}}},
      {"Parent", {Bind(&T::Parent), Bind(&T::SetParent)}},
      {"ParentWorldtimeT0Changed", {Bind(&T::ParentWorldtimeT0Changed), {}}},
      {"Remove", {Bind(&T::Remove), {}}},
      {"SpansTime", {Bind(&T::SpansTime, {true}), {}}},
      {"Tag", {Bind(&T::Tag), Bind(&T::SetTag)}},
      {"WorldTimeT0", {Bind(&T::WorldTimeT0), Bind(&T::SetWorldTimeT0)}},
      {"offset", {Bind(&T::offset), Bind(&T::SetOffset)}},
  };
  return kMembers;
}

const Members& MediaMembers() {
  using T = CMURTimelineMedia;
  static const Members kMembers = [] {
    Members members = ObjectMembers();
    members.insert({
        {"CutIn", {Bind(&T::CutIn), Bind(&T::SetCutIn)}},
        {"CutOut", {Bind(&T::CutOut), Bind(&T::SetCutOut)}},
        {"MediaDuration", {Bind(&T::MediaDuration), Bind(&T::SetMediaDuration)}},
        {"MediaFilename", {Bind(&T::MediaFilename), Bind(&T::SetMediaFilename)}},
        {"UseClipping", {Bind(&T::UseClipping), Bind(&T::SetUseClipping)}},
    });
    return members;
  }();
  return kMembers;
}

const Members& ConfigMembers() {
  using T = CMURTLRenderConfig;
  static const Members kMembers = {
      {"BackColor", {Bind(&T::BackColor), Bind(&T::SetBackColor)}},
      {"ForeColor", {Bind(&T::ForeColor), Bind(&T::SetForeColor)}},
      {"HighlightColor", {Bind(&T::HighlightColor), Bind(&T::SetHighlightColor)}},
  };
  return kMembers;
}

const Members& SinkMembers() {
  using T = IMURTLObjectEventSink;
  static const Members kMembers = {
      {"ObjectAdopted", {Bind(&T::ObjectAdopted), {}}},
      {"ObjectOrphaned", {Bind(&T::ObjectOrphaned), {}}},
      {"ObjectPropertyChanged", {Bind(&T::ObjectPropertyChanged), {}}},
  };
  return kMembers;
}

void FreeAll(Object& ObjectA) {
  if (auto* timeline = dynamic_cast<CMURTimeline*>(&ObjectA)) {
    for (std::int32_t i = 1; i <= timeline->Count(); ++i) FreeTree(timeline->Item(i));
    timeline->Clear();
  } else if (auto* object = dynamic_cast<IMURTimelineObject*>(&ObjectA)) {
    FreeTree(Ref<IMURTimelineObject>(object));
  }
}

}  // namespace

CoreDriver::~CoreDriver() {
  mConnections.clear();
  for (const auto& object : mCreated) FreeAll(*object);
}

Ref<Object> CoreDriver::Create(const std::string& ClassA) {
  static const std::map<std::string, Ref<Object> (*)()> kClasses = {
      {"timeline", [] { return Ref<Object>(Make<CMURTimeline>()); }},
      {"group", [] { return Ref<Object>(Make<CMURTimelineGroup>()); }},
      {"scalar", [] { return Ref<Object>(Make<CMURTimelineScalar>()); }},
      {"media", [] { return Ref<Object>(Make<CMURTimelineMedia>()); }},
      {"config", [] { return Ref<Object>(Make<CMURTLRenderConfig>()); }},
      {"sink", [] { return Ref<Object>(Make<HostSink>()); }},
  };
  const auto found = kClasses.find(ClassA);
  if (found == kClasses.end()) throw std::invalid_argument("unknown class " + ClassA);
  return mCreated.emplace_back(found->second());
}

Variant CoreDriver::Invoke(const Ref<Object>& ObjectA, const std::string& MemberA,
                           const Arguments& ArgumentsA) {
  Variant result = Find(*ObjectA, MemberA).invoke(*ObjectA, ArgumentsA);
  // What was removed from its container must be freed at the end as well.
  if (const auto* object = result.As<Ref<Object>>(); object && *object) mCreated.push_back(*object);
  return result;
}

void CoreDriver::Put(const Ref<Object>& ObjectA, const std::string& MemberA, const Arguments& ArgumentsA) {
  const auto& put = Find(*ObjectA, MemberA).put;
  if (!put) throw std::invalid_argument(MemberA + " cannot be put");
  put(*ObjectA, ArgumentsA);
}

void CoreDriver::Listen(const Ref<Object>& ObjectA, const Listener& ListenerA) {
  if (auto* sink = dynamic_cast<HostSink*>(ObjectA.Get())) {
    sink->listener = ListenerA;
  } else if (auto* timeline = dynamic_cast<CMURTimeline*>(ObjectA.Get())) {
    ListenTo(timeline->Clearing, "Clearing", ListenerA);
    ListenTo(timeline->Cleared, "Cleared", ListenerA);
    ListenTo(timeline->PropertyChanged, "PropertyChanged", ListenerA);
    ListenTo(timeline->TLObjectAdded, "TLObjectAdded", ListenerA);
    ListenTo(timeline->TLObjectRemoved, "TLObjectRemoved", ListenerA);
    ListenTo(timeline->TLObjectAdopted, "TLObjectAdopted", ListenerA);
    ListenTo(timeline->TLObjectOrphaned, "TLObjectOrphaned", ListenerA);
    ListenTo(timeline->TLObjectPropertyChanged, "TLObjectPropertyChanged", ListenerA);
  } else {
    throw std::invalid_argument("this object has no events");
  }
}

std::vector<Variant> CoreDriver::Enumerate(const Ref<Object>& ObjectA) {
  auto walk = dynamic_cast<CMURTimeline&>(*ObjectA).NewEnum();
  std::vector<Variant> met;
  while (const auto member = walk.Next()) met.push_back(member);
  return met;
}

void CoreDriver::Resize(const Ref<Object>& /*ObjectA*/, double /*WidthA*/, double /*HeightA*/) {
  throw std::invalid_argument("this object has no size");
}

void CoreDriver::Point(const Ref<Object>& /*ObjectA*/, const std::string& /*PartA*/,
                       const std::string& /*ActionA*/, const PointerInput& /*InputA*/) {
  throw std::invalid_argument("this object takes no pointer");
}

void CoreDriver::Drag(const Ref<Object>& /*ObjectA*/, const std::string& /*PartA*/,
                      const std::string& /*ActionA*/, const DragInput& /*InputA*/) {
  throw std::invalid_argument("nothing can be dragged over this object");
}

const Members* CoreDriver::MembersOf(const Object& ObjectA) const {
  if (dynamic_cast<const CMURTimeline*>(&ObjectA)) return &TimelineMembers();
  if (dynamic_cast<const CMURTimelineMedia*>(&ObjectA)) return &MediaMembers();
  if (dynamic_cast<const IMURTimelineObject*>(&ObjectA)) return &ObjectMembers();
  if (dynamic_cast<const CMURTLRenderConfig*>(&ObjectA)) return &ConfigMembers();
  if (dynamic_cast<const HostSink*>(&ObjectA)) return &SinkMembers();
  return nullptr;
}

const binding::Member& CoreDriver::Find(const Object& ObjectA, const std::string& MemberA) const {
  const Members* members = MembersOf(ObjectA);
  if (!members) throw std::invalid_argument("an object of an unknown class");
  const auto found = members->find(MemberA);
  if (found == members->end()) throw std::invalid_argument("unknown member " + MemberA);
  return found->second;
}

}  // namespace mur::test
