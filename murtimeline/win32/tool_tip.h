#pragma once

#include <string>

#include <murtimeline/automation/string.h>
#include <murtimeline/render/port/geometry.h>
#include <murtimeline/win32/window.h>

namespace mur::win32 {

/// A text to show while the pointer rests in an area (logical pixels); an empty area is all of the window.
struct HoverText {
  String text;
  RectF area;
};

/// The platform's tool tip over a window, whose text depends on where the pointer is.
class ToolTip {
 public:
  ToolTip() = default;
  ToolTip(const ToolTip&) = delete;
  ToolTip& operator=(const ToolTip&) = delete;
  ~ToolTip() { Close(); }

  /// Hands a message of the mouse over `WindowA` on, after the text became another one.
  void Follow(const Window& WindowA, const Message& MessageA, const HoverText& HoverA, double ScaleA);
  void Close();
  /// The platform's window, none before the first text.
  HWND Handle() const { return mTip; }

 private:
  void Open(const Window& WindowA);
  void Show(const Window& WindowA, const RECT& AreaA);

  HWND mTip = nullptr;
  String mText;
  RECT mArea{};
};

}  // namespace mur::win32
