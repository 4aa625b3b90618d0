#include <QCoreApplication>
#include <QMouseEvent>
#include <QPointer>
#include <QWidget>
#include <utility>

#include <murtimeline/qt/event_guard.h>
#include <murtimeline/qt/pointer_router.h>

namespace mur::qt {

std::int16_t ButtonsOf(Qt::MouseButtons ButtonsA) {
  const auto bit = [&](Qt::MouseButton button, int value) { return ButtonsA.testFlag(button) ? value : 0; };
  return static_cast<std::int16_t>(bit(Qt::LeftButton, kLeftButton) | bit(Qt::RightButton, kRightButton) |
                                   bit(Qt::MiddleButton, kMiddleButton));
}

std::int16_t ShiftOf(Qt::KeyboardModifiers ModifiersA) {
  const auto bit = [&](Qt::KeyboardModifier key, int value) { return ModifiersA.testFlag(key) ? value : 0; };
  return static_cast<std::int16_t>(bit(Qt::ShiftModifier, kShiftKey) | bit(Qt::ControlModifier, kControlKey) |
                                   bit(Qt::AltModifier, kAltKey));
}

// Our own state is settled before the target is told anything: after that this object may be gone.

bool PointerRouter::Handle(QEvent& EventA) {
  switch (EventA.type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::MouseButtonRelease:
      return HandleMouse(static_cast<QMouseEvent&>(EventA));
    case QEvent::Leave:
      mTarget.PointerLeft();
      return true;
    case QEvent::EnabledChange:
      if (mWidget.isEnabled()) return false;
      [[fallthrough]];
    case QEvent::Hide:
    case QEvent::UngrabMouse:
    case QEvent::WindowBlocked:
    case QEvent::WindowDeactivate:
      LosePointer();
      return false;
    default:
      return false;
  }
}

// Buttons that have no name here are left to the parents.
bool PointerRouter::HandleMouse(QMouseEvent& EventA) {
  const bool moves = EventA.type() == QEvent::MouseMove;
  const std::int16_t button = moves ? mHeld : ButtonsOf(EventA.button());
  EventA.setAccepted(moves || button != 0);
  if (!EventA.isAccepted()) return true;
  const QPointF at = EventA.position();
  const PointerInput input{
      {static_cast<float>(at.x()), static_cast<float>(at.y())}, button, ShiftOf(EventA.modifiers())};
  if (moves)
    mTarget.PointerMoved(input);
  else if (EventA.type() == QEvent::MouseButtonRelease)
    Release(input);
  else
    Press(EventA, input);
  return true;
}

void PointerRouter::Press(const QMouseEvent& EventA, const PointerInput& InputA) {
  const QPointer<PointerRouter> self(this);
  if ((mHeld & InputA.button) != 0) LosePointer();  // the release before this press went astray
  if (!self) return;
  SetHeld(static_cast<std::int16_t>(mHeld | InputA.button));
  if (EventA.type() == QEvent::MouseButtonDblClick)
    mTarget.PointerDoublePressed(InputA);
  else
    mTarget.PointerPressed(InputA);
}

void PointerRouter::Release(const PointerInput& InputA) {
  SetHeld(static_cast<std::int16_t>(mHeld & ~InputA.button));
  mTarget.PointerReleased(InputA);
}

void PointerRouter::LosePointer() {
  if (mHeld == 0) return;
  SetHeld(0);
  mTarget.PointerLost();
}

// Where releases go that do not come here is seen only by the application.
void PointerRouter::SetHeld(std::int16_t ButtonsA) {
  const bool held = std::exchange(mHeld, ButtonsA) != 0;
  if (held == (ButtonsA != 0)) return;
  if (held)
    QCoreApplication::instance()->removeEventFilter(this);
  else
    QCoreApplication::instance()->installEventFilter(this);
}

bool PointerRouter::eventFilter(QObject* WatchedA, QEvent* EventA) {
  if (EventA->type() != QEvent::MouseButtonRelease || !WatchedA->isWidgetType() || WatchedA == &mWidget)
    return false;
  const auto& released = static_cast<const QMouseEvent&>(*EventA);
  GuardEvent([&] {
    if ((ButtonsOf(released.button()) & mHeld) != 0) LosePointer();
  });
  return false;
}

}  // namespace mur::qt
