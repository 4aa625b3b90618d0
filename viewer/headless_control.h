#pragma once

#include <QSize>

#include <murtimeline/render/companions/canvas.h>
#include <murtimeline/render/companions/scroll_control.h>
#include <murtimeline/render/port/scripted_host.h>
#include <murtimeline/render/timeline_render.h>

namespace mur::viewer {

/// A control without a window, prepared for files, that can be drawn onto any surface.
class HeadlessControl {
 public:
  /// `SizeA` in pixels.
  explicit HeadlessControl(const QSize& SizeA);

  MURTimelineRender& Control() const { return *mControl; }
  const QSize& Size() const { return mSize; }

  /// Calls `PaintA(offset, paint)` for the time scale and for the canvas: `paint(surface)` draws the child at
  /// the surface's origin, which is to lie at `offset` (pixels) in the picture.
  template <class PaintChild>
  void PaintChildren(PaintChild&& PaintA) {
    PaintA(Origin(mHost.ScrollerHost()),
           [&](Surface& surface) { mScroller->Paint(surface, Extent(mHost.ScrollerHost())); });
    PaintA(Origin(mHost.CanvasHost()),
           [&](Surface& surface) { mCanvas->Paint(surface, Extent(mHost.CanvasHost())); });
  }

 private:
  static PointF Origin(const ScriptedChild& ChildA);
  static RectF Extent(const ScriptedChild& ChildA);

  QSize mSize;
  ScriptedHost mHost;
  Ref<MURGraphicCanvas> mCanvas;
  Ref<MURTimelineScroll> mScroller;
  Ref<MURTimelineRender> mControl;
};

}  // namespace mur::viewer
