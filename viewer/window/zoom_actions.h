#pragma once

#include <QAction>
#include <QList>

namespace mur::qt {
class TimelineWidget;
}

namespace mur::viewer {

/// Fitting, zooming about the middle and panning, as actions with their shortcuts.
class ZoomActions final : public QObject {
 public:
  /// `WidgetA` outlives the actions.
  explicit ZoomActions(qt::TimelineWidget& WidgetA);

  /// Fit, zoom in, zoom out.
  QList<QAction*> Zooming() const { return {mFit, mIn, mOut}; }
  /// Earlier, later.
  QList<QAction*> Panning() const { return {mEarlier, mLater}; }
  void SetEnabled(bool EnabledA);

 private:
  void Zoom(double FactorA);
  void PanByShare(double ShareA);

  qt::TimelineWidget& mWidget;
  QAction* mFit;
  QAction* mIn;
  QAction* mOut;
  QAction* mEarlier;
  QAction* mLater;
};

}  // namespace mur::viewer
