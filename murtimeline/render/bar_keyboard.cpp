#include <algorithm>
#include <utility>

#include <murtimeline/render/bar_keyboard.h>
#include <murtimeline/render/companions/item_gestures.h>

namespace mur {
namespace {

constexpr float kNudge = 1, kLongNudge = 10;  // pixels

// Of two times the one that comes first on the way.
std::optional<Date> Nearer(std::optional<Date> LeftA, std::optional<Date> RightA, bool ForwardsA) {
  if (!LeftA || !RightA) return LeftA ? LeftA : RightA;
  return ForwardsA ? std::min(*LeftA, *RightA) : std::max(*LeftA, *RightA);
}

}  // namespace

BarKeyboard::BarKeyboard(MURTimelineRender& ControlA, Ref<MURGraphicCanvas> CanvasA,
                         Ref<MURTimelineScroll> ScrollerA)
    : mControl(ControlA), mCanvas(std::move(CanvasA)), mScroller(std::move(ScrollerA)), mWalk(*mCanvas) {}

bool BarKeyboard::Press(const KeyPress& PressA) {
  const Ref<BarKeyboard> keep(this);
  const Ref<MURTimelineRender> control(&mControl);
  if (PressA.key == Key::Escape) return Cancel();
  if ((PressA.shift & kAltKey) != 0) return false;
  return (PressA.shift & kControlKey) != 0 ? PressControl(PressA) : PressPlain(PressA);
}

bool BarKeyboard::PressControl(const KeyPress& PressA) {
  const float pixels = (PressA.shift & kShiftKey) != 0 ? kLongNudge : kNudge;
  if (PressA.key == Key::Left) return Nudge(-pixels, PressA.shift);
  if (PressA.key == Key::Right) return Nudge(pixels, PressA.shift);
  return false;
}

bool BarKeyboard::PressPlain(const KeyPress& PressA) {
  const bool shifted = (PressA.shift & kShiftKey) != 0;
  switch (PressA.key) {
    case Key::Left:
      return !shifted && Walk(WalkStep::Earlier);
    case Key::Right:
      return !shifted && Walk(WalkStep::Later);
    case Key::Up:
      return !shifted && Walk(WalkStep::Above);
    case Key::Down:
      return !shifted && Walk(WalkStep::Below);
    case Key::Home:
      return !shifted && Walk(WalkStep::FirstOfRow);
    case Key::End:
      return !shifted && Walk(WalkStep::LastOfRow);
    case Key::Enter:
      return Click(shifted ? kRightButton : kLeftButton);
    case Key::Space:
      return !shifted && Click(kLeftButton);
    case Key::Menu:
      return !shifted && Click(kRightButton);
    case Key::Comma:
      return shifted ? CursorTo(NextStop(false)) : StepCursor(-1);
    case Key::FullStop:
      return shifted ? CursorTo(NextStop(true)) : StepCursor(1);
    case Key::M:
      return CursorTo(NextMarker(!shifted));
    default:
      return false;
  }
}

Ref<ICanvasItem> BarKeyboard::Current() const {
  return mCurrent && mCanvas->Holds(*mCurrent) ? mCurrent : Ref<ICanvasItem>();
}

void BarKeyboard::TakeUp(const Ref<ICanvasItem>& ItemA) {
  if (mActs) return;
  const Ref<BarKeyboard> keep(this);
  mCanvas->SetFocusedItem({});
  if (ItemA->Kind() == kCursorItem || ItemA == mCurrent) return;
  mCurrent = ItemA;
  CurrentChanged.Raise();
}

void BarKeyboard::Focus(const Ref<ICanvasItem>& ItemA) {
  const Ref<BarKeyboard> keep(this);
  // What was given may be a reference that a listener changes.
  const Ref<ICanvasItem> item(ItemA.Get());
  const bool isOther = !(mCurrent == item);
  mCurrent = item;
  mCanvas->SetFocusedItem(item);
  if (isOther) CurrentChanged.Raise();
  BarReached.Raise(item);
}

void BarKeyboard::ShowRing(bool ShowA) {
  mCanvas->SetFocusedItem(ShowA ? Current() : Ref<ICanvasItem>());
}

bool BarKeyboard::Walk(WalkStep StepA) {
  if (const Ref<ICanvasItem> next = mWalk.Step(Current(), StepA)) Focus(next);
  return true;
}

// Does something to the current bar. It shows that it is the one, and goes on doing so.
template <class Work>
bool BarKeyboard::Act(Work&& WorkA) {
  struct Acting {
    explicit Acting(bool& FlagA) : flag(FlagA) { flag = true; }
    ~Acting() { flag = false; }
    bool& flag;
  };
  const Ref<ICanvasItem> bar = Current();
  if (!bar) return false;
  mCanvas->SetFocusedItem(bar);
  const Acting acting(mActs);
  WorkA(*mCanvas, bar);
  return true;
}

bool BarKeyboard::Click(std::int16_t ButtonA) {
  return Act(
      [=](MURGraphicCanvas& canvas, const Ref<ICanvasItem>& bar) { ClickItem(canvas, bar, ButtonA, 0); });
}

bool BarKeyboard::Nudge(float PixelsA, std::int16_t ShiftA) {
  if (!mControl.AllowObjectDragging()) return false;
  return Act([=](MURGraphicCanvas& canvas, const Ref<ICanvasItem>& bar) {
    NudgeItem(canvas, bar, PixelsA, ShiftA);
  });
}

bool BarKeyboard::StepCursor(double PixelsA) {
  const VisibleRange range{mControl.WorldTimeT0(), mControl.Duration()};
  const double seconds = PixelsA * range.Sane().duration / Width();
  return CursorTo(Date::Unchecked(mControl.CursorTime().Days() + seconds / kSecondsPerDay));
}

bool BarKeyboard::CursorTo(std::optional<Date> TimeA) {
  if (!TimeA || !TimeA->InRange()) return true;
  mControl.SetCursorTime(*TimeA);
  CursorPut.Raise();
  return true;
}

std::optional<Date> BarKeyboard::NextStop(bool ForwardsA) const {
  return Nearer(NextEdge(ForwardsA), NextMarker(ForwardsA), ForwardsA);
}

// The time is the object's own: places on the canvas are rounded.
std::optional<Date> BarKeyboard::NextEdge(bool ForwardsA) const {
  const VisibleRange range{mControl.WorldTimeT0(), mControl.Duration()};
  const Ref<CMURTimeline> timeline = mControl.Timeline();
  const auto x = static_cast<float>(range.ShareOf(mControl.CursorTime()) * Width());
  const auto edge = EdgeBeyond(*mCanvas, x, ForwardsA);
  const auto object = edge && timeline ? timeline->ItemByKey(edge->item->Key()) : Ref<IMURTimelineObject>();
  if (!object) return std::nullopt;
  const Date start = object->WorldTimeT0();
  return edge->isEnd ? Date::Unchecked(start.Days() + object->Duration() / kSecondsPerDay) : start;
}

std::optional<Date> BarKeyboard::NextMarker(bool ForwardsA) const {
  const Date now = mControl.CursorTime();
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

double BarKeyboard::Width() const {
  constexpr double kNarrowest = 1;
  return std::max(static_cast<double>(mCanvas->Host().Width() / ChildHost::kTwipsPerPixel), kNarrowest);
}

bool BarKeyboard::Cancel() {
  if (!mControl.IsDragging() && !mScroller->IsDragging()) return false;
  mControl.CancelDrag();
  mScroller->CancelDrag();
  DragsCancelled.Raise();
  return true;
}

}  // namespace mur
