#include <algorithm>
#include <array>
#include <cstdint>
#include <vector>

#include <murtimeline/win32/dialogs/window_icon.h>

namespace mur::win32 {
namespace {

constexpr double kGrid = 16;  // units of the drawing
constexpr int kSamples = 4;   // a pixel, across and down

struct Box {
  double left, top, width, height, radius;
  std::uint32_t color;  // 0xRRGGBB

  bool Covers(double XA, double YA) const {
    const double dx = XA - std::clamp(XA, left + radius, left + width - radius);
    const double dy = YA - std::clamp(YA, top + radius, top + height - radius);
    return dx * dx + dy * dy <= radius * radius;
  }
};

// The topmost comes first.
constexpr std::array kBoxes = {
    Box{9.6, 2, 0.8, 12, 0.1, 0xffffff},   Box{8, 10.5, 5.5, 2.5, 0.8, 0xf2b84b},
    Box{2.5, 10.5, 4, 2.5, 0.8, 0x5aa9e6}, Box{5, 7, 8.5, 2.5, 0.8, 0x7fc97f},
    Box{2.5, 3.5, 6, 2.5, 0.8, 0x5aa9e6},  Box{0.5, 0.5, 15, 15, 3, 0x2b3f55},
};

// The mean of a pixel's samples, with the share that is covered as its alpha.
std::uint32_t PixelAt(int ColumnA, int RowA, int ExtentA) {
  constexpr std::uint32_t kAll = kSamples * kSamples;
  std::uint32_t red = 0, green = 0, blue = 0, covered = 0;
  for (int sample = 0; sample < kSamples * kSamples; ++sample) {
    const double x = (ColumnA + (sample % kSamples + 0.5) / kSamples) * kGrid / ExtentA;
    const double y = (RowA + (sample / kSamples + 0.5) / kSamples) * kGrid / ExtentA;
    const auto box = std::ranges::find_if(kBoxes, [&](const Box& one) { return one.Covers(x, y); });
    if (box == kBoxes.end()) continue;
    red += box->color >> 16 & 0xff;
    green += box->color >> 8 & 0xff;
    blue += box->color & 0xff;
    ++covered;
  }
  if (covered == 0) return 0;
  return covered * 255 / kAll << 24 | red / covered << 16 | green / covered << 8 | blue / covered;
}

UniqueIcon DrawnIcon(int ExtentA) {
  std::vector<std::uint32_t> pixels;
  for (int row = 0; row < ExtentA; ++row)
    for (int column = 0; column < ExtentA; ++column) pixels.push_back(PixelAt(column, row, ExtentA));
  const std::vector<std::uint8_t> unmasked(pixels.size());  // more than its rows of bits take
  const UniqueBitmap colors(CreateBitmap(ExtentA, ExtentA, 1, 32, pixels.data()));
  const UniqueBitmap mask(CreateBitmap(ExtentA, ExtentA, 1, 1, unmasked.data()));
  ICONINFO icon{TRUE, 0, 0, mask.Get(), colors.Get()};
  return UniqueIcon(CreateIconIndirect(&icon));
}

// A window that does not answer in time counts as one without an icon.
HICON IconOf(HWND WindowA) {
  if (!WindowA) return nullptr;
  constexpr UINT kPatience = 200;  // milliseconds
  for (const int size : {ICON_BIG, ICON_SMALL}) {
    DWORD_PTR icon = 0;
    SendMessageTimeoutW(WindowA, WM_GETICON, static_cast<WPARAM>(size), 0, SMTO_ABORTIFHUNG, kPatience,
                        &icon);
    if (icon) return reinterpret_cast<HICON>(icon);
  }
  return reinterpret_cast<HICON>(GetClassLongPtrW(WindowA, GCLP_HICON));
}

}  // namespace

WindowIcon::WindowIcon(HWND OwnerA) : mOwners(IconOf(OwnerA)) {
  if (!mOwners) mDrawn = DrawnIcon(GetSystemMetrics(SM_CXICON));
}

UniqueIcon WindowIcon::Sized(int ExtentA) const {
  if (mDrawn) return DrawnIcon(ExtentA);
  const HANDLE copy = CopyImage(mOwners, IMAGE_ICON, ExtentA, ExtentA, LR_COPYFROMRESOURCE);
  return UniqueIcon(static_cast<HICON>(copy));
}

}  // namespace mur::win32
