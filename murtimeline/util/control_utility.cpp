#include <murtimeline/automation/guard.h>
#include <murtimeline/automation/narrow.h>
#include <murtimeline/util/control_utility.h>

namespace mur {
namespace {

// The given value, else what the control says, else 0.
float GivenOrPresent(std::optional<float> GivenA, const MovableControl& ControlA,
                     float (MovableControl::*PresentA)() const) {
  float value = GivenA.value_or(0.0f);
  if (!GivenA) ResumeNext([&] { value = (ControlA.*PresentA)(); });
  return value;
}

// Negative extents and those that are no number become 0.
float Extent(float ValueA) {
  return ValueA > 0 ? ValueA : 0;
}

}  // namespace

float ControlBottom(const MovableControl* ControlA) {
  return ControlA ? NarrowToSingle(static_cast<double>(ControlA->Top()) + ControlA->Height()) : 0;
}

void MoveControl(MovableControl& ControlA, std::optional<float> LeftA, std::optional<float> TopA,
                 std::optional<float> WidthA, std::optional<float> HeightA) {
  const float left = GivenOrPresent(LeftA, ControlA, &MovableControl::Left);
  const float top = GivenOrPresent(TopA, ControlA, &MovableControl::Top);
  const float width = Extent(GivenOrPresent(WidthA, ControlA, &MovableControl::Width));
  const float height = Extent(GivenOrPresent(HeightA, ControlA, &MovableControl::Height));
  ResumeNext([&] {
    if (HeightA)
      ControlA.Move(left, top, width, height);
    else if (WidthA)
      ControlA.Move(left, top, width);
    else if (TopA)
      ControlA.Move(left, top);
    else
      ControlA.Move(left);
  });
}

}  // namespace mur
