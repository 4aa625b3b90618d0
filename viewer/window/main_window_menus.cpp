// The menus and their actions.
#include <QCoreApplication>
#include <QMenuBar>
#include <QMessageBox>
#include <QStatusBar>

#include <murtimeline/qt/event_guard.h>
#include <murtimeline/qt/timeline_widget.h>

#include "viewer/window/appearance_panel.h"
#include "viewer/window/event_panel.h"
#include "viewer/window/find_bar.h"
#include "viewer/window/icons.h"
#include "viewer/window/main_window.h"
#include "viewer/window/marker_dragging.h"
#include "viewer/window/recent_menu.h"
#include "viewer/window/selection_panel.h"
#include "viewer/window/timeline_page.h"
#include "viewer/window/zoom_actions.h"

namespace mur::viewer {
namespace {

constexpr QLatin1String kStatusBar("statusBar");

QString Kbd(const char* KeysA) {
  return QStringLiteral("<td><b>%1</b>&nbsp;&nbsp;&nbsp;</td>").arg(QLatin1String(KeysA));
}

QString GuideRow(const char* KeysA, const char* EffectA) {
  return QStringLiteral("<tr>%1<td>%2</td></tr>").arg(Kbd(KeysA), QLatin1String(EffectA));
}

QString GuideText() {
  return QStringLiteral("<h3>Finding your way</h3><table cellpadding=3>") +
         GuideRow("Wheel", "scroll the tracks") + GuideRow("Ctrl + wheel", "zoom where the pointer is") +
         GuideRow("Shift + wheel", "move earlier or later") +
         GuideRow("Drag the background", "move earlier or later") +
         GuideRow("Click a bar", "show its object at the side") +
         GuideRow("Drag a bar or a marker", "move it (Edit, Allow Moving Bars)") +
         GuideRow("Arrows, Enter", "walk from bar to bar, show the object") +
         GuideRow("Ctrl + left, Ctrl + right", "move the bar, with Shift further") +
         GuideRow("Click or drag on the scale", "set the cursor") +
         GuideRow("Ctrl + F, F3, Shift + F3", "find by tag, next, previous") +
         GuideRow("Ctrl + Z, Ctrl + Shift + Z", "undo, redo") +
         GuideRow("Ctrl + 0", "show the whole time line") +
         GuideRow("Ctrl + plus, Ctrl + minus", "zoom about the middle") +
         GuideRow("Alt + left, Alt + right", "move earlier or later") +
         GuideRow("Esc", "cancel a drag or loading") + QStringLiteral("</table>");
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

// Gives an action a shortcut and a tool tip that names it.
void SetKeys(QAction* ActionA, const QKeySequence& KeysA, const QString& TipA = {}) {
  ActionA->setShortcut(KeysA);
  const QString tip = TipA.isEmpty() ? ActionA->text().remove(QLatin1Char('&')).remove(QChar(0x2026)) : TipA;
  ActionA->setToolTip(QStringLiteral("%1 (%2)").arg(tip, KeysA.toString(QKeySequence::NativeText)));
}

}  // namespace

void MainWindow::MakeFileMenu() {
  QMenu* menu = menuBar()->addMenu(QStringLiteral("&File"));
  mOpen =
      menu->addAction(MakeIcon(Symbol::Open), QStringLiteral("&Open\u2026"), this, &MainWindow::AskForFile);
  SetKeys(mOpen, QKeySequence(Qt::CTRL | Qt::Key_O), QStringLiteral("Open a file"));
  auto* recent = new RecentMenu(mRecent, menu);
  menu->addMenu(recent);
  connect(recent, &RecentMenu::Chosen, this,
          [this](const QString& path) { qt::GuardEvent([&] { OpenFile(path); }); });
  menu->addSeparator();
  mSave = menu->addAction(MakeIcon(Symbol::Save), QStringLiteral("&Save"), this,
                          [this] { qt::GuardEvent([this] { Save(); }); });
  SetKeys(mSave, QKeySequence(Qt::CTRL | Qt::Key_S), QStringLiteral("Save what was moved"));
  mSave->setEnabled(false);
  mSaveAs = menu->addAction(QStringLiteral("Save &As\u2026"), this, &MainWindow::AskForPlace);
  SetKeys(mSaveAs, QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_S));
  mSaveAs->setEnabled(false);
  menu->addSeparator();
  mExport = menu->addAction(MakeIcon(Symbol::Picture), QStringLiteral("&Export Picture\u2026"), this,
                            &MainWindow::AskForPicture);
  SetKeys(mExport, QKeySequence(Qt::CTRL | Qt::Key_E), QStringLiteral("Export a picture of what is shown"));
  QAction* print = menu->addAction(QStringLiteral("&Print\u2026"), this,
                                   [this] { qt::GuardEvent([this] { AskForPrinter(); }); });
  SetKeys(print, QKeySequence(Qt::CTRL | Qt::Key_P));
  QAction* preview = menu->addAction(QStringLiteral("Print Pre&view\u2026"), this,
                                     [this] { qt::GuardEvent([this] { PreviewPage(); }); });
  mNeedDocument += {mExport, print, preview};
  menu->addSeparator();
  menu->addAction(QStringLiteral("&Quit"), this, &QWidget::close)
      ->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_Q));
  for (QAction* action : mNeedDocument) action->setEnabled(false);
}

