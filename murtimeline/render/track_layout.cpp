#include <murtimeline/automation/guard.h>
#include <murtimeline/automation/narrow.h>
#include <murtimeline/render/object_walks.h>
#include <murtimeline/render/track_layout.h>

namespace mur {

float TrackLayout::ComputeTrackTop(const Ref<IMURTimelineObject>& ObjectA) {
  String scratch;
  const Ref<IMURTimelineObject> root = GetRootObject(ObjectA);
  const std::size_t track = mState.timeline->TrackPosition(root->KeyView(scratch));
  return track == 0 ? 0 : TopOfTrack(static_cast<std::size_t>(Narrow<std::int16_t>(track)));
}

float TrackLayout::ComputeTrackHeight(const Ref<IMURTimelineObject>& ObjectA) const {
  int rows = 1;  // a track key without an object takes one row
  ResumeNext([&] {
    if (ObjectA) rows = GetSubtreeDepth(GetRootObject(ObjectA));
  });
  return RowStep() * static_cast<float>(rows - 1) + mState.barHeight;
}

float TrackLayout::TopOfTrack(std::size_t TrackA) {
  const Basis basis{mState.timeline.Get(), ShapeRevision(), mState.barHeight, mState.barSeparation,
                    mState.trackSeparation};
  if (basis != mBasis) mTops.assign(1, 0.0f);
  mBasis = basis;
  bool lasting = true;
  while (mTops.size() < TrackA) {
    const String key = mState.timeline->TrackKey(static_cast<std::int32_t>(mTops.size()));
    const Ref<IMURTimelineObject> object = mState.timeline->ItemByKey(key);
    lasting = lasting && WatchUpwards(object);
    mTops.push_back(mTops.back() + (ComputeTrackHeight(object) + mState.trackSeparation));
  }
  const float top = mTops[TrackA - 1];
  if (!lasting) mBasis = Basis();
  return top;
}

// Whether the object and all above it will say when their depths or parents change.
bool TrackLayout::WatchUpwards(const Ref<IMURTimelineObject>& ObjectA) const {
  bool watched = true;
  ResumeNext([&] {
    if (!ObjectA) return;
    const Ref<IMURTimelineObject> root = GetRootObject(ObjectA);  // throws for a ring
    for (Ref<IMURTimelineObject> object = ObjectA; object && watched; object = object->Parent())
      watched = object->WatchShape();
    watched = watched && root->KnownSubtreeDepth().has_value();
  });
  return watched;
}

}  // namespace mur
