#pragma once

#include <string>
#include <vector>

#include <murtimeline/model/timeline_media.h>
#include <murtimeline/render/companions/canvas.h>
#include <murtimeline/render/port/recording_surface.h>

#include "tests/support/control_log.h"
#include "tests/support/render_fixture.h"

namespace mur::test {

/// A control with a pointer: a pixel a second from noon, tracks 46 pixels apart with bars 40 high, the cursor
/// at 500. Bars and cursor can be dragged; bars are not highlighted by the cursor.
struct PointedControl : AttachedControl {
  PointedControl() {
    control->SetCursorTime(At(500));
    control->SetAllowObjectDragging(true);
    control->SetAutoHighlightObjects(false);
    log.Take();
  }

  /// A bar of a hundred pixels on a track of its own.
  Ref<IMURTimelineObject> Bar(MURTimelineObjectType TypeA, StringView KeyA, int StartA) {
    auto object = Add(TypeA, KeyA, true);
    object->SetWorldTimeT0(At(StartA));
    if (auto* media = dynamic_cast<CMURTimelineMedia*>(object.Get())) media->SetMediaDuration(100);
    object->SetDuration(100);
    control->AlignTracks();
    Canvas().Repaint.Raise();
    log.Take();
    return object;
  }
  MURGraphicCanvas& Pointed() const { return static_cast<MURGraphicCanvas&>(Canvas()); }

  void Press(float XA, float YA = 5, std::int16_t ButtonA = kLeftButton) const {
    Pointed().PointerPressed({{XA, YA}, ButtonA, 0});
  }
  void DoublePress(float XA, float YA = 5, std::int16_t ButtonA = kLeftButton) const {
    Pointed().PointerDoublePressed({{XA, YA}, ButtonA, 0});
  }
  void Move(float XA, float YA = 5, std::int16_t ButtonsA = kLeftButton) const {
    Pointed().PointerMoved({{XA, YA}, ButtonsA, 0});
  }
  void Release(float XA, float YA = 5, std::int16_t ButtonA = kLeftButton) const {
    Pointed().PointerReleased({{XA, YA}, ButtonA, 0});
  }
  void Click(float XA, float YA = 5, std::int16_t ButtonA = kLeftButton) const {
    Press(XA, YA, ButtonA);
    Release(XA, YA, ButtonA);
  }
  void DoubleClick(float XA, float YA = 5, std::int16_t ButtonA = kLeftButton) const {
    DoublePress(XA, YA, ButtonA);
    Release(XA, YA, ButtonA);
  }
  /// The seconds after noon at which an object starts, to the millisecond.
  static double StartOf(const Ref<IMURTimelineObject>& ObjectA) {
    return std::round((ObjectA->WorldTimeT0().Days() - kNoon.Days()) * kSecondsPerDay * 1000) / 1000;
  }
  /// The texts that the canvas draws.
  std::vector<std::string> ShownTexts() const {
    RecordingSurface surface;
    Pointed().Paint(surface, {0, 0, 1000, 200});
    return surface.LinesOf("text");
  }
  OleColor ColorOf(StringView KeyA) const { return Item(KeyA)->BackColor(); }

  ControlLog log{*control, *timeline, kNoon};
};

inline constexpr OleColor kBack = 0x8000000F;
inline constexpr OleColor kHighlight = 0x8000000D;

}  // namespace mur::test
