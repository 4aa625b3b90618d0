#include <utility>

#include <murtimeline/render/companions/canvas.h>
#include <murtimeline/render/companions/canvas_pointer.h>

namespace mur {
namespace {

std::int16_t Joined(std::int16_t ButtonsA, std::int16_t PressedA) {
  return static_cast<std::int16_t>(ButtonsA | PressedA);
}

std::int16_t Without(std::int16_t ButtonsA, std::int16_t ReleasedA) {
  return static_cast<std::int16_t>(ButtonsA & ~ReleasedA);
}

}  // namespace

// State is settled before each event is raised: listeners may press, move and release themselves.

void CanvasPointer::Press(const PointerInput& InputA, bool IsDoubleA) {
  const Ref<MURGraphicCanvas> keep(&mCanvas);
  if ((mHeld & InputA.button) != 0) Lose();  // its release was not reported
  if (mHeld == 0) mSubject = SubjectAt(InputA.at);
  mLast = InputA;
  mHeld = Joined(mHeld, InputA.button);
  mLastPressed = InputA.button;
  mIsDouble = IsDoubleA;
  TellIfGone();
  mCanvas.Host().CapturePointer(true);
  Raise(mCanvas.MouseDown, mCanvas.ItemMouseDown, Subject(mSubject), InputA);
  ShowShape();
}

void CanvasPointer::Move(const PointerInput& InputA) {
  const Ref<MURGraphicCanvas> keep(&mCanvas);
  mLast = InputA;
  TellIfGone();
  Raise(mCanvas.MouseMove, mCanvas.ItemMouseMove, mHeld == 0 ? SubjectAt(InputA.at) : Subject(mSubject),
        InputA);
  ShowShape();
}

void CanvasPointer::Release(const PointerInput& InputA) {
  const Ref<MURGraphicCanvas> keep(&mCanvas);
  if ((mHeld & InputA.button) == 0) return;
  mLast = InputA;
  TellIfGone();
  const Subject subject = mSubject;
  const bool clicks = (mLastPressed & InputA.button) != 0, isDouble = mIsDouble;
  if (clicks) mLastPressed = 0;
  mHeld = Without(mHeld, InputA.button);
  if (mHeld == 0) EndGesture();
  Raise(mCanvas.MouseUp, mCanvas.ItemMouseUp, subject, InputA);
  if (clicks && IsOn(subject, InputA.at)) RaiseClick(subject, isDouble);
  ShowShape();
}

void CanvasPointer::Lose() {
  const Ref<MURGraphicCanvas> keep(&mCanvas);
  if (mHeld == 0) return;
  TellIfGone();
  const Subject subject = mSubject;
  const PointerInput released{mLast.at, std::exchange(mHeld, std::int16_t{0}), mLast.shift};
  EndGesture();
  Raise(mCanvas.MouseUp, mCanvas.ItemMouseUp, subject, released);
  ShowShape();
}

CanvasPointer::Subject CanvasPointer::SubjectAt(PointF AtA) const {
  return {mCanvas.ItemAt(AtA)};
}

void CanvasPointer::EndGesture() {
  mSubject = {};
  mLastPressed = 0;
  mCanvas.Host().CapturePointer(false);
}

void CanvasPointer::TellIfGone() {
  if (mHeld == 0 || !mSubject.item || mSubject.isGone || mCanvas.Holds(*mSubject.item)) return;
  const Subject last = mSubject;
  mSubject.isGone = true;
  Raise(mCanvas.MouseUp, mCanvas.ItemMouseUp, last, {mLast.at, mHeld, mLast.shift});
}

bool CanvasPointer::IsOn(const Subject& SubjectA, PointF AtA) const {
  if (SubjectA.isGone) return false;
  if (!SubjectA.item) return mCanvas.Area().Contains(AtA) && !mCanvas.ItemAt(AtA);
  return mCanvas.Holds(*SubjectA.item) && SubjectA.item->Visible() &&
         mCanvas.PixelBounds(*SubjectA.item).Contains(AtA);
}

void CanvasPointer::RaiseClick(const Subject& SubjectA, bool IsDoubleA) const {
  if (SubjectA.item)
    (IsDoubleA ? mCanvas.ItemDblClick : mCanvas.ItemClick).Raise(SubjectA.item);
  else
    (IsDoubleA ? mCanvas.DblClick : mCanvas.Click).Raise();
}

void CanvasPointer::Raise(const PointerEventOf<>& BackgroundA,
                          const PointerEventOf<IGraphicCanvas::Item>& ItemA, const Subject& SubjectA,
                          const PointerInput& InputA) const {
  if (SubjectA.isGone) return;
  PointF at = SubjectA.item ? mCanvas.PointOn(*SubjectA.item, InputA.at) : mCanvas.UnitsAt(InputA.at);
  std::int16_t button = InputA.button, shift = InputA.shift;
  if (!SubjectA.item) return BackgroundA.Raise(button, shift, at.x, at.y);
  ItemA.Raise(SubjectA.item, button, shift, at.x, at.y);
}

// Of what is under the pointer now, which a listener may have changed.
void CanvasPointer::ShowShape() const {
  const Subject subject = mHeld == 0 ? SubjectAt(mLast.at) : mSubject;
  const bool moves = subject.item && !subject.isGone && mCanvas.IsMovable(*subject.item);
  const bool isHeld = (mHeld & kLeftButton) != 0;
  mCanvas.Host().SetPointerShape(!moves   ? PointerShape::Standard
                                 : isHeld ? PointerShape::Moves
                                          : PointerShape::CanMove);
}

}  // namespace mur
