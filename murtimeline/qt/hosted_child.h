#pragma once

#include <QPointer>
#include <QWidget>
#include <functional>
#include <optional>

#include <murtimeline/automation/export.h>
#include <murtimeline/automation/object.h>
#include <murtimeline/render/port/placed_child.h>

namespace mur::qt {

/// One child control on a widget. Extents are kept as they were given, in twips; only the widget's own
/// geometry is rounded, edge by edge, so that neighbours touch and nothing drifts. It belongs to its
/// companion as that one's face, so it may outlive the widget.
class MUR_API HostedChild final : public PlacedChild, public HostFace {
 public:
  explicit HostedChild(QWidget& WidgetA) : mWidget(&WidgetA) {}

  void Invalidate(const RectF& RectA) override;
  void InvalidateAll() override;
  void SetPointerShape(PointerShape ShapeA) override;
  /// While given, this shape shows in place of the companion's.
  void SetShapeInstead(std::optional<PointerShape> ShapeA);
  /// Nothing to do: a widget hears of the pointer while a button that was pressed on it is held.
  void CapturePointer(bool /*CaptureA*/) override {}
  Rgba SystemColor(int IndexA) const override;

  /// The place in whole logical pixels.
  QRect PixelPlace() const;
  /// While off, the widget stays where it is, whatever the extents become.
  void SetMovesWidget(bool MovesA) { mMovesWidget = MovesA; }
  /// What is to be told that the extent became another one, at once.
  void SetResized(std::function<void()> ResizedA) { mResized = std::move(ResizedA); }
  /// What is to be told that something must be painted again, shown or not.
  void SetInvalidated(std::function<void()> InvalidatedA) { mInvalidated = std::move(InvalidatedA); }

 private:
  void ShowShape();
  void Placed(bool IsResizedA) override;

  QPointer<QWidget> mWidget;
  std::function<void()> mResized;
  std::function<void()> mInvalidated;
  PointerShape mShape = PointerShape::Standard;
  std::optional<PointerShape> mShapeInstead;
  PointerShape mShown = PointerShape::Standard;
  bool mMovesWidget = true;
};

}  // namespace mur::qt
