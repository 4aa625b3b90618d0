#pragma once

#include <gtest/gtest.h>

#include <murtimeline/render/companions/canvas.h>
#include <murtimeline/render/port/scripted_host.h>

#include "tests/render/companions/pointer_log.h"

namespace mur::test {

inline constexpr std::int16_t kLeftAndRight = kLeftButton | kRightButton;

/// A canvas of 200 x 100 pixels under a pointer.
class CanvasPointer : public testing::Test {
 protected:
  CanvasPointer() {
    host.Move(0, 0, 200 * ChildHost::kTwipsPerPixel, 100 * ChildHost::kTwipsPerPixel);
    canvas->SetScaleMode(3);
  }

  Ref<ICanvasItem> Bar(StringView KeyA, float LeftA, float TopA = 0) const {
    auto item = canvas->AddGraphic(KeyA, kObjectBarItem);
    item->Move(LeftA, TopA, 20.0F, 10.0F);
    return item;
  }
  static PointerInput On(float XA, float YA, std::int16_t ButtonA = kLeftButton, std::int16_t ShiftA = 0) {
    return {{XA, YA}, ButtonA, ShiftA};
  }
  void Press(float XA, float YA, std::int16_t ButtonA = kLeftButton) const {
    canvas->PointerPressed(On(XA, YA, ButtonA));
  }
  void DoublePress(float XA, float YA) const { canvas->PointerDoublePressed(On(XA, YA)); }
  void Move(float XA, float YA, std::int16_t ButtonsA = 0) const {
    canvas->PointerMoved(On(XA, YA, ButtonsA));
  }
  void Release(float XA, float YA, std::int16_t ButtonA = kLeftButton) const {
    canvas->PointerReleased(On(XA, YA, ButtonA));
  }

  ScriptedChild host;
  Ref<MURGraphicCanvas> canvas = Make<MURGraphicCanvas>(host);
  PointerLog log{*canvas};
};

}  // namespace mur::test
