#pragma once

#include <murtimeline/automation/event.h>
#include <murtimeline/render/bar_drawing.h>

namespace mur {

/// The window of world time that the control shows, over the full width of the canvas, and the cursor in it.
class TimeAxis {
 public:
  TimeAxis(RenderState& StateA, BarDrawing& DrawingA, Event<Date>& CursorTimeChangeA)
      : mState(StateA), mDrawing(DrawingA), mCursorTimeChange(CursorTimeChangeA) {}

  /// Gives the time mapper the visible range and the canvas's width and places every bar and the cursor anew.
  void Repaint();
  /// Stores the time and places the cursor item; raises the event when there is such an item. Never raises an
  /// error.
  void SetCursorTime(Date TimeA);
  /// The same, for a time that differs from the present one.
  void PutCursorTime(Date TimeA);
  /// Adds the cursor item to the canvas and, unless that has one, sets the cursor to the present time. Never
  /// raises an error.
  void CreateCursorItem();
  /// The world time at a canvas x; date 0 where that is no date. Throws Overflow when it is no number.
  Date XToWorldTime(float XA) const;

 private:
  RenderState& mState;
  BarDrawing& mDrawing;
  Event<Date>& mCursorTimeChange;
};

}  // namespace mur
