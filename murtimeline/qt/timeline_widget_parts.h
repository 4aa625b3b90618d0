#pragma once

#include <memory>
#include <vector>

#include <murtimeline/qt/accessibility.h>
#include <murtimeline/qt/child_widget.h>
#include <murtimeline/qt/drop_router.h>
#include <murtimeline/qt/keyboard.h>
#include <murtimeline/qt/timeline_widget.h>
#include <murtimeline/qt/touch_input.h>
#include <murtimeline/qt/widget_host.h>
#include <murtimeline/render/companions/scroll_control.h>

namespace mur::qt {

/// What a TimelineWidget consists of. The hosts of the companions and of the control belong to those.
struct TimelineWidget::Parts {
  explicit Parts(QWidget& OwnerA);
  ~Parts();

  /// Brings what depends on the bars in step with them when the events at hand are done.
  void FollowSoon();
  /// Lays the control out for a size in logical pixels. Listeners may end the widget meanwhile.
  void LayOut(QSizeF SizeA);

  TextMeasures measures;
  const std::unique_ptr<ChildWidget> scaleWidget;
  const std::unique_ptr<ChildWidget> canvasWidget;
  HostedChild& scaleHost;
  HostedChild& canvasHost;
  Ref<MURTimelineScroll> scroller;
  Ref<MURGraphicCanvas> canvas;
  WidgetHost& host;
  Ref<MURTimelineRender> control;
  RowScroller rows;
  Navigation navigation;
  Keyboard keyboard;
  DropRouter drops;
  TouchInput touch;
  Accessibility accessibility;
  bool followsSoon = false;
  QSize laidOut;
  std::vector<Connection> connections;
};

}  // namespace mur::qt
