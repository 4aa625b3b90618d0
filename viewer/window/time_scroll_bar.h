#pragma once

#include <QScrollBar>

#include <murtimeline/automation/date.h>

namespace mur::qt {
class TimelineWidget;
}

namespace mur::viewer {

/// A horizontal scroll bar over the whole time line and whatever beyond it is visible; its page is the
/// visible stretch. It moves what is visible and follows it, whoever moved it.
class TimeScrollBar final : public QScrollBar {
 public:
  /// `WidgetA` outlives the bar.
  explicit TimeScrollBar(qt::TimelineWidget& WidgetA);

  /// Takes over what the widget shows.
  void Follow();

 private:
  void Move(int ValueA);

  qt::TimelineWidget& mWidget;
  Date mOrigin;  // the time at value 0
  double mSecondsAUnit = 1;
  bool mBusy = false;  // the bar and the widget are being brought in step
};

}  // namespace mur::viewer
