#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/render/pointed_control.h"
#include "tests/support/foreign_object.h"
#include "tests/support/print.h"

namespace mur::test {
namespace {

using ::testing::IsEmpty;

TEST(CancelDrag, TakesTheShownTimeAway) {
  PointedControl c;
  c.Bar(murtlotMedia, u"M", 100);
  c.Press(105);
  c.Move(115);
  c->CancelDrag();
  EXPECT_THAT(c.ShownTexts(), IsEmpty());
}

TEST(CancelDrag, PutsABarBackToWhereItWasTakenUp) {
  PointedControl c;
  const auto media = c.Bar(murtlotMedia, u"M", 100);
  c.Press(105);
  c.Move(115);
  c.Move(145);
  EXPECT_TRUE(c->CancelDrag());
  EXPECT_EQ(media->WorldTimeT0(), At(100));
  EXPECT_FALSE(c->IsDragging());
  c.Move(155);
  c.Release(155);
  EXPECT_EQ(media->WorldTimeT0(), At(100));
}

TEST(CancelDrag, PutsTheCursorBack) {
  PointedControl c;
  c.Press(500);
  c.Move(600);
  EXPECT_TRUE(c->CancelDrag());
  EXPECT_EQ(c->CursorTime(), At(500));
}

TEST(CancelDrag, RefreshesTheHighlight) {
  PointedControl c;
  c->SetAutoHighlightObjects(true);
  c.Bar(murtlotMedia, u"M", 600);
  c.Press(605);
  c.Move(505);
  EXPECT_EQ(c.ColorOf(u"M"), kHighlight);
  c->CancelDrag();
  EXPECT_EQ(c.ColorOf(u"M"), kBack);
}

TEST(CancelDrag, DoesNothingWhereNothingIsDragged) {
  PointedControl c;
  const auto media = c.Bar(murtlotMedia, u"M", 100);
  EXPECT_FALSE(c->CancelDrag());
  c.Press(105, 5, kRightButton);
  EXPECT_FALSE(c->CancelDrag());
  c.Release(105, 5, kRightButton);
  c.Click(105);
  EXPECT_FALSE(c->CancelDrag());
}

TEST(CancelDrag, IsPossibleWithinAnEventOfTheDrag) {
  PointedControl c;
  const auto media = c.Bar(murtlotMedia, u"M", 100);
  const auto cancelling = c->TLObjectMouseMove.Connect([&](const auto&, auto&...) { c->CancelDrag(); });
  c.Press(105);
  c.Move(115);
  c.Move(125);
  c.Release(125);
  EXPECT_EQ(media->WorldTimeT0(), At(100));
}

TEST(CancelDrag, LeavesAnObjectThatRefusesItsOldStart) {
  class Forward final : public ForeignObject {
   public:
    void SetWorldTimeT0(Date TimeA) override {
      if (TimeA < WorldTimeT0()) throw 42;
      ForeignObject::SetWorldTimeT0(TimeA);
    }
  };
  PointedControl c;
  const auto object = Make<Forward>();
  c.timeline->Insert(object, u"F");
  object->SetWorldTimeT0(At(100));
  c.Item(u"F")->Move(100, 0.0F, 50.0F);
  c.Press(105);
  c.Move(115);
  EXPECT_TRUE(c->CancelDrag());
  EXPECT_EQ(c.StartOf(object), 110);
}

}  // namespace
}  // namespace mur::test
