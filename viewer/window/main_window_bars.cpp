// What stands around the time line: panels, the tool bar, the status bar, and where the window was.
#include <QLabel>
#include <QStatusBar>
#include <QToolBar>

#include <murtimeline/qt/event_guard.h>

#include "viewer/window/appearance_panel.h"
#include "viewer/window/appearance_settings.h"
#include "viewer/window/event_panel.h"
#include "viewer/window/load_progress.h"
#include "viewer/window/main_window.h"
#include "viewer/window/pointer_readout.h"
#include "viewer/window/selection_panel.h"
#include "viewer/window/timeline_page.h"
#include "viewer/window/zoom_actions.h"

namespace mur::viewer {
namespace {

constexpr QSize kUsualSize(1280, 720);
constexpr QSize kToolIcon(20, 20);
constexpr int kGap = 8;
constexpr QLatin1String kGeometry("geometry"), kBars("bars");

}  // namespace

void MainWindow::MakePanels() {
  addDockWidget(Qt::RightDockWidgetArea, mPanel);
  addDockWidget(Qt::RightDockWidgetArea, mAppearance);
  tabifyDockWidget(mPanel, mAppearance);
  addDockWidget(Qt::BottomDockWidgetArea, mEvents);
  mAppearance->hide();
  mEvents->hide();
  mPage->SetAppearance(mAppearance->Chosen());
  mAppearance->SetScheme(mPage->PresentLook().scheme);
  connect(mAppearance, &AppearancePanel::Changed, this,
          [this] { qt::GuardEvent([this] { FollowAppearance(); }); });
  connect(mPage, &TimelinePage::LookChanged, this, [this] {
    mAppearance->SetScheme(mPage->PresentLook().scheme);
    mHighlight.Renew(mSelectedObject.Get());
  });
}

void MainWindow::FollowAppearance() {
  WriteAppearance(mSettings, mAppearance->Chosen());
  mPage->SetAppearance(mAppearance->Chosen());
}

void MainWindow::MakeToolBar() {
  QToolBar* bar = addToolBar(QStringLiteral("Tools"));
  bar->setObjectName(QStringLiteral("toolBar"));
  bar->setMovable(false);
  bar->setIconSize(kToolIcon);
  bar->setContextMenuPolicy(Qt::PreventContextMenu);
  bar->addActions({mOpen, mSave, mExport});
  bar->addSeparator();
  bar->addActions({mUndo, mRedo, mFindAction});
  bar->addSeparator();
  bar->addActions(mZoom->Zooming());
  auto* gap = new QWidget;
  gap->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
  bar->addWidget(gap);
  bar->addActions({mEvents->toggleViewAction(), mAppearance->toggleViewAction(), mPanel->toggleViewAction()});
}

void MainWindow::MakeStatusBar() {
  mSelected->setObjectName(QStringLiteral("selectedName"));
  mCount->setObjectName(QStringLiteral("objectCount"));
  mSelected->setTextFormat(Qt::PlainText);
  mSelected->setContentsMargins(kGap, 0, 0, 0);
  mSelected->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);  // long names widen no window
  mCount->setContentsMargins(2 * kGap, 0, kGap, 0);
  statusBar()->addWidget(mSelected, 1);
  statusBar()->addPermanentWidget(new LoadProgress(mSession));
  statusBar()->addPermanentWidget(mPointer);
  statusBar()->addPermanentWidget(mCount);
}

void MainWindow::RestorePlace() {
  resize(kUsualSize);
  restoreGeometry(mSettings.value(kGeometry).toByteArray());
  restoreState(mSettings.value(kBars).toByteArray());
}

void MainWindow::SavePlace() {
  mSettings.setValue(kGeometry, saveGeometry());
  mSettings.setValue(kBars, saveState());
}

}  // namespace mur::viewer
