#pragma once

#include <QObject>
#include <optional>

#include <murtimeline/qt/hosted_child.h>
#include <murtimeline/qt/visible_range.h>
#include <murtimeline/render/companions/canvas.h>
#include <murtimeline/render/timeline_render.h>

class QMouseEvent;
class QWheelEvent;
class QWidget;

namespace mur::qt {

/// Moves about in the visible range of a control, by the calls of its host and, while enabled, by the
/// pointer: the wheel zooms where the pointer is, the wheel with Shift (or a sidewise one) pans, and so does
/// a drag on the background of the canvas. It writes `WorldTimeT0` and `Duration` as any host would.
class Navigation final : public QObject {
  Q_OBJECT

 public:
  /// `CanvasHostA` is the place of the canvas; it and the widgets outlive the navigation.
  Navigation(Ref<MURTimelineRender> ControlA, Ref<MURGraphicCanvas> CanvasA, HostedChild& CanvasHostA,
             QWidget& ScaleA, QWidget& CanvasWidgetA);
  ~Navigation() override;

  bool IsEnabled() const { return mEnabled; }
  void SetEnabled(bool EnabledA);
  /// Between the first and the last write of one move.
  bool IsMoving() const { return mMoving; }

  VisibleRange Range() const;
  /// Zooms in by a factor above 1, out by one below, with the time at `XA` (pixels of the canvas) staying.
  void ZoomAt(double FactorA, double XA);
  void Pan(double SecondsA);
  /// Shows all members with a little air at both ends; false when there is none.
  bool Fit();
  Date TimeAt(double XA) const;
  double XOf(Date TimeA) const;

 Q_SIGNALS:
  /// A move wrote another range.
  void moved();

 protected:
  bool eventFilter(QObject* WatchedA, QEvent* EventA) override;

 private:
  struct Drag {
    double x;
    VisibleRange range;
  };

  bool Handle(const QObject* WatchedA, QEvent& EventA);
  void HandleWheel(QWheelEvent& EventA);
  void BeginDrag(const QMouseEvent& EventA);
  void FollowDrag(const QMouseEvent& EventA);
  void EndDrag();
  void ZoomBySteps(int StepsA, double XA);
  void Show(const VisibleRange& RangeA);
  double Width() const;

  Ref<MURTimelineRender> mControl;
  Ref<MURGraphicCanvas> mCanvas;
  HostedChild& mCanvasHost;
  QWidget& mScale;
  QWidget& mCanvasWidget;
  ZoomTrail mTrail;
  std::optional<Drag> mDrag;
  int mWheelRest = 0;
  bool mEnabled = false;
  bool mMoving = false;
};

}  // namespace mur::qt
