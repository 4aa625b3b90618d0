#pragma once

#include <string>

#include <murtimeline/render/port/pointer_input.h>

#include "tests/com/container/embedded.h"

namespace mur::test {

/// Gives a control its size as containers do, in twips. Throws std::invalid_argument for what has no size.
void SetExtent(const Late& ControlA, double WidthA, double HeightA);

/// A control in a container's window, driven by the messages of the mouse.
class ShownControl {
 public:
  /// The size is in twips.
  ShownControl(const Late& ControlA, double WidthA, double HeightA);
  ShownControl(const ShownControl&) = delete;
  ShownControl& operator=(const ShownControl&) = delete;
  ~ShownControl();

  /// Lets the pointer press, double, move, release, leave or lose at the `canvas` or the `scale`. Throws
  /// std::invalid_argument for all else, and for what one message cannot tell.
  void Point(const std::string& PartA, const std::string& ActionA, const PointerInput& InputA) const;

 private:
  HWND PartNamed(const std::string& PartA) const;

  TestContainer mContainer;
  Ref<IOleObject> mObject;
};

}  // namespace mur::test
