#pragma once

#include <QAccessible>
#include <QPointer>

#include <murtimeline/model/timeline_object_interface.h>
#include <murtimeline/qt/keyboard.h>

namespace mur::qt {

/// What bars tell assistive technology about, and through.
struct AccessibleContext {
  QWidget& widget;
  QWidget& canvasWidget;
  MURTimelineRender& control;
  MURGraphicCanvas& canvas;
  Keyboard& keyboard;
};

/// One bar as assistive technology sees it: a list item with the object's tag (or key) as its name and its
/// times and track as its description. It is made when it is first asked for.
class AccessibleBar final : public QAccessibleInterface, public QAccessibleActionInterface {
 public:
  /// The context lasts as long as its widget.
  AccessibleBar(const AccessibleContext& ContextA, Ref<ICanvasItem> ItemA)
      : mWidget(&ContextA.widget), mContext(ContextA), mItem(std::move(ItemA)) {}

  const Ref<ICanvasItem>& Item() const { return mItem; }

  bool isValid() const override { return mWidget && mContext.canvas.Holds(*mItem); }
  QObject* object() const override { return nullptr; }
  QAccessibleInterface* parent() const override;
  int childCount() const override { return 0; }
  QAccessibleInterface* child(int) const override { return nullptr; }
  int indexOfChild(const QAccessibleInterface*) const override { return -1; }
  QAccessibleInterface* childAt(int, int) const override { return nullptr; }
  QString text(QAccessible::Text kind) const override;
  void setText(QAccessible::Text, const QString&) override {}
  QRect rect() const override;
  QAccessible::Role role() const override { return QAccessible::ListItem; }
  QAccessible::State state() const override;
  void* interface_cast(QAccessible::InterfaceType type) override;

  QStringList actionNames() const override { return {pressAction(), setFocusAction()}; }
  void doAction(const QString& name) override;
  QStringList keyBindingsForAction(const QString& name) const override;

 private:
  Ref<IMURTimelineObject> Object() const;

  QPointer<QWidget> mWidget;
  const AccessibleContext& mContext;
  Ref<ICanvasItem> mItem;
};

}  // namespace mur::qt
