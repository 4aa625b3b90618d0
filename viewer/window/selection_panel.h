#pragma once

#include <QDockWidget>

#include <murtimeline/model/timeline_object_interface.h>

class QPlainTextEdit;

namespace mur::viewer {

/// Shows all that an object says about itself.
class SelectionPanel final : public QDockWidget {
 public:
  explicit SelectionPanel(QWidget* ParentA);

  /// None empties the panel.
  void Show(const IMURTimelineObject* ObjectA);

 private:
  QPlainTextEdit* mText;
};

}  // namespace mur::viewer
