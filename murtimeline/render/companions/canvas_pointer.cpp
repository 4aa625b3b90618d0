#include <murtimeline/render/companions/canvas.h>
#include <murtimeline/render/companions/canvas_pointer.h>

namespace mur {
// State is settled before each event is raised: listeners may press, move and release themselves.

void CanvasPointer::Press(const PointerInput& InputA, bool IsDoubleA) {
  const Ref<MURGraphicCanvas> keep(&mCanvas);
  if (mButtons.Has(InputA.button)) Lose();  // its release was not reported
  if (!mButtons.Any()) mSubject = SubjectAt(InputA.at);
  mLast = InputA;
  mButtons.Press(InputA.button, IsDoubleA);
  TellIfGone();
  mCanvas.Host().CapturePointer(true);
  Raise(mCanvas.MouseDown, mCanvas.ItemMouseDown, Subject(mSubject), InputA);
  ShowShape();
}

void CanvasPointer::Move(const PointerInput& InputA) {
  const Ref<MURGraphicCanvas> keep(&mCanvas);
  mLast = InputA;
  TellIfGone();
  Raise(mCanvas.MouseMove, mCanvas.ItemMouseMove, mButtons.Any() ? Subject(mSubject) : SubjectAt(InputA.at),
        InputA);
  ShowShape();
}

void CanvasPointer::Release(const PointerInput& InputA) {
  const Ref<MURGraphicCanvas> keep(&mCanvas);
  if (!mButtons.Has(InputA.button)) return;
  mLast = InputA;
  TellIfGone();
  const Subject subject = mSubject;
  const bool isDouble = mButtons.IsDouble();
  const bool clicks = mButtons.Release(InputA.button);
  if (!mButtons.Any()) EndGesture();
  Raise(mCanvas.MouseUp, mCanvas.ItemMouseUp, subject, InputA);
  if (clicks && IsOn(subject, InputA.at)) RaiseClick(subject, isDouble);
  ShowShape();
}

void CanvasPointer::Lose() {
  const Ref<MURGraphicCanvas> keep(&mCanvas);
  if (!mButtons.Any()) return;
  TellIfGone();
  const Subject subject = mSubject;
  const PointerInput released{mLast.at, mButtons.Lose(), mLast.shift};
  EndGesture();
  Raise(mCanvas.MouseUp, mCanvas.ItemMouseUp, subject, released);
  ShowShape();
}

CanvasPointer::Subject CanvasPointer::SubjectAt(PointF AtA) const {
  return {mCanvas.ItemAt(AtA)};
}

void CanvasPointer::EndGesture() {
  mSubject = {};
  mCanvas.Host().CapturePointer(false);
}

void CanvasPointer::TellIfGone() {
  if (!mButtons.Any() || !mSubject.item || mSubject.isGone || mCanvas.Holds(*mSubject.item)) return;
  const Subject last = mSubject;
  mSubject.isGone = true;
  Raise(mCanvas.MouseUp, mCanvas.ItemMouseUp, last, {mLast.at, mButtons.All(), mLast.shift});
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
  const Subject subject = mButtons.Any() ? mSubject : SubjectAt(mLast.at);
  const bool moves = subject.item && !subject.isGone && mCanvas.IsMovable(*subject.item);
  const bool isHeld = mButtons.Has(kLeftButton);
  mCanvas.Host().SetPointerShape(!moves   ? PointerShape::Standard
                                 : isHeld ? PointerShape::Moves
                                          : PointerShape::CanMove);
}

}  // namespace mur
