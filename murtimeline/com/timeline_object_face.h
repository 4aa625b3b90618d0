#pragma once

#include <murtimeline/com/call.h>
#include <murtimeline/com/dispatcher.h>
#include <murtimeline/com/face.h>

namespace mur::com {

/// A timeline object as hosts see it. Class and interface have members of the same names; one implementation
/// serves both.
template <class Default>
class TimelineObjectFace : public Face<DispatchOn<Default>, DispatchOn<ComTimelineObject>> {
  using Base = Face<DispatchOn<Default>, DispatchOn<ComTimelineObject>>;

 public:
  TimelineObjectFace(IMURTimelineObject& ObjectA, const CLSID& ClassA)
      : Base(ObjectA, ClassA), mCore(ObjectA) {}

  STDMETHODIMP get_Key(BSTR* ValueA) noexcept override {
    return Answer(ValueA, [&] { return mCore.Key(); });
  }
  STDMETHODIMP put_Key(BSTR ValueA) noexcept override {
    return Guarded([&] { mCore.SetKey(Taken(ValueA)); });
  }
  STDMETHODIMP get_Tag(BSTR* ValueA) noexcept override {
    return Answer(ValueA, [&] { return mCore.Tag(); });
  }
  STDMETHODIMP put_Tag(BSTR ValueA) noexcept override {
    return Guarded([&] { mCore.SetTag(Taken(ValueA)); });
  }
  STDMETHODIMP get_EventSink(ComEventSink** ValueA) noexcept override {
    return Answer(ValueA, [&] { return mCore.EventSink(); });
  }
  STDMETHODIMP putref_EventSink(ComEventSink* ValueA) noexcept override {
    return Guarded([&] { mCore.SetEventSink(SinkIn(ValueA)); });
  }
  STDMETHODIMP get_Parent(ComTimelineObject** ValueA) noexcept override {
    return Answer(ValueA, [&] { return mCore.Parent(); });
  }
  STDMETHODIMP putref_Parent(ComTimelineObject* ValueA) noexcept override {
    return Guarded([&] { mCore.SetParent(ObjectIn(ValueA)); });
  }
  STDMETHODIMP get_ObjectType(::MURTimelineObjectType* ValueA) noexcept override {
    return Answer(ValueA, [&] { return mCore.ObjectType(); });
  }
  STDMETHODIMP get_GroupType(::MURTimelineObjectType* ValueA) noexcept override {
    return Answer(ValueA, [&] { return mCore.GroupType(); });
  }
  STDMETHODIMP put_GroupType(::MURTimelineObjectType ValueA) noexcept override {
    return Guarded([&] { mCore.SetGroupType(static_cast<MURTimelineObjectType>(ValueA)); });
  }
  STDMETHODIMP Clear() noexcept override {
    return Guarded([&] { mCore.Clear(); });
  }
  STDMETHODIMP Free() noexcept override {
    return Guarded([&] { mCore.Free(); });
  }
  STDMETHODIMP AsString(BSTR IndentA, BSTR* ResultA) noexcept override {
    return Answer(ResultA, [&] { return mCore.AsString(Taken(IndentA)); });
  }
  STDMETHODIMP get_Count(short* ValueA) noexcept override {
    return Answer(ValueA, [&] { return mCore.Count(); });
  }
  STDMETHODIMP get_Item(VARIANT KeyIndexA, ComTimelineObject** ValueA) noexcept override {
    return Answer(ValueA, [&] { return mCore.Item(Taken(KeyIndexA)); });
  }
  STDMETHODIMP Add(ComTimelineObject** ChildA, BSTR KeyA) noexcept override {
    return Guarded([&] { mCore.Add(ObjectIn(Referred(ChildA)), Taken(KeyA)); });
  }
  STDMETHODIMP Remove(VARIANT KeyIndexA, ComTimelineObject** ResultA) noexcept override {
    return Answer(ResultA, [&] { return mCore.Remove(Taken(KeyIndexA)); });
  }
  STDMETHODIMP ParentWorldtimeT0Changed() noexcept override {
    return Guarded([&] { mCore.ParentWorldtimeT0Changed(); });
  }
  STDMETHODIMP get_Duration(double* ValueA) noexcept override {
    return Answer(ValueA, [&] { return mCore.Duration(); });
  }
  STDMETHODIMP put_Duration(double ValueA) noexcept override {
    return Guarded([&] { mCore.SetDuration(ValueA); });
  }
  STDMETHODIMP get_WorldTimeT0(DATE* ValueA) noexcept override {
    return Answer(ValueA, [&] { return mCore.WorldTimeT0(); });
  }
  STDMETHODIMP put_WorldTimeT0(DATE ValueA) noexcept override {
    return Guarded([&] { mCore.SetWorldTimeT0(Date::Unchecked(ValueA)); });
  }
  STDMETHODIMP get_offset(double* ValueA) noexcept override {
    return Answer(ValueA, [&] { return mCore.offset(); });
  }
  STDMETHODIMP put_offset(double ValueA) noexcept override {
    return Guarded([&] { mCore.SetOffset(ValueA); });
  }
  STDMETHODIMP get_LockedToParent(VARIANT_BOOL* ValueA) noexcept override {
    return Answer(ValueA, [&] { return mCore.LockedToParent(); });
  }
  STDMETHODIMP put_LockedToParent(VARIANT_BOOL ValueA) noexcept override {
    return Guarded([&] { mCore.SetLockedToParent(Taken(ValueA)); });
  }
  STDMETHODIMP SpansTime(DATE DateA, VARIANT_BOOL* IncludeBoundariesA,
                         VARIANT_BOOL* ResultA) noexcept override {
    return Answer(ResultA, [&] {
      return mCore.SpansTime(Date::Unchecked(DateA), !IncludeBoundariesA || Taken(*IncludeBoundariesA));
    });
  }

 private:
  IMURTimelineObject& mCore;
};

}  // namespace mur::com
