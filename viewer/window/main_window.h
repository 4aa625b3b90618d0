#pragma once

#include <QMainWindow>
#include <functional>
#include <optional>

#include "viewer/presentation.h"
#include "viewer/window/bar_highlight.h"
#include "viewer/window/edit_history.h"
#include "viewer/window/load_session.h"
#include "viewer/window/recent_files.h"

class QLabel;
class QPrinter;
class QStackedWidget;

namespace mur::viewer {

class AppearancePanel;
class EmptyState;
class EventPanel;
class FindBar;
class MarkerDragging;
class PointerReadout;
class SelectionPanel;
class TimelinePage;
class ZoomActions;

/// The viewer's window: one file at a time.
class MainWindow final : public QMainWindow {
 public:
  /// `SettingsA` keeps recent files, the appearance and the window's place; it outlives the window.
  explicit MainWindow(QSettings& SettingsA);
  ~MainWindow() override;

  /// Loads a file and shows it in the place of the one before; the window goes on handling events meanwhile.
  /// A loading under way gives way to this one. What cannot be read is told in a message box, and nothing
  /// else changes. Unsaved changes are asked about first.
  void OpenFile(const QString& PathA, const VisibleRange& RangeA = {});
  /// Writes a picture of what is shown, of the kind that the name's suffix says; a failure is told in a
  /// message box.
  void ExportTo(const QString& PathA);
  /// Writes the edit as it is shown now. What cannot be written is told in a message box, and the file stays
  /// as it was. Whether it was written.
  bool SaveTo(const QString& PathA);
  void Print(QPrinter& PrinterA) const;

  /// Whether there are moves that could be saved and are not.
  bool IsModified() const;
  const LoadSession& Loading() const { return mSession; }
  TimelinePage& Page() const { return *mPage; }
  EditHistory& History() const { return *mHistory; }

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
  void MakeEditMenu();
  void MakeUndoActions();
  void MakeViewMenu();
  void MakeHelpMenu();
  void MakeToolBar();
  void MakeStatusBar();
  void MakePanels();
  void RestorePlace();
  void SavePlace();

  void AskForFile();
  void AskForPicture();
  void AskForPlace();
  void AskForPrinter();
  void PreviewPage();
  void Save();
  /// Goes on where nothing unsaved would be lost, or where the user says so.
  void AskAboutChanges(std::function<void()> ThenA);
  bool WouldLoseChanges() const;
  bool WasChangedByOthers() const;

  void StartOpening(const QString& PathA, const VisibleRange& RangeA);
  void Load(const Wanted& WantedA);
  void Show(OpenDocument DocumentA, const VisibleRange& RangeA);
  void ShowTitle();
  void FollowDocument();
  void Select(const Ref<IMURTimelineObject>& ObjectA);
  void AllowMoving(bool AllowedA);
  void FollowAppearance();
  void ComplainOfFile(const QString& HeadlineA, const std::exception& ErrorA);
  void Complain(const QString& HeadlineA, const QString& LineA);

  QSettings& mSettings;
  RecentFiles mRecent;
  LoadSession mSession;
  std::optional<Wanted> mWanted;
  QByteArray mOnDisk;             // what the file held when it was last read or written here
  std::optional<int> mDiscarded;  // the step up to which changes may be lost

  TimelinePage* mPage;
  EmptyState* mEmpty;
  FindBar* mFind;
  QStackedWidget* mStack;
  BarHighlight mHighlight;
  Ref<IMURTimelineObject> mSelectedObject;
  EditHistory* mHistory;
  MarkerDragging* mMarkers;
  ZoomActions* mZoom;
  SelectionPanel* mPanel;
  AppearancePanel* mAppearance;
  EventPanel* mEvents;
  PointerReadout* mPointer;
  QLabel* mSelected;
  QLabel* mCount;
  QAction* mOpen = nullptr;
  QAction* mSave = nullptr;
  QAction* mSaveAs = nullptr;
  QAction* mExport = nullptr;
  QAction* mUndo = nullptr;
  QAction* mRedo = nullptr;
  QAction* mFindAction = nullptr;
  QAction* mAllowMoving = nullptr;
  QList<QAction*> mNeedDocument;
};

}  // namespace mur::viewer
