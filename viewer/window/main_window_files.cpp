// Files: asking for them, saving, exporting, printing, and not losing what was changed.
#include <QCloseEvent>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QPrintDialog>
#include <QPrintPreviewDialog>
#include <QPrinter>
#include <QStatusBar>
#include <utility>

#include <murtimeline/qt/event_guard.h>
#include <murtimeline/qt/timeline_widget.h>

#include "viewer/output_file.h"
#include "viewer/page.h"
#include "viewer/saving.h"
#include "viewer/window/main_window.h"
#include "viewer/window/picture_export.h"
#include "viewer/window/program_name.h"
#include "viewer/window/timeline_page.h"

namespace mur::viewer {
namespace {

QFileDialog* MakeDialog(QWidget* OwnerA, const QString& TitleA, const QString& FiltersA) {
  auto* dialog = new QFileDialog(OwnerA, TitleA, {}, FiltersA);
  dialog->setAttribute(Qt::WA_DeleteOnClose);
  return dialog;
}

// "*.svg" of "Scalable pictures (*.svg)".
QString SuffixOf(const QString& FilterA) {
  return FilterA.section(QLatin1String("(*."), 1).section(QLatin1Char(')'), 0, 0);
}

QMessageBox* MakeQuestion(QWidget* OwnerA, const QString& TextA, const QString& MoreA,
                          QMessageBox::StandardButtons ButtonsA) {
  auto* box = new QMessageBox(QMessageBox::Question, ProgramName(), TextA, ButtonsA, OwnerA);
  box->setAttribute(Qt::WA_DeleteOnClose);
  box->setTextFormat(Qt::PlainText);
  box->setInformativeText(MoreA);
  return box;
}

}  // namespace

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
  auto* dialog =
      MakeDialog(this, QStringLiteral("Export Picture"),
                 QStringLiteral("Pictures (*.png);;Scalable pictures (*.svg);;Pages to print (*.pdf)"));
  dialog->setAcceptMode(QFileDialog::AcceptSave);
  dialog->setDefaultSuffix(QStringLiteral("png"));
  if (const OpenDocument* document = mPage->Document())
    dialog->selectFile(QFileInfo(document->path).completeBaseName() + QStringLiteral(".png"));
  connect(dialog, &QFileDialog::filterSelected, dialog,
          [dialog](const QString& filter) { dialog->setDefaultSuffix(SuffixOf(filter)); });
  connect(dialog, &QFileDialog::fileSelected, this,
          [this](const QString& path) { qt::GuardEvent([&] { ExportTo(path); }); });
  dialog->open();
}

void MainWindow::ExportTo(const QString& PathA) {
  if (!mPage->Document()) return;
  try {
    const qt::TimelineWidget& timeline = mPage->Timeline();
    PictureExport(*mPage->Document(), *timeline.control(), mPage->PresentLook().chosen, timeline.size())
        .Write(PathA);
  } catch (const std::exception& error) {
    Complain(QStringLiteral("The picture cannot be exported."), QString::fromUtf8(error.what()));
  }
}

void MainWindow::Print(QPrinter& PrinterA) const {
  const qt::TimelineWidget& timeline = mPage->Timeline();
  if (!mPage->Document()) return;
  PictureExport(*mPage->Document(), *timeline.control(), mPage->PresentLook().chosen, timeline.size())
      .Print(PrinterA);
}

void MainWindow::AskForPrinter() {
  QPrinter printer(QPrinter::HighResolution);
  printer.setPageLayout(UsualPageLayout());
  QPrintDialog dialog(&printer, this);
  if (dialog.exec() == QDialog::Accepted) Print(printer);
}

void MainWindow::PreviewPage() {
  QPrinter printer(QPrinter::HighResolution);
  printer.setPageLayout(UsualPageLayout());
  QPrintPreviewDialog dialog(&printer, this);
  connect(&dialog, &QPrintPreviewDialog::paintRequested, this,
          [this](QPrinter* page) { qt::GuardEvent([&] { Print(*page); }); });
  dialog.exec();
}

