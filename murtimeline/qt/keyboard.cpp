#include <QKeyEvent>
#include <QPointer>
#include <cmath>
#include <utility>

#include <murtimeline/qt/keyboard.h>
#include <murtimeline/qt/pointer_router.h>

namespace mur::qt {
namespace {

constexpr int kZoomSteps = 8;  // a factor of 1.26

// Commas and full stops also as what Shift makes of them on usual layouts.
Key KeyOf(const QKeyEvent& EventA) {
  const bool shifted = EventA.modifiers().testFlag(Qt::ShiftModifier);
  switch (EventA.key()) {
    case Qt::Key_Left:
      return Key::Left;
    case Qt::Key_Right:
      return Key::Right;
    case Qt::Key_Up:
      return Key::Up;
    case Qt::Key_Down:
      return Key::Down;
    case Qt::Key_Home:
      return Key::Home;
    case Qt::Key_End:
      return Key::End;
    case Qt::Key_Return:
    case Qt::Key_Enter:
      return Key::Enter;
    case Qt::Key_Space:
      return Key::Space;
    case Qt::Key_Menu:
      return Key::Menu;
    case Qt::Key_Escape:
      return Key::Escape;
    case Qt::Key_Comma:
      return Key::Comma;
    case Qt::Key_Less:
    case Qt::Key_Semicolon:
      return shifted ? Key::Comma : Key::Other;
    case Qt::Key_Period:
      return Key::FullStop;
    case Qt::Key_Greater:
    case Qt::Key_Colon:
      return shifted ? Key::FullStop : Key::Other;
    case Qt::Key_M:
      return Key::M;
    default:
      return Key::Other;
  }
}

}  // namespace

// What calls into the control comes last in each routine: after it this object may be gone.

Keyboard::Keyboard(Ref<MURTimelineRender> ControlA, Ref<MURGraphicCanvas> CanvasA,
                   Ref<MURTimelineScroll> ScrollerA, Navigation& NavigationA, RowScroller& RowsA)
    : mControl(std::move(ControlA)),
      mBars(Make<BarKeyboard>(*mControl, std::move(CanvasA), std::move(ScrollerA))),
      mNavigation(NavigationA),
      mRows(RowsA) {
  mConnections.push_back(mBars->CurrentChanged.Connect([this] { Q_EMIT currentChanged(); }));
  mConnections.push_back(mBars->DragsCancelled.Connect([this] { Q_EMIT dragsCancelled(); }));
  mConnections.push_back(mBars->CursorPut.Connect([this] { RevealCursor(); }));
  mConnections.push_back(mBars->BarReached.Connect([this](const Ref<ICanvasItem>& bar) {
    if (mNavigation.IsEnabled()) mNavigation.Reveal(*bar);
  }));
}

bool Keyboard::Press(const QKeyEvent& EventA) {
  const Key key = KeyOf(EventA);
  if (key == Key::Escape) return Cancel();
  const QPointer<Keyboard> self(this);
  const bool hasMeta = EventA.modifiers().testFlag(Qt::MetaModifier);
  if (!hasMeta && Ref(mBars)->Press({key, ShiftOf(EventA.modifiers())})) return true;
  return self && PressMoving(EventA);
}

bool Keyboard::PressMoving(const QKeyEvent& EventA) {
  const Qt::KeyboardModifiers keys = EventA.modifiers() & ~(Qt::KeypadModifier | Qt::ShiftModifier);
  if (!mNavigation.IsEnabled()) return false;
  if (keys == Qt::ControlModifier && EventA.key() == Qt::Key_Home) return mNavigation.ShowStart();
  if (keys == Qt::ControlModifier && EventA.key() == Qt::Key_End) return mNavigation.ShowEnd();
  if (keys != Qt::NoModifier) return false;
  switch (EventA.key()) {
    case Qt::Key_Plus:
    case Qt::Key_Equal:
      return Zoom(kZoomSteps);
    case Qt::Key_Minus:
    case Qt::Key_Underscore:
      return Zoom(-kZoomSteps);
    case Qt::Key_F:
      mNavigation.Fit();
      return true;
    case Qt::Key_PageUp:
      mRows.ScrollByPages(-1);
      return true;
    case Qt::Key_PageDown:
      mRows.ScrollByPages(1);
      return true;
    default:
      return false;
  }
}

void Keyboard::RevealCursor() {
  if (!mNavigation.IsEnabled()) return;
  const double x = mNavigation.XOf(mControl->CursorTime());
  mNavigation.Reveal(x, x);
}

bool Keyboard::Zoom(int StepsA) {
  constexpr double kSamePlace = 0.01;  // pixels: the cursor is where it was, but for rounding
  const double width = mNavigation.Width(), cursor = mNavigation.XOf(mControl->CursorTime());
  const double x = cursor >= 0 && cursor <= width ? cursor : width / 2;
  if (!(std::abs(x - mZoomedAt) < kSamePlace)) mZoomedAt = x;
  mNavigation.ZoomBySteps(StepsA, mZoomedAt);
  return true;
}

bool Keyboard::Cancel() {
  const QPointer<Keyboard> self(this);
  const bool isTaken = mNavigation.IsTaken();
  mNavigation.LetGo();
  const bool drags = Ref(mBars)->Press({Key::Escape, 0});
  if (isTaken && !drags && self) Q_EMIT dragsCancelled();
  return drags || isTaken;
}

}  // namespace mur::qt
