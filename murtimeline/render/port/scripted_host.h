#pragma once

#include <cstddef>
#include <vector>

#include <murtimeline/automation/export.h>
#include <murtimeline/render/port/control_host.h>
#include <murtimeline/render/port/placed_child.h>

namespace mur {

/// A child control in memory: it keeps its extent and tool tip and notes what was invalidated. Its palette is
/// the classic one.
class MUR_API ScriptedChild final : public PlacedChild {
 public:
  void Invalidate(const RectF& RectA) override { mInvalidated.push_back(RectA); }
  void InvalidateAll() override { ++mInvalidatedAll; }
  void SetPointerShape(PointerShape ShapeA) override { mPointerShape = ShapeA; }
  void CapturePointer(bool CaptureA) override { mHasPointer = CaptureA; }
  Rgba SystemColor(int IndexA) const override;

  /// The rectangles and the number of whole invalidations since the last ForgetInvalidations.
  const std::vector<RectF>& Invalidated() const { return mInvalidated; }
  std::size_t InvalidatedAll() const { return mInvalidatedAll; }
  void ForgetInvalidations();
  PointerShape ShownPointer() const { return mPointerShape; }
  bool HasPointer() const { return mHasPointer; }

 private:
  std::vector<RectF> mInvalidated;
  std::size_t mInvalidatedAll = 0;
  PointerShape mPointerShape = PointerShape::Standard;
  bool mHasPointer = false;
};

/// A host in memory, for tests and for drawing without a window. The scroller starts with its design height.
class MUR_API ScriptedHost final : public ControlHost {
 public:
  static constexpr float kScrollerDesignHeight = 600;

  ScriptedHost() { mScroller.SetHeight(kScrollerDesignHeight); }

  float ScaleWidth() const override { return mScaleWidth; }
  float ScaleHeight() const override { return mScaleHeight; }
  ScriptedChild& ScrollerHost() override { return mScroller; }
  ScriptedChild& CanvasHost() override { return mCanvas; }
  DialogForms* Forms() override { return mForms; }

  void SetScaleWidth(float WidthA) { mScaleWidth = WidthA; }
  void SetScaleHeight(float HeightA) { mScaleHeight = HeightA; }
  /// None at first; they outlive the host.
  void SetForms(DialogForms* FormsA) { mForms = FormsA; }

 private:
  float mScaleWidth = 0, mScaleHeight = 0;
  ScriptedChild mScroller, mCanvas;
  DialogForms* mForms = nullptr;
};

}  // namespace mur
