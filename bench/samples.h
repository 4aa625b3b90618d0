#pragma once

#include <QGraphicsRectItem>
#include <QGraphicsScene>
#include <QGraphicsView>
#include <memory>
#include <vector>

#include <murtimeline/model/timeline_owner.h>
#include <murtimeline/render/companions/canvas.h>
#include <murtimeline/render/port/scripted_host.h>
#include <murtimeline/render/timeline_render.h>

namespace mur::bench {

inline constexpr int kTracks = 50;
inline constexpr double kItemSeconds = 2;      // each item lasts so long,
inline constexpr double kItemStepSeconds = 3;  // and the next one on its track begins so much later
inline constexpr int kPictureWidth = 1000;     // pixels
inline constexpr int kPictureHeight = 1000;

/// A time line of `CountA` scalars in 50 tracks, built with a control attached, as a host would.
class TimelineSample {
 public:
  TimelineSample();

  /// Adds scalars, each to the time line and to its track.
  void Add(int CountA);
  /// Gives every scalar its start and duration.
  void SpreadInTime();
  /// Shows that many seconds from the start on.
  void Show(double SecondsA);
  /// Length of the filled part, seconds.
  double Length() const;

  OwnedTimeline timeline;
  ScriptedHost host;
  Ref<MURGraphicCanvas> canvas;
  Ref<MURTimelineRender> control;
  std::vector<Ref<IMURTimelineObject>> tracks;
  std::vector<Ref<IMURTimelineObject>> scalars;
};

/// The same picture as a plain scene of rectangle items in a shown view, all with Qt's default settings.
class SceneSample {
 public:
  SceneSample();
  ~SceneSample();

  void Add(int CountA);
  /// Gives every item the place that it has when that many seconds are shown over the picture's width.
  void Place(double SecondsA);
  /// Lets the scene do what it left for later, its index above all.
  void Settle();
  void Paint(QPainter& PainterA);

  QGraphicsScene scene;
  QGraphicsView view;
  std::vector<QGraphicsRectItem*> items;
};

/// The start of the n-th item, in seconds from the beginning.
double ItemStart(int IndexA);

/// Bytes in use on the heap.
double HeapBytes();

}  // namespace mur::bench
