#pragma once

#include <QObject>
#include <QPointF>
#include <optional>

#include <murtimeline/qt/hosted_child.h>
#include <murtimeline/qt/row_scroller.h>
#include <murtimeline/qt/wheel_action.h>
#include <murtimeline/render/companions/canvas.h>
#include <murtimeline/render/timeline_render.h>
#include <murtimeline/render/visible_range.h>

class QMouseEvent;
class QNativeGestureEvent;
class QWheelEvent;
class QWidget;

namespace mur::qt {

/// Moves about in the visible range of a control, by the calls of its host and, while enabled, by the
/// pointer: the wheel scrolls the rows, with Ctrl (or a pinch) it zooms where the pointer is, with Shift or
/// sidewise it pans, and a drag on the background of the canvas moves both times and rows. It writes
/// `WorldTimeT0` and `Duration` as any host would.
class Navigation final : public QObject {
  Q_OBJECT

 public:
  /// `CanvasHostA` is the place of the canvas; it and the widgets outlive the navigation.
  Navigation(Ref<MURTimelineRender> ControlA, Ref<MURGraphicCanvas> CanvasA, HostedChild& CanvasHostA,
             RowScroller& RowsA, QWidget& ScaleA, QWidget& CanvasWidgetA);
  ~Navigation() override;

  bool IsEnabled() const { return mEnabled; }
  void SetEnabled(bool EnabledA);
  /// Between the first and the last write of one move.
  bool IsMoving() const { return mMoving; }

  WheelAction Wheel() const { return mWheel; }
  void SetWheel(WheelAction ActionA) { mWheel = ActionA; }

  VisibleRange Range() const;
  /// Zooms in by a factor above 1, out by one below, with the time at `XA` (pixels of the canvas) staying.
  void ZoomAt(double FactorA, double XA);
  /// The same by a number of steps of ZoomTrail.
  void ZoomBySteps(int StepsA, double XA);
  void Pan(double SecondsA);
  /// Shows all members with a little air at both ends; false when there is none.
  bool Fit();
  /// Shows the first or the last time of all members at the edge; false when there is none.
  bool ShowStart();
  bool ShowEnd();
  /// Pans until a stretch of the canvas (pixels) is in view, its start before its end.
  void Reveal(double LeftA, double RightA);
  /// Moves rows and times until a bar is in view.
  void Reveal(const ICanvasItem& BarA);
  double Width() const;

  /// Moves times and rows as if they were taken at one point and were now at another (pixels), from where
  /// they were then.
  void Take(QPointF AtA);
  void DragTo(QPointF AtA);
  void LetGo();
  bool IsTaken() const { return mDrag.has_value(); }
  Date TimeAt(double XA) const;
  double XOf(Date TimeA) const;

 Q_SIGNALS:
  /// A move wrote another range.
  void moved();

 protected:
  bool eventFilter(QObject* WatchedA, QEvent* EventA) override;

 private:
  struct Drag {
    QPointF at;
    VisibleRange range;
    double top;
  };

  bool Handle(const QObject* WatchedA, QEvent& EventA);
  void HandleWheel(QWheelEvent& EventA);
  bool HandlePinch(const QNativeGestureEvent& EventA);
  bool HandleMouse(const QMouseEvent& EventA);
  std::optional<VisibleRange> Extent() const;
  void Show(const VisibleRange& RangeA);

  Ref<MURTimelineRender> mControl;
  Ref<MURGraphicCanvas> mCanvas;
  HostedChild& mCanvasHost;
  RowScroller& mRows;
  QWidget& mScale;
  QWidget& mCanvasWidget;
  ZoomTrail mTrail;
  std::optional<Drag> mDrag;
  WheelAction mWheel = WheelAction::ScrollRows;
  int mWheelRest = 0;
  double mPinchRest = 0;  // steps
  bool mEnabled = false;
  bool mMoving = false;
};

}  // namespace mur::qt
