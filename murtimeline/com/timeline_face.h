#pragma once

#include <vector>

#include <murtimeline/com/call.h>
#include <murtimeline/com/dispatcher.h>
#include <murtimeline/com/event_source.h>
#include <murtimeline/model/timeline.h>

namespace mur::com {

/// A time line as hosts see it: its members, its events, and the sink that it is for its members.
class TimelineFace final : public Face<DispatchOn<ComTimeline>, DispatchOn<ComEventSink>>,
                           private EventSource::Owner {
 public:
  explicit TimelineFace(CMURTimeline& TimelineA);

  STDMETHODIMP Specifics_AsString(BSTR IndentA, VARIANT* ResultA) noexcept override {
    return Answer(ResultA, [&] { return mTimeline.Specifics_AsString(Taken(IndentA)); });
  }
  STDMETHODIMP get_Duration(double* ValueA) noexcept override {
    return Answer(ValueA, [&] { return mTimeline.Duration(); });
  }
  STDMETHODIMP put_Duration(double ValueA) noexcept override {
    return Guarded([&] { mTimeline.SetDuration(ValueA); });
  }
  STDMETHODIMP get_WorldTimeT0(DATE* ValueA) noexcept override {
    return Answer(ValueA, [&] { return mTimeline.WorldTimeT0(); });
  }
  STDMETHODIMP put_WorldTimeT0(DATE ValueA) noexcept override {
    return Guarded([&] { mTimeline.SetWorldTimeT0(Date::Unchecked(ValueA)); });
  }
  STDMETHODIMP get_NTrackKeys(short* ValueA) noexcept override {
    return Answer(ValueA, [&] { return mTimeline.NTrackKeys(); });
  }
  STDMETHODIMP get_TrackKey(VARIANT KeyIndexA, BSTR* ValueA) noexcept override {
    return Answer(ValueA, [&] { return mTimeline.TrackKey(Taken(KeyIndexA)); });
  }
  STDMETHODIMP AddTrackKey(BSTR KeyA, VARIANT* ResultA) noexcept override {
    return Answer(ResultA, [&] { return mTimeline.AddTrackKey(Taken(KeyA)); });
  }
  STDMETHODIMP RemoveTrackKey(VARIANT KeyIndexA) noexcept override {
    return Guarded([&] { mTimeline.RemoveTrackKey(Taken(KeyIndexA)); });
  }
  STDMETHODIMP get_AutoID(long* ValueA) noexcept override {
    return Answer(ValueA, [&] { return mTimeline.AutoID(); });
  }
  STDMETHODIMP put_AutoID(long ValueA) noexcept override {
    return Guarded([&] { mTimeline.SetAutoID(ValueA); });
  }
  STDMETHODIMP get_Tag(BSTR* ValueA) noexcept override {
    return Answer(ValueA, [&] { return mTimeline.Tag(); });
  }
  STDMETHODIMP put_Tag(BSTR ValueA) noexcept override {
    return Guarded([&] { mTimeline.SetTag(Taken(ValueA)); });
  }
  STDMETHODIMP get_Count(long* ValueA) noexcept override {
    return Answer(ValueA, [&] { return mTimeline.Count(); });
  }
  STDMETHODIMP get_Item(VARIANT* vntIndexKey, ComTimelineObject** ValueA) noexcept override {
    return Answer(ValueA, [&] { return mTimeline.Item(Taken(Referred(vntIndexKey))); });
  }
  STDMETHODIMP get_NewEnum(IUnknown** ValueA) noexcept override;
  STDMETHODIMP Clear() noexcept override {
    return Guarded([&] { mTimeline.Clear(); });
  }
  STDMETHODIMP AsString(BSTR IndentA, VARIANT* ResultA) noexcept override {
    return Answer(ResultA, [&] { return mTimeline.AsString(Taken(IndentA)); });
  }
  STDMETHODIMP EnumerateProperties() noexcept override {
    return Guarded([&] { mTimeline.EnumerateProperties(); });
  }
  STDMETHODIMP Remove(VARIANT* vntIndexKey) noexcept override {
    return Guarded([&] { mTimeline.Remove(Taken(Referred(vntIndexKey))); });
  }
  STDMETHODIMP Add(::MURTimelineObjectType ObjectTypeA, VARIANT* sKey, VARIANT_BOOL IsTrackA,
                   ComTimelineObject** ResultA) noexcept override {
    return Answer(ResultA, [&] {
      return mTimeline.Add(static_cast<MURTimelineObjectType>(ObjectTypeA), TakenOptional(sKey),
                           Taken(IsTrackA));
    });
  }
  STDMETHODIMP Insert(ComTimelineObject** MemberA, VARIANT* sKey, VARIANT_BOOL* ResultA) noexcept override {
    return Answer(ResultA,
                  [&] { return mTimeline.Insert(ObjectIn(Referred(MemberA)), TakenOptional(sKey)); });
  }

  STDMETHODIMP ObjectAdopted(ComTimelineObject** ParentA, ComTimelineObject** ChildA) noexcept override {
    return Guarded([&] { mTimeline.ObjectAdopted(ObjectIn(Referred(ParentA)), ObjectIn(Referred(ChildA))); });
  }
  STDMETHODIMP ObjectOrphaned(ComTimelineObject** ParentA, ComTimelineObject** ChildA) noexcept override {
    return Guarded(
        [&] { mTimeline.ObjectOrphaned(ObjectIn(Referred(ParentA)), ObjectIn(Referred(ChildA))); });
  }
  STDMETHODIMP ObjectPropertyChanged(ComTimelineObject** ObjectA, BSTR PropertyNameA,
                                     VARIANT ValueA) noexcept override {
    return Guarded([&] {
      mTimeline.ObjectPropertyChanged(ObjectIn(Referred(ObjectA)), Taken(PropertyNameA), Taken(ValueA));
    });
  }

 private:
  IUnknown* Further(REFIID InterfaceA) noexcept override;
  IID Source() const noexcept override;
  void ListenersCame() override;
  void ListenersWent() override { mConnections.clear(); }

  CMURTimeline& mTimeline;
  EventSource mEvents;
  std::vector<Connection> mConnections;
};

}  // namespace mur::com
