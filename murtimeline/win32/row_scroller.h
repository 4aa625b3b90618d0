#pragma once

#include <murtimeline/render/companions/canvas.h>
#include <murtimeline/win32/window.h>

namespace mur::win32 {

/// Scrolls the rows of a canvas. The platform's scroll bar lies over the right edge of the canvas while the
/// rows are higher than that; nothing else is laid out anew for it, so that times keep their places.
class RowScroller {
 public:
  void Attach(const Ref<MURGraphicCanvas>& CanvasA) { mCanvas = CanvasA; }

  /// Brings the scroll bar in step with the canvas in its window.
  void Follow(const Window& WindowA);
  /// The window goes, and the scroll bar with it.
  void Forget() { mBar = nullptr; }
  /// None while the rows fit.
  HWND Bar() const { return mBar; }

  /// True when the message was one of the scroll bar or the wheel that scrolled something.
  bool Handle(const Message& MessageA);
  void ScrollTo(float TopA);
  /// False while the rows fit.
  bool TurnPage(bool DownwardsA);
  /// Shows a bar, as far as it fits.
  void Reveal(const ICanvasItem& BarA);

 private:
  bool CanScroll() const;
  float PageHeight() const { return mCanvas->Area().height; }
  void ScrollByPages(float PagesA);
  void HandleBar(WORD CodeA);
  void HandleWheel(const Message& MessageA);

  Ref<MURGraphicCanvas> mCanvas;
  HWND mBar = nullptr;
};

}  // namespace mur::win32
