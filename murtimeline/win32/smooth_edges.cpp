#include <algorithm>
#include <cmath>

#include <murtimeline/win32/smooth_edges.h>

namespace mur::win32 {
namespace {

constexpr std::size_t kMostTiles = 64;
constexpr int kBitsAPixel = 32;

// A bitmap whose rows lie from top to bottom.
UniqueBitmap MakeBitmap(HDC DeviceA, int WidthA, int HeightA, std::uint32_t*& PixelsA) {
  BITMAPINFO info{};
  info.bmiHeader.biSize = sizeof info.bmiHeader;
  info.bmiHeader.biWidth = WidthA;
  info.bmiHeader.biHeight = -HeightA;
  info.bmiHeader.biPlanes = 1;
  info.bmiHeader.biBitCount = kBitsAPixel;
  void* pixels = nullptr;
  UniqueBitmap bitmap(CreateDIBSection(DeviceA, &info, DIB_RGB_COLORS, &pixels, nullptr, 0));
  PixelsA = static_cast<std::uint32_t*>(pixels);
  return bitmap;
}

// As blending wants it: every part multiplied by the alpha.
std::uint32_t Premultiplied(Rgba ColorA, float ShareA) {
  const float alpha = std::clamp(ShareA, 0.0F, 1.0F) * static_cast<float>(ColorA.alpha) / 255;
  const auto part = [alpha](std::uint8_t value) {
    return static_cast<std::uint32_t>(std::lround(static_cast<float>(value) * alpha));
  };
  return part(255) << 24 | part(ColorA.red) << 16 | part(ColorA.green) << 8 | part(ColorA.blue);
}

}  // namespace

Tile::Tile(const Coverage& CoverageA, Rgba ColorA) : mDevice(CreateCompatibleDC(nullptr)) {
  if (CoverageA.Width() == 0 || CoverageA.Height() == 0) return;
  std::uint32_t* pixel = nullptr;
  mBitmap = MakeBitmap(mDevice.Get(), CoverageA.Width(), CoverageA.Height(), pixel);
  if (!mBitmap) return;
  SelectObject(mDevice.Get(), mBitmap.Get());
  for (int row = 0; row < CoverageA.Height(); ++row)
    for (int column = 0; column < CoverageA.Width(); ++column)
      *pixel++ = Premultiplied(ColorA, CoverageA.At(row, column));
}

void Tile::Draw(HDC DeviceA, const RECT& PlaceA, POINT FromA) const {
  Blend(DeviceA, PlaceA,
        {FromA.x, FromA.y, FromA.x + PlaceA.right - PlaceA.left, FromA.y + PlaceA.bottom - PlaceA.top});
}

void Tile::Blend(HDC DeviceA, const RECT& PlaceA, const RECT& PartA) const {
  if (!mBitmap || PlaceA.right <= PlaceA.left || PlaceA.bottom <= PlaceA.top) return;
  constexpr BLENDFUNCTION kOver{AC_SRC_OVER, 0, 255, AC_SRC_ALPHA};
  GdiAlphaBlend(DeviceA, static_cast<int>(PlaceA.left), static_cast<int>(PlaceA.top),
                static_cast<int>(PlaceA.right - PlaceA.left), static_cast<int>(PlaceA.bottom - PlaceA.top),
                mDevice.Get(), static_cast<int>(PartA.left), static_cast<int>(PartA.top),
                static_cast<int>(PartA.right - PartA.left), static_cast<int>(PartA.bottom - PartA.top),
                kOver);
}

const Tile& CornerTiles::Of(const Corner& CornerA) {
  const auto known = std::find_if(mEntries.begin(), mEntries.end(),
                                  [&](const Entry& entry) { return entry.corner == CornerA; });
  if (known != mEntries.end()) {
    mEntries.splice(mEntries.begin(), mEntries, known);
  } else {
    if (mEntries.size() >= kMostTiles) mEntries.pop_back();
    mEntries.push_front({CornerA, Tile(Coverage::OfCorners(CornerA.radius, CornerA.width), CornerA.color)});
  }
  return mEntries.front().tile;
}

}  // namespace mur::win32
