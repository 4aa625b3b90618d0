#include <QGuiApplication>
#include <QLineF>
#include <QPointer>
#include <QStyleHints>
#include <QTouchEvent>
#include <utility>

#include <murtimeline/qt/event_guard.h>
#include <murtimeline/qt/touch_input.h>

namespace mur::qt {
namespace {

constexpr int kMovesAlong = 4;  // a drag flag
constexpr double kLeastDistance = 8;
constexpr double kFingerWidth = 24;

PointerInput InputAt(QPointF AtA, std::int16_t ButtonA) {
  return {{static_cast<float>(AtA.x()), static_cast<float>(AtA.y())}, ButtonA, 0};
}

bool IsFar(QPointF LeftA, QPointF RightA) {
  return QLineF(LeftA, RightA).length() >= QGuiApplication::styleHints()->startDragDistance();
}

}  // namespace

TouchInput::TouchInput(MURGraphicCanvas& CanvasA, Navigation& NavigationA)
    : mCanvas(CanvasA), mNavigation(NavigationA) {
  mLongPress.setSingleShot(true);
  connect(&mLongPress, &QTimer::timeout, this, [this] { GuardEvent([this] { LongPress(); }); });
}

// Our own state is settled before the canvas is told anything: after that this object may be gone.

bool TouchInput::Handle(QEvent& EventA) {
  if (EventA.type() == QEvent::TouchCancel) {
    Stop();
    return true;
  }
  if (EventA.type() != QEvent::TouchBegin && EventA.type() != QEvent::TouchUpdate &&
      EventA.type() != QEvent::TouchEnd)
    return false;
  const auto& touch = static_cast<const QTouchEvent&>(EventA);
  EventA.accept();
  mNow = touch.timestamp();
  const auto& points = touch.points();
  if (EventA.type() == QEvent::TouchBegin)
    Begin(points.first().position());
  else if (EventA.type() == QEvent::TouchEnd)
    End(points.first().position());
  else if (points.size() == 1)
    MoveOne(points[0].position());
  else
    MoveTwo(points[0].position(), points[1].position());
  return true;
}

void TouchInput::Begin(QPointF AtA) {
  mMode = Mode::Undecided;
  mBegan = mLast = AtA;
  mLongPress.start(QGuiApplication::styleHints()->mousePressAndHoldInterval());
}

void TouchInput::MoveOne(QPointF AtA) {
  mLast = AtA;
  if (mMode == Mode::Undecided && IsFar(mBegan, AtA)) {
    mLongPress.stop();
    const bool drags = IsDraggableAt(mBegan);
    mMode = drags ? Mode::Drags : mNavigation.IsEnabled() ? Mode::Pans : Mode::Over;
    const QPointer<TouchInput> self(this);
    if (drags) mCanvas.PointerPressed(InputAt(mBegan, kLeftButton));
    if (!self) return;
    if (mMode == Mode::Pans) mNavigation.Take(mBegan);
  }
  if (mMode == Mode::Drags) return mCanvas.PointerMoved(InputAt(AtA, kLeftButton));
  if (mMode == Mode::Pans) mNavigation.DragTo(AtA);
}

// From where the fingers began, so that going back there is going back to the same range.
void TouchInput::MoveTwo(QPointF FirstA, QPointF SecondA) {
  const QLineF line(FirstA, SecondA);
  const double distance = std::max(line.length(), kLeastDistance);
  if (mMode != Mode::Zooms) {
    const QPointer<TouchInput> self(this);
    Stop();
    if (!self) return;
    mMode = mNavigation.IsEnabled() ? Mode::Zooms : Mode::Over;
    mPinch = Pinch{distance, line.center().x()};
  }
  if (mMode != Mode::Zooms) return;
  const int steps = ZoomTrail::StepsOf(distance / mPinch->distance);
  const int more = steps - std::exchange(mPinch->steps, steps);
  mNavigation.ZoomBySteps(more, mPinch->x);
}

void TouchInput::End(QPointF AtA) {
  mLongPress.stop();
  mNavigation.LetGo();
  switch (std::exchange(mMode, Mode::None)) {
    case Mode::Undecided:
      return Tap();
    case Mode::Drags:
      return mCanvas.PointerReleased(InputAt(AtA, kLeftButton));
    default:
      return;
  }
}

void TouchInput::Stop() {
  mLongPress.stop();
  mNavigation.LetGo();
  if (std::exchange(mMode, Mode::None) == Mode::Drags) mCanvas.PointerLost();
}

void TouchInput::LongPress() {
  if (std::exchange(mMode, Mode::Over) != Mode::Undecided) return;
  const Ref<MURGraphicCanvas> canvas(&mCanvas);
  const QPointF at = mBegan;
  canvas->PointerPressed(InputAt(at, kRightButton));
  canvas->PointerReleased(InputAt(at, kRightButton));
}

void TouchInput::Tap() {
  const auto interval = static_cast<quint64>(QGuiApplication::styleHints()->mouseDoubleClickInterval());
  const bool isDouble =
      mLastTap && mNow - mTapped <= interval && QLineF(*mLastTap, mBegan).length() <= kFingerWidth;
  mLastTap = isDouble ? std::nullopt : std::optional(mBegan);
  mTapped = mNow;
  const Ref<MURGraphicCanvas> canvas(&mCanvas);
  const PointerInput input = InputAt(mBegan, kLeftButton);
  if (isDouble)
    canvas->PointerDoublePressed(input);
  else
    canvas->PointerPressed(input);
  canvas->PointerReleased(input);
}

bool TouchInput::IsDraggableAt(QPointF AtA) const {
  const Ref<ICanvasItem> item = mCanvas.ItemAt(InputAt(AtA, 0).at);
  return item && (item->DragFlags() & kMovesAlong) != 0;
}

}  // namespace mur::qt
