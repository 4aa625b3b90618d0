#pragma once

#include <optional>

#include <murtimeline/automation/export.h>
#include <murtimeline/render/companions/held_buttons.h>
#include <murtimeline/render/companions/scroll_interface.h>
#include <murtimeline/render/companions/time_scale_marker.h>
#include <murtimeline/render/port/pointer_input.h>

namespace mur {

class MURTimelineScroll;

/// Turns what a face reports of the pointer into the events of a time scale, and moves the scale's cursor.
///
/// Markers come before the scale. What is pressed first is the subject of all reports up to the last release.
/// When a marker goes meanwhile, it is told one last release, and nothing else is reported until all buttons
/// are up.
///
/// The left button takes the cursor along. Events come first: where the cursor goes is what listeners leave
/// of X, and it stays where it is when they take the left bit off Button. Then the new time is told by
/// CursorTimeChanging, and at the end of the gesture by CursorTimeChanged.
class MUR_API ScalePointer {
 public:
  /// `ScrollA` owns this.
  explicit ScalePointer(MURTimelineScroll& ScrollA) : mScroll(ScrollA) {}

  void Press(const PointerInput& InputA, bool IsDoubleA);
  void Move(const PointerInput& InputA);
  void Release(const PointerInput& InputA);
  void Leave();
  void Lose();

  bool IsDragging() const { return mTaken.has_value(); }
  /// See MURTimelineScroll::CancelDrag.
  bool Cancel();
  /// The marker under the pointer or, while a button is held, the one that was pressed.
  Ref<TimeScaleMarker> Highlighted() const;

 private:
  /// What the reports are about: a marker or, without one, the scale.
  struct Subject {
    Ref<TimeScaleMarker> marker;
    bool isGone = false;  // the marker was removed under a held button
  };

  Subject SubjectAt(PointF AtA) const;
  void TellIfGone();
  void EndGesture();
  bool IsOn(const Subject& SubjectA, PointF AtA) const;
  PointerInput Raise(const ITimelineScroll::PointerEvent& ScaleA,
                     const ITimelineScroll::MarkerPointerEvent& MarkerA, const Subject& SubjectA,
                     const PointerInput& InputA) const;
  void RaiseClick(const Subject& SubjectA, bool IsDoubleA) const;
  void DragTo(float XA);
  void ShowState();

  MURTimelineScroll& mScroll;
  Subject mSubject;  // of the presses, while a button is held
  HeldButtons mButtons;
  PointerInput mLast;                       // where the pointer is
  bool mIsOver = false;                     // the pointer is over the scale
  std::optional<Date> mTaken;               // where the cursor was taken up, while it is dragged
  const TimeScaleMarker* mShown = nullptr;  // the highlight that the host knows of; to compare only
};

}  // namespace mur
