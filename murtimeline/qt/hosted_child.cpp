#include <algorithm>
#include <cmath>
#include <utility>

#include <murtimeline/qt/hosted_child.h>
#include <murtimeline/qt/palette_colors.h>

namespace mur::qt {
namespace {

// A coordinate that a widget can have, however large the number is.
int Whole(double PixelsA) {
  constexpr double kFarthest = QWIDGETSIZE_MAX;
  return std::isnan(PixelsA) ? 0 : static_cast<int>(std::clamp(PixelsA, -kFarthest, kFarthest));
}

int NearestPixel(double TwipsA) {
  return Whole(std::round(TwipsA / static_cast<double>(ChildHost::kTwipsPerPixel)));
}

Qt::CursorShape CursorOf(PointerShape ShapeA) {
  switch (ShapeA) {
    case PointerShape::Points:
      return Qt::PointingHandCursor;
    case PointerShape::CanMove:
      return Qt::OpenHandCursor;
    case PointerShape::Moves:
      return Qt::ClosedHandCursor;
    default:
      return Qt::ArrowCursor;
  }
}

}  // namespace

void HostedChild::Placed(bool IsResizedA) {
  if (mWidget && mMovesWidget) mWidget->setGeometry(PixelPlace());
  if (IsResizedA && mResized) mResized();
}

QRect HostedChild::PixelPlace() const {
  const auto edge = [](float start, float extent) {
    return NearestPixel(static_cast<double>(start) + static_cast<double>(extent));
  };
  const int left = edge(Left(), 0), top = edge(Top(), 0);
  return {left, top, std::max(edge(Left(), Width()) - left, 0), std::max(edge(Top(), Height()) - top, 0)};
}

// Rounded outwards to the grid of logical pixels, and one further where that is not the grid of the device.
void HostedChild::Invalidate(const RectF& RectA) {
  if (mInvalidated) mInvalidated();
  if (!mWidget || RectA.IsEmpty()) return;
  const double ratio = mWidget->devicePixelRatioF();
  const double margin = ratio == std::floor(ratio) ? 0 : 1;
  const QPoint first(Whole(std::floor(RectA.left) - margin), Whole(std::floor(RectA.top) - margin));
  const QPoint last(Whole(std::ceil(RectA.Right()) + margin) - 1,
                    Whole(std::ceil(RectA.Bottom()) + margin) - 1);
  mWidget->update(QRect(first, last) & mWidget->rect());
}

void HostedChild::InvalidateAll() {
  if (mInvalidated) mInvalidated();
  if (mWidget) mWidget->update();
}

void HostedChild::SetPointerShape(PointerShape ShapeA) {
  mShape = ShapeA;
  ShowShape();
}

void HostedChild::SetShapeInstead(std::optional<PointerShape> ShapeA) {
  mShapeInstead = ShapeA;
  ShowShape();
}

// The standard shape is the one that the host gave the widget.
void HostedChild::ShowShape() {
  const PointerShape shape = mShapeInstead.value_or(mShape);
  if (!mWidget || std::exchange(mShown, shape) == shape) return;
  if (shape == PointerShape::Standard)
    mWidget->unsetCursor();
  else
    mWidget->setCursor(CursorOf(shape));
}

Rgba HostedChild::SystemColor(int IndexA) const {
  return SystemColorOf(mWidget ? mWidget->palette() : QPalette(), IndexA);
}

}  // namespace mur::qt