bool MainWindow::IsModified() const {
  const OpenDocument* document = mPage->Document();
  return document && document->file.edit && !mHistory->Steps().isClean();
}

bool MainWindow::SaveTo(const QString& PathA) {
  const OpenDocument* document = mPage->Document();
  if (!document || !document->file.edit) return false;
  mHistory->Commit();
  const QString headline = QStringLiteral("%1 cannot be saved.").arg(QFileInfo(PathA).fileName());
  try {
    const QByteArray text = EditAsText(document->file, *document->timeline);
    WriteWholeFile(PathA, text);
    mOnDisk = text;
  } catch (const NotExpressible& error) {
    Complain(headline, QString::fromUtf8(error.what()) +
                           QStringLiteral(" Nothing was written. Undo the move, or put the bar elsewhere."));
    return false;
  } catch (const std::exception& error) {
    Complain(headline, QString::fromUtf8(error.what()));
    return false;
  }
  mPage->SetPath(PathA);
  mRecent.Add(PathA);
  mHistory->Steps().setClean();
  ShowTitle();
  constexpr int kMessageTime = 4000;  // milliseconds
  statusBar()->showMessage(QStringLiteral("Saved"), kMessageTime);
  return true;
}

void MainWindow::Save() {
  const OpenDocument* document = mPage->Document();
  if (!document) return;
  const QString path = document->path;
  if (!WasChangedByOthers()) {
    SaveTo(path);
    return;
  }
  auto* box =
      MakeQuestion(this, QStringLiteral("%1 was changed by another program.").arg(QFileInfo(path).fileName()),
                   QStringLiteral("Saving puts what is shown here in the place of what that program wrote."),
                   QMessageBox::Save | QMessageBox::Cancel);
  connect(box, &QMessageBox::finished, this, [this, path](int button) {
    if (button == QMessageBox::Save) qt::GuardEvent([&] { SaveTo(path); });
  });
  box->open();
}

bool MainWindow::WasChangedByOthers() const {
  QFile file(mPage->Document()->path);
  return file.open(QIODevice::ReadOnly) && file.readAll() != mOnDisk;
}

void MainWindow::AskForPlace() {
  const OpenDocument* document = mPage->Document();
  if (!document) return;
  auto* dialog = MakeDialog(this, QStringLiteral("Save As"), QStringLiteral("OpenTimelineIO edits (*.otio)"));
  dialog->setAcceptMode(QFileDialog::AcceptSave);
  dialog->setDefaultSuffix(QStringLiteral("otio"));
  dialog->setDirectory(QFileInfo(document->path).absolutePath());
  dialog->selectFile(QFileInfo(document->path).fileName());
  connect(dialog, &QFileDialog::fileSelected, this,
          [this](const QString& path) { qt::GuardEvent([&] { SaveTo(path); }); });
  dialog->open();
}

bool MainWindow::WouldLoseChanges() const {
  mHistory->Commit();
  return IsModified() && mDiscarded != mHistory->Steps().index();
}

void MainWindow::AskAboutChanges(std::function<void()> ThenA) {
  if (!WouldLoseChanges()) return ThenA();
  const QString name = QFileInfo(mPage->Document()->path).fileName();
  auto* box = MakeQuestion(this, QStringLiteral("Save the changes to %1?").arg(name),
                           QStringLiteral("What was moved is lost otherwise."),
                           QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel);
  connect(box, &QMessageBox::finished, this, [this, then = std::move(ThenA)](int button) {
    qt::GuardEvent([&] {
      if (button == QMessageBox::Discard) mDiscarded = mHistory->Steps().index();
      const bool goesOn =
          button == QMessageBox::Discard || (button == QMessageBox::Save && SaveTo(mPage->Document()->path));
      if (goesOn) then();
    });
  });
  box->open();
}

void MainWindow::closeEvent(QCloseEvent* EventA) {
  if (WouldLoseChanges()) {
    EventA->ignore();
    AskAboutChanges([this] { close(); });
    return;
  }
  mWanted.reset();
  mSession.Cancel();
  SavePlace();
  QMainWindow::closeEvent(EventA);
}

}  // namespace mur::viewer
