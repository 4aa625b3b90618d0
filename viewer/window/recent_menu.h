#pragma once

#include <QMenu>

#include "viewer/window/recent_files.h"

namespace mur::viewer {

/// The submenu of the files that were opened last. It is made up anew each time before it shows.
class RecentMenu final : public QMenu {
  Q_OBJECT

 public:
  /// `FilesA` outlives the menu.
  RecentMenu(RecentFiles& FilesA, QWidget* ParentA);

  void Refill();

 Q_SIGNALS:
  void Chosen(const QString& path);

 private:
  RecentFiles& mFiles;
};

}  // namespace mur::viewer
