#pragma once

#include <vector>

#include <murtimeline/render/render_state.h>

namespace mur {

/// Where tracks lie, one below the other, each as high as the bar rows of its deepest object. Tops are kept
/// until something that they depend on moves; sums are formed in single precision from the first track on, so
/// that every way to a top gives the same bits.
class TrackLayout {
 public:
  explicit TrackLayout(const RenderState& StateA) : mState(StateA) {}

  /// The top of the track that holds the object, canvas units; 0 for an object outside every track. Throws
  /// Overflow beyond track 32,767.
  float ComputeTrackTop(const Ref<IMURTimelineObject>& ObjectA);
  /// The height of the object's track.
  float ComputeTrackHeight(const Ref<IMURTimelineObject>& ObjectA) const;
  /// The distance from one bar row to the next.
  float RowStep() const { return mState.barHeight + mState.barSeparation; }

 private:
  struct Basis {
    const CMURTimeline* timeline = nullptr;
    std::uint64_t revision = 0;
    float barHeight = 0, barSeparation = 0, trackSeparation = 0;
    friend bool operator==(const Basis&, const Basis&) = default;
  };

  float TopOfTrack(const CMURTimeline& TimelineA, std::size_t TrackA);
  bool WatchUpwards(const Ref<IMURTimelineObject>& ObjectA) const;

  const RenderState& mState;
  Basis mBasis;
  std::vector<float> mTops;  // of the first tracks, as far as they were asked for
};

}  // namespace mur
