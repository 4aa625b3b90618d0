#pragma once

#include <cmath>

#include <murtimeline/model/timeline_owner.h>
#include <murtimeline/render/port/scripted_host.h>
#include <murtimeline/render/timeline_render.h>

#include "tests/support/recording_canvas.h"
#include "tests/support/recording_scroller.h"
#include "tests/support/recording_times.h"

namespace mur::test {

inline const Date kNoon = DateOf(2000, 1, 1, 12);

/// A whole number of seconds after noon.
inline Date At(int SecondsA) {
  return DateOf(2000, 1, 1, 12, 0, SecondsA);
}

/// A control on a host in memory whose canvas is 1000 x 200 pixels. The clock stands at noon.
struct BareControl {
  explicit BareControl(Companions CompanionsA = {}) : control(Make<MURTimelineRender>(host, CompanionsA)) {
    host.CanvasHost().Move(0, 0, 1000 * ChildHost::kTwipsPerPixel, 200 * ChildHost::kTwipsPerPixel);
  }

  MURTimelineRender* operator->() const { return control.Get(); }
  IGraphicCanvas& Canvas() const { return *control->Collaborators().canvas; }
  ITimelineScroll& Scroller() const { return *control->Collaborators().scroller; }
  Ref<ICanvasItem> Item(StringView KeyA) const { return Canvas().GraphicByKey(KeyA); }

  FrozenClock clock{kNoon};
  ScriptedHost host;
  Ref<MURTimelineRender> control;
};

/// The same with a time line attached and the thousand seconds from noon shown: a pixel a second.
struct AttachedControl : BareControl {
  explicit AttachedControl(Companions CompanionsA = {}) : BareControl(CompanionsA) {
    control->SetTimeline(timeline.Get());
    control->SetDuration(1000);
  }

  Ref<IMURTimelineObject> Add(MURTimelineObjectType TypeA, StringView KeyA, bool IsTrackA = false) const {
    return timeline->Add(TypeA, Variant(KeyA), IsTrackA);
  }
  /// A member that is a child as well.
  Ref<IMURTimelineObject> AddBelow(const Ref<IMURTimelineObject>& ParentA, MURTimelineObjectType TypeA,
                                   StringView KeyA) const {
    auto child = Add(TypeA, KeyA);
    ParentA->Add(child, KeyA);
    return child;
  }
  float TopOf(StringView KeyA) const { return Item(KeyA)->Top(); }

  OwnedTimeline timeline;
};

/// Companions that note what is done to them.
struct RecordingCompanions {
  Companions All() const { return {canvas, scroller, mapper, timeText}; }

  CallLog log;
  Ref<RecordingCanvas> canvas = Make<RecordingCanvas>(log);
  Ref<RecordingScroller> scroller = Make<RecordingScroller>(log);
  Ref<RecordingMapper> mapper = Make<RecordingMapper>(log);
  Ref<PlainTimeText> timeText = Make<PlainTimeText>(log);
};

/// Counts what is raised.
template <class... Arguments>
class Counter {
 public:
  explicit Counter(Event<Arguments...>& EventA)
      : mConnection(EventA.Connect([this](Arguments...) { ++mCount; })) {}
  /// How often since the last call.
  int Take() { return std::exchange(mCount, 0); }

 private:
  int mCount = 0;
  Connection mConnection;
};

}  // namespace mur::test
