#include <murtimeline/qt/timeline_widget.h>

namespace mur::qt {

void TimelineWidget::showEditor() {
  control()->ShowEditor();
}

}  // namespace mur::qt
