#pragma once

#include <murtimeline/automation/export.h>
#include <murtimeline/model/timeline.h>

namespace mur {

/// Frees an object and everything below it. Parents and children hold each other, and a group that is freed
/// only drops its children; this breaks every such cycle.
MUR_API void FreeTree(const Ref<IMURTimelineObject>& RootA);

/// A time line for ordinary C++ code: when it goes out of scope, the time line is cleared and every object
/// that hung below its members is freed, so that nothing leaks.
class MUR_API OwnedTimeline {
 public:
  OwnedTimeline() : mTimeline(Make<CMURTimeline>()) {}
  OwnedTimeline(OwnedTimeline&&) noexcept = default;
  OwnedTimeline& operator=(OwnedTimeline&& OtherA) noexcept;
  ~OwnedTimeline();

  CMURTimeline& operator*() const { return *mTimeline; }
  CMURTimeline* operator->() const { return mTimeline.Get(); }
  const Ref<CMURTimeline>& Get() const { return mTimeline; }

 private:
  void FreeAll();

  Ref<CMURTimeline> mTimeline;
};

}  // namespace mur