void MainWindow::MakeEditMenu() {
  QMenu* menu = menuBar()->addMenu(QStringLiteral("&Edit"));
  MakeUndoActions();
  menu->addActions({mUndo, mRedo});
  menu->addSeparator();
  mFindAction = menu->addAction(MakeIcon(Symbol::Find), QStringLiteral("&Find\u2026"), mFind, &FindBar::Open);
  SetKeys(mFindAction, QKeySequence(Qt::CTRL | Qt::Key_F), QStringLiteral("Find objects by their tags"));
  const auto step = [&](const QString& caption, const QKeySequence& keys, bool forward) {
    QAction* action =
        menu->addAction(caption, this, [this, forward] { qt::GuardEvent([&] { mFind->Step(forward); }); });
    SetKeys(action, keys);
    return action;
  };
  QAction* next = step(QStringLiteral("Find &Next"), QKeySequence(Qt::Key_F3), true);
  QAction* previous = step(QStringLiteral("Find &Previous"), QKeySequence(Qt::SHIFT | Qt::Key_F3), false);
  menu->addSeparator();
  mAllowMoving = menu->addAction(QStringLiteral("&Allow Moving Bars"));
  mAllowMoving->setCheckable(true);
  connect(mAllowMoving, &QAction::toggled, this,
          [this](bool allowed) { qt::GuardEvent([&] { AllowMoving(allowed); }); });
  QAction* times = menu->addAction(QStringLiteral("&Displayed Times\u2026"), this, [this] {
    qt::GuardEvent([this] { mPage->Timeline().control()->ShowEditor(); });
  });
  SetKeys(times, QKeySequence(Qt::CTRL | Qt::Key_T));
  const QList<QAction*> needDocument{mFindAction, next, previous, mAllowMoving, times};
  for (QAction* action : needDocument) action->setEnabled(false);
  mNeedDocument += needDocument;

  connect(mFind, &FindBar::Found, this, [this](const auto& object) {
    qt::GuardEvent([&] {
      mPage->Reveal(*object);
      Select(object);
    });
  });
  connect(mFind, &FindBar::Closed, this, [this] { mPage->Timeline().setFocus(); });
}

// A step cannot be undone while a bar hangs on the pointer.
void MainWindow::MakeUndoActions() {
  QUndoStack& steps = mHistory->Steps();
  const auto make = [&](Symbol symbol, const QString& name, const QKeySequence& keys, auto canChanged,
                        auto textChanged, void (QUndoStack::*work)()) {
    auto* action = new QAction(MakeIcon(symbol), QLatin1Char('&') + name, this);
    action->setObjectName(name.toLower());
    SetKeys(action, keys);
    action->setEnabled(false);
    connect(&steps, canChanged, action, &QAction::setEnabled);
    connect(&steps, textChanged, action, [action, name](const QString& text) {
      action->setText(QLatin1Char('&') + (text.isEmpty() ? name : name + QLatin1Char(' ') + text));
    });
    connect(action, &QAction::triggered, this, [this, &steps, work] {
      qt::GuardEvent([&] {
        if (mPage->Timeline().control()->IsDragging()) return;
        mHistory->Commit();
        (steps.*work)();
      });
    });
    return action;
  };
  mUndo = make(Symbol::Undo, QStringLiteral("Undo"), QKeySequence(Qt::CTRL | Qt::Key_Z),
               &QUndoStack::canUndoChanged, &QUndoStack::undoTextChanged, &QUndoStack::undo);
  mRedo = make(Symbol::Redo, QStringLiteral("Redo"), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z),
               &QUndoStack::canRedoChanged, &QUndoStack::redoTextChanged, &QUndoStack::redo);
  connect(&steps, &QUndoStack::cleanChanged, this, [this] { qt::GuardEvent([this] { ShowTitle(); }); });
  connect(mHistory, &EditHistory::Changed, this, [this] {
    qt::GuardEvent([this] {
      ShowTitle();
      mPanel->Show(mSelectedObject.Get());
    });
  });
}

void MainWindow::AllowMoving(bool AllowedA) {
  if (AllowedA) mHistory->Watch();
  mPage->Timeline().setAllowObjectDragging(AllowedA);
  mMarkers->SetEnabled(AllowedA);
}

void MainWindow::MakeViewMenu() {
  QMenu* menu = menuBar()->addMenu(QStringLiteral("&View"));
  menu->addActions(mZoom->Zooming());
  menu->addSeparator();
  menu->addActions(mZoom->Panning());
  menu->addSeparator();
  const auto addPanel = [menu](QDockWidget* panel, const QString& caption, Symbol symbol,
                               const QKeySequence& keys, const QString& tip) {
    QAction* action = panel->toggleViewAction();
    action->setText(caption);
    action->setIcon(MakeIcon(symbol));
    SetKeys(action, keys, tip);
    menu->addAction(action);
    // Beside another panel it lies behind that one at first.
    connect(action, &QAction::triggered, panel, [panel](bool shown) {
      if (shown) panel->raise();
    });
  };
  addPanel(mPanel, QStringLiteral("Side &Panel"), Symbol::Panel, QKeySequence(Qt::Key_F9),
           QStringLiteral("Show or hide the side panel"));
  addPanel(mAppearance, QStringLiteral("&Appearance"), Symbol::Sliders,
           QKeySequence(Qt::CTRL | Qt::Key_Comma),
           QStringLiteral("Show or hide colours, captions and formats"));
  addPanel(mEvents, QStringLiteral("E&vents"), Symbol::Events, QKeySequence(Qt::Key_F8),
           QStringLiteral("Show or hide the log of events"));
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

}  // namespace mur::viewer
