#pragma once

#include <QElapsedTimer>
#include <QWidget>

#include "viewer/window/load_session.h"

class QLabel;
class QProgressBar;

namespace mur::viewer {

/// How far loading has come, with a button that cancels it. Shows itself only when loading takes long enough
/// to be noticed.
class LoadProgress final : public QWidget {
 public:
  /// `SessionA` outlives the widget.
  explicit LoadProgress(LoadSession& SessionA);

 private:
  void Begin(const QString& PathA);
  void Advance(int PercentA);

  QLabel* mCaption;
  QProgressBar* mBar;
  QElapsedTimer mTime;
};

}  // namespace mur::viewer
