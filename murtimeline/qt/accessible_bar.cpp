#include <murtimeline/automation/guard.h>
#include <murtimeline/qt/accessible_bar.h>
#include <murtimeline/qt/conversions.h>
#include <murtimeline/qt/event_guard.h>
#include <murtimeline/render/bar_description.h>
#include <murtimeline/render/companions/bar_list.h>
#include <murtimeline/render/companions/item_gestures.h>

namespace mur::qt {

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
    if (kind == QAccessible::Name) text = ToQString(BarName(*object));
    if (kind == QAccessible::Description || kind == QAccessible::Value)
      text = ToQString(BarDescription(mContext.control, object));
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
  state.selectable = state.focusable = true;
  state.disabled = !mWidget->isEnabled();
  state.invisible = !mItem->Visible() || !mWidget->isVisible();
  state.offscreen = !BarList(mContext.canvas).IsInView(*mItem);
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
