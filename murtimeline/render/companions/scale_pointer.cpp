#include <cmath>
#include <utility>

#include <murtimeline/render/companions/scale_painter.h>
#include <murtimeline/render/companions/scale_pointer.h>
#include <murtimeline/render/companions/scroll_control.h>

namespace mur {

// State is settled before each event is raised: listeners may press, move and release themselves.

void ScalePointer::Press(const PointerInput& InputA, bool IsDoubleA) {
  const Ref<MURTimelineScroll> keep(&mScroll);
  if (!mButtons.Any()) mSubject = SubjectAt(InputA.at);
  mLast = InputA;
  mIsOver = true;
  mButtons.Press(InputA.button, IsDoubleA);
  TellIfGone();
  mScroll.Host().CapturePointer(true);
  const PointerInput left = Raise(mScroll.ScaleMouseDown, mScroll.MarkerMouseDown, Subject(mSubject), InputA);
  const bool takesUp = (left.button & kLeftButton) != 0 && mButtons.Has(kLeftButton);
  if (takesUp && !mSubject.marker && !mSubject.isGone) {
    if (!mTaken) mTaken = mScroll.CursorTime();
    DragTo(left.at.x);
  }
  ShowState();
}

void ScalePointer::Move(const PointerInput& InputA) {
  const Ref<MURTimelineScroll> keep(&mScroll);
  mLast = InputA;
  mIsOver = true;
  TellIfGone();
  const PointerInput left = Raise(mScroll.ScaleMouseMove, mScroll.MarkerMouseMove,
                                  mButtons.Any() ? Subject(mSubject) : SubjectAt(InputA.at), InputA);
  if (mTaken && (left.button & kLeftButton) != 0) DragTo(left.at.x);
  ShowState();
}

void ScalePointer::Release(const PointerInput& InputA) {
  const Ref<MURTimelineScroll> keep(&mScroll);
  if (!mButtons.Has(InputA.button)) return;
  mLast = InputA;
  TellIfGone();
  const Subject subject = mSubject;
  const bool isDouble = mButtons.IsDouble();
  const bool clicks = mButtons.Release(InputA.button);
  const bool endsDrag = mTaken && !mButtons.Has(kLeftButton);
  if (endsDrag) mTaken.reset();
  if (!mButtons.Any()) EndGesture();
  const PointerInput left = Raise(mScroll.ScaleMouseUp, mScroll.MarkerMouseUp, subject, InputA);
  if (endsDrag) {
    if ((left.button & kLeftButton) != 0) DragTo(left.at.x);
    mScroll.CursorTimeChanged.Raise();
  }
  if (clicks && IsOn(subject, InputA.at)) RaiseClick(subject, isDouble);
  ShowState();
}

void ScalePointer::Leave() {
  const Ref<MURTimelineScroll> keep(&mScroll);
  mIsOver = false;
  ShowState();
}

void ScalePointer::Lose() {
  const Ref<MURTimelineScroll> keep(&mScroll);
  if (!mButtons.Any()) return;
  TellIfGone();
  const Subject subject = mSubject;
  const PointerInput released{mLast.at, mButtons.Lose(), mLast.shift};
  const bool wasDragging = std::exchange(mTaken, std::nullopt).has_value();
  mIsOver = false;
  EndGesture();
  ShowState();
  Raise(mScroll.ScaleMouseUp, mScroll.MarkerMouseUp, subject, released);
  if (wasDragging) mScroll.CursorTimeChanged.Raise();
}

bool ScalePointer::Cancel() {
  const Ref<MURTimelineScroll> keep(&mScroll);
  const auto taken = std::exchange(mTaken, std::nullopt);
  if (!taken) return false;
  mButtons.ForgetClick();
  mScroll.SetCursorTime(*taken);
  ShowState();
  mScroll.CursorTimeChanged.Raise();
  return true;
}

Ref<TimeScaleMarker> ScalePointer::Highlighted() const {
  if (mButtons.Any()) return mSubject.isGone ? nullptr : mSubject.marker;
  return mIsOver ? mScroll.MarkerAt(mLast.at) : nullptr;
}

ScalePointer::Subject ScalePointer::SubjectAt(PointF AtA) const {
  return {mScroll.MarkerAt(AtA), false};
}

void ScalePointer::TellIfGone() {
  if (!mButtons.Any() || !mSubject.marker || mSubject.isGone || mScroll.Holds(*mSubject.marker)) return;
  const Subject last = mSubject;
  mSubject.isGone = true;
  Raise(mScroll.ScaleMouseUp, mScroll.MarkerMouseUp, last, {mLast.at, mButtons.All(), mLast.shift});
}

void ScalePointer::EndGesture() {
  mSubject = {};
  mScroll.Host().CapturePointer(false);
}

bool ScalePointer::IsOn(const Subject& SubjectA, PointF AtA) const {
  return !SubjectA.isGone && mScroll.Area().Contains(AtA) && mScroll.MarkerAt(AtA) == SubjectA.marker;
}

// Comes back with the arguments as listeners left them.
PointerInput ScalePointer::Raise(const ITimelineScroll::PointerEvent& ScaleA,
                                 const ITimelineScroll::MarkerPointerEvent& MarkerA, const Subject& SubjectA,
                                 const PointerInput& InputA) const {
  PointerInput left = InputA;
  if (SubjectA.isGone) return left;
  if (SubjectA.marker)
    MarkerA.Raise(SubjectA.marker->Key(), InputA.button, InputA.shift);
  else
    ScaleA.Raise(left.button, left.shift, left.at.x, left.at.y);
  return left;
}

void ScalePointer::RaiseClick(const Subject& SubjectA, bool IsDoubleA) const {
  if (SubjectA.marker)
    (IsDoubleA ? mScroll.MarkerDblClick : mScroll.MarkerClick).Raise(SubjectA.marker->Key());
  else
    (IsDoubleA ? mScroll.ScaleDblClick : mScroll.ScaleClick).Raise();
}

void ScalePointer::DragTo(float XA) {
  const auto time = TimeAt(mScroll.Settings(), XA, mScroll.Area().width);
  if (!time || *time == mScroll.CursorTime()) return;
  mScroll.SetCursorTime(*time);
  mScroll.CursorTimeChanging.Raise();
}

// The highlight and the pointer's shape are of what is under the pointer now, which a listener may have
// changed.
void ScalePointer::ShowState() {
  const Ref<TimeScaleMarker> marker = Highlighted();
  if (std::exchange(mShown, marker.Get()) != marker.Get()) mScroll.Host().InvalidateAll();
  const auto cursor = ShownX(mScroll.Settings(), mScroll.CursorTime(), mScroll.Area().width);
  const bool isAtCursor = !mButtons.Any() && mScroll.ShowCursor() && cursor &&
                          std::fabs(*cursor - mLast.at.x) <= ScalePainter::kCursorReach;
  mScroll.Host().SetPointerShape(mTaken       ? PointerShape::Moves
                                 : marker     ? PointerShape::Points
                                 : isAtCursor ? PointerShape::CanMove
                                              : PointerShape::Standard);
}

}  // namespace mur
