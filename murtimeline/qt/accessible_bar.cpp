#include <murtimeline/automation/guard.h>
#include <murtimeline/automation/regional.h>
#include <murtimeline/qt/accessible_bar.h>
#include <murtimeline/qt/conversions.h>
#include <murtimeline/qt/event_guard.h>
#include <murtimeline/render/companions/item_gestures.h>
#include <murtimeline/render/object_walks.h>

namespace mur::qt {
namespace {

constexpr double kFramesPerSecond = 25.0;

QString TimeText(const MURTimelineRender& ControlA, Date TimeA) {
  const String format = ControlA.FormatString();
  if (!format.empty()) return ToQString(Regional().Format(TimeA, format));
  const Ref<ITimeText> service = ControlA.Collaborators().timeText;
  return ToQString(service->FormatSeconds(TimeA.Seconds(), ControlA.FormatStyle(), kFramesPerSecond));
}

QString NameOf(const IMURTimelineObject& ObjectA) {
  const QString tag = ToQString(ObjectA.Tag());
  return tag.trimmed().isEmpty() ? ToQString(ObjectA.Key()) : tag;
}

// "06:00:00 to 06:01:30, in Picture": the last part names the track of what is in one.
QString DescriptionOf(const MURTimelineRender& ControlA, const Ref<IMURTimelineObject>& ObjectA) {
  const Date start = ObjectA->WorldTimeT0();
  const Date end = Date::Unchecked(start.Days() + ObjectA->Duration() / kSecondsPerDay);
  QString text = QWidget::tr("%1 to %2").arg(TimeText(ControlA, start), TimeText(ControlA, end));
  const Ref<IMURTimelineObject> root = GetRootObject(ObjectA);
  if (!(root == ObjectA)) text += QWidget::tr(", in %1").arg(NameOf(*root));
  return text;
}

}  // namespace

Ref<IMURTimelineObject> AccessibleBar::Object() const {
  const Ref<CMURTimeline> timeline = isValid() ? mContext.control.Timeline() : nullptr;
  return timeline ? timeline->ItemByKey(mItem->Key()) : nullptr;
}

QAccessibleInterface* AccessibleBar::parent() const {
  return mWidget ? QAccessible::queryAccessibleInterface(mWidget) : nullptr;
}

QString AccessibleBar::text(QAccessible::Text kind) const {
  QString text;
  ResumeNext([&] {
    const Ref<IMURTimelineObject> object = Object();
    if (!object) return;
    if (kind == QAccessible::Name) text = NameOf(*object);
    if (kind == QAccessible::Description || kind == QAccessible::Value)
      text = DescriptionOf(mContext.control, object);
  });
  return text;
}

QRect AccessibleBar::rect() const {
  if (!isValid()) return {};
  const RectF bounds = mContext.canvas.PixelBounds(*mItem);
  const QRectF shown = QRectF(static_cast<qreal>(bounds.left), static_cast<qreal>(bounds.top),
                              static_cast<qreal>(bounds.width), static_cast<qreal>(bounds.height)) &
                       QRectF(mContext.canvasWidget.rect());
  return {mContext.canvasWidget.mapToGlobal(shown.topLeft()).toPoint(), shown.size().toSize()};
}

QAccessible::State AccessibleBar::state() const {
  QAccessible::State state;
  state.invalid = !isValid();
  if (state.invalid) return state;
  const RectF bounds = mContext.canvas.PixelBounds(*mItem), area = mContext.canvas.Area();
  const bool isShown = bounds.left < area.width && bounds.Right() > 0 && bounds.top < area.height &&
                       bounds.Bottom() > 0 && !bounds.IsEmpty();
  state.selectable = state.focusable = true;
  state.disabled = !mWidget->isEnabled();
  state.invisible = !mItem->Visible() || !mWidget->isVisible();
  state.offscreen = !isShown;
  state.selected = mContext.control.SelectedKey() == Variant(mItem->Key());
  state.focused = mWidget->hasFocus() && mContext.keyboard.Current() == mItem;
  return state;
}

void* AccessibleBar::interface_cast(QAccessible::InterfaceType type) {
  return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this) : nullptr;
}

// Listeners may end the widget, and this object with it.
void AccessibleBar::doAction(const QString& name) {
  if (!isValid()) return;
  const Ref<ICanvasItem> item = mItem;
  const Ref<MURGraphicCanvas> canvas(&mContext.canvas);
  GuardEvent([&] {
    if (name == pressAction()) return ClickItem(*canvas, item, kLeftButton, 0);
    if (name != setFocusAction()) return;
    mWidget->setFocus(Qt::OtherFocusReason);
    mContext.keyboard.Focus(item);
  });
}

QStringList AccessibleBar::keyBindingsForAction(const QString& name) const {
  return name == pressAction() ? QStringList(QStringLiteral("Space")) : QStringList();
}

}  // namespace mur::qt
