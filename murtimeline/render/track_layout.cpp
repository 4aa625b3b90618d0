#include <murtimeline/automation/guard.h>
#include <murtimeline/automation/narrow.h>
#include <murtimeline/render/object_walks.h>
#include <murtimeline/render/track_layout.h>

namespace mur {

float TrackLayout::ComputeTrackTop(const Ref<IMURTimelineObject>& ObjectA) {
  const SharedText key = GetRootObject(ObjectA)->KeyText();
  const Ref<CMURTimeline> timeline = mState.timeline;
  const std::size_t track = timeline ? timeline->TrackPosition(key.View()) : 0;
  return track == 0 ? 0 : TopOfTrack(*timeline, static_cast<std::size_t>(Narrow<std::int16_t>(track)));
}

float TrackLayout::ComputeTrackHeight(const Ref<IMURTimelineObject>& ObjectA) const {
  int rows = 1;  // a track key without an object takes one row
  ResumeNext([&] {
    if (ObjectA) rows = GetSubtreeDepth(GetRootObject(ObjectA));
  });
  return RowStep() * static_cast<float>(rows - 1) + mState.barHeight;
}

float TrackLayout::TopOfTrack(const CMURTimeline& TimelineA, std::size_t TrackA) {
  const Basis basis{&TimelineA, ShapeRevision(), mState.barHeight, mState.barSeparation,
                    mState.trackSeparation};
  if (basis != mBasis) mTops.assign(1, 0.0f);
  mBasis = basis;
  bool lasting = true;
  while (mTops.size() < TrackA) {
    const String key = TimelineA.TrackKey(static_cast<std::int32_t>(mTops.size()));
    const Ref<IMURTimelineObject> object = TimelineA.ItemByKey(key);
    lasting = lasting && WatchUpwards(object);
    const float height = ComputeTrackHeight(object);
    mTops.push_back(mTops.back() + (height + mState.trackSeparation));
  }
  const float top = mTops[TrackA - 1];
  if (!lasting) mBasis = Basis();
  return top;
}

// Whether the object and all above it will say when their depths or parents change.
bool TrackLayout::WatchUpwards(const Ref<IMURTimelineObject>& ObjectA) const {
  if (!ObjectA) return true;
  bool watched = false;
  ResumeNext([&] {
    const Ref<IMURTimelineObject> root = GetRootObject(ObjectA);  // throws for a ring
    bool willSay = true;
    for (Ref<IMURTimelineObject> object = ObjectA; object && willSay; object = object->Parent())
      willSay = object->WatchShape();
    watched = willSay && root->KnownSubtreeDepth().has_value();
  });
  return watched;
}

}  // namespace mur
