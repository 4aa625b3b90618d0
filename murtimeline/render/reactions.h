#pragma once

#include <vector>

#include <murtimeline/automation/event.h>
#include <murtimeline/render/time_axis.h>

namespace mur {

/// Keeps the canvas in step with the attached time line. How each handler treats a failing call differs by
/// contract: some end there, some go on, and the one for `Cleared` lets it reach the time line.
class TimelineReactions {
 public:
  /// `OwnerA` is kept alive while a handler runs, whatever the host does in it.
  TimelineReactions(const Object& OwnerA, RenderState& StateA, BarDrawing& DrawingA, TimeAxis& AxisA)
      : mOwner(OwnerA), mState(StateA), mDrawing(DrawingA), mAxis(AxisA) {}

  /// Listens to the time line of the state, and no longer to an earlier one.
  void Attach();
  void Detach() { mConnections.clear(); }

  void OnObjectAdded(const Variant& KeyIdxA);

 private:
  void OnCleared();
  void OnPropertyChanged(StringView PropNameA);
  void OnObjectRemoved(const Variant& KeyIdxA);
  void OnObjectAdopted(const Ref<IMURTimelineObject>& ParentA, const Ref<IMURTimelineObject>& ChildA);
  void OnObjectOrphaned(const Ref<IMURTimelineObject>& ParentA, const Ref<IMURTimelineObject>& ChildA);
  void OnObjectPropertyChanged(const Ref<IMURTimelineObject>& ObjectA, StringView PropNameA);

  // Connects a handler that keeps the owner.
  template <class... Arguments, class Handler>
  void Listen(Event<Arguments...>& EventA, Handler HandlerA) {
    mConnections.push_back(EventA.Connect([this, HandlerA](Arguments... arguments) {
      const Ref<const Object> keep(&mOwner);
      HandlerA(arguments...);
    }));
  }

  const Object& mOwner;
  RenderState& mState;
  BarDrawing& mDrawing;
  TimeAxis& mAxis;
  std::vector<Connection> mConnections;
};

}  // namespace mur
