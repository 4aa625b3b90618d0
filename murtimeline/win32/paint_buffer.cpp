#include <algorithm>

#include <murtimeline/win32/paint_buffer.h>

namespace mur::win32 {

void PaintBuffer::Paint(HDC TargetA, const RECT& PartA, const std::function<void(HDC DeviceA)>& DrawA) {
  const SIZE size{PartA.right - PartA.left, PartA.bottom - PartA.top};
  if (size.cx <= 0 || size.cy <= 0 || !Reserve(TargetA, size)) return;
  const Selected bitmap(mDevice.Get(), mBitmap.Get());
  DrawA(mDevice.Get());
  BitBlt(TargetA, static_cast<int>(PartA.left), static_cast<int>(PartA.top), static_cast<int>(size.cx),
         static_cast<int>(size.cy), mDevice.Get(), 0, 0, SRCCOPY);
}

bool PaintBuffer::Reserve(HDC TargetA, SIZE SizeA) {
  if (!mDevice) mDevice = UniqueDevice(CreateCompatibleDC(TargetA));
  if (mBitmap && mSize.cx >= SizeA.cx && mSize.cy >= SizeA.cy) return true;
  mSize = {std::max(mSize.cx, SizeA.cx), std::max(mSize.cy, SizeA.cy)};
  mBitmap =
      UniqueBitmap(CreateCompatibleBitmap(TargetA, static_cast<int>(mSize.cx), static_cast<int>(mSize.cy)));
  return mDevice && mBitmap;
}

}  // namespace mur::win32
