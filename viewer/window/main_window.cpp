#include "viewer/window/main_window.h"

#include <QDropEvent>
#include <QFileInfo>
#include <QLabel>
#include <QLocale>
#include <QMessageBox>
#include <QMimeData>
#include <QPointer>
#include <QStackedWidget>
#include <QVBoxLayout>
#include <utility>

#include <murtimeline/qt/conversions.h>
#include <murtimeline/qt/event_guard.h>
#include <murtimeline/qt/timeline_widget.h>

#include "viewer/readers/read_error.h"
#include "viewer/window/appearance_panel.h"
#include "viewer/window/appearance_settings.h"
#include "viewer/window/clicked_bar.h"
#include "viewer/window/empty_state.h"
#include "viewer/window/event_panel.h"
#include "viewer/window/find_bar.h"
#include "viewer/window/marker_dragging.h"
#include "viewer/window/pointer_readout.h"
#include "viewer/window/program_name.h"
#include "viewer/window/selection_panel.h"
#include "viewer/window/timeline_page.h"
#include "viewer/window/zoom_actions.h"

namespace mur::viewer {
namespace {

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

}  // namespace

MainWindow::MainWindow(QSettings& SettingsA)
    : mSettings(SettingsA),
      mRecent(SettingsA),
      mPage(new TimelinePage),
      mEmpty(new EmptyState),
      mFind(new FindBar),
      mStack(new QStackedWidget),
      mHighlight(mPage->Timeline().control()),
      mHistory(new EditHistory(*mPage)),
      mMarkers(new MarkerDragging(*mPage, *mHistory)),
      mZoom(new ZoomActions(mPage->Timeline())),
      mPanel(new SelectionPanel(this)),
      mAppearance(new AppearancePanel(ReadAppearance(SettingsA), this)),
      mEvents(new EventPanel(mPage->Timeline().control(), this)),
      mPointer(new PointerReadout(mPage->Timeline())),
      mSelected(new QLabel),
      mCount(new QLabel) {
  setWindowTitle(ProgramName());
  setAcceptDrops(true);
  mStack->addWidget(mEmpty);
  mStack->addWidget(mPage);
  auto* centre = new QWidget;
  auto* column = new QVBoxLayout(centre);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(0);
  column->addWidget(mStack, 1);
  column->addWidget(mFind);
  setCentralWidget(centre);
  mStack->setFocus();
  auto* clicks = new ClickedBar(mPage->Timeline());
  for (QObject* part : std::initializer_list<QObject*>{mHistory, mMarkers, mZoom, clicks})
    part->setParent(this);
  mZoom->SetEnabled(false);
  connect(clicks, &ClickedBar::Picked, this,
          [this](const auto& object) { qt::GuardEvent([&] { Select(object); }); });
  connect(mEmpty, &EmptyState::OpenWanted, this, &MainWindow::AskForFile);
  MakePanels();
  MakeFileMenu();
  MakeEditMenu();
  MakeViewMenu();
  MakeHelpMenu();
  MakeToolBar();
  MakeStatusBar();
  RestorePlace();
}

MainWindow::~MainWindow() {
  // The panels and the history must not hear of the end of the time line while they are going.
  mEvents->SetTimeline({});
  mHistory->disconnect(this);
  disconnect(&mHistory->Steps(), nullptr, this, nullptr);
}

void MainWindow::OpenFile(const QString& PathA, const VisibleRange& RangeA) {
  AskAboutChanges([this, PathA, RangeA] { StartOpening(PathA, RangeA); });
}

void MainWindow::StartOpening(const QString& PathA, const VisibleRange& RangeA) {
  mWanted = Wanted{PathA, RangeA};
  mSession.Cancel();
  if (mSession.IsRunning()) return;  // the call that is loading goes on with this file
  const QPointer<MainWindow> self(this);
  while (self && mWanted) Load(*std::exchange(mWanted, std::nullopt));
}

// Events are handled meanwhile, and one of them may end the window or move a bar of the file that is shown.
void MainWindow::Load(const Wanted& WantedA) {
  const QPointer<MainWindow> self(this);
  const QString name = QFileInfo(WantedA.path).fileName();
  try {
    auto document = mSession.Load(WantedA.path);
    if (!self) return;
    if (!document) return mDiscarded.reset();  // what may have been lost for it is still there
    const auto loaded = std::make_shared<OpenDocument>(std::move(*document));
    AskAboutChanges([this, loaded, range = WantedA.range] { Show(std::move(*loaded), range); });
  } catch (const ReadError& error) {
    if (self) ComplainOfFile(QStringLiteral("%1 cannot be read.").arg(name), error);
  } catch (const std::exception& error) {
    if (self) ComplainOfFile(QStringLiteral("%1 cannot be shown.").arg(name), error);
  }
}

void MainWindow::ComplainOfFile(const QString& HeadlineA, const std::exception& ErrorA) {
  mDiscarded.reset();
  Complain(HeadlineA, QString::fromUtf8(ErrorA.what()));
}

void MainWindow::Show(OpenDocument DocumentA, const VisibleRange& RangeA) {
  Select({});
  mDiscarded.reset();
  mEvents->SetTimeline({});
  mFind->SetTimeline({});
  mRecent.Add(DocumentA.path);
  mOnDisk = DocumentA.file.edit ? DocumentA.file.edit->text : QByteArray();
  mCount->setText(CountText(DocumentA.timeline->Count()));
  mPointer->SetFile(DocumentA.file);
  if (!DocumentA.file.notes.empty()) mSelected->setText(NotesText(DocumentA.file.notes));
  mStack->setCurrentWidget(mPage);
  mZoom->SetEnabled(true);
  for (QAction* action : mNeedDocument) action->setEnabled(true);
  try {
    mPage->Show(std::move(DocumentA), RangeA);
  } catch (...) {
    FollowDocument();
    throw;
  }
  FollowDocument();
}

// Moving is allowed at once where it can be saved. Elsewhere a bar that slips with the pointer would only lie
// about the file.
void MainWindow::FollowDocument() {
  const OpenDocument& document = *mPage->Document();
  mHistory->Begin();
  const bool isEdit = document.file.edit.has_value();
  mSaveAs->setEnabled(isEdit);
  mAllowMoving->setChecked(isEdit);
  AllowMoving(isEdit);
  mEvents->SetTimeline(document.timeline.Get());
  mFind->SetTimeline(document.timeline.Get());
  ShowTitle();
}

void MainWindow::ShowTitle() {
  const OpenDocument* document = mPage->Document();
  if (!document) return;
  const QString name = QFileInfo(document->path).fileName() + QLatin1String(IsModified() ? "*" : "");
  setWindowTitle(QStringLiteral("%1 \u2014 %2").arg(name, ProgramName()));
  mSave->setEnabled(IsModified());
}

void MainWindow::Select(const Ref<IMURTimelineObject>& ObjectA) {
  mSelectedObject = ObjectA;
  mHighlight.Mark(ObjectA.Get());
  mPanel->Show(ObjectA.Get());
  mSelected->setText(ObjectA ? qt::ToQString(ObjectA->Tag()).simplified() : QString());
}

void MainWindow::Complain(const QString& HeadlineA, const QString& LineA) {
  auto* box = new QMessageBox(QMessageBox::Warning, ProgramName(), HeadlineA + QStringLiteral("\n\n") + LineA,
                              QMessageBox::Ok, this);
  box->setAttribute(Qt::WA_DeleteOnClose);
  box->setTextFormat(Qt::PlainText);
  box->open();
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
