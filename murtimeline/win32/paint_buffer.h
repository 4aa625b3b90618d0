#pragma once

#include <functional>

#include <murtimeline/win32/handles.h>

namespace mur::win32 {

/// A bitmap that windows are painted on before they are shown, so that nothing flickers.
class PaintBuffer {
 public:
  /// Lets a part of the target (device pixels) be drawn, whose left top corner lies at the buffer's, and
  /// shows it then.
  void Paint(HDC TargetA, const RECT& PartA, const std::function<void(HDC DeviceA)>& DrawA);

 private:
  bool Reserve(HDC TargetA, SIZE SizeA);

  UniqueDevice mDevice;
  UniqueBitmap mBitmap;
  SIZE mSize{};
};

}  // namespace mur::win32
