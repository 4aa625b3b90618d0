#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "tests/render/companions/scale_pointing.h"

namespace mur::test {
namespace {

TEST_F(ScalePointing, TellsAMarkerThatIsRemovedWhilePressedOneLastRelease) {
  AddMarker(500, u"m");
  Press(502, kFlagRow, kLeftButton);
  Press(502, kFlagRow, kRightButton);
  Log();
  scroll->MarkerRemove(u"m");
  AddMarker(500, u"m");  // another one
  Move(502, kFlagRow, kLeftButton | kRightButton);
  EXPECT_EQ(Log(), "MarkerMouseUp(m, 3, 0)");
  Move(503, kFlagRow, kLeftButton | kRightButton);
  Release(503, kFlagRow, kLeftButton);
  Release(503, kFlagRow, kRightButton);
  EXPECT_EQ(Log(), "");
  Move(503, kFlagRow);
  EXPECT_EQ(Log(), "MarkerMouseMove(m, 0, 0)");
}

TEST_F(ScalePointing, TellsTheReleaseOfAMarkerThatIsGoneOnce) {
  AddMarker(500, u"m");
  Press(502, kFlagRow);
  scroll->MarkersClear();
  Log();
  Release(502, kFlagRow);
  EXPECT_EQ(Log(), "MarkerMouseUp(m, 1, 0)");
  AddMarker(500, u"m");
  Press(502, kFlagRow);
  scroll->MarkersClear();
  Log();
  scroll->PointerLost();
  EXPECT_EQ(Log(), "MarkerMouseUp(m, 1, 0)");
}

TEST_F(ScalePointing, FollowsAMarkerThatIsHiddenOrMovedWhilePressedWithoutAClick) {
  AddMarker(500, u"m");
  Press(502, kFlagRow);
  scroll->Marker(u"m")->SetVisible(false);
  Move(503, kFlagRow, kLeftButton);
  Release(503, kFlagRow);
  EXPECT_EQ(Log(), "MarkerMouseDown(m, 1, 0); MarkerMouseMove(m, 1, 0); MarkerMouseUp(m, 1, 0)");
}

TEST_F(ScalePointing, TakesMarkersThatAreClearedInsideTheirEvents) {
  AddMarker(500, u"m");
  Hear(scroll->MarkerMouseDown,
       [this](const Variant&, std::int16_t, std::int16_t) { scroll->MarkersClear(); });
  Press(502, kFlagRow);
  Release(502, kFlagRow);
  EXPECT_EQ(Log(), "MarkerMouseDown(m, 1, 0); MarkerMouseUp(m, 1, 0)");
  AddMarker(500, u"m");
  Hear(scroll->MarkerMouseMove,
       [this](const Variant&, std::int16_t, std::int16_t) { scroll->MarkersClear(); });
  Move(502, kFlagRow);
  EXPECT_EQ(Log(), "MarkerMouseMove(m, 0, 0)");
  EXPECT_FALSE(IsHighlighted(500));
}

TEST_F(ScalePointing, LetsListenersLoseThePointer) {
  Hear(scroll->ScaleMouseDown,
       [this](std::int16_t&, std::int16_t&, float&, float&) { scroll->PointerLost(); });
  Press(100, kTickRow);
  EXPECT_EQ(Log(), "ScaleMouseDown(1, 0, 100, 36); ScaleMouseUp(1, 0, 100, 36)");
  EXPECT_FALSE(scroll->IsDragging());
  EXPECT_EQ(scroll->CursorTime(), Date());
}

TEST_F(ScalePointing, LetsListenersLoseThePointerWhenToldOfTheCursor) {
  Hear(scroll->CursorTimeChanging, [this] { scroll->PointerLost(); });
  Press(100, kTickRow);
  EXPECT_EQ(Log(), "ScaleMouseDown(1, 0, 100, 36); Changing 100; ScaleMouseUp(1, 0, 100, 36); Changed 100");
  EXPECT_FALSE(scroll->IsDragging());
}

TEST_F(ScalePointing, LetsListenersCancelTheDragThatTheyAreToldOf) {
  scroll->SetCursorTime(At(700));
  Hear(scroll->CursorTimeChanging, [this] { scroll->CancelDrag(); });
  Press(100, kTickRow);
  EXPECT_EQ(Log(), "ScaleMouseDown(1, 0, 100, 36); Changing 100; Changed 700");
  Release(100, kTickRow);
  EXPECT_EQ(Log(), "ScaleMouseUp(1, 0, 100, 36)");
}

TEST_F(ScalePointing, LivesThroughListenersThatDropIt) {
  for (int event = 0; event < 6; ++event) {
    ScriptedChild own;
    own.Move(0, 0, 15000, 600);
    auto mine = Make<MURTimelineScroll>(own);
    mine->SetWorldTimeT0(Date::Unchecked(kNoonDays));
    mine->SetDuration(1000);
    mine->MarkerAdd(At(500), u"m", u"", true);
    std::vector<Connection> dropping;
    bool dropped = false;
    const auto drop = [&](auto&&...) { dropped = true, mine = {}; };
    switch (event) {
      case 0:
        dropping.push_back(mine->ScaleMouseDown.Connect(drop));
        break;
      case 1:
        dropping.push_back(mine->CursorTimeChanging.Connect(drop));
        break;
      case 2:
        dropping.push_back(mine->ScaleMouseUp.Connect(drop));
        break;
      case 3:
        dropping.push_back(mine->CursorTimeChanged.Connect(drop));
        break;
      case 4:
        dropping.push_back(mine->MarkerMouseDown.Connect(drop));
        break;
      default:
        dropping.push_back(mine->MarkerMouseMove.Connect(drop));
        break;
    }
    if (mine) mine->PointerPressed({{100, kTickRow}, kLeftButton, 0});
    if (mine) mine->PointerReleased({{100, kTickRow}, kLeftButton, 0});
    if (mine) mine->PointerMoved({{502, kFlagRow}, 0, 0});
    if (mine) mine->PointerPressed({{502, kFlagRow}, kLeftButton, 0});
    EXPECT_TRUE(dropped) << event;
  }
}

TEST_F(ScalePointing, LeavesNoDragBehindWhenListenersThrow) {
  Hear(scroll->ScaleMouseUp,
       [](std::int16_t&, std::int16_t&, float&, float&) { throw std::runtime_error("host"); });
  Press(100, kTickRow);
  EXPECT_THROW(Release(200, kTickRow), std::runtime_error);
  EXPECT_FALSE(scroll->IsDragging());
  EXPECT_FALSE(host.HasPointer());
  Log();
  Move(300, kTickRow, kLeftButton);
  EXPECT_EQ(Log(), "ScaleMouseMove(1, 0, 300, 36)");
}

TEST_F(ScalePointing, MovesNoCursorWhereTheScaleShowsNoTimes) {
  scroll->SetCursorTime(At(700));
  for (const double duration : {0.0, -5.0, std::nan("")}) {
    scroll->SetDuration(duration);
    Press(100, kTickRow);
    Release(100, kTickRow);
    EXPECT_EQ(Log(), "ScaleMouseDown(1, 0, 100, 36); ScaleMouseUp(1, 0, 100, 36); Changed 700; ScaleClick")
        << duration;
  }
  scroll->SetDuration(1e15);
  Press(999, kTickRow);
  EXPECT_EQ(scroll->CursorTime(), At(700));
}

TEST_F(ScalePointing, TellsTheCaptionAndTagOfAMarkerWhereThePointerRests) {
  host.SetToolTipText(u"scale");
  AddMarker(500, u"m");
  EXPECT_EQ(ToUtf8(scroll->ToolTipAt({502, kFlagRow})), "scale");
  scroll->Marker(u"m")->SetTag(u"tag");
  EXPECT_EQ(ToUtf8(scroll->ToolTipAt({502, kFlagRow})), "tag");
  scroll->Marker(u"m")->SetCaption(u"caption");
  EXPECT_EQ(ToUtf8(scroll->ToolTipAt({502, kFlagRow})), "caption\ntag");
  scroll->Marker(u"m")->SetTag(u"caption");
  EXPECT_EQ(ToUtf8(scroll->ToolTipAt({502, kFlagRow})), "caption");
  EXPECT_EQ(ToUtf8(scroll->ToolTipAt({502, kTickRow})), "scale");
  EXPECT_EQ(scroll->ToolTipAreaAt({502, kFlagRow}).left, 500);
  EXPECT_TRUE(scroll->ToolTipAreaAt({502, kTickRow}).IsEmpty());
}

}  // namespace
}  // namespace mur::test
