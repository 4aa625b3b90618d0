#pragma once

#include <functional>
#include <optional>

#include <murtimeline/render/port/placed_child.h>
#include <murtimeline/win32/platform.h>

namespace mur::win32 {

/// One child control in a window of its own, and without one. Extents are kept as they were given, in twips;
/// only the window's place is rounded, edge by edge, so that neighbours touch and nothing drifts.
class HostedChild final : public PlacedChild {
 public:
  void Invalidate(const RectF& RectA) override;
  void InvalidateAll() override;
  void SetPointerShape(PointerShape ShapeA) override;
  void CapturePointer(bool CaptureA) override;
  Rgba SystemColor(int IndexA) const override;

  /// The window that follows, none to follow none.
  void SetWindow(HWND WindowA);
  /// Device pixels to a logical one.
  double ScaleFactor() const { return mScale; }
  void SetScaleFactor(double ScaleA);
  /// The place in device pixels.
  RECT DevicePlace() const;
  /// What the pointer looks like here.
  HCURSOR Pointer() const;

  /// What is to be told that the extent became another one, at once.
  void SetResized(std::function<void()> ResizedA) { mResized = std::move(ResizedA); }
  /// What is to be told that something must be painted again, shown or not.
  void SetInvalidated(std::function<void()> InvalidatedA) { mInvalidated = std::move(InvalidatedA); }

 private:
  void Placed(bool IsResizedA) override;
  void MoveWindowToPlace() const;

  HWND mWindow = nullptr;
  double mScale = 1;
  PointerShape mShape = PointerShape::Standard;
  std::function<void()> mResized;
  std::function<void()> mInvalidated;
};

}  // namespace mur::win32
