#include <algorithm>
#include <cmath>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include <murtimeline/render/companions/scroll_control.h>
#include <murtimeline/render/port/recording_surface.h>
#include <murtimeline/render/port/scripted_host.h>

namespace mur::test {
namespace {

constexpr double kNoonDays = 36526.5;
constexpr float kFlagRow = 8;
constexpr float kTickRow = 36;

// A scale of 1000 pixels for 1000 seconds from noon, and all that it tells in order: cursor times as seconds
// after noon.
class ScalePointing : public ::testing::Test {
 protected:
  ScalePointing() {
    scroll->SetWorldTimeT0(Date::Unchecked(kNoonDays));
    scroll->SetDuration(1000);
    const auto plain = [this](const char* name) { return [this, name] { Note(name); }; };
    const auto pointer = [this](const char* name) {
      return [this, name](std::int16_t button, std::int16_t shift, float x, float y) {
        Note(std::string(name) + '(' + Number(button) + ", " + Number(shift) + ", " + Number(x) + ", " +
             Number(y) + ')');
      };
    };
    const auto marker = [this](const char* name) {
      return [this, name](const Variant& key) { Note(name + ('(' + ToUtf8(*key.As<String>()) + ')')); };
    };
    const auto markerPointer = [this](const char* name) {
      return [this, name](const Variant& key, std::int16_t button, std::int16_t shift) {
        Note(name + ('(' + ToUtf8(*key.As<String>()) + ", " + Number(button) + ", " + Number(shift) + ')'));
      };
    };
    const auto cursor = [this](const char* name) {
      return [this, name] { Note(name + (' ' + Number(SecondsOf(scroll->CursorTime())))); };
    };
    Hear(scroll->ScaleMouseDown, pointer("ScaleMouseDown"));
    Hear(scroll->ScaleMouseMove, pointer("ScaleMouseMove"));
    Hear(scroll->ScaleMouseUp, pointer("ScaleMouseUp"));
    Hear(scroll->ScaleClick, plain("ScaleClick"));
    Hear(scroll->ScaleDblClick, plain("ScaleDblClick"));
    Hear(scroll->MarkerMouseDown, markerPointer("MarkerMouseDown"));
    Hear(scroll->MarkerMouseMove, markerPointer("MarkerMouseMove"));
    Hear(scroll->MarkerMouseUp, markerPointer("MarkerMouseUp"));
    Hear(scroll->MarkerClick, marker("MarkerClick"));
    Hear(scroll->MarkerDblClick, marker("MarkerDblClick"));
    Hear(scroll->CursorTimeChanging, cursor("Changing"));
    Hear(scroll->CursorTimeChanged, cursor("Changed"));
  }

  static std::string Number(double ValueA) {
    const auto whole = static_cast<long>(std::lround(ValueA));
    return std::to_string(whole);
  }
  static double SecondsOf(Date TimeA) { return (TimeA.Days() - kNoonDays) * kSecondsPerDay; }
  static Date At(double SecondsA) { return Date::Unchecked(kNoonDays + SecondsA / kSecondsPerDay); }

  template <class... Arguments, class Handler>
  void Hear(Event<Arguments...>& EventA, Handler HandlerA) {
    connections.push_back(EventA.Connect(HandlerA));
  }
  void Note(const std::string& TextA) { log += log.empty() ? TextA : "; " + TextA; }
  std::string Log() { return std::exchange(log, {}); }

  void Press(float XA, float YA, std::int16_t ButtonA = kLeftButton, std::int16_t ShiftA = 0) {
    scroll->PointerPressed({{XA, YA}, ButtonA, ShiftA});
  }
  void Move(float XA, float YA, std::int16_t ButtonsA = 0) { scroll->PointerMoved({{XA, YA}, ButtonsA, 0}); }
  void Release(float XA, float YA, std::int16_t ButtonA = kLeftButton) {
    scroll->PointerReleased({{XA, YA}, ButtonA, 0});
  }
  void AddMarker(double SecondsA, const char16_t* KeyA) { scroll->MarkerAdd(At(SecondsA), KeyA, u"", true); }
  bool IsHighlighted(float XA) {
    RecordingSurface surface;
    scroll->Paint(surface, scroll->Area());
    const std::string pole = "fill " + Number(XA) + ",0 1x40 #0a246a";
    const auto lines = surface.LinesOf("fill");
    return std::find(lines.begin(), lines.end(), pole) != lines.end();
  }

  ScriptedChild host = [] {
    ScriptedChild child;
    child.Move(0, 0, 15000, 600);
    return child;
  }();
  Ref<MURTimelineScroll> scroll = Make<MURTimelineScroll>(host);
  std::string log;
  std::vector<Connection> connections;
};

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
