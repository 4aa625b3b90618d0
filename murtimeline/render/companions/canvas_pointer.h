#pragma once

#include <murtimeline/automation/export.h>
#include <murtimeline/render/companions/canvas_interface.h>
#include <murtimeline/render/companions/held_buttons.h>
#include <murtimeline/render/port/pointer_input.h>

namespace mur {

class MURGraphicCanvas;

/// Turns what a face reports of the pointer into the events of a canvas.
///
/// What is pressed first is the subject of all reports up to the last release. When it goes off the canvas
/// meanwhile, it is told one last release, so that no drag of it goes on, and nothing else is reported until
/// all buttons are up. A button that was not pressed here is not released here. Every routine keeps its
/// canvas: listeners may do anything.
class MUR_API CanvasPointer {
 public:
  /// `CanvasA` owns this.
  explicit CanvasPointer(MURGraphicCanvas& CanvasA) : mCanvas(CanvasA) {}

  void Press(const PointerInput& InputA, bool IsDoubleA);
  void Move(const PointerInput& InputA);
  void Release(const PointerInput& InputA);
  void Lose();
  /// Whether a button that was pressed on the canvas is held.
  bool IsHeld() const { return mButtons.Any(); }

 private:
  /// What the reports are about: an item or, without one, the background.
  struct Subject {
    Ref<ICanvasItem> item;
    bool isGone = false;  // the item left the canvas under a held button
  };

  Subject SubjectAt(PointF AtA) const;
  void TellIfGone();
  bool IsOn(const Subject& SubjectA, PointF AtA) const;
  void EndGesture();
  void RaiseClick(const Subject& SubjectA, bool IsDoubleA) const;
  void ShowShape() const;
  void Raise(const PointerEventOf<>& BackgroundA, const PointerEventOf<IGraphicCanvas::Item>& ItemA,
             const Subject& SubjectA, const PointerInput& InputA) const;

  MURGraphicCanvas& mCanvas;
  Subject mSubject;  // of the presses, while a button is held
  HeldButtons mButtons;
  PointerInput mLast;  // where the pointer is
};

}  // namespace mur
