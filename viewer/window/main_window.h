#pragma once

#include <QMainWindow>
#include <optional>

#include "viewer/presentation.h"
#include "viewer/window/bar_highlight.h"
#include "viewer/window/load_session.h"
#include "viewer/window/recent_files.h"

class QLabel;
class QStackedWidget;

namespace mur::viewer {

class EmptyState;
class PointerReadout;
class SelectionPanel;
class TimelinePage;
class ZoomActions;

/// The viewer's window: one file at a time.
class MainWindow final : public QMainWindow {
 public:
  /// `SettingsA` keeps recent files and the window's place; it outlives the window.
  explicit MainWindow(QSettings& SettingsA);
  ~MainWindow() override;

  /// Loads a file and shows it in the place of the one before; the window goes on handling events meanwhile.
  /// A loading under way gives way to this one. What cannot be read is told in a message box, and nothing
  /// else changes.
  void OpenFile(const QString& PathA, const VisibleRange& RangeA = {});
  /// Writes a picture of what is shown; a failure is told in a message box.
  void ExportTo(const QString& PathA);

  const LoadSession& Loading() const { return mSession; }
  TimelinePage& Page() const { return *mPage; }

 protected:
  void closeEvent(QCloseEvent* EventA) override;
  void dragEnterEvent(QDragEnterEvent* EventA) override;
  void dropEvent(QDropEvent* EventA) override;

 private:
  struct Wanted {
    QString path;
    VisibleRange range;
  };

  void MakeFileMenu();
  void MakeViewMenu();
  void MakeHelpMenu();
  void MakeToolBar();
  void MakeStatusBar();
  void RestorePlace();
  void SavePlace();

  void AskForFile();
  void AskForPicture();
  void Load(const Wanted& WantedA);
  void Show(OpenDocument DocumentA, const VisibleRange& RangeA);
  void Select(const IMURTimelineObject* ObjectA);
  void Complain(const QString& HeadlineA, const QString& LineA);

  QSettings& mSettings;
  RecentFiles mRecent;
  LoadSession mSession;
  std::optional<Wanted> mWanted;

  TimelinePage* mPage;
  EmptyState* mEmpty;
  QStackedWidget* mStack;
  BarHighlight mHighlight;
  ZoomActions* mZoom;
  SelectionPanel* mPanel;
  PointerReadout* mPointer;
  QLabel* mSelected;
  QLabel* mCount;
  QAction* mOpen = nullptr;
  QAction* mExport = nullptr;
};

}  // namespace mur::viewer
