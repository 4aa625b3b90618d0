#include "viewer/headless_control.h"

#include "viewer/presentation.h"

namespace mur::viewer {
namespace {

constexpr float kTwips = ChildHost::kTwipsPerPixel;

float ToTwips(int PixelsA) {
  return static_cast<float>(PixelsA) * kTwips;
}

}  // namespace

HeadlessControl::HeadlessControl(const QSize& SizeA)
    : mSize(SizeA),
      mCanvas(Make<MURGraphicCanvas>(mHost.CanvasHost())),
      mScroller(Make<MURTimelineScroll>(mHost.ScrollerHost())) {
  mHost.SetScaleWidth(ToTwips(SizeA.width()));
  mHost.SetScaleHeight(ToTwips(SizeA.height()));
  mControl = Make<MURTimelineRender>(mHost, Companions{mCanvas, mScroller, {}, {}});
  mControl->Resize();
  PrepareControl(*mControl);
}

PointF HeadlessControl::Origin(const ScriptedChild& ChildA) {
  return {ChildA.Left() / kTwips, ChildA.Top() / kTwips};
}

RectF HeadlessControl::Extent(const ScriptedChild& ChildA) {
  return {0, 0, ChildA.Width() / kTwips, ChildA.Height() / kTwips};
}

}  // namespace mur::viewer
