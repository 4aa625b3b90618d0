#pragma once

#include <QDockWidget>
#include <optional>

#include "viewer/event_log.h"
#include "viewer/window/event_lines.h"

class QLineEdit;
class QListView;
class QSortFilterProxyModel;
class QToolButton;

namespace mur::viewer {

/// Lists the events of the time line and of the control as they happen. It listens while it is shown and not
/// paused.
class EventPanel final : public QDockWidget {
  Q_OBJECT

 public:
  EventPanel(Ref<MURTimelineRender> ControlA, QWidget* ParentA);

  /// What the control shows now; none ends the log.
  void SetTimeline(const Ref<CMURTimeline>& TimelineA);
  EventLines& Lines() { return mLines; }
  /// The selected lines, or all that the filter lets through where none is selected.
  QString Text() const;

 private:
  QWidget* MakeButtons();
  void Follow();
  void ShowLast();

  Ref<MURTimelineRender> mControl;
  Ref<CMURTimeline> mTimeline;
  EventLines mLines;
  QSortFilterProxyModel* mFiltered;
  QListView* mView;
  QLineEdit* mFilter;
  QToolButton* mPause;
  std::optional<EventLog> mLog;
  bool mAtEnd = true;  // the view stands on its last line and goes along
};

}  // namespace mur::viewer
