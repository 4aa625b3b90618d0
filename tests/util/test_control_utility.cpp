#include <limits>
#include <string>

#include <gtest/gtest.h>

#include <murtimeline/automation/error.h>
#include <murtimeline/util/control_utility.h>

namespace mur {
namespace {

// Notes its moves as text, "Move 1 2", and fails where it is told to.
class NotingControl final : public MovableControl {
 public:
  float Left() const override { return Read("Left"), 1; }
  float Top() const override { return Read("Top"), top; }
  float Width() const override { return Read("Width"), width; }
  float Height() const override { return Read("Height"), height; }
  void SetHeight(float HeightA) override { height = HeightA; }
  void Move(float LeftA, std::optional<float> TopA, std::optional<float> WidthA,
            std::optional<float> HeightA) override {
    log = "Move";
    for (const std::optional<float> part : {std::optional(LeftA), TopA, WidthA, HeightA})
      if (part) log += ' ' + std::to_string(static_cast<int>(*part));
    Read("Move");
  }

  std::string failing, log;
  float top = 2, width = 30, height = 40;

 private:
  void Read(const std::string& NameA) const {
    if (failing == NameA) throw 42;
  }
};

TEST(ControlBottom, IsZeroForNoControl) {
  EXPECT_EQ(ControlBottom(nullptr), 0.0f);
}

TEST(ControlBottom, IsTopAndHeight) {
  NotingControl control;
  control.top = 120;
  control.height = 300;
  EXPECT_EQ(ControlBottom(&control), 420.0f);
}

TEST(ControlBottom, LetsFailuresThrough) {
  NotingControl control;
  for (const char* member : {"Top", "Height"}) {
    control.failing = member;
    EXPECT_THROW(ControlBottom(&control), int);
  }
}

TEST(ControlBottom, OverflowsBeyondTheSingleRange) {
  NotingControl control;
  control.top = control.height = std::numeric_limits<float>::max();
  try {
    ControlBottom(&control);
    ADD_FAILURE() << "no overflow";
  } catch (const AutomationError& error) {
    EXPECT_EQ(error.Code(), ErrorCode::Overflow);
  }
}

TEST(MoveControl, PassesAllFourParts) {
  NotingControl control;
  MoveControl(control, 10, 11, 12, 13);
  EXPECT_EQ(control.log, "Move 10 11 12 13");
}

TEST(MoveControl, NeverPassesANegativeExtent) {
  NotingControl control;
  MoveControl(control, 10, 10, -50, -5);
  EXPECT_EQ(control.log, "Move 10 10 0 0");
  MoveControl(control, -3, -4, 1, 1);
  EXPECT_EQ(control.log, "Move -3 -4 1 1");
}

TEST(MoveControl, TakesAnExtentThatIsNoNumberAsZero) {
  NotingControl control;
  const float nan = std::numeric_limits<float>::quiet_NaN();
  MoveControl(control, 1, 2, nan, nan);
  EXPECT_EQ(control.log, "Move 1 2 0 0");
}

TEST(MoveControl, PassesNothingBehindTheLastPartGiven) {
  NotingControl control;
  control.width = -7;
  MoveControl(control, 10);
  EXPECT_EQ(control.log, "Move 10");
  MoveControl(control, {}, 20);
  EXPECT_EQ(control.log, "Move 1 20");
}

TEST(MoveControl, FillsPartsBeforeTheLastOneGivenWithThePresentOnes) {
  NotingControl control;
  MoveControl(control, {}, {}, 99);
  EXPECT_EQ(control.log, "Move 1 2 99");
  MoveControl(control, {}, {}, {}, 99);
  EXPECT_EQ(control.log, "Move 1 2 30 99");
  control.width = -7;
  MoveControl(control, {}, {}, {}, 99);
  EXPECT_EQ(control.log, "Move 1 2 0 99");
}

TEST(MoveControl, PassesThePresentLeftWhenNothingIsGiven) {
  NotingControl control;
  MoveControl(control);
  EXPECT_EQ(control.log, "Move 1");
}

TEST(MoveControl, TakesWhatCannotBeReadAsZero) {
  NotingControl control;
  control.failing = "Left";
  MoveControl(control, {}, {}, {}, 9);
  EXPECT_EQ(control.log, "Move 0 2 30 9");
  control.failing = "Width";
  MoveControl(control, {}, {}, {}, 9);
  EXPECT_EQ(control.log, "Move 1 2 0 9");
}

TEST(MoveControl, SwallowsAMoveThatFails) {
  NotingControl control;
  control.failing = "Move";
  EXPECT_NO_THROW(MoveControl(control, 5));
  EXPECT_EQ(control.log, "Move 5");
}

}  // namespace
}  // namespace mur
