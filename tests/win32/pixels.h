#pragma once

#include <string>

#include <murtimeline/win32/gdi_surface.h>

namespace mur::win32::test {

/// A bitmap in memory to draw on and to read from, white at first.
class Pixels {
 public:
  Pixels(int WidthA, int HeightA) : mDevice(CreateCompatibleDC(nullptr)) {
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = WidthA;
    info.bmiHeader.biHeight = -HeightA;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    void* bits = nullptr;
    mBitmap = UniqueBitmap(CreateDIBSection(mDevice.Get(), &info, DIB_RGB_COLORS, &bits, nullptr, 0));
    mBefore = SelectObject(mDevice.Get(), mBitmap.Get());
    const RECT all{0, 0, WidthA, HeightA};
    FillRect(mDevice.Get(), &all, static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH)));
  }
  Pixels(const Pixels&) = delete;
  Pixels& operator=(const Pixels&) = delete;
  ~Pixels() { SelectObject(mDevice.Get(), mBefore); }

  HDC Device() const { return mDevice.Get(); }
  Rgba At(int XA, int YA) const {
    const COLORREF color = GetPixel(mDevice.Get(), XA, YA);
    return {GetRValue(color), GetGValue(color), GetBValue(color), 255};
  }
  /// A row from `LeftA` on: '#' for a colour, '.' for white and '+' for anything between.
  std::string Row(int YA, int LeftA, int CountA, Rgba ColorA) const {
    std::string text;
    for (int x = LeftA; x < LeftA + CountA; ++x) {
      const Rgba color = At(x, YA);
      text += color == ColorA ? '#' : color == Rgba{255, 255, 255, 255} ? '.' : '+';
    }
    return text;
  }

 private:
  UniqueDevice mDevice;
  UniqueBitmap mBitmap;
  HGDIOBJ mBefore = nullptr;
};

}  // namespace mur::win32::test
