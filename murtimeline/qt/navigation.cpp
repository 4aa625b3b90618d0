#include <QMouseEvent>
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

constexpr int kWheelUnitsPerStep = 15;  // 8 steps to a notch, a factor of 1.26
constexpr double kPannedByNotch = 0.1;  // of the width
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
                       HostedChild& CanvasHostA, QWidget& ScaleA, QWidget& CanvasWidgetA)
    : mControl(std::move(ControlA)),
      mCanvas(std::move(CanvasA)),
      mCanvasHost(CanvasHostA),
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
  EndDrag();
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

bool Navigation::Fit() {
  const Ref<CMURTimeline> timeline = mControl->Timeline();
  if (!timeline) return false;
  double first = std::numeric_limits<double>::infinity(), last = -first;
  auto members = timeline->NewEnum();
  while (const auto member = members.Next()) {
    const auto span = SpanOf(*member);
    if (!span) continue;
    first = std::min(first, span->start.Days());
    last = std::max(last, span->TimeAt(1).Days());
  }
  if (first > last) return false;
  const double span = std::max((last - first) * kSecondsPerDay, kLeastFittedSpan);
  const VisibleRange fitted{Date::Unchecked(first), span * (1 + 2 * kAir)};
  Show(fitted.MovedBy(-span * kAir).Sane());
  return true;
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

bool Navigation::eventFilter(QObject* WatchedA, QEvent* EventA) {
  bool handled = false;
  GuardEvent([&] { handled = Handle(WatchedA, *EventA); });
  return handled;
}

// Presses and moves go on to the widget, whose listeners hear them as ever.
bool Navigation::Handle(const QObject* WatchedA, QEvent& EventA) {
  if (EventA.type() == QEvent::Wheel) {
    HandleWheel(static_cast<QWheelEvent&>(EventA));
    return true;
  }
  if (WatchedA != &mCanvasWidget) return false;
  if (EventA.type() == QEvent::MouseButtonPress) BeginDrag(static_cast<const QMouseEvent&>(EventA));
  if (EventA.type() == QEvent::MouseMove) FollowDrag(static_cast<const QMouseEvent&>(EventA));
  if (EventA.type() == QEvent::MouseButtonRelease) EndDrag();
  return false;
}

void Navigation::HandleWheel(QWheelEvent& EventA) {
  const QPoint turned = EventA.angleDelta();
  EventA.accept();
  const bool pans =
      EventA.modifiers().testFlag(Qt::ShiftModifier) || std::abs(turned.x()) > std::abs(turned.y());
  if (pans) {
    const double notches = (turned.x() != 0 ? turned.x() : turned.y()) / kWheelUnitsPerNotch;
    Pan(-notches * kPannedByNotch * Range().Sane().duration);
    return;
  }
  mWheelRest += turned.y();
  const int steps = mWheelRest / kWheelUnitsPerStep;
  mWheelRest %= kWheelUnitsPerStep;
  ZoomBySteps(steps, EventA.position().x());
}

void Navigation::BeginDrag(const QMouseEvent& EventA) {
  const QPointF at = EventA.position();
  const PointF point{static_cast<float>(at.x()), static_cast<float>(at.y())};
  if (EventA.button() != Qt::LeftButton || mCanvas->ItemAt(point)) return;
  mDrag = Drag{at.x(), Range().Sane()};
  mCanvasHost.SetShapeInstead(PointerShape::Moves);
}

// Always from where the drag began, so that nothing adds up: back there is back at the same range.
void Navigation::FollowDrag(const QMouseEvent& EventA) {
  if (!mDrag) return;
  const double share = (mDrag->x - EventA.position().x()) / Width();
  Show(mDrag->range.MovedBy(share * mDrag->range.duration));
}

void Navigation::EndDrag() {
  if (!mDrag) return;
  mDrag.reset();
  mCanvasHost.SetShapeInstead(std::nullopt);
}

}  // namespace mur::qt
