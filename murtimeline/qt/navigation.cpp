#include <QMouseEvent>
#include <QNativeGestureEvent>
#include <QPointer>
#include <QWheelEvent>
#include <QWidget>
#include <algorithm>
#include <cmath>
#include <limits>

#include <murtimeline/qt/event_guard.h>
#include <murtimeline/qt/navigation.h>

namespace mur::qt {
namespace {

constexpr int kWheelUnitsPerStep = 15;   // 8 steps to a notch, a factor of 1.26
constexpr double kPannedByNotch = 0.1;   // of the width
constexpr double kScrolledByNotch = 60;  // pixels
constexpr double kWheelUnitsPerNotch = 120;
constexpr double kAir = 0.02;  // of the fitted span, at both ends
constexpr double kLeastFittedSpan = 1;

// Where a member lies, when it lies anywhere.
std::optional<VisibleRange> SpanOf(const IMURTimelineObject& ObjectA) {
  const VisibleRange span{ObjectA.WorldTimeT0(), ObjectA.Duration()};
  if (!span.start.InRange() || !std::isfinite(span.duration)) return std::nullopt;
  return span.duration < 0 ? VisibleRange{span.TimeAt(1), -span.duration} : span;
}

}  // namespace

Navigation::Navigation(Ref<MURTimelineRender> ControlA, Ref<MURGraphicCanvas> CanvasA,
                       HostedChild& CanvasHostA, RowScroller& RowsA, QWidget& ScaleA, QWidget& CanvasWidgetA)
    : mControl(std::move(ControlA)),
      mCanvas(std::move(CanvasA)),
      mCanvasHost(CanvasHostA),
      mRows(RowsA),
      mScale(ScaleA),
      mCanvasWidget(CanvasWidgetA) {}

Navigation::~Navigation() = default;

void Navigation::SetEnabled(bool EnabledA) {
  if (EnabledA == mEnabled) return;
  mEnabled = EnabledA;
  for (QWidget* widget : {&mScale, &mCanvasWidget}) {
    widget->removeEventFilter(this);
    if (EnabledA) widget->installEventFilter(this);
  }
  LetGo();
}

VisibleRange Navigation::Range() const {
  return {mControl->WorldTimeT0(), mControl->Duration()};
}

void Navigation::ZoomAt(double FactorA, double XA) {
  ZoomBySteps(ZoomTrail::StepsOf(FactorA), XA);
}

void Navigation::ZoomBySteps(int StepsA, double XA) {
  if (StepsA != 0) Show(mTrail.Zoom(Range(), StepsA, XA / Width()));
}

void Navigation::Pan(double SecondsA) {
  if (std::isfinite(SecondsA)) Show(Range().Sane().MovedBy(SecondsA));
}

std::optional<VisibleRange> Navigation::Extent() const {
  const Ref<CMURTimeline> timeline = mControl->Timeline();
  if (!timeline) return std::nullopt;
  double first = std::numeric_limits<double>::infinity(), last = -first;
  auto members = timeline->NewEnum();
  while (const auto member = members.Next()) {
    const auto span = SpanOf(*member);
    if (!span) continue;
    first = std::min(first, span->start.Days());
    last = std::max(last, span->TimeAt(1).Days());
  }
  if (first > last) return std::nullopt;
  return VisibleRange{Date::Unchecked(first), (last - first) * kSecondsPerDay};
}

bool Navigation::Fit() {
  const auto extent = Extent();
  if (!extent) return false;
  const double span = std::max(extent->duration, kLeastFittedSpan);
  const VisibleRange fitted{extent->start, span * (1 + 2 * kAir)};
  Show(fitted.MovedBy(-span * kAir).Sane());
  return true;
}

bool Navigation::ShowStart() {
  const auto extent = Extent();
  if (extent) Show({extent->start, Range().Sane().duration});
  return extent.has_value();
}

bool Navigation::ShowEnd() {
  const auto extent = Extent();
  const double shown = Range().Sane().duration;
  if (extent) Show(VisibleRange{extent->start, shown}.MovedBy(extent->duration - shown));
  return extent.has_value();
}

void Navigation::Reveal(double LeftA, double RightA) {
  const double by = std::min(std::max(RightA - Width(), 0.0), LeftA);
  const VisibleRange range = Range().Sane();
  if (by != 0 && std::isfinite(by)) Show(range.MovedBy(by / Width() * range.duration));
}

void Navigation::Reveal(const ICanvasItem& BarA) {
  mRows.Reveal(BarA);
  const RectF bounds = mCanvas->PixelBounds(BarA);
  Reveal(static_cast<double>(bounds.left), static_cast<double>(bounds.Right()));
}

Date Navigation::TimeAt(double XA) const {
  return Range().TimeAt(XA / Width());
}

double Navigation::XOf(Date TimeA) const {
  return Range().ShareOf(TimeA) * Width();
}

// Any of the writes may end the widget, and this object with it.
void Navigation::Show(const VisibleRange& RangeA) {
  if (RangeA == Range()) return;
  const QPointer<Navigation> self(this);
  const Ref<MURTimelineRender> control = mControl;
  mMoving = true;
  if (RangeA.start != control->WorldTimeT0()) control->SetWorldTimeT0(RangeA.start);
  if (RangeA.duration != control->Duration()) control->SetDuration(RangeA.duration);
  if (!self) return;
  mMoving = false;
  Q_EMIT moved();
}

double Navigation::Width() const {
  constexpr double kNarrowest = 1;
  return std::max(static_cast<double>(mCanvasHost.Width() / ChildHost::kTwipsPerPixel), kNarrowest);
}

// What is gone must not hear of the event any more.
bool Navigation::eventFilter(QObject* WatchedA, QEvent* EventA) {
  const QPointer<QObject> watched(WatchedA);
  bool handled = false;
  GuardEvent([&] { handled = Handle(WatchedA, *EventA); });
  return handled || !watched;
}

// Presses and moves go on to the widget, whose listeners hear them as ever.
bool Navigation::Handle(const QObject* WatchedA, QEvent& EventA) {
  switch (EventA.type()) {
    case QEvent::Wheel:
      HandleWheel(static_cast<QWheelEvent&>(EventA));
      return true;
    case QEvent::NativeGesture:
      return HandlePinch(static_cast<const QNativeGestureEvent&>(EventA));
    case QEvent::MouseButtonPress:
    case QEvent::MouseMove:
    case QEvent::MouseButtonRelease:
      return WatchedA == &mCanvasWidget && HandleMouse(static_cast<const QMouseEvent&>(EventA));
    case QEvent::Hide:
    case QEvent::WindowBlocked:
    case QEvent::WindowDeactivate:
      LetGo();
      return false;
    default:
      return false;
  }
}

// What scrolls nothing is left to the parents.
void Navigation::HandleWheel(QWheelEvent& EventA) {
  const QPoint turned = EventA.angleDelta();
  const bool isSidewise = std::abs(turned.x()) > std::abs(turned.y());
  WheelAction action = mWheel;
  if (EventA.modifiers().testFlag(Qt::ControlModifier)) action = WheelAction::Zoom;
  if (EventA.modifiers().testFlag(Qt::ShiftModifier) || isSidewise) action = WheelAction::Pan;
  EventA.setAccepted(action != WheelAction::ScrollRows || mRows.CanScroll());
  const double notches = (turned.x() != 0 ? turned.x() : turned.y()) / kWheelUnitsPerNotch;
  if (action == WheelAction::Pan) return Pan(-notches * kPannedByNotch * Range().Sane().duration);
  if (action == WheelAction::ScrollRows)
    return mRows.ScrollTo(mRows.Top() - turned.y() / kWheelUnitsPerNotch * kScrolledByNotch);
  mWheelRest += turned.y();
  const int steps = mWheelRest / kWheelUnitsPerStep;
  mWheelRest %= kWheelUnitsPerStep;
  ZoomBySteps(steps, EventA.position().x());
}

bool Navigation::HandlePinch(const QNativeGestureEvent& EventA) {
  if (EventA.gestureType() == Qt::BeginNativeGesture) mPinchRest = 0;
  if (EventA.gestureType() != Qt::ZoomNativeGesture || !(EventA.value() > -1)) return false;
  mPinchRest += std::log2(1 + EventA.value()) * ZoomTrail::kStepsPerDoubling;
  const double steps = std::trunc(mPinchRest);
  mPinchRest -= steps;
  ZoomBySteps(static_cast<int>(steps), EventA.position().x());
  return true;
}

bool Navigation::HandleMouse(const QMouseEvent& EventA) {
  const QPointF at = EventA.position();
  const PointF point{static_cast<float>(at.x()), static_cast<float>(at.y())};
  if (EventA.type() == QEvent::MouseMove) {
    DragTo(at);
  } else if (EventA.type() == QEvent::MouseButtonRelease) {
    LetGo();
  } else if (EventA.button() == Qt::LeftButton && !mCanvas->ItemAt(point)) {
    Take(at);
  }
  return false;
}

void Navigation::Take(QPointF AtA) {
  mDrag = Drag{AtA, Range().Sane(), mRows.Top()};
  mCanvasHost.SetShapeInstead(PointerShape::Moves);
}

// Always from where the drag began, so that nothing adds up: back there is back at the same range.
void Navigation::DragTo(QPointF AtA) {
  if (!mDrag) return;
  const QPointF moved = mDrag->at - AtA;
  const VisibleRange range = mDrag->range;
  mRows.ScrollTo(mDrag->top + moved.y());
  Show(range.MovedBy(moved.x() / Width() * range.duration));
}

void Navigation::LetGo() {
  if (!mDrag) return;
  mDrag.reset();
  mCanvasHost.SetShapeInstead(std::nullopt);
}

}  // namespace mur::qt
