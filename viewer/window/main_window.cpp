#include "viewer/window/main_window.h"

#include <QCloseEvent>
#include <QDropEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QLabel>
#include <QLocale>
#include <QMessageBox>
#include <QMimeData>
#include <QPointer>
#include <QStackedWidget>
#include <utility>

#include <murtimeline/qt/conversions.h>
#include <murtimeline/qt/event_guard.h>
#include <murtimeline/qt/timeline_widget.h>

#include "viewer/readers/read_error.h"
#include "viewer/window/bar_picker.h"
#include "viewer/window/empty_state.h"
#include "viewer/window/picture_export.h"
#include "viewer/window/pointer_readout.h"
#include "viewer/window/selection_panel.h"
#include "viewer/window/timeline_page.h"
#include "viewer/window/zoom_actions.h"

namespace mur::viewer {
namespace {

const QString& ProgramName() {
  static const QString name = QStringLiteral("MURTimeline Viewer");
  return name;
}

// The first file that is dragged; empty when none is.
QString DraggedFile(const QMimeData& DataA) {
  for (const QUrl& url : DataA.urls())
    if (url.isLocalFile()) return url.toLocalFile();
  return {};
}

QString CountText(int CountA) {
  return CountA == 1 ? QStringLiteral("1 object")
                     : QStringLiteral("%1 objects").arg(QLocale().toString(CountA));
}

QString NotesText(const std::vector<std::string>& NotesA) {
  const QString first = QString::fromStdString(NotesA.front());
  return NotesA.size() == 1 ? first : QStringLiteral("%1 (and %2 more)").arg(first).arg(NotesA.size() - 1);
}

QFileDialog* MakeDialog(QWidget* OwnerA, const QString& TitleA, const QString& FiltersA) {
  auto* dialog = new QFileDialog(OwnerA, TitleA, {}, FiltersA);
  dialog->setAttribute(Qt::WA_DeleteOnClose);
  return dialog;
}

}  // namespace

MainWindow::MainWindow(QSettings& SettingsA)
    : mSettings(SettingsA),
      mRecent(SettingsA),
      mPage(new TimelinePage),
      mEmpty(new EmptyState),
      mStack(new QStackedWidget(this)),
      mHighlight(mPage->Timeline().control()),
      mZoom(new ZoomActions(mPage->Timeline())),
      mPanel(new SelectionPanel(this)),
      mPointer(new PointerReadout(mPage->Timeline())),
      mSelected(new QLabel),
      mCount(new QLabel) {
  setWindowTitle(ProgramName());
  setAcceptDrops(true);
  mStack->addWidget(mEmpty);
  mStack->addWidget(mPage);
  setCentralWidget(mStack);
  mStack->setFocus();
  addDockWidget(Qt::RightDockWidgetArea, mPanel);
  mZoom->setParent(this);
  mZoom->SetEnabled(false);
  auto* picker = new BarPicker(mPage->Timeline());
  picker->setParent(this);
  connect(picker, &BarPicker::Picked, this,
          [this](const auto& object) { qt::GuardEvent([&] { Select(object.Get()); }); });
  connect(mEmpty, &EmptyState::OpenWanted, this, &MainWindow::AskForFile);
  MakeFileMenu();
  MakeViewMenu();
  MakeHelpMenu();
  MakeToolBar();
  MakeStatusBar();
  RestorePlace();
}

MainWindow::~MainWindow() = default;

void MainWindow::OpenFile(const QString& PathA, const VisibleRange& RangeA) {
  mWanted = Wanted{PathA, RangeA};
  mSession.Cancel();
  if (mSession.IsRunning()) return;  // the call that is loading goes on with this file
  const QPointer<MainWindow> self(this);
  while (self && mWanted) Load(*std::exchange(mWanted, std::nullopt));
}

// Events are handled meanwhile, and one of them may end the window.
void MainWindow::Load(const Wanted& WantedA) {
  const QPointer<MainWindow> self(this);
  const QString name = QFileInfo(WantedA.path).fileName();
  try {
    auto document = mSession.Load(WantedA.path);
    if (self && document) Show(std::move(*document), WantedA.range);
  } catch (const ReadError& error) {
    if (self) Complain(QStringLiteral("%1 cannot be read.").arg(name), QString::fromUtf8(error.what()));
  } catch (const std::exception& error) {
    if (self) Complain(QStringLiteral("%1 cannot be shown.").arg(name), QString::fromUtf8(error.what()));
  }
}

void MainWindow::Show(OpenDocument DocumentA, const VisibleRange& RangeA) {
  Select(nullptr);
  mRecent.Add(DocumentA.path);
  setWindowTitle(QStringLiteral("%1 \u2014 %2").arg(QFileInfo(DocumentA.path).fileName(), ProgramName()));
  setWindowFilePath(DocumentA.path);
  mCount->setText(CountText(DocumentA.timeline->Count()));
  mPointer->SetFile(DocumentA.file);
  if (!DocumentA.file.notes.empty()) mSelected->setText(NotesText(DocumentA.file.notes));
  mStack->setCurrentWidget(mPage);
  mZoom->SetEnabled(true);
  mExport->setEnabled(true);
  mPage->Show(std::move(DocumentA), RangeA);
}

void MainWindow::Select(const IMURTimelineObject* ObjectA) {
  mHighlight.Mark(ObjectA);
  mPanel->Show(ObjectA);
  mSelected->setText(ObjectA ? qt::ToQString(ObjectA->Tag()).simplified() : QString());
}

void MainWindow::Complain(const QString& HeadlineA, const QString& LineA) {
  auto* box = new QMessageBox(QMessageBox::Warning, ProgramName(), HeadlineA + QStringLiteral("\n\n") + LineA,
                              QMessageBox::Ok, this);
  box->setAttribute(Qt::WA_DeleteOnClose);
  box->setTextFormat(Qt::PlainText);
  box->open();
}

void MainWindow::AskForFile() {
  auto* dialog = MakeDialog(this, QStringLiteral("Open"),
                            QStringLiteral("Time lines (*.otio *.json *.srt *.vtt);;All files (*)"));
  dialog->setFileMode(QFileDialog::ExistingFile);
  if (const OpenDocument* document = mPage->Document())
    dialog->setDirectory(QFileInfo(document->path).absolutePath());
  connect(dialog, &QFileDialog::fileSelected, this,
          [this](const QString& path) { qt::GuardEvent([&] { OpenFile(path); }); });
  dialog->open();
}

void MainWindow::AskForPicture() {
  auto* dialog = MakeDialog(this, QStringLiteral("Export Picture"),
                            QStringLiteral("Pictures (*.png);;Scalable pictures (*.svg)"));
  dialog->setAcceptMode(QFileDialog::AcceptSave);
  dialog->setDefaultSuffix(QStringLiteral("png"));
  if (const OpenDocument* document = mPage->Document())
    dialog->selectFile(QFileInfo(document->path).completeBaseName() + QStringLiteral(".png"));
  connect(dialog, &QFileDialog::filterSelected, dialog, [dialog](const QString& filter) {
    dialog->setDefaultSuffix(filter.contains(QLatin1String("svg")) ? QStringLiteral("svg")
                                                                   : QStringLiteral("png"));
  });
  connect(dialog, &QFileDialog::fileSelected, this,
          [this](const QString& path) { qt::GuardEvent([&] { ExportTo(path); }); });
  dialog->open();
}

void MainWindow::ExportTo(const QString& PathA) {
  if (!mPage->Document()) return;
  try {
    const qt::TimelineWidget& timeline = mPage->Timeline();
    ExportPicture(PathA, *mPage->Document(), *timeline.control(), timeline.size());
  } catch (const std::exception& error) {
    Complain(QStringLiteral("The picture cannot be exported."), QString::fromUtf8(error.what()));
  }
}

void MainWindow::closeEvent(QCloseEvent* EventA) {
  mWanted.reset();
  mSession.Cancel();
  SavePlace();
  QMainWindow::closeEvent(EventA);
}

void MainWindow::dragEnterEvent(QDragEnterEvent* EventA) {
  if (!DraggedFile(*EventA->mimeData()).isEmpty()) EventA->acceptProposedAction();
}

void MainWindow::dropEvent(QDropEvent* EventA) {
  const QString path = DraggedFile(*EventA->mimeData());
  if (path.isEmpty()) return;
  EventA->acceptProposedAction();
  // The other program waits for the drop to end; loading comes after.
  QMetaObject::invokeMethod(
      this, [this, path] { qt::GuardEvent([&] { OpenFile(path); }); }, Qt::QueuedConnection);
}

}  // namespace mur::viewer
