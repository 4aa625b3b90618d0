#include <QKeyEvent>
#include <QPainter>
#include <QPointer>
#include <algorithm>
#include <iterator>
#include <utility>

#include <murtimeline/automation/guard.h>
#include <murtimeline/qt/conversions.h>
#include <murtimeline/qt/event_guard.h>
#include <murtimeline/qt/timeline_widget_parts.h>

namespace mur::qt {
namespace {

constexpr QSize kUsualSize(640, 240);
constexpr QSize kLeastSize(160, 80);  // the scale and a bar

// A companion on `HostA`, which it owns from now on.
template <class Companion>
Ref<Companion> MakeOn(HostedChild& HostA) {
  Ref<Companion> companion = Make<Companion>(HostA);
  companion->SetFace(&HostA);
  return companion;
}

Ref<MURTimelineRender> MakeControl(WidgetHost& HostA, Companions CompanionsA) {
  Ref<MURTimelineRender> control = Make<MURTimelineRender>(HostA, std::move(CompanionsA));
  control->SetFace(&HostA);
  return control;
}

Companions CompanionsOf(const Ref<MURGraphicCanvas>& CanvasA, const Ref<MURTimelineScroll>& ScrollerA) {
  Companions companions;
  companions.canvas = CanvasA;
  companions.scroller = ScrollerA;
  return companions;
}

template <class Companion>
void PaintAt(const QRect& PlaceA, Companion& CompanionA, QPainter& PainterA, TextMeasures& MeasuresA) {
  PainterA.save();
  PainterA.translate(PlaceA.topLeft());
  PainterA.setClipRect(QRect(QPoint(), PlaceA.size()), Qt::IntersectClip);
  {
    PainterSurface surface(PainterA, MeasuresA);
    CompanionA.Paint(surface,
                     {0, 0, static_cast<float>(PlaceA.width()), static_cast<float>(PlaceA.height())});
  }
  PainterA.restore();
}

}  // namespace

TimelineWidget::Parts::Parts(QWidget& OwnerA)
    : measures(OwnerA.font()),
      scaleWidget(std::make_unique<ChildWidget>(measures, &OwnerA)),
      canvasWidget(std::make_unique<ChildWidget>(measures, &OwnerA)),
      scaleHost(*new HostedChild(*scaleWidget)),
      canvasHost(*new HostedChild(*canvasWidget)),
      scroller(MakeOn<MURTimelineScroll>(scaleHost)),
      canvas(MakeOn<MURGraphicCanvas>(canvasHost)),
      host(*new WidgetHost(OwnerA, scaleHost, canvasHost)),
      control(MakeControl(host, CompanionsOf(canvas, scroller))),
      rows(canvas, *canvasWidget),
      navigation(control, canvas, canvasHost, rows, *scaleWidget, *canvasWidget),
      keyboard(control, canvas, scroller, navigation, rows),
      drops(*canvas),
      touch(*canvas, navigation),
      accessibility({OwnerA, *canvasWidget, *control, *canvas, keyboard}) {
  constexpr float kScaleDesignHeight = 600;  // twips
  scaleHost.SetHeight(kScaleDesignHeight);
  canvasHost.SetResized([canvas = canvas.Get()] { canvas->Resized(); });
  canvasHost.SetInvalidated([this] { FollowSoon(); });
  const auto paint = [](auto& companion) {
    return [&companion](Surface& surface, const RectF& dirty) { companion.Paint(surface, dirty); };
  };
  scaleWidget->SetPaint(paint(*scroller));
  canvasWidget->SetPaint([this](Surface& surface, const RectF& dirty) {
    canvas->Paint(surface, dirty);
    FollowSoon();  // what changed between two paintings was not told one by one
  });
  canvasWidget->SetPointer(*canvas);
  canvasWidget->setAcceptDrops(true);
  canvasWidget->setAttribute(Qt::WA_AcceptTouchEvents);
  canvasWidget->SetEvents([this](QEvent& event) { return drops.Handle(event) || touch.Handle(event); });
  scaleWidget->SetPointer(*scroller);
  connections.push_back(canvas->ItemMouseDown.Connect(
      [this](const Ref<ICanvasItem>& item, auto&...) { keyboard.TakeUp(item); }));
  QObject::connect(&keyboard, &Keyboard::dragsCancelled, &OwnerA, [this] {
    const QPointer<ChildWidget> scale(scaleWidget.get());
    canvasWidget->LosePointer();
    if (scale) scale->LosePointer();
  });
  scaleWidget->SetToolTip([this](PointF point) {
    return HoverText{scroller->ToolTipAt(point), scroller->ToolTipAreaAt(point)};
  });
  canvasWidget->SetToolTip([this](PointF point) {
    const Ref<ICanvasItem> item = canvas->ItemAt(point);
    return HoverText{canvas->ToolTipAt(point), item ? canvas->PixelBounds(*item) : RectF()};
  });
}

// The hosts, the companions and the control may outlive all else; they must not wait for a release.
TimelineWidget::Parts::~Parts() {
  canvasHost.SetInvalidated({});
  connections.clear();
  ResumeNext([this] { canvas->PointerLost(); });
  ResumeNext([this] { scroller->PointerLost(); });
}

// Once for all that the events at hand do.
void TimelineWidget::Parts::FollowSoon() {
  if (std::exchange(followsSoon, true)) return;
  QMetaObject::invokeMethod(
      &rows,
      [this] {
        followsSoon = false;
        rows.Follow();
        accessibility.Follow();
      },
      Qt::QueuedConnection);
}

void TimelineWidget::Parts::LayOut(QSizeF SizeA) {
  const Ref<MURTimelineRender> keep = control;
  host.SetPixelSize(SizeA);
  ResumeNext([&] { keep->Resize(); });
}

TimelineWidget::TimelineWidget(QWidget* parent)
    : TimelineEvents(parent), mParts(std::make_unique<Parts>(*this)) {
  setFocusPolicy(Qt::StrongFocus);
  [[maybe_unused]] static const bool kInstalled = [] {
    QAccessible::installFactory(&TimelineWidget::makeAccessible);
    return true;
  }();
  std::ranges::move(forward(*mParts->control), std::back_inserter(mParts->connections));
  mParts->connections.push_back(mParts->control->CursorTimeChange.Connect(
      [this](Date time) { Q_EMIT cursorTimeChange(ToQDateTime(time)); }));
  mParts->connections.push_back(mParts->scroller->VisibleRangeChanged.Connect([this] {
    if (!mParts->navigation.IsMoving()) Q_EMIT visibleRangeChanged();
  }));
  connect(&mParts->navigation, &Navigation::moved, this, &TimelineWidget::visibleRangeChanged);
  layOut();
}

TimelineWidget::~TimelineWidget() = default;

QAccessibleInterface* TimelineWidget::makeAccessible(const QString& /*className*/, QObject* object) {
  auto* widget = qobject_cast<TimelineWidget*>(object);
  return widget ? new AccessibleTimeline(*widget, widget->mParts->accessibility) : nullptr;
}

// Qt tells a hidden widget of its size only when it is shown; this is asked before anything that depends on
// it.
void TimelineWidget::layOut() const {
  if (mParts->laidOut == size()) return;
  mParts->laidOut = size();
  mParts->LayOut(size());
}

Ref<MURTimelineRender> TimelineWidget::control() const {
  const Ref<MURTimelineRender> control = mParts->control;
  layOut();
  return control;
}

Ref<CMURTimeline> TimelineWidget::timeline() const {
  return control()->Timeline();
}

void TimelineWidget::setTimeline(const Ref<CMURTimeline>& timeline) {
  control()->SetTimeline(timeline);
}

void TimelineWidget::showMembers() {
  control()->ShowMembers();
}

QImage TimelineWidget::renderToImage(QSize size, qreal devicePixelRatio) {
  QImage image((QSizeF(size) * devicePixelRatio).toSize(), QImage::Format_ARGB32_Premultiplied);
  image.setDevicePixelRatio(devicePixelRatio);
  image.fill(palette().color(QPalette::Window));
  QPainter painter(&image);
  renderToPainter(painter, size);
  return image;
}

void TimelineWidget::renderToPainter(QPainter& painter, QSizeF size) {
  const QPointer<TimelineWidget> self(this);
  const auto layOutAs = [this](QSizeF other, bool movesWidgets) {
    mParts->scaleHost.SetMovesWidget(movesWidgets);
    mParts->canvasHost.SetMovesWidget(movesWidgets);
    mParts->LayOut(other);
  };
  layOut();
  if (self && size != QSizeF(this->size())) layOutAs(size, false);
  if (!self) return;
  PaintAt(mParts->scaleHost.PixelPlace(), *mParts->scroller, painter, mParts->measures);
  PaintAt(mParts->canvasHost.PixelPlace(), *mParts->canvas, painter, mParts->measures);
  if (size != QSizeF(this->size())) layOutAs(QSizeF(this->size()), true);
}

QSize TimelineWidget::sizeHint() const {
  return kUsualSize;
}

QSize TimelineWidget::minimumSizeHint() const {
  return kLeastSize;
}

bool TimelineWidget::event(QEvent* event) {
  bool handled = true;
  GuardEvent([&] { handled = handleKeys(*event) || TimelineEvents::event(event); });
  return handled;
}

// True when nothing is left to do; the widget may be gone then.
bool TimelineWidget::handleKeys(QEvent& event) {
  const QPointer<TimelineWidget> self(this);
  if (event.type() == QEvent::KeyPress) {
    layOut();
    const bool pressed = self && mParts->keyboard.Press(static_cast<const QKeyEvent&>(event));
    event.setAccepted(pressed);
    return pressed || !self;
  }
  const bool comes = event.type() == QEvent::FocusIn;
  if (!comes && event.type() != QEvent::FocusOut) return false;
  const Qt::FocusReason reason = static_cast<const QFocusEvent&>(event).reason();
  mParts->keyboard.ShowRing(comes && reason != Qt::MouseFocusReason);
  return false;
}

void TimelineWidget::resizeEvent(QResizeEvent* event) {
  TimelineEvents::resizeEvent(event);
  layOut();
}

void TimelineWidget::changeEvent(QEvent* event) {
  TimelineEvents::changeEvent(event);
  switch (event->type()) {
    case QEvent::FontChange:
    case QEvent::StyleChange:
    case QEvent::PaletteChange:
      mParts->measures.SetFont(font());
      mParts->scaleWidget->update();
      mParts->canvasWidget->update();
      break;
    default:
      break;
  }
}

}  // namespace mur::qt
