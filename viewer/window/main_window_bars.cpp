// What stands around the time line: menus, the tool bar, the status bar, and where the window was.
#include <QCoreApplication>
#include <QLabel>
#include <QMenuBar>
#include <QMessageBox>
#include <QStatusBar>
#include <QToolBar>

#include <murtimeline/qt/event_guard.h>

#include "viewer/window/icons.h"
#include "viewer/window/load_progress.h"
#include "viewer/window/main_window.h"
#include "viewer/window/pointer_readout.h"
#include "viewer/window/recent_menu.h"
#include "viewer/window/selection_panel.h"
#include "viewer/window/timeline_page.h"
#include "viewer/window/zoom_actions.h"

namespace mur::viewer {
namespace {

constexpr QSize kUsualSize(1280, 720);
constexpr QSize kToolIcon(20, 20);
constexpr int kGap = 8;
constexpr QLatin1String kGeometry("geometry"), kBars("bars"), kStatusBar("statusBar");

QString Kbd(const char* KeysA) {
  return QStringLiteral("<td><b>%1</b>&nbsp;&nbsp;&nbsp;</td>").arg(QLatin1String(KeysA));
}

QString GuideRow(const char* KeysA, const char* EffectA) {
  return QStringLiteral("<tr>%1<td>%2</td></tr>").arg(Kbd(KeysA), QLatin1String(EffectA));
}

QString GuideText() {
  return QStringLiteral("<h3>Finding your way</h3><table cellpadding=3>") +
         GuideRow("Wheel", "zoom where the pointer is") + GuideRow("Shift + wheel", "move earlier or later") +
         GuideRow("Drag the background", "move earlier or later") +
         GuideRow("Click a bar", "show its object at the side") +
         GuideRow("Click or drag on the scale", "set the cursor") +
         GuideRow("Ctrl + 0", "show the whole time line") +
         GuideRow("Ctrl + plus, Ctrl + minus", "zoom about the middle") +
         GuideRow("Alt + left, Alt + right", "move earlier or later") + GuideRow("Esc", "cancel loading") +
         QStringLiteral("</table>");
}

QString AboutText() {
  return QStringLiteral(
             "<h3>MURTimeline Viewer</h3><p>Version %1</p>"
             "<p>Shows edits, traces and subtitles as time lines.</p>")
      .arg(QCoreApplication::applicationVersion());
}

void ShowText(QWidget* OwnerA, const QString& TitleA, const QString& TextA) {
  auto* box = new QMessageBox(QMessageBox::NoIcon, TitleA, TextA, QMessageBox::Close, OwnerA);
  box->setAttribute(Qt::WA_DeleteOnClose);
  box->open();
}

}  // namespace

void MainWindow::MakeFileMenu() {
  QMenu* menu = menuBar()->addMenu(QStringLiteral("&File"));
  mOpen =
      menu->addAction(MakeIcon(Symbol::Open), QStringLiteral("&Open\u2026"), this, &MainWindow::AskForFile);
  mOpen->setShortcut(QKeySequence::Open);
  mOpen->setToolTip(QStringLiteral("Open a file (Ctrl+O)"));
  auto* recent = new RecentMenu(mRecent, menu);
  menu->addMenu(recent);
  connect(recent, &RecentMenu::Chosen, this,
          [this](const QString& path) { qt::GuardEvent([&] { OpenFile(path); }); });
  menu->addSeparator();
  mExport = menu->addAction(MakeIcon(Symbol::Picture), QStringLiteral("&Export Picture\u2026"), this,
                            &MainWindow::AskForPicture);
  mExport->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_E));
  mExport->setToolTip(QStringLiteral("Export a picture of what is shown (Ctrl+E)"));
  mExport->setEnabled(false);
  menu->addSeparator();
  menu->addAction(QStringLiteral("&Quit"), this, &QWidget::close)
      ->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_Q));
}

void MainWindow::MakeViewMenu() {
  QMenu* menu = menuBar()->addMenu(QStringLiteral("&View"));
  menu->addActions(mZoom->Zooming());
  menu->addSeparator();
  menu->addActions(mZoom->Panning());
  menu->addSeparator();
  QAction* panel = mPanel->toggleViewAction();
  panel->setText(QStringLiteral("Side &Panel"));
  panel->setIcon(MakeIcon(Symbol::Panel));
  panel->setShortcut(Qt::Key_F9);
  panel->setToolTip(QStringLiteral("Show or hide the side panel (F9)"));
  menu->addAction(panel);
  QAction* status = menu->addAction(QStringLiteral("&Status Bar"));
  status->setCheckable(true);
  status->setChecked(mSettings.value(kStatusBar, true).toBool());
  statusBar()->setVisible(status->isChecked());
  connect(status, &QAction::toggled, this, [this](bool shown) {
    statusBar()->setVisible(shown);
    mSettings.setValue(kStatusBar, shown);
  });
}

void MainWindow::MakeHelpMenu() {
  QMenu* menu = menuBar()->addMenu(QStringLiteral("&Help"));
  QAction* guide = menu->addAction(QStringLiteral("&Keys and Pointer"), this, [this] {
    ShowText(this, QStringLiteral("Keys and Pointer"), GuideText());
  });
  guide->setShortcut(Qt::Key_F1);
  menu->addAction(QStringLiteral("&About MURTimeline Viewer"), this,
                  [this] { ShowText(this, QStringLiteral("About"), AboutText()); });
}

void MainWindow::MakeToolBar() {
  QToolBar* bar = addToolBar(QStringLiteral("Tools"));
  bar->setObjectName(QStringLiteral("toolBar"));
  bar->setMovable(false);
  bar->setIconSize(kToolIcon);
  bar->setContextMenuPolicy(Qt::PreventContextMenu);
  bar->addActions({mOpen, mExport});
  bar->addSeparator();
  bar->addActions(mZoom->Zooming());
  auto* gap = new QWidget;
  gap->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
  bar->addWidget(gap);
  bar->addAction(mPanel->toggleViewAction());
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
