#pragma once

#include <QObject>

#include <murtimeline/render/port/pointer_input.h>

class QEvent;
class QMouseEvent;
class QWidget;

namespace mur::qt {

/// Hands what Qt reports of the mouse to a companion, and tells it when held buttons will not be reported any
/// more: the widget is hidden, disabled or blocked by a dialog, its window loses the focus, or a button goes
/// up over a popup.
class PointerRouter final : public QObject {
 public:
  /// The widget and the target outlive the router. The target keeps itself while it is told something.
  PointerRouter(const QWidget& WidgetA, PointerTarget& TargetA) : mWidget(WidgetA), mTarget(TargetA) {}

  /// True when the event was one for the target. Listeners may have ended the widget, and this object.
  bool Handle(QEvent& EventA);
  /// Ends what is under way, without a click.
  void LosePointer();

 protected:
  bool eventFilter(QObject* WatchedA, QEvent* EventA) override;

 private:
  bool HandleMouse(QMouseEvent& EventA);
  void Press(const QMouseEvent& EventA, const PointerInput& InputA);
  void Release(const PointerInput& InputA);
  void SetHeld(std::int16_t ButtonsA);

  const QWidget& mWidget;
  PointerTarget& mTarget;
  std::int16_t mHeld = 0;  // buttons
};

/// Bits of a Button and a Shift argument.
std::int16_t ButtonsOf(Qt::MouseButtons ButtonsA);
std::int16_t ShiftOf(Qt::KeyboardModifiers ModifiersA);

}  // namespace mur::qt
