#include "tests/render/companions/scale_pointing.h"

namespace mur::test {
namespace {

TEST_F(ScalePointing, TellsAClickAndTakesTheCursorThereAfterEachEvent) {
  Press(100, kTickRow);
  Release(100, kTickRow);
  EXPECT_EQ(Log(),
            "ScaleMouseDown(1, 0, 100, 36); Changing 100; ScaleMouseUp(1, 0, 100, 36); Changed 100; "
            "ScaleClick");
}

TEST_F(ScalePointing, TakesTheCursorAlongWhileTheLeftButtonIsHeld) {
  Press(100, kTickRow);
  EXPECT_TRUE(scroll->IsDragging());
  Move(200, 20, kLeftButton);
  Move(250, 20, kLeftButton);
  Release(260, 20);
  EXPECT_FALSE(scroll->IsDragging());
  EXPECT_EQ(Log(),
            "ScaleMouseDown(1, 0, 100, 36); Changing 100; ScaleMouseMove(1, 0, 200, 20); Changing 200; "
            "ScaleMouseMove(1, 0, 250, 20); Changing 250; ScaleMouseUp(1, 0, 260, 20); Changing 260; "
            "Changed 260; ScaleClick");
}

TEST_F(ScalePointing, TellsNoNewTimeWhereTheCursorIsAlready) {
  Press(100, kTickRow);
  Move(100, 20, kLeftButton);
  Release(100, 20);
  EXPECT_EQ(Log(),
            "ScaleMouseDown(1, 0, 100, 36); Changing 100; ScaleMouseMove(1, 0, 100, 20); "
            "ScaleMouseUp(1, 0, 100, 20); Changed 100; ScaleClick");
}

TEST_F(ScalePointing, LetsListenersMoveWhereTheCursorGoes) {
  const auto snap = [](std::int16_t&, std::int16_t&, float& x, float&) { x = std::round(x / 50) * 50; };
  Hear(scroll->ScaleMouseDown, snap);
  Hear(scroll->ScaleMouseMove, snap);
  Hear(scroll->ScaleMouseUp, snap);
  Press(110, kTickRow);
  Move(120, kTickRow, kLeftButton);
  Move(130, kTickRow, kLeftButton);
  Release(190, kTickRow);
  EXPECT_EQ(Log(),
            "ScaleMouseDown(1, 0, 110, 36); Changing 100; ScaleMouseMove(1, 0, 120, 36); "
            "ScaleMouseMove(1, 0, 130, 36); Changing 150; ScaleMouseUp(1, 0, 190, 36); Changing 200; "
            "Changed 200; ScaleClick");
}

TEST_F(ScalePointing, LeavesTheCursorToListenersThatTakeTheLeftButtonAway) {
  Hear(scroll->ScaleMouseDown, [](std::int16_t& button, std::int16_t&, float&, float&) { button = 0; });
  Press(100, kTickRow);
  Move(200, kTickRow, kLeftButton);
  Release(200, kTickRow);
  EXPECT_EQ(Log(),
            "ScaleMouseDown(1, 0, 100, 36); ScaleMouseMove(1, 0, 200, 36); "
            "ScaleMouseUp(1, 0, 200, 36); ScaleClick");
  EXPECT_EQ(scroll->CursorTime(), Date());
}

TEST_F(ScalePointing, LeavesTheCursorAloneForOtherButtons) {
  Press(100, kTickRow, kRightButton, kShiftKey);
  Move(200, kTickRow, kRightButton);
  Release(200, kTickRow, kRightButton);
  EXPECT_EQ(Log(),
            "ScaleMouseDown(2, 1, 100, 36); ScaleMouseMove(2, 0, 200, 36); "
            "ScaleMouseUp(2, 0, 200, 36); ScaleClick");
  EXPECT_EQ(scroll->CursorTime(), Date());
}

TEST_F(ScalePointing, TakesTheCursorAlongFromTheLeftPressToTheLeftReleaseOfAChord) {
  Press(100, kTickRow, kRightButton);
  Press(100, kTickRow, kLeftButton);
  Move(200, kTickRow, kLeftButton | kRightButton);
  Release(200, kTickRow, kLeftButton);
  Move(300, kTickRow, kRightButton);
  Release(300, kTickRow, kRightButton);
  EXPECT_EQ(Log(),
            "ScaleMouseDown(2, 0, 100, 36); ScaleMouseDown(1, 0, 100, 36); Changing 100; "
            "ScaleMouseMove(3, 0, 200, 36); Changing 200; ScaleMouseUp(1, 0, 200, 36); Changed 200; "
            "ScaleClick; ScaleMouseMove(2, 0, 300, 36); ScaleMouseUp(2, 0, 300, 36)");
}

TEST_F(ScalePointing, KeepsTheCursorOnTheScale) {
  Press(100, kTickRow);
  Move(-50, kTickRow, kLeftButton);
  EXPECT_NEAR(SecondsOf(scroll->CursorTime()), 0, 1e-3);
  Move(5000, kTickRow, kLeftButton);
  EXPECT_NEAR(SecondsOf(scroll->CursorTime()), 1000, 1e-3);
  Log();
  Release(5000, kTickRow);
  EXPECT_EQ(Log(), "ScaleMouseUp(1, 0, 5000, 36); Changed 1000");
}

TEST_F(ScalePointing, TellsADoubleClickInPlaceOfTheSecondClick) {
  Press(100, kTickRow);
  Release(100, kTickRow);
  Log();
  scroll->PointerDoublePressed({{100, kTickRow}, kLeftButton, 0});
  Release(100, kTickRow);
  EXPECT_EQ(Log(), "ScaleMouseDown(1, 0, 100, 36); ScaleMouseUp(1, 0, 100, 36); Changed 100; ScaleDblClick");
}

TEST_F(ScalePointing, TellsMovesWithoutAButton) {
  AddMarker(500, u"m");
  Move(100, 20);
  Move(502, kFlagRow);
  EXPECT_EQ(Log(), "ScaleMouseMove(0, 0, 100, 20); MarkerMouseMove(m, 0, 0)");
}

TEST_F(ScalePointing, MeetsMarkersBeforeTheScale) {
  AddMarker(500, u"m");
  Press(502, kFlagRow, kLeftButton, kAltKey);
  Move(700, kTickRow, kLeftButton);
  Move(502, kFlagRow, kLeftButton);
  Release(502, kFlagRow);
  EXPECT_EQ(Log(),
            "MarkerMouseDown(m, 1, 4); MarkerMouseMove(m, 1, 0); MarkerMouseMove(m, 1, 0); "
            "MarkerMouseUp(m, 1, 0); MarkerClick(m)");
  EXPECT_EQ(scroll->CursorTime(), Date());
  scroll->PointerDoublePressed({{502, kFlagRow}, kRightButton, 0});
  Release(502, kFlagRow, kRightButton);
  EXPECT_EQ(Log(), "MarkerMouseDown(m, 2, 0); MarkerMouseUp(m, 2, 0); MarkerDblClick(m)");
}

TEST_F(ScalePointing, ClicksOnlyWhatWasPressed) {
  AddMarker(500, u"m");
  AddMarker(700, u"n");
  Press(502, kFlagRow);
  Release(702, kFlagRow);
  EXPECT_EQ(Log(), "MarkerMouseDown(m, 1, 0); MarkerMouseUp(m, 1, 0)");
  Press(100, kTickRow, kRightButton);
  Release(502, kFlagRow, kRightButton);
  EXPECT_EQ(Log(), "ScaleMouseDown(2, 0, 100, 36); ScaleMouseUp(2, 0, 502, 8)");
  Press(100, kTickRow, kRightButton);
  Release(100, 41, kRightButton);
  EXPECT_EQ(Log(), "ScaleMouseDown(2, 0, 100, 36); ScaleMouseUp(2, 0, 100, 41)");
}

TEST_F(ScalePointing, MeetsNoMarkerThatIsHiddenOrOutOfSight) {
  AddMarker(500, u"m");
  AddMarker(2000, u"beyond");
  scroll->MarkerAdd(Date::Unchecked(1e9), u"no date", u"", true);
  scroll->MarkerAdd(Date::Unchecked(std::nan("")), u"no number", u"", true);
  EXPECT_EQ(scroll->MarkerAt({502, kFlagRow})->Key(), u"m");
  EXPECT_FALSE(scroll->MarkerAt({502, 20}));
  EXPECT_FALSE(scroll->MarkerAt({2, kFlagRow}));
  EXPECT_FALSE(scroll->MarkerAt({998, kFlagRow}));
  scroll->Marker(u"m")->SetVisible(false);
  EXPECT_FALSE(scroll->MarkerAt({502, kFlagRow}));
  scroll->Marker(u"m")->SetVisible(true);
  scroll->Marker(u"m")->SetWorldTime(At(600));
  EXPECT_FALSE(scroll->MarkerAt({502, kFlagRow}));
  EXPECT_TRUE(scroll->MarkerAt({602, kFlagRow}));
  scroll->SetShowMarkers(false);
  EXPECT_FALSE(scroll->MarkerAt({602, kFlagRow}));
}

TEST_F(ScalePointing, IgnoresReleasesWithoutAPress) {
  Release(100, kTickRow);
  scroll->PointerLost();
  EXPECT_EQ(Log(), "");
  Press(100, kTickRow, kRightButton);
  Log();
  Release(100, kTickRow, kLeftButton);
  EXPECT_EQ(Log(), "");
}

TEST_F(ScalePointing, EndsADragWithoutAnotherStepWhenThePointerIsLost) {
  Press(100, kTickRow);
  Move(200, kTickRow, kLeftButton);
  Log();
  scroll->PointerLost();
  EXPECT_EQ(Log(), "ScaleMouseUp(1, 0, 200, 36); Changed 200");
  EXPECT_FALSE(scroll->IsDragging());
  EXPECT_FALSE(host.HasPointer());
  Move(300, kTickRow, kLeftButton);
  Release(300, kTickRow);
  EXPECT_EQ(Log(), "ScaleMouseMove(1, 0, 300, 36)");
}

TEST_F(ScalePointing, LetsGoOfAllButtonsWhenThePointerIsLost) {
  AddMarker(500, u"m");
  Press(502, kFlagRow, kLeftButton);
  Press(502, kFlagRow, kRightButton);
  Log();
  scroll->PointerLost();
  EXPECT_EQ(Log(), "MarkerMouseUp(m, 3, 0)");
}

TEST_F(ScalePointing, PutsTheCursorBackWhenADragIsCancelled) {
  scroll->SetCursorTime(At(700));
  Press(100, kTickRow);
  Move(200, kTickRow, kLeftButton);
  Log();
  EXPECT_TRUE(scroll->CancelDrag());
  EXPECT_EQ(Log(), "Changed 700");
  EXPECT_EQ(scroll->CursorTime(), At(700));
  EXPECT_FALSE(scroll->CancelDrag());
  Move(300, kTickRow, kLeftButton);
  Release(300, kTickRow);
  EXPECT_EQ(Log(), "ScaleMouseMove(1, 0, 300, 36); ScaleMouseUp(1, 0, 300, 36)");
  EXPECT_EQ(scroll->CursorTime(), At(700));
}

TEST_F(ScalePointing, CapturesThePointerFromTheFirstPressToTheLastRelease) {
  Press(100, kTickRow, kLeftButton);
  EXPECT_TRUE(host.HasPointer());
  Press(100, kTickRow, kRightButton);
  Release(100, kTickRow, kLeftButton);
  EXPECT_TRUE(host.HasPointer());
  Release(100, kTickRow, kRightButton);
  EXPECT_FALSE(host.HasPointer());
}

TEST_F(ScalePointing, ShowsWhatThePointerCanDo) {
  AddMarker(500, u"m");
  scroll->SetCursorTime(At(300));
  Move(100, kTickRow);
  EXPECT_EQ(host.ShownPointer(), PointerShape::Standard);
  Move(304, kTickRow);
  EXPECT_EQ(host.ShownPointer(), PointerShape::CanMove);
  Move(502, kFlagRow);
  EXPECT_EQ(host.ShownPointer(), PointerShape::Points);
  Press(304, kTickRow);
  EXPECT_EQ(host.ShownPointer(), PointerShape::Moves);
  Release(304, kTickRow);
  EXPECT_EQ(host.ShownPointer(), PointerShape::CanMove);
  scroll->SetShowCursor(false);
  Move(305, kTickRow);
  EXPECT_EQ(host.ShownPointer(), PointerShape::Standard);
}

TEST_F(ScalePointing, HighlightsTheMarkerUnderThePointer) {
  AddMarker(500, u"m");
  Move(502, kFlagRow);
  EXPECT_TRUE(IsHighlighted(500));
  Move(600, kFlagRow);
  EXPECT_FALSE(IsHighlighted(500));
  Press(502, kFlagRow);
  Move(600, kFlagRow, kLeftButton);
  EXPECT_TRUE(IsHighlighted(500));
  Release(600, kFlagRow);
  EXPECT_FALSE(IsHighlighted(500));
  Move(502, kFlagRow);
  scroll->PointerLeft();
  EXPECT_FALSE(IsHighlighted(500));
}

TEST_F(ScalePointing, HighlightsWhatComesUnderARestingPointer) {
  AddMarker(500, u"m");
  Move(402, kFlagRow);
  EXPECT_FALSE(IsHighlighted(400));
  scroll->SetWorldTimeT0(At(100));
  EXPECT_TRUE(IsHighlighted(400));
}

TEST_F(ScalePointing, AsksForPaintingOnlyWhenTheHighlightBecomesAnother) {
  AddMarker(500, u"m");
  host.ForgetInvalidations();
  Move(502, kFlagRow);
  Move(503, kFlagRow);
  EXPECT_EQ(host.InvalidatedAll(), 1U);
  Move(600, kFlagRow);
  EXPECT_EQ(host.InvalidatedAll(), 2U);
}

}  // namespace
}  // namespace mur::test
