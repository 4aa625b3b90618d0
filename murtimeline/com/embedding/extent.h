#pragma once

#include <murtimeline/win32/timeline_window.h>

namespace mur::com {

/// The size that the container gives the control, in hundredths of a millimetre of the screen.
class Extent {
 public:
  /// Begins with the size of a control that was just put on a form, and lays it out for that.
  explicit Extent(win32::TimelineWindow& WindowA);

  const SIZEL& Get() const noexcept { return mSize; }
  /// Throws Overflow for sizes that no screen has.
  void Set(const SIZEL& SizeA);
  /// The same in device pixels.
  SIZE Pixels() const;
  static constexpr bool IsValid(const SIZEL& SizeA) noexcept { return SizeA.cx >= 0 && SizeA.cy >= 0; }
  /// The size of a new control.
  static SIZEL Natural() noexcept;

 private:
  SIZE PixelsOf(const SIZEL& SizeA) const;

  win32::TimelineWindow& mWindow;
  SIZEL mSize = Natural();
};

}  // namespace mur::com
