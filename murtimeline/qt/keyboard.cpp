#include <QKeyEvent>
#include <QPointer>
#include <QScopeGuard>
#include <algorithm>
#include <cmath>
#include <utility>

#include <murtimeline/qt/keyboard.h>
#include <murtimeline/qt/pointer_router.h>
#include <murtimeline/render/companions/item_gestures.h>

namespace mur::qt {
namespace {

constexpr float kNudge = 1, kLongNudge = 10;  // pixels
constexpr int kZoomSteps = 8;                 // a factor of 1.26

// The keys of a comma and a full stop, also as what Shift makes of them on usual layouts.
bool IsComma(const QKeyEvent& EventA) {
  const bool shifted = EventA.modifiers().testFlag(Qt::ShiftModifier);
  return EventA.key() == Qt::Key_Comma ||
         (shifted && (EventA.key() == Qt::Key_Less || EventA.key() == Qt::Key_Semicolon));
}
bool IsFullStop(const QKeyEvent& EventA) {
  const bool shifted = EventA.modifiers().testFlag(Qt::ShiftModifier);
  return EventA.key() == Qt::Key_Period ||
         (shifted && (EventA.key() == Qt::Key_Greater || EventA.key() == Qt::Key_Colon));
}

// Of two times the one that comes first on the way.
std::optional<Date> Nearer(std::optional<Date> LeftA, std::optional<Date> RightA, bool ForwardsA) {
  if (!LeftA || !RightA) return LeftA ? LeftA : RightA;
  return ForwardsA ? std::min(*LeftA, *RightA) : std::max(*LeftA, *RightA);
}

}  // namespace

Keyboard::Keyboard(Ref<MURTimelineRender> ControlA, Ref<MURGraphicCanvas> CanvasA,
                   Ref<MURTimelineScroll> ScrollerA, Navigation& NavigationA, RowScroller& RowsA)
    : mControl(std::move(ControlA)),
      mCanvas(std::move(CanvasA)),
      mScroller(std::move(ScrollerA)),
      mNavigation(NavigationA),
      mRows(RowsA),
      mWalk(*mCanvas) {}

// What calls into the control comes last in each routine: after it this object may be gone.

bool Keyboard::Press(const QKeyEvent& EventA) {
  if (EventA.key() == Qt::Key_Escape) return Cancel();
  const bool shifted = EventA.modifiers().testFlag(Qt::ShiftModifier);
  const bool plain = (EventA.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) == 0;
  if (plain && IsComma(EventA)) return shifted ? CursorToEdge(false) : StepCursor(-1);
  if (plain && IsFullStop(EventA)) return shifted ? CursorToEdge(true) : StepCursor(1);
  if (plain && EventA.key() == Qt::Key_M) return CursorToMarker(!shifted);
  return PressWalking(EventA) || PressMoving(EventA);
}

bool Keyboard::PressWalking(const QKeyEvent& EventA) {
  const Qt::KeyboardModifiers keys = EventA.modifiers() & ~Qt::KeypadModifier;
  const std::int16_t shift = ShiftOf(keys);
  const bool nudges = keys.testFlag(Qt::ControlModifier);
  if (nudges ? (keys & ~(Qt::ControlModifier | Qt::ShiftModifier)) != 0 : (keys & ~Qt::ShiftModifier) != 0)
    return false;
  const float nudge = keys.testFlag(Qt::ShiftModifier) ? kLongNudge : kNudge;
  const bool isPlain = keys == Qt::NoModifier;
  switch (EventA.key()) {
    case Qt::Key_Left:
      return nudges ? Nudge(-nudge, shift) : isPlain && Walk(WalkStep::Earlier);
    case Qt::Key_Right:
      return nudges ? Nudge(nudge, shift) : isPlain && Walk(WalkStep::Later);
    case Qt::Key_Up:
      return isPlain && Walk(WalkStep::Above);
    case Qt::Key_Down:
      return isPlain && Walk(WalkStep::Below);
    case Qt::Key_Home:
      return isPlain && Walk(WalkStep::FirstOfRow);
    case Qt::Key_End:
      return isPlain && Walk(WalkStep::LastOfRow);
    case Qt::Key_Return:
    case Qt::Key_Enter:
      return !nudges && (isPlain ? Click(kLeftButton, 0) : Click(kRightButton, 0));
    case Qt::Key_Space:
      return isPlain && Click(kLeftButton, 0);
    case Qt::Key_Menu:
      return isPlain && Click(kRightButton, 0);
    default:
      return false;
  }
}

bool Keyboard::PressMoving(const QKeyEvent& EventA) {
  const Qt::KeyboardModifiers keys = EventA.modifiers() & ~(Qt::KeypadModifier | Qt::ShiftModifier);
  if (!mNavigation.IsEnabled()) return false;
  if (keys == Qt::ControlModifier && EventA.key() == Qt::Key_Home) return mNavigation.ShowStart();
  if (keys == Qt::ControlModifier && EventA.key() == Qt::Key_End) return mNavigation.ShowEnd();
  if (keys != Qt::NoModifier) return false;
  switch (EventA.key()) {
    case Qt::Key_Plus:
    case Qt::Key_Equal:
      return Zoom(kZoomSteps);
    case Qt::Key_Minus:
    case Qt::Key_Underscore:
      return Zoom(-kZoomSteps);
    case Qt::Key_F:
      mNavigation.Fit();
      return true;
    case Qt::Key_PageUp:
      mRows.ScrollByPages(-1);
      return true;
    case Qt::Key_PageDown:
      mRows.ScrollByPages(1);
      return true;
    default:
      return false;
  }
}

Ref<ICanvasItem> Keyboard::Current() const {
  return mCurrent && mCanvas->Holds(*mCurrent) ? mCurrent : Ref<ICanvasItem>();
}

void Keyboard::TakeUp(const Ref<ICanvasItem>& ItemA) {
  if (mActs) return;
  mCanvas->SetFocusedItem({});
  if (ItemA->Kind() == kCursorItem || ItemA == mCurrent) return;
  mCurrent = ItemA;
  Q_EMIT currentChanged();
}

void Keyboard::Focus(const Ref<ICanvasItem>& ItemA) {
  const Ref<ICanvasItem> item = ItemA;
  const bool isOther = !(mCurrent == item);
  const QPointer<Keyboard> self(this);
  mCurrent = item;
  mCanvas->SetFocusedItem(item);
  if (isOther) Q_EMIT currentChanged();
  if (self && mNavigation.IsEnabled()) mNavigation.Reveal(*item);
}

void Keyboard::ShowRing(bool ShowA) {
  mCanvas->SetFocusedItem(ShowA ? Current() : Ref<ICanvasItem>());
}

bool Keyboard::Walk(WalkStep StepA) {
  if (const Ref<ICanvasItem> next = mWalk.Step(Current(), StepA)) Focus(next);
  return true;
}

// Does something to the current bar. It shows that it is the one, and goes on doing so.
template <class Work>
bool Keyboard::Act(Work&& WorkA) {
  const Ref<ICanvasItem> bar = Current();
  if (!bar) return false;
  mCanvas->SetFocusedItem(bar);
  mActs = true;
  const auto done = qScopeGuard([self = QPointer<Keyboard>(this)] {
    if (self) self->mActs = false;
  });
  WorkA(Ref<MURGraphicCanvas>(mCanvas), bar);
  return true;
}

bool Keyboard::Click(std::int16_t ButtonA, std::int16_t ShiftA) {
  return Act([=](const auto& canvas, const auto& bar) { ClickItem(*canvas, bar, ButtonA, ShiftA); });
}

bool Keyboard::Nudge(float PixelsA, std::int16_t ShiftA) {
  if (!mControl->AllowObjectDragging()) return false;
  return Act([=](const auto& canvas, const auto& bar) { NudgeItem(*canvas, bar, PixelsA, ShiftA); });
}

bool Keyboard::StepCursor(double PixelsA) {
  const double seconds = PixelsA * mNavigation.Range().Sane().duration / mNavigation.Width();
  return PutCursor(Date::Unchecked(mControl->CursorTime().Days() + seconds / kSecondsPerDay));
}

bool Keyboard::CursorToEdge(bool ForwardsA) {
  const auto time = Nearer(NextEdge(ForwardsA), NextMarker(ForwardsA), ForwardsA);
  return !time || PutCursor(*time);
}

bool Keyboard::CursorToMarker(bool ForwardsA) {
  const auto time = NextMarker(ForwardsA);
  return !time || PutCursor(*time);
}

// The time is the object's own: places on the canvas are rounded.
std::optional<Date> Keyboard::NextEdge(bool ForwardsA) const {
  const Ref<CMURTimeline> timeline = mControl->Timeline();
  const auto x = static_cast<float>(mNavigation.XOf(mControl->CursorTime()));
  const auto edge = EdgeBeyond(*mCanvas, x, ForwardsA);
  const auto object = edge && timeline ? timeline->ItemByKey(edge->item->Key()) : Ref<IMURTimelineObject>();
  if (!object) return std::nullopt;
  const Date start = object->WorldTimeT0();
  return edge->isEnd ? Date::Unchecked(start.Days() + object->Duration() / kSecondsPerDay) : start;
}

std::optional<Date> Keyboard::NextMarker(bool ForwardsA) const {
  const Date now = mControl->CursorTime();
  std::optional<Date> nearest;
  const std::int32_t count = mScroller->MarkersCount();
  for (std::int32_t position = 1; position <= count; ++position) {
    const Ref<ITimeScaleMarker> marker = mScroller->Marker(Variant(position));
    if (!marker || !marker->Visible()) continue;
    const Date time = marker->WorldTime();
    if (ForwardsA ? time > now : time < now) nearest = Nearer(nearest, time, ForwardsA);
  }
  return nearest;
}

bool Keyboard::PutCursor(Date TimeA) {
  if (!TimeA.InRange()) return true;
  const QPointer<Keyboard> self(this);
  mControl->SetCursorTime(TimeA);
  if (!self || !mNavigation.IsEnabled()) return true;
  const double x = mNavigation.XOf(mControl->CursorTime());
  mNavigation.Reveal(x, x);
  return true;
}

bool Keyboard::Zoom(int StepsA) {
  constexpr double kSamePlace = 0.01;  // pixels: the cursor is where it was, but for rounding
  const double width = mNavigation.Width(), cursor = mNavigation.XOf(mControl->CursorTime());
  const double x = cursor >= 0 && cursor <= width ? cursor : width / 2;
  if (!(std::abs(x - mZoomedAt) < kSamePlace)) mZoomedAt = x;
  mNavigation.ZoomBySteps(StepsA, mZoomedAt);
  return true;
}

bool Keyboard::Cancel() {
  const bool drags = mControl->IsDragging() || mScroller->IsDragging() || mNavigation.IsTaken();
  if (!drags) return false;
  const QPointer<Keyboard> self(this);
  const Ref<MURTimelineScroll> scroller = mScroller;
  const Ref<MURTimelineRender> control = mControl;
  mNavigation.LetGo();
  control->CancelDrag();
  scroller->CancelDrag();
  if (self) Q_EMIT dragsCancelled();
  return true;
}

}  // namespace mur::qt
