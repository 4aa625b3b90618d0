#pragma once

#include <murtimeline/qt/hosted_child.h>
#include <murtimeline/qt/widget_forms.h>
#include <murtimeline/render/port/control_host.h>

namespace mur::qt {

/// The host of a control on a widget. It belongs to the control as its face, so both last to the end of
/// whatever the control is doing, even when a listener deletes the widget.
class WidgetHost final : public ControlHost, public HostFace {
 public:
  WidgetHost(QWidget& WidgetA, HostedChild& ScrollerA, HostedChild& CanvasA)
      : mScroller(ScrollerA), mCanvas(CanvasA), mForms(&WidgetA) {}

  float ScaleWidth() const override { return mWidth; }
  float ScaleHeight() const override { return mHeight; }
  HostedChild& ScrollerHost() override { return mScroller; }
  HostedChild& CanvasHost() override { return mCanvas; }
  WidgetForms* Forms() override { return &mForms; }

  /// Logical pixels.
  void SetPixelSize(QSizeF SizeA) {
    mWidth = static_cast<float>(SizeA.width()) * ChildHost::kTwipsPerPixel;
    mHeight = static_cast<float>(SizeA.height()) * ChildHost::kTwipsPerPixel;
  }

 private:
  HostedChild& mScroller;
  HostedChild& mCanvas;
  WidgetForms mForms;
  float mWidth = 0, mHeight = 0;
};

}  // namespace mur::qt
