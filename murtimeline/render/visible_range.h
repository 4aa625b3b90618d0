#pragma once

#include <vector>

#include <murtimeline/automation/date.h>
#include <murtimeline/automation/export.h>

namespace mur {

/// The window of world time that a control shows over its width.
struct MUR_API VisibleRange {
  static constexpr double kShortest = 1e-3;  // seconds
  static constexpr double kLongest = (Date::kHighestDays - Date::kLowestDays) * kSecondsPerDay;

  Date start;
  double duration = 0;  // seconds

  /// The nearest range that can be navigated in: it starts at a date and lasts from a millisecond to all
  /// time. What is no number or no time at all becomes the first second of day zero or the hour that a
  /// control shows at its start.
  VisibleRange Sane() const;
  /// `SecondsA` later.
  VisibleRange MovedBy(double SecondsA) const;
  /// The time at a share of the width (0 left, 1 right), and the reverse; 0 where nothing can be said.
  Date TimeAt(double ShareA) const;
  double ShareOf(Date TimeA) const;

  friend bool operator==(const VisibleRange&, const VisibleRange&) = default;
};

/// Zooming in whole steps, so that going the same way back ends at the same range to the last bit.
///
/// The duration is a ladder upon the one that zooming began with: rung n is that duration / 2^(n/24),
/// computed anew each time. The start is computed from where zooming at a fixed share of the width began (a
/// stage); a stage that was left and is come back to at its first rung gives way to the stage before it:
///
///     rung   0 ──────► 5 ──────► 8        zoom in at a, then at b
///            0 ◄────── 5 ◄────── 8        out at b, then at a: the first range again
///
/// A range that was changed by somebody else meanwhile begins a new trail.
class MUR_API ZoomTrail {
 public:
  static constexpr int kStepsPerDoubling = 24;

  /// The whole number of steps that comes nearest to a factor (above 1 zooms in); 0 for what is no factor.
  static int StepsOf(double FactorA);
  /// `CurrentA` zoomed in by a number of steps (out by a negative one), as far as the limits of a range
  /// allow. The time at `ShareA` of the width stays where it is.
  VisibleRange Zoom(const VisibleRange& CurrentA, int StepsA, double ShareA);

 private:
  struct Stage {
    Date start;
    int rung;
    double share;
  };

  void TakeUp(const VisibleRange& CurrentA);
  void EnterStage(double ShareA);
  int Limited(long RungA) const;
  double DurationOf(int RungA) const;

  double mDuration = 0;  // of rung 0
  int mRung = 0;
  std::vector<Stage> mStages;
  VisibleRange mLast;
};

}  // namespace mur
