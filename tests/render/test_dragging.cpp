#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/render/pointed_control.h"
#include "tests/support/foreign_object.h"
#include "tests/support/print.h"

namespace mur::test {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

constexpr std::int16_t kLeftAndRight = kLeftButton | kRightButton;

TEST(Dragging, RaisesItsEventsInThisOrder) {
  PointedControl c;
  c.Bar(murtlotMedia, u"M", 100);
  c.control->SetAutoSelectMode(etlcltLeftClick);
  c.Press(105);
  c.Move(115);
  c.Move(135);
  c.Release(135);
  EXPECT_EQ(c.log.Take(),
            "TLObjectMouseDown(M, 1, 0, 5, 5); "
            "M.WorldTimeT0 = 110; TLObjectMouseMove(M, 1, 0, 15, 5); "
            "M.WorldTimeT0 = 130; TLObjectMouseMove(M, 1, 0, 25, 5); "
            "TLObjectMouseUp(M, 1, 0, 5, 5); TLObjectClick(M)");
  EXPECT_EQ(c->SelectedKey(), Variant(u"M"));
}

TEST(Dragging, TakesOneMoreStepWithTheRelease) {
  PointedControl c;
  c.Bar(murtlotMedia, u"M", 100);
  c.Press(105);
  c.Release(112);
  EXPECT_EQ(c.log.Take(),
            "TLObjectMouseDown(M, 1, 0, 5, 5); M.WorldTimeT0 = 107; TLObjectMouseUp(M, 1, 0, 12, 5); "
            "TLObjectClick(M)");
  c.Move(300, 5, 0);
  c.Move(150, 5, 0);
  EXPECT_EQ(c.log.Take(), "MouseMove(0, 0, 300, 5); TLObjectMouseMove(M, 0, 0, 43, 5)");
}

TEST(Dragging, MovesNothingWhereItIsNotAllowed) {
  PointedControl c;
  c.Bar(murtlotMedia, u"M", 100);
  c->SetAllowObjectDragging(false);
  c.Press(105);
  c.Move(115);
  c.Release(125);
  EXPECT_EQ(c.log.Take(),
            "TLObjectMouseDown(M, 1, 0, 5, 5); TLObjectMouseMove(M, 1, 0, 15, 5); "
            "TLObjectMouseUp(M, 1, 0, 25, 5); TLObjectClick(M)");
  EXPECT_FALSE(c->IsDragging());
}

TEST(Dragging, BeginsWithTheLeftButtonAmongOthers) {
  for (const auto& [button, drags] : {std::pair{kRightButton, false}, std::pair{kMiddleButton, false},
                                      std::pair{kLeftButton, true}, std::pair{kLeftAndRight, true}}) {
    PointedControl c;
    const auto media = c.Bar(murtlotMedia, u"M", 100);
    c.Press(105, 5, button);
    EXPECT_EQ(c->IsDragging(), drags) << button;
    c.Move(115, 5, button);
    EXPECT_EQ(c.StartOf(media), drags ? 110 : 100) << button;
  }
}

TEST(Dragging, EndsWithTheReleaseOfAnyButton) {
  PointedControl c;
  const auto media = c.Bar(murtlotMedia, u"M", 100);
  c.Press(105);
  c.Press(105, 5, kRightButton);
  c.Release(105, 5, kRightButton);
  EXPECT_FALSE(c->IsDragging());
  c.Move(150);
  EXPECT_EQ(c.StartOf(media), 100);
}

TEST(Dragging, GoesOnWhenItIsForbiddenMeanwhile) {
  PointedControl c;
  const auto media = c.Bar(murtlotMedia, u"M", 100);
  c.Press(105);
  c->SetAllowObjectDragging(false);
  c.Move(115);
  EXPECT_EQ(c.StartOf(media), 110);
}

TEST(Dragging, OfTheBackgroundMovesNothing) {
  PointedControl c;
  c.Bar(murtlotMedia, u"M", 100);
  c.Press(300);
  c.Move(320);
  EXPECT_FALSE(c->IsDragging());
  EXPECT_EQ(c.log.Take(), "MouseDown(1, 0, 300, 5); MouseMove(1, 0, 320, 5)");
}

TEST(Dragging, FollowsThePointerOffTheBarAndOffTheCanvas) {
  PointedControl c;
  const auto media = c.Bar(murtlotMedia, u"M", 100);
  c.Press(105);
  c.Move(505, 150);
  EXPECT_EQ(c.StartOf(media), 500);
  c.Move(-95, 900);
  EXPECT_EQ(c.StartOf(media), -100);
  c.Release(-95, 900);
  EXPECT_EQ(c.StartOf(media), -100);
}

// By contract a group or scalar reports its start under a name that moves no bar. Each step then counts the
// whole way from the press again.
TEST(Dragging, OfAScalarOrGroupAddsUpBecauseItsBarDoesNotFollow) {
  for (const auto type : {murtlotScalar, murtlotGroup}) {
    PointedControl c;
    const auto object = c.Bar(type, u"S", 100);
    c.Press(105);
    c.Move(106);
    EXPECT_EQ(c.StartOf(object), 101);
    c.Move(107);
    EXPECT_EQ(c.StartOf(object), 103);
    c.Move(107);
    EXPECT_EQ(c.StartOf(object), 105);
    EXPECT_EQ(c.Item(u"S")->Left(), 100);
    c.Release(107);
    EXPECT_EQ(c.StartOf(object), 107);
    EXPECT_EQ(c.log.Take(),
              "TLObjectMouseDown(S, 1, 0, 5, 5); S.WorldtimeT0 = 101; TLObjectMouseMove(S, 1, 0, 6, 5); "
              "S.WorldtimeT0 = 103; TLObjectMouseMove(S, 1, 0, 7, 5); "
              "S.WorldtimeT0 = 105; TLObjectMouseMove(S, 1, 0, 7, 5); "
              "S.WorldtimeT0 = 107; TLObjectMouseUp(S, 1, 0, 7, 5); TLObjectClick(S)");
  }
}

TEST(Dragging, OfAScalarOrGroupFollowsThePointerOnRequest) {
  for (const auto type : {murtlotScalar, murtlotGroup}) {
    PointedControl c;
    const auto object = c.Bar(type, u"S", 100);
    c->SetFollowAllStarts(true);
    c.Press(105);
    c.Move(106);
    c.Move(107);
    c.Move(107);
    EXPECT_EQ(c.StartOf(object), 102);
    EXPECT_EQ(c.Item(u"S")->Left(), 102);
  }
}

TEST(Dragging, OfAParentTakesItsLockedChildrenAlong) {
  PointedControl c;
  const auto parent = c.Bar(murtlotGroup, u"G", 100);
  const auto locked = c.AddBelow(parent, murtlotMedia, u"locked");
  const auto free = c.AddBelow(parent, murtlotMedia, u"free");
  locked->SetWorldTimeT0(At(120));
  free->SetWorldTimeT0(At(120));
  locked->SetLockedToParent(true);
  c.Press(105);
  c.Move(115);
  EXPECT_EQ(c.StartOf(parent), 110);
  EXPECT_EQ(c.StartOf(locked), 130);
  EXPECT_EQ(c.StartOf(free), 120);
}

TEST(Dragging, OfALockedChildMovesItWithinItsParent) {
  PointedControl c;
  const auto parent = c.Bar(murtlotGroup, u"G", 100);
  const auto child = c.Bar(murtlotMedia, u"M", 300);
  parent->Add(child, u"M");
  child->SetOffset(200);
  child->SetLockedToParent(true);
  c->AlignTracks();
  c.Press(305, c.TopOf(u"M") + 5);
  c.Move(315, c.TopOf(u"M") + 5);
  EXPECT_EQ(c.StartOf(child), 310);
  EXPECT_NEAR(child->offset(), 210, 1e-5);
  EXPECT_EQ(c.StartOf(parent), 100);
}

TEST(Dragging, OfTheCursorMovesItsTimeAndTellsBothInTurn) {
  PointedControl c;
  c.Press(501);
  c.Move(520);
  c.Release(530);
  EXPECT_EQ(c.log.Take(),
            "CursorMouseDown(The Cursor, 1, 0, 3.5, 5); "
            "CursorTimeChange(520); CursorMouseMove(The Cursor, 1, 0, 22.5, 5); "
            "CursorTimeChange(530); CursorMouseUp(The Cursor, 1, 0, 12.5, 5); CursorClick(The Cursor)");
  EXPECT_EQ(c.Item(u"The Cursor")->Left(), 527.5F);
  EXPECT_EQ(c.Scroller().CursorTime(), c->CursorTime());
}

TEST(Dragging, OfTheCursorPutsItWhereThePointerIsFromTheFirstStepOn) {
  PointedControl c;
  c.Press(502);
  c.Move(502);
  EXPECT_EQ(c.log.Take(),
            "CursorMouseDown(The Cursor, 1, 0, 4.5, 5); CursorTimeChange(502); "
            "CursorMouseMove(The Cursor, 1, 0, 4.5, 5)");
  c.Move(502);
  EXPECT_EQ(c.log.Take(), "CursorMouseMove(The Cursor, 1, 0, 2.5, 5)");
}

TEST(Dragging, OfTheCursorHighlightsWhatItComesUpon) {
  PointedControl c;
  c->SetAutoHighlightObjects(true);
  c.Bar(murtlotMedia, u"M", 600);
  std::string told;
  const auto hearing = c->CursorMouseMove.Connect(
      [&](StringView, auto&...) { told += c.ColorOf(u"M") == kHighlight ? "+" : "-"; });
  c.Press(500);
  c.Move(599);
  c.Move(600);
  c.Move(700);
  c.Move(701);
  EXPECT_EQ(told, "-++-");
}

TEST(Dragging, OfABarRefreshesTheHighlightBeforeItsEvent) {
  PointedControl c;
  c->SetAutoHighlightObjects(true);
  c.Bar(murtlotMedia, u"M", 600);
  std::string told;
  const auto hearing = c->TLObjectMouseMove.Connect(
      [&](const auto&, auto&...) { told += c.ColorOf(u"M") == kHighlight ? "+" : "-"; });
  c.Press(605);
  c.Move(506);
  c.Move(505);
  c.Move(405);
  c.Move(404);
  EXPECT_EQ(told, "-++-");
}

TEST(Dragging, WithoutHighlightingLeavesColoursAlone) {
  PointedControl c;
  c.Bar(murtlotMedia, u"M", 490);
  c.Item(u"M")->SetBackColor(7);
  c.Press(493);
  c.Move(494);
  EXPECT_EQ(c.ColorOf(u"M"), 7U);
}

TEST(Dragging, OutOfTheDateRangeIsRefusedWithoutAnEvent) {
  PointedControl c;
  const auto media = c.Bar(murtlotMedia, u"M", 100);
  c->SetWorldTimeT0(Date::Unchecked(Date::kHighestDays - 1));
  c->SetDuration(100 * kSecondsPerDay);  // a tenth of a day a pixel
  media->SetWorldTimeT0(Date::Unchecked(Date::kHighestDays - 0.5));
  c.Item(u"M")->Move(5, {}, 50.0F);
  c.log.Take();
  c.Press(6);
  c.Move(900);
  EXPECT_EQ(c.log.Take(), "TLObjectMouseDown(M, 1, 0, 1, 5)");
  EXPECT_TRUE(c->IsDragging());
  c.Release(900);
  EXPECT_EQ(c.log.Take(), "");
  EXPECT_FALSE(c->IsDragging());
  EXPECT_EQ(media->WorldTimeT0(), Date::Unchecked(Date::kHighestDays - 0.5));
}

TEST(Dragging, OfAnObjectThatRefusesItsStartRaisesNoEvent) {
  class Stubborn final : public ForeignObject {
   public:
    void SetWorldTimeT0(Date) override { throw 42; }
  };
  PointedControl c;
  c.timeline->Insert(Make<Stubborn>(), u"F");
  c.Item(u"F")->Move(100, 0.0F, 50.0F);
  c.Press(105);
  c.Move(115);
  c.Release(115);
  EXPECT_EQ(c.log.Take(), "TLObjectMouseDown(F, 1, 0, 5, 5); TLObjectClick(F)");
  EXPECT_FALSE(c->IsDragging());
}

TEST(Dragging, EndsQuietlyWhenItsBarIsGone) {
  PointedControl c;
  const auto media = c.Bar(murtlotMedia, u"M", 100);
  c.Press(105);
  c.log.Take();
  c.timeline->Remove(u"M");
  EXPECT_TRUE(c->IsDragging());
  c.Move(115);
  EXPECT_FALSE(c->IsDragging());
  c.Release(115);
  EXPECT_EQ(c.log.Take(), "");
}

TEST(Dragging, StopsMovingWhenTheTimeLineIsAnother) {
  PointedControl c;
  const auto media = c.Bar(murtlotMedia, u"M", 100);
  c.Press(105);
  c->SetTimeline(Make<CMURTimeline>());
  c.Move(115);
  EXPECT_TRUE(c->IsDragging());
  c.Release(125);
  EXPECT_FALSE(c->IsDragging());
  EXPECT_EQ(c.StartOf(media), 100);
}

TEST(Dragging, EndsWhenThePointerIsLost) {
  PointedControl c;
  const auto media = c.Bar(murtlotMedia, u"M", 100);
  c.Press(105);
  c.Move(115);
  c.Pointed().PointerLost();
  EXPECT_FALSE(c->IsDragging());
  EXPECT_EQ(c.StartOf(media), 110);
}

TEST(Dragging, NeedsAPressOfItsOwn) {
  PointedControl c;
  const auto media = c.Bar(murtlotMedia, u"M", 100);
  c.Release(105);
  c.Move(115, 5, 0);
  EXPECT_EQ(c.log.Take(), "TLObjectMouseMove(M, 0, 0, 15, 5)");
  EXPECT_EQ(c.StartOf(media), 100);
}

TEST(Dragging, ShowsTheStartOfABarMeanwhile) {
  PointedControl c;
  c.Bar(murtlotMedia, u"M", 100);
  c.Press(105);
  EXPECT_THAT(c.ShownTexts(), IsEmpty());
  c.Move(115);
  EXPECT_THAT(c.ShownTexts(), ElementsAre(HasSubstr("\"12:01:50\"")));
  c.Release(115);
  EXPECT_THAT(c.ShownTexts(), IsEmpty());
}

TEST(Dragging, ShowsTheTimeOfTheCursorMeanwhile) {
  PointedControl c;
  c.Press(500);
  c.Move(510);
  EXPECT_THAT(c.ShownTexts(), ElementsAre(HasSubstr("\"12:08:30\"")));
  c.Pointed().PointerLost();
  EXPECT_THAT(c.ShownTexts(), IsEmpty());
}

}  // namespace
}  // namespace mur::test
