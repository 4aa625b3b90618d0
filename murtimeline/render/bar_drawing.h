#pragma once

#include <murtimeline/render/captions.h>
#include <murtimeline/render/render_configs.h>
#include <murtimeline/render/track_layout.h>

namespace mur {

/// Keeps the canvas's items in step with the objects they stand for. No routine raises unless it says so:
/// those that work on one item end quietly at the first failing call, a missing item included.
class BarDrawing {
 public:
  explicit BarDrawing(RenderState& StateA) : mState(StateA), mCaptions(StateA), mTracks(StateA) {}

  RenderConfigs& Configs() { return mConfigs; }
  const RenderConfigs& Configs() const { return mConfigs; }

  /// The canvas's item of the object; none when there is none. A failing key or look-up reaches the caller.
  Ref<ICanvasItem> ItemOf(const IMURTimelineObject& ObjectA) const;

  /// A bar for a new object, on its row, in its colours, with its tag at the middle site. It gets no extent
  /// in time, no automatic captions and no tool tip yet: those come with the next full repaint or change.
  void AddBar(const Ref<IMURTimelineObject>& ObjectA);
  /// Puts the bars of the object and of all below it on their rows. Whatever hangs below an object without a
  /// bar is left alone.
  void PlaceObjectItemTree(const Ref<IMURTimelineObject>& ObjectA, int LevelA);
  /// Gives the bar the width of a duration in seconds.
  void UpdateItemSpan(const IMURTimelineObject& ObjectA, double DurationA);
  /// Puts the bar's left edge at a start.
  void UpdateItemLeft(const IMURTimelineObject& ObjectA, Date StartA);
  /// Both of these for every object of the time line.
  void ReplaceAllBars();

  /// Writes the automatic captions of all sites anew.
  void RefreshCaptions(const IMURTimelineObject& ObjectA);
  void RefreshTooltip(const IMURTimelineObject& ObjectA);
  /// The object's colours, from the configuration of its kind. A failure of the item reaches the caller.
  void RefreshColors(const IMURTimelineObject& ObjectA);

 private:
  void ColorItem(const IMURTimelineObject& ObjectA, ICanvasItem& ItemA) const;
  void SpanItem(const IMURTimelineObject& ObjectA, ICanvasItem& ItemA, double DurationA) const;
  void SpanAndMoveItem(const IMURTimelineObject& ObjectA, ICanvasItem& ItemA) const;
  void MoveItem(ICanvasItem& ItemA, Date StartA) const;
  Ref<ICanvasItem> PlaceItem(const Ref<IMURTimelineObject>& ObjectA, int LevelA);
  float XOf(double SecondsA) const { return mState.companions.timeMapper->SecondsToX(SecondsA); }

  RenderState& mState;
  Captions mCaptions;
  TrackLayout mTracks;
  RenderConfigs mConfigs;
};

}  // namespace mur
