#include <algorithm>
#include <cmath>
#include <utility>

#include <murtimeline/win32/hosted_child.h>
#include <murtimeline/win32/listener.h>
#include <murtimeline/win32/system_colors.h>

namespace mur::win32 {
namespace {

// A coordinate that a window can have, however large the number is.
LONG Whole(double PixelsA) {
  constexpr double kFarthest = 32000;
  return std::isnan(PixelsA) ? 0 : static_cast<LONG>(std::clamp(PixelsA, -kFarthest, kFarthest));
}

LPCWSTR NameOf(PointerShape ShapeA) {
  switch (ShapeA) {
    case PointerShape::Points:
      return IDC_HAND;
    case PointerShape::CanMove:
    case PointerShape::Moves:
      return IDC_SIZEWE;
    default:
      return IDC_ARROW;
  }
}

}  // namespace

void HostedChild::Placed(bool IsResizedA) {
  MoveWindowToPlace();
  if (IsResizedA) Tell(mResized);
}

void HostedChild::MoveWindowToPlace() const {
  if (!mWindow) return;
  const RECT place = DevicePlace();
  SetWindowPos(mWindow, nullptr, place.left, place.top, place.right - place.left, place.bottom - place.top,
               SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOCOPYBITS);
}

RECT HostedChild::DevicePlace() const {
  const auto edge = [this](float start, float extent) {
    const double twips = static_cast<double>(start) + static_cast<double>(extent);
    return Whole(std::round(twips / static_cast<double>(kTwipsPerPixel) * mScale));
  };
  const LONG left = edge(Left(), 0), top = edge(Top(), 0);
  return {left, top, std::max(edge(Left(), Width()), left), std::max(edge(Top(), Height()), top)};
}

void HostedChild::SetWindow(HWND WindowA) {
  mWindow = WindowA;
  MoveWindowToPlace();
}

void HostedChild::SetScaleFactor(double ScaleA) {
  mScale = ScaleA;
  MoveWindowToPlace();
}

// Rounded outwards, and a pixel further where logical pixels are not those of the device.
void HostedChild::Invalidate(const RectF& RectA) {
  if (mWindow && !RectA.IsEmpty()) {
    const double margin = mScale == std::floor(mScale) ? 0 : 1;
    const auto first = [&](float pixel) {
      return Whole(std::floor(static_cast<double>(pixel) * mScale) - margin);
    };
    const auto last = [&](float pixel) {
      return Whole(std::ceil(static_cast<double>(pixel) * mScale) + margin);
    };
    const RECT rect{first(RectA.left), first(RectA.top), last(RectA.Right()), last(RectA.Bottom())};
    InvalidateRect(mWindow, &rect, FALSE);
  }
  Tell(mInvalidated);
}

void HostedChild::InvalidateAll() {
  if (mWindow) InvalidateRect(mWindow, nullptr, FALSE);
  Tell(mInvalidated);
}

void HostedChild::SetPointerShape(PointerShape ShapeA) {
  if (std::exchange(mShape, ShapeA) == ShapeA || !mWindow) return;
  POINT at{};
  GetCursorPos(&at);
  if (WindowFromPoint(at) == mWindow || GetCapture() == mWindow) SetCursor(Pointer());
}

HCURSOR HostedChild::Pointer() const {
  return LoadCursorW(nullptr, NameOf(mShape));
}

void HostedChild::CapturePointer(bool CaptureA) {
  if (!mWindow) return;
  if (CaptureA) {
    SetCapture(mWindow);
  } else if (GetCapture() == mWindow) {
    ReleaseCapture();
  }
}

Rgba HostedChild::SystemColor(int IndexA) const {
  return SystemColorOf(IndexA);
}

}  // namespace mur::win32
