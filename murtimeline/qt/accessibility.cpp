#include <murtimeline/qt/accessibility.h>
#include <murtimeline/qt/conversions.h>
#include <murtimeline/qt/event_guard.h>
#include <murtimeline/render/companions/bar_list.h>

namespace mur::qt {
namespace {

Accessibility::Listener listener = nullptr;

bool IsHeard() {
  return listener || QAccessible::isActive();
}

void Send(QAccessibleEvent& EventA) {
  listener ? listener(EventA) : QAccessible::updateAccessibility(&EventA);
}

}  // namespace

Accessibility::Accessibility(const AccessibleContext& ContextA) : mContext(ContextA) {
  connect(&mContext.keyboard, &Keyboard::currentChanged, this, [this] {
    if (mContext.widget.hasFocus()) Tell(mContext.keyboard.Current(), QAccessible::Focus);
  });
  const auto select = [this](const Ref<IMURTimelineObject>&) { AnnounceSelection(); };
  mControlConnections.push_back(mContext.control.TLObjectClick.Connect(select));
  mControlConnections.push_back(mContext.control.TLObjectDblClick.Connect(select));
}

void Accessibility::SetListener(Listener ListenerA) {
  listener = ListenerA;
}

Accessibility::~Accessibility() {
  for (const QAccessible::Id id : mBars) QAccessible::deleteAccessibleInterface(id);
}

int Accessibility::Count() const {
  return static_cast<int>(BarList(mContext.canvas).Count());
}

QAccessibleInterface* Accessibility::At(int IndexA) {
  return IndexA < 0 ? nullptr : Of(BarList(mContext.canvas).At(static_cast<std::size_t>(IndexA)));
}

int Accessibility::IndexOf(const QAccessibleInterface& BarA) const {
  const auto* bar = dynamic_cast<const AccessibleBar*>(&BarA);
  if (!bar || !bar->isValid()) return -1;
  const auto place = BarList(mContext.canvas).PlaceOf(*bar->Item());
  return place ? static_cast<int>(*place) : -1;
}

QAccessibleInterface* Accessibility::AtPoint(QPoint GlobalA) {
  const QPointF at = mContext.canvasWidget.mapFromGlobal(QPointF(GlobalA));
  if (!QRectF(mContext.canvasWidget.rect()).contains(at)) return nullptr;
  return Of(mContext.canvas.ItemAt({static_cast<float>(at.x()), static_cast<float>(at.y())}));
}

QAccessibleInterface* Accessibility::Of(const Ref<ICanvasItem>& ItemA) {
  if (!ItemA || ItemA->Kind() == kCursorItem || !mContext.canvas.Holds(*ItemA)) return nullptr;
  Attach();
  if (const auto known = mBars.constFind(ItemA.Get()); known != mBars.constEnd())
    return QAccessible::accessibleInterface(*known);
  auto* bar = new AccessibleBar(mContext, ItemA);
  mBars.insert(ItemA.Get(), QAccessible::registerAccessibleInterface(bar));
  return bar;
}

void Accessibility::Follow() {
  if (!IsHeard()) return;
  Attach();
  Sweep();
  if (std::exchange(mCount, mContext.canvas.GraphicCount()) == mContext.canvas.GraphicCount()) return;
  QAccessibleEvent event(&mContext.widget, QAccessible::ObjectReorder);
  Send(event);
}

// Bars of another time line's objects stay on the canvas; what is listened to is the present one.
void Accessibility::Attach() {
  const Ref<CMURTimeline> timeline = mContext.control.Timeline();
  if (timeline == mTimeline) return;
  mConnections.clear();
  mTimeline = timeline;
  if (!timeline) return;
  mConnections.push_back(
      timeline->TLObjectPropertyChanged.Connect([this](const Ref<IMURTimelineObject>& object, StringView name,
                                                       const Variant&) { Announce(*object, name); }));
  mConnections.push_back(timeline->TLObjectAdded.Connect([this](const Variant& key) {
    if (IsHeard() && !mBars.isEmpty()) Tell(mContext.canvas.Graphic(key), QAccessible::ObjectShow);
  }));
}

// Only those that were asked for are looked at.
void Accessibility::Sweep() {
  for (auto bar = mBars.begin(); bar != mBars.end();) {
    QAccessibleInterface* interface = QAccessible::accessibleInterface(*bar);
    if (interface && interface->isValid()) {
      ++bar;
      continue;
    }
    const QAccessible::Id id = *bar;
    bar = mBars.erase(bar);
    if (!interface) continue;
    QAccessibleEvent event(interface, QAccessible::ObjectDestroyed);
    Send(event);
    QAccessible::deleteAccessibleInterface(id);
  }
}

void Accessibility::Announce(const IMURTimelineObject& ObjectA, StringView PropertyA) {
  if (!IsHeard() || mBars.isEmpty()) return;
  const Ref<ICanvasItem> item = mContext.canvas.GraphicByKey(ObjectA.KeyText().View());
  if (!item || !mBars.contains(item.Get())) return;
  Tell(item, PropertyA == u"Tag" ? QAccessible::NameChanged : QAccessible::ValueChanged);
}

void Accessibility::AnnounceSelection() {
  const Variant before = std::exchange(mSelected, mContext.control.SelectedKey());
  if (!IsHeard() || before == mSelected) return;
  Tell(mContext.canvas.Graphic(before), QAccessible::SelectionRemove);
  Tell(mContext.canvas.Graphic(mSelected), QAccessible::Selection);
}

void Accessibility::Tell(const Ref<ICanvasItem>& ItemA, QAccessible::Event EventA) {
  if (!IsHeard()) return;
  QAccessibleInterface* bar = Of(ItemA);
  if (!bar) return;
  if (EventA == QAccessible::ValueChanged) {
    QAccessibleValueChangeEvent event(bar, bar->text(QAccessible::Value));
    return Send(event);
  }
  QAccessibleEvent event(bar, EventA);
  Send(event);
}

AccessibleTimeline::AccessibleTimeline(QWidget& WidgetA, Accessibility& BarsA)
    : QAccessibleWidget(&WidgetA, QAccessible::List), mBars(&BarsA) {}

QAccessibleInterface* AccessibleTimeline::focusChild() const {
  return mBars && widget()->hasFocus() ? mBars->Focused() : nullptr;
}

QString AccessibleTimeline::text(QAccessible::Text kind) const {
  const QString text = QAccessibleWidget::text(kind);
  return kind == QAccessible::Name && text.isEmpty() ? QWidget::tr("Time line") : text;
}

}  // namespace mur::qt
