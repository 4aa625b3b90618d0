#include "viewer/window/zoom_actions.h"

#include <murtimeline/qt/event_guard.h>
#include <murtimeline/qt/timeline_widget.h>

#include "viewer/presentation.h"
#include "viewer/window/icons.h"

namespace mur::viewer {
namespace {

constexpr double kZoomStep = 1.4142135623730951;  // two steps double
constexpr double kPanStep = 0.25;                 // of the width

template <class Work>
QAction* MakeAction(QObject* OwnerA, const QString& CaptionA, const QList<QKeySequence>& KeysA, Work WorkA) {
  auto* action = new QAction(CaptionA, OwnerA);
  action->setShortcuts(KeysA);
  QObject::connect(action, &QAction::triggered, OwnerA, [WorkA] { qt::GuardEvent(WorkA); });
  return action;
}

}  // namespace

ZoomActions::ZoomActions(qt::TimelineWidget& WidgetA)
    : mWidget(WidgetA),
      mFit(MakeAction(this, QStringLiteral("&Fit"), {QKeySequence(Qt::CTRL | Qt::Key_0)},
                      [this] { ShowAll(*mWidget.control()); })),
      mIn(MakeAction(this, QStringLiteral("Zoom &In"),
                     {QKeySequence(Qt::CTRL | Qt::Key_Plus), QKeySequence(Qt::CTRL | Qt::Key_Equal)},
                     [this] { Zoom(kZoomStep); })),
      mOut(MakeAction(this, QStringLiteral("Zoom &Out"), {QKeySequence(Qt::CTRL | Qt::Key_Minus)},
                      [this] { Zoom(1 / kZoomStep); })),
      mEarlier(MakeAction(this, QStringLiteral("&Earlier"), {QKeySequence(Qt::ALT | Qt::Key_Left)},
                          [this] { PanByShare(-kPanStep); })),
      mLater(MakeAction(this, QStringLiteral("&Later"), {QKeySequence(Qt::ALT | Qt::Key_Right)},
                        [this] { PanByShare(kPanStep); })) {
  mFit->setIcon(MakeIcon(Symbol::Fit));
  mFit->setToolTip(QStringLiteral("Show the whole time line (Ctrl+0)"));
  mIn->setIcon(MakeIcon(Symbol::ZoomIn));
  mIn->setToolTip(QStringLiteral("Zoom in (Ctrl++)"));
  mOut->setIcon(MakeIcon(Symbol::ZoomOut));
  mOut->setToolTip(QStringLiteral("Zoom out (Ctrl+-)"));
}

void ZoomActions::SetEnabled(bool EnabledA) {
  for (QAction* action : Zooming() + Panning()) action->setEnabled(EnabledA);
}

void ZoomActions::Zoom(double FactorA) {
  mWidget.zoomAt(FactorA, mWidget.width() / 2.0);
}

void ZoomActions::PanByShare(double ShareA) {
  mWidget.pan(ShareA * mWidget.control()->Duration());
}

}  // namespace mur::viewer
