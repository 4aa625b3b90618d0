#pragma once

#include <QLabel>
#include <optional>

#include "viewer/loading.h"

namespace mur::qt {
class TimelineWidget;
}

namespace mur::viewer {

/// The time under the pointer: as the file counts it, and the world time. Empty while the pointer is
/// elsewhere.
class PointerReadout final : public QLabel {
 public:
  /// `WidgetA` outlives the readout.
  explicit PointerReadout(qt::TimelineWidget& WidgetA);

  /// What the file's own times mean.
  void SetFile(const LoadedFile& FileA);

 protected:
  bool eventFilter(QObject* WatchedA, QEvent* EventA) override;

 private:
  void Show(std::optional<double> XA);

  qt::TimelineWidget& mWidget;
  LoadedFile mFile;
  std::optional<double> mX;  // where the pointer is, in pixels of the canvas
};

}  // namespace mur::viewer
