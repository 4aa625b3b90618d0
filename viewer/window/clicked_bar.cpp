#include "viewer/window/clicked_bar.h"

#include <murtimeline/qt/event_guard.h>
#include <murtimeline/qt/timeline_widget.h>
#include <murtimeline/render/companions/canvas.h>

namespace mur::viewer {

ClickedBar::ClickedBar(qt::TimelineWidget& WidgetA) : mWidget(WidgetA) {
  using qt::TimelineWidget;
  connect(&mWidget, &TimelineWidget::tlObjectClick, this, &ClickedBar::Picked);
  connect(&mWidget, &TimelineWidget::click, this, [this] { Q_EMIT Picked({}); });
  connect(&mWidget, &TimelineWidget::cursorMouseDown, this,
          [this](const QString& /*key*/, qint16& /*button*/, qint16& /*shift*/, float& /*x*/, float& y) {
            mCursorY = y;
          });
  connect(&mWidget, &TimelineWidget::cursorClick, this,
          [this] { qt::GuardEvent([this] { Q_EMIT Picked(ObjectBesideCursor()); }); });
}

// The cursor covers what lies beneath it; a bar there can be met beside it.
Ref<IMURTimelineObject> ClickedBar::ObjectBesideCursor() const {
  const Ref<IGraphicCanvas> companion = mWidget.control()->Collaborators().canvas;
  const auto* canvas = dynamic_cast<const MURGraphicCanvas*>(companion.Get());
  const Ref<ICanvasItem> cursor = canvas ? canvas->GraphicByKey(u"The Cursor") : nullptr;
  const Ref<CMURTimeline> timeline = mWidget.timeline();
  if (!cursor || !timeline) return {};
  const RectF bounds = canvas->PixelBounds(*cursor);
  for (const float beside : {bounds.left - 1, bounds.Right() + 1}) {
    const Ref<ICanvasItem> item = canvas->ItemAt({beside, bounds.top + mCursorY});
    if (item && item->Kind() != kCursorItem) return timeline->ItemByKey(item->Key());
  }
  return {};
}

}  // namespace mur::viewer
