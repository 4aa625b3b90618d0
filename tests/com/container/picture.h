#pragma once

#include <murtimeline/win32/platform.h>

namespace mur::test {

/// A bitmap of 32 bits a pixel, all magenta at first.
class Picture {
 public:
  static constexpr COLORREF kNothing = RGB(255, 0, 255);

  Picture(int WidthA, int HeightA);
  Picture(const Picture&) = delete;
  Picture& operator=(const Picture&) = delete;
  ~Picture();

  HDC Device() const noexcept { return mDevice; }
  COLORREF At(int XA, int YA) const { return GetPixel(mDevice, XA, YA); }
  /// How many pixels have another colour than at first.
  int Drawn() const;

 private:
  HDC mDevice;
  HBITMAP mBitmap;
  HGDIOBJ mBefore;
  int mWidth, mHeight;
};

}  // namespace mur::test
