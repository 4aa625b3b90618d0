#pragma once

#include <QObject>
#include <optional>

#include "viewer/window/edit_history.h"

namespace mur::viewer {

/// Lets the user drag markers along the time scale, to whole frames where the file has a rate. Esc puts one
/// back while it is dragged.
class MarkerDragging final : public QObject {
 public:
  /// Both outlive the dragging.
  MarkerDragging(TimelinePage& PageA, EditHistory& HistoryA);

  void SetEnabled(bool EnabledA) { mIsEnabled = EnabledA; }

 protected:
  bool eventFilter(QObject* WatchedA, QEvent* EventA) override;

 private:
  struct Drag {
    std::size_t marker = 0;
    double time = 0;  // at the press
    double x = 0;
    bool hasMoved = false;
  };

  void Press(const QVariant& KeyA);
  void Move(double XA);
  void End(bool KeptA);

  TimelinePage& mPage;
  EditHistory& mHistory;
  bool mIsEnabled = false;
  double mX = 0;  // of the pointer, in pixels of the scale
  std::optional<Drag> mDrag;
};

}  // namespace mur::viewer
