#include "tests/com/container/picture.h"

namespace mur::test {

Picture::Picture(int WidthA, int HeightA)
    : mDevice(CreateCompatibleDC(nullptr)), mWidth(WidthA), mHeight(HeightA) {
  BITMAPINFO description{};
  description.bmiHeader = {sizeof(BITMAPINFOHEADER), WidthA, -HeightA, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
  void* bits = nullptr;
  mBitmap = CreateDIBSection(mDevice, &description, DIB_RGB_COLORS, &bits, nullptr, 0);
  mBefore = SelectObject(mDevice, mBitmap);
  const RECT all{0, 0, WidthA, HeightA};
  const HBRUSH brush = CreateSolidBrush(kNothing);
  FillRect(mDevice, &all, brush);
  DeleteObject(brush);
}

Picture::~Picture() {
  SelectObject(mDevice, mBefore);
  DeleteObject(mBitmap);
  DeleteDC(mDevice);
}

int Picture::Drawn() const {
  int drawn = 0;
  for (int y = 0; y < mHeight; ++y)
    for (int x = 0; x < mWidth; ++x) drawn += At(x, y) != kNothing;
  return drawn;
}

}  // namespace mur::test
