#include "tests/render/companions/canvas_pointing.h"

namespace mur::test {
namespace {

TEST_F(CanvasPointer, ReportsThePointerOnTheBackground) {
  Move(5, 6);
  Press(5, 6);
  Release(5, 6);
  EXPECT_EQ(log.Take(), "move - 0 0 5,6; down - 1 0 5,6; up - 1 0 5,6; click -");
}

TEST_F(CanvasPointer, ReportsThePointerOnAnItemFromItsLeftTopCorner) {
  Bar(u"a", 30, 40);
  Move(35, 42);
  Press(35, 42);
  Release(36, 43);
  EXPECT_EQ(log.Take(), "move a 0 0 5,2; down a 1 0 5,2; up a 1 0 6,3; click a");
}

TEST_F(CanvasPointer, HandsOnModifierKeys) {
  canvas->PointerPressed(On(1, 1, kRightButton, kShiftKey | kAltKey));
  canvas->PointerReleased(On(1, 1, kRightButton, kControlKey));
  EXPECT_EQ(log.Take(), "down - 2 5 1,1; up - 2 2 1,1; click -");
}

TEST_F(CanvasPointer, HitsTheItemThatLiesOnTop) {
  Bar(u"below", 0);
  const auto above = Bar(u"above", 10);
  Move(15, 5);
  above->ZOrder(1);
  Move(15, 5);
  EXPECT_EQ(log.Take(), "move above 0 0 5,5; move below 0 0 15,5");
}

TEST_F(CanvasPointer, HitsTheCursorBeforeAllBars) {
  const auto cursor = canvas->AddGraphic(u"The Cursor", kCursorItem);
  cursor->Move(10, 0.0F, 5.0F, 100.0F);
  Bar(u"a", 0);
  cursor->ZOrder(1);
  Move(12, 5);
  Move(16, 5);
  EXPECT_EQ(log.Take(), "move The Cursor 0 0 2,5; move a 0 0 16,5");
}

TEST_F(CanvasPointer, PassesOverHiddenItems) {
  Bar(u"below", 0);
  Bar(u"above", 0)->SetVisible(false);
  Move(5, 5);
  EXPECT_EQ(log.Take(), "move below 0 0 5,5");
}

TEST_F(CanvasPointer, CountsTheLeftAndUpperEdgeAsTheItemTheOthersNot) {
  Bar(u"a", 10, 10);
  Move(10, 10);
  Move(30, 10);
  Move(10, 20);
  EXPECT_EQ(log.Take(), "move a 0 0 0,0; move - 0 0 30,10; move - 0 0 10,20");
}

TEST_F(CanvasPointer, ReportsInTheUnitsOfTheScaleMode) {
  canvas->SetScaleMode(1);
  canvas->AddGraphic(u"a", kObjectBarItem)->Move(150, 0.0F, 300.0F, 150.0F);
  Move(12, 4);
  Move(50, 4);
  EXPECT_EQ(log.Take(), "move a 0 0 30,60; move - 0 0 750,60");
}

TEST_F(CanvasPointer, ReportsWhatWasPressedUntilTheReleaseWhereverThePointerIs) {
  Bar(u"a", 0);
  Bar(u"b", 50);
  Press(5, 5);
  Move(55, 5, kLeftButton);
  Move(-20, 500, kLeftButton);
  Release(55, 5);
  EXPECT_EQ(log.Take(), "down a 1 0 5,5; move a 1 0 55,5; move a 1 0 -20,500; up a 1 0 55,5");
  Move(55, 5);
  EXPECT_EQ(log.Take(), "move b 0 0 5,5");
}

TEST_F(CanvasPointer, FollowsAnItemThatMovesUnderThePointer) {
  const auto item = Bar(u"a", 0);
  Press(5, 5);
  item->Move(10);
  Move(15, 5, kLeftButton);
  EXPECT_EQ(log.Take(), "down a 1 0 5,5; move a 1 0 5,5");
}

TEST_F(CanvasPointer, CapturesThePointerWhileAButtonIsHeld) {
  Press(5, 5);
  EXPECT_TRUE(host.HasPointer());
  Press(5, 5, kRightButton);
  Release(5, 5);
  EXPECT_TRUE(host.HasPointer());
  Release(5, 5, kRightButton);
  EXPECT_FALSE(host.HasPointer());
}

TEST_F(CanvasPointer, ClicksOnlyWhereItWasPressed) {
  Bar(u"a", 0);
  Press(5, 5);
  Release(50, 50);
  Press(50, 50);
  Release(5, 5);
  Press(50, 50);
  Release(500, 50);
  EXPECT_EQ(
      log.Take(),
      "down a 1 0 5,5; up a 1 0 50,50; down - 1 0 50,50; up - 1 0 5,5; down - 1 0 50,50; up - 1 0 500,50");
}

TEST_F(CanvasPointer, ClicksWhereThePointerComesBack) {
  Bar(u"a", 0);
  Press(5, 5);
  Move(50, 50, kLeftButton);
  Release(6, 6);
  EXPECT_EQ(log.Take(), "down a 1 0 5,5; move a 1 0 50,50; up a 1 0 6,6; click a");
}

TEST_F(CanvasPointer, ClicksOnAnItemThatAnotherOneCoversMeanwhile) {
  Bar(u"a", 0);
  Press(5, 5);
  Bar(u"b", 0);
  Release(5, 5);
  EXPECT_EQ(log.Take(), "down a 1 0 5,5; up a 1 0 5,5; click a");
}

TEST_F(CanvasPointer, DoesNotClickOnAnItemThatIsHiddenMeanwhile) {
  const auto item = Bar(u"a", 0);
  Press(5, 5);
  item->SetVisible(false);
  Release(5, 5);
  EXPECT_EQ(log.Take(), "down a 1 0 5,5; up a 1 0 5,5");
}

TEST_F(CanvasPointer, DoubleClicksWithTheReleaseOfTheSecondPress) {
  Bar(u"a", 0);
  Press(5, 5);
  Release(5, 5);
  DoublePress(5, 5);
  Release(5, 5);
  EXPECT_EQ(log.Take(), "down a 1 0 5,5; up a 1 0 5,5; click a; down a 1 0 5,5; up a 1 0 5,5; dblclick a");
}

TEST_F(CanvasPointer, DoubleClicksOnTheBackgroundToo) {
  DoublePress(5, 5);
  Release(5, 5);
  EXPECT_EQ(log.Take(), "down - 1 0 5,5; up - 1 0 5,5; dblclick -");
}

TEST_F(CanvasPointer, ClicksOfAChordOnlyWithTheButtonThatWasPressedLast) {
  Press(5, 5);
  Press(5, 5, kRightButton);
  Release(5, 5);
  Release(5, 5, kRightButton);
  EXPECT_EQ(log.Take(), "down - 1 0 5,5; down - 2 0 5,5; up - 1 0 5,5; up - 2 0 5,5; click -");
  Press(5, 5);
  Press(5, 5, kRightButton);
  Release(5, 5, kRightButton);
  Release(5, 5);
  EXPECT_EQ(log.Take(), "down - 1 0 5,5; down - 2 0 5,5; up - 2 0 5,5; click -; up - 1 0 5,5");
}

TEST_F(CanvasPointer, ClicksOnceForButtonsThatArePressedTogether) {
  Press(5, 5, kLeftAndRight);
  Release(5, 5, kLeftButton);
  Release(5, 5, kRightButton);
  EXPECT_EQ(log.Take(), "down - 3 0 5,5; up - 1 0 5,5; click -; up - 2 0 5,5");
}

TEST_F(CanvasPointer, StaysWithWhatWasPressedFirst) {
  Bar(u"a", 0);
  Bar(u"b", 50);
  Press(5, 5);
  Press(55, 5, kRightButton);
  Release(5, 5);
  Move(55, 5, kRightButton);
  EXPECT_EQ(log.Take(), "down a 1 0 5,5; down a 2 0 55,5; up a 1 0 5,5; move a 2 0 55,5");
}

TEST_F(CanvasPointer, KnowsNoReleaseOfWhatWasNotPressedHere) {
  Bar(u"a", 0);
  Release(5, 5);
  Press(5, 5);
  log.Take();
  Release(5, 5, kMiddleButton);
  EXPECT_EQ(log.Take(), "");
}

TEST_F(CanvasPointer, TakesAnotherPressOfAHeldButtonForALostRelease) {
  Bar(u"a", 0);
  Bar(u"b", 50);
  Press(5, 5);
  Press(55, 5);
  Release(55, 5);
  EXPECT_EQ(log.Take(), "down a 1 0 5,5; up a 1 0 5,5; down b 1 0 5,5; up b 1 0 5,5; click b");
}

TEST_F(CanvasPointer, ReleasesAllButtonsWithoutAClickWhenThePointerIsLost) {
  Bar(u"a", 0);
  Press(5, 5);
  Press(6, 5, kRightButton);
  canvas->PointerLost();
  EXPECT_EQ(log.Take(), "down a 1 0 5,5; down a 2 0 6,5; up a 3 0 6,5");
  EXPECT_FALSE(host.HasPointer());
  Release(5, 5);
  canvas->PointerLost();
  EXPECT_EQ(log.Take(), "");
}

TEST_F(CanvasPointer, LeavesWithoutAWord) {
  Press(5, 5);
  log.Take();
  canvas->PointerLeft();
  EXPECT_EQ(log.Take(), "");
  EXPECT_TRUE(host.HasPointer());
}

TEST_F(CanvasPointer, TellsAnItemThatIsTakenOffOneLastReleaseAndNothingElse) {
  Bar(u"a", 0);
  Bar(u"b", 0);
  Press(5, 5);
  canvas->RemoveGraphic(u"b");
  Move(6, 5, kLeftButton);
  Move(7, 5, kLeftButton);
  Press(7, 5, kRightButton);
  Release(7, 5, kRightButton);
  Release(7, 5);
  EXPECT_EQ(log.Take(), "down b 1 0 5,5; up b 1 0 6,5");
  EXPECT_FALSE(host.HasPointer());
  Press(5, 5);
  EXPECT_EQ(log.Take(), "down a 1 0 5,5");
}

TEST_F(CanvasPointer, TakesAnotherItemOfTheSameKeyForAnother) {
  Bar(u"a", 0);
  Press(5, 5);
  canvas->RemoveGraphic(u"a");
  Bar(u"a", 0);
  Release(5, 5);
  EXPECT_EQ(log.Take(), "down a 1 0 5,5; up a 1 0 5,5");
}

TEST_F(CanvasPointer, LosesAnItemThatIsTakenOffWithOneRelease) {
  Bar(u"a", 0);
  Press(5, 5);
  canvas->RemoveGraphic(u"a");
  canvas->PointerLost();
  EXPECT_EQ(log.Take(), "down a 1 0 5,5; up a 1 0 5,5");
}

TEST_F(CanvasPointer, ShowsWhatCanBeDragged) {
  const auto item = Bar(u"a", 0);
  Move(5, 5);
  EXPECT_EQ(host.ShownPointer(), PointerShape::Standard);
  item->SetDragFlags(15);
  Move(5, 5);
  EXPECT_EQ(host.ShownPointer(), PointerShape::CanMove);
  Move(50, 5);
  EXPECT_EQ(host.ShownPointer(), PointerShape::Standard);
  Press(5, 5);
  EXPECT_EQ(host.ShownPointer(), PointerShape::Moves);
  Move(50, 5, kLeftButton);
  EXPECT_EQ(host.ShownPointer(), PointerShape::Moves);
  Release(50, 5);
  EXPECT_EQ(host.ShownPointer(), PointerShape::Standard);
  Press(5, 5, kRightButton);
  EXPECT_EQ(host.ShownPointer(), PointerShape::CanMove);
}

TEST_F(CanvasPointer, ShowsThatTheCursorCanBeDraggedWhereItemsCan) {
  canvas->AddGraphic(u"The Cursor", kCursorItem)->Move(10, 0.0F, 5.0F, 100.0F);
  canvas->SetItemsMovable(true);
  Move(12, 5);
  EXPECT_EQ(host.ShownPointer(), PointerShape::CanMove);
  canvas->SetItemsMovable(false);
  Move(12, 5);
  EXPECT_EQ(host.ShownPointer(), PointerShape::Standard);
}

TEST_F(CanvasPointer, NoLongerShowsTheDraggingOfAnItemThatIsGone) {
  Bar(u"a", 0)->SetDragFlags(15);
  Press(5, 5);
  canvas->RemoveGraphic(u"a");
  Move(5, 5, kLeftButton);
  EXPECT_EQ(host.ShownPointer(), PointerShape::Standard);
}

}  // namespace
}  // namespace mur::test
