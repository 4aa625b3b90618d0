#pragma once

#include <QWidget>

namespace mur::viewer {

/// What a window shows before a file is open.
class EmptyState final : public QWidget {
  Q_OBJECT

 public:
  EmptyState();

 Q_SIGNALS:
  void OpenWanted();
};

}  // namespace mur::viewer
