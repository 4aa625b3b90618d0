#include <murtimeline/automation/stack.h>
#include <murtimeline/com/host_object.h>
#include <murtimeline/com/known_hosts.h>

namespace mur::com {
namespace {

// Every call into a host's object: it may come back to us without end, and may drop the object meanwhile.
template <class Interface, class Call>
void Tell(const Ref<Interface>& ObjectA, Call&& CallA) {
  RequireStackSpace();
  const auto keep = ObjectA;
  RequireSuccess(CallA(*keep));
}

template <class Result, class Call>
Result Ask(const Ref<ComTimelineObject>& ObjectA, Call&& CallA) {
  Result result{};
  Tell(ObjectA, [&](ComTimelineObject& object) { return CallA(object, &result); });
  return result;
}

template <class Call>
String AskText(const Ref<ComTimelineObject>& ObjectA, Call&& CallA) {
  OwnText text;
  Tell(ObjectA, [&](ComTimelineObject& object) { return CallA(object, &text); });
  return String(Taken(text.Get()));
}

template <class Call>
Ref<IMURTimelineObject> AskObject(const Ref<ComTimelineObject>& ObjectA, Call&& CallA) {
  return ObjectIn(TakeOver(Ask<ComTimelineObject*>(ObjectA, CallA)).Get());
}

OwnVariant Given(const Variant& ValueA) {
  OwnVariant value;
  Give(ValueA, &value);
  return value;
}

}  // namespace

HostTimelineObject::HostTimelineObject(Ref<ComTimelineObject> ObjectA, IUnknown* IdentityA)
    : mObject(std::move(ObjectA)), mIdentity(IdentityA) {}

HostTimelineObject::~HostTimelineObject() {
  ForgetHost(mIdentity.Get(), this);
}

String HostTimelineObject::Key() const {
  return AskText(mObject, [](auto& object, BSTR* result) { return object.get_Key(result); });
}

void HostTimelineObject::SetKey(StringView KeyA) {
  const OwnText key(KeyA);
  Tell(mObject, [&](auto& object) { return object.put_Key(key.Get()); });
}

String HostTimelineObject::Tag() const {
  return AskText(mObject, [](auto& object, BSTR* result) { return object.get_Tag(result); });
}

void HostTimelineObject::SetTag(StringView TagA) {
  const OwnText tag(TagA);
  Tell(mObject, [&](auto& object) { return object.put_Tag(tag.Get()); });
}

Ref<IMURTLObjectEventSink> HostTimelineObject::EventSink() const {
  return SinkIn(TakeOver(Ask<ComEventSink*>(mObject, [](auto& object, ComEventSink** result) {
                  return object.get_EventSink(result);
                })).Get());
}

void HostTimelineObject::SetEventSink(const Ref<IMURTLObjectEventSink>& SinkA) {
  const auto sink = SinkOut(SinkA);
  Tell(mObject, [&](auto& object) { return object.putref_EventSink(sink.Get()); });
}

Ref<IMURTimelineObject> HostTimelineObject::Parent() const {
  return AskObject(mObject,
                   [](auto& object, ComTimelineObject** result) { return object.get_Parent(result); });
}

void HostTimelineObject::SetParent(const Ref<IMURTimelineObject>& ParentA) {
  const auto parent = ObjectOut(ParentA);
  Tell(mObject, [&](auto& object) { return object.putref_Parent(parent.Get()); });
}

MURTimelineObjectType HostTimelineObject::ObjectType() const {
  return static_cast<MURTimelineObjectType>(Ask<::MURTimelineObjectType>(
      mObject, [](auto& object, ::MURTimelineObjectType* result) { return object.get_ObjectType(result); }));
}

MURTimelineObjectType HostTimelineObject::GroupType() const {
  return static_cast<MURTimelineObjectType>(Ask<::MURTimelineObjectType>(
      mObject, [](auto& object, ::MURTimelineObjectType* result) { return object.get_GroupType(result); }));
}

void HostTimelineObject::SetGroupType(MURTimelineObjectType GroupTypeA) {
  Tell(mObject,
       [&](auto& object) { return object.put_GroupType(static_cast<::MURTimelineObjectType>(GroupTypeA)); });
}

void HostTimelineObject::Clear() {
  Tell(mObject, [](auto& object) { return object.Clear(); });
}

void HostTimelineObject::Free() {
  Tell(mObject, [](auto& object) { return object.Free(); });
}

String HostTimelineObject::AsString(StringView IndentA) const {
  const OwnText indent(IndentA);
  return AskText(mObject, [&](auto& object, BSTR* result) { return object.AsString(indent.Get(), result); });
}

std::int16_t HostTimelineObject::Count() const {
  return Ask<short>(mObject, [](auto& object, short* result) { return object.get_Count(result); });
}

Ref<IMURTimelineObject> HostTimelineObject::Item(const Variant& KeyIndexA) const {
  const auto key = Given(KeyIndexA);
  return AskObject(
      mObject, [&](auto& object, ComTimelineObject** result) { return object.get_Item(key.Get(), result); });
}

void HostTimelineObject::Add(const Ref<IMURTimelineObject>& ChildA, StringView KeyA) {
  const auto child = ObjectOut(ChildA);
  const OwnText key(KeyA);
  ComTimelineObject* passed = child.Get();
  Tell(mObject, [&](auto& object) { return object.Add(&passed, key.Get()); });
}

Ref<IMURTimelineObject> HostTimelineObject::Remove(const Variant& KeyIndexA) {
  const auto key = Given(KeyIndexA);
  return AskObject(
      mObject, [&](auto& object, ComTimelineObject** result) { return object.Remove(key.Get(), result); });
}

void HostTimelineObject::ParentWorldtimeT0Changed() {
  Tell(mObject, [](auto& object) { return object.ParentWorldtimeT0Changed(); });
}

double HostTimelineObject::Duration() const {
  return Ask<double>(mObject, [](auto& object, double* result) { return object.get_Duration(result); });
}

void HostTimelineObject::SetDuration(double DurationA) {
  Tell(mObject, [&](auto& object) { return object.put_Duration(DurationA); });
}

Date HostTimelineObject::WorldTimeT0() const {
  return Date::Unchecked(
      Ask<DATE>(mObject, [](auto& object, DATE* result) { return object.get_WorldTimeT0(result); }));
}

void HostTimelineObject::SetWorldTimeT0(Date WorldTimeT0A) {
  Tell(mObject, [&](auto& object) { return object.put_WorldTimeT0(WorldTimeT0A.Days()); });
}

double HostTimelineObject::offset() const {
  return Ask<double>(mObject, [](auto& object, double* result) { return object.get_offset(result); });
}

void HostTimelineObject::SetOffset(double OffsetA) {
  Tell(mObject, [&](auto& object) { return object.put_offset(OffsetA); });
}

bool HostTimelineObject::LockedToParent() const {
  return Taken(Ask<VARIANT_BOOL>(
      mObject, [](auto& object, VARIANT_BOOL* result) { return object.get_LockedToParent(result); }));
}

void HostTimelineObject::SetLockedToParent(bool LockedToParentA) {
  const VARIANT_BOOL locked = LockedToParentA ? VARIANT_TRUE : VARIANT_FALSE;
  Tell(mObject, [&](auto& object) { return object.put_LockedToParent(locked); });
}

bool HostTimelineObject::SpansTime(Date DateA, bool IncludeBoundariesA) const {
  VARIANT_BOOL include = IncludeBoundariesA ? VARIANT_TRUE : VARIANT_FALSE;
  return Taken(Ask<VARIANT_BOOL>(mObject, [&](auto& object, VARIANT_BOOL* result) {
    return object.SpansTime(DateA.Days(), &include, result);
  }));
}

HostEventSink::HostEventSink(Ref<ComEventSink> SinkA, IUnknown* IdentityA)
    : mSink(std::move(SinkA)), mIdentity(IdentityA) {}

HostEventSink::~HostEventSink() {
  ForgetHost(mIdentity.Get(), this);
}

void HostEventSink::ObjectAdopted(const Ref<IMURTimelineObject>& ParentA,
                                  const Ref<IMURTimelineObject>& ChildA) {
  const auto parent = ObjectOut(ParentA), child = ObjectOut(ChildA);
  ComTimelineObject *parentPassed = parent.Get(), *childPassed = child.Get();
  Tell(mSink, [&](auto& sink) { return sink.ObjectAdopted(&parentPassed, &childPassed); });
}

void HostEventSink::ObjectOrphaned(const Ref<IMURTimelineObject>& ParentA,
                                   const Ref<IMURTimelineObject>& ChildA) {
  const auto parent = ObjectOut(ParentA), child = ObjectOut(ChildA);
  ComTimelineObject *parentPassed = parent.Get(), *childPassed = child.Get();
  Tell(mSink, [&](auto& sink) { return sink.ObjectOrphaned(&parentPassed, &childPassed); });
}

void HostEventSink::ObjectPropertyChanged(const Ref<IMURTimelineObject>& ObjectA, StringView PropertyNameA,
                                          const Variant& ValueA) {
  const auto object = ObjectOut(ObjectA);
  ComTimelineObject* passed = object.Get();
  const OwnText name(PropertyNameA);
  const auto value = Given(ValueA);
  Tell(mSink, [&](auto& sink) { return sink.ObjectPropertyChanged(&passed, name.Get(), value.Get()); });
}

}  // namespace mur::com
