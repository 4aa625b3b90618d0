#include <stdexcept>

#include <gtest/gtest.h>

#include <murtimeline/model/timeline_group.h>
#include <murtimeline/model/timeline_scalar.h>

#include "tests/support/foreign_object.h"
#include "tests/support/print.h"
#include "tests/support/render_fixture.h"

namespace mur::test {
namespace {

// A control on recording companions with a time line attached; the log begins after that.
struct Recorded {
  Recorded() { companions.log.Take(); }

  std::string Take() { return companions.log.Take(); }
  // Adds something without leaving it in the log.
  Ref<IMURTimelineObject> Quietly(MURTimelineObjectType TypeA, StringView KeyA) {
    auto object = c.Add(TypeA, KeyA);
    Take();
    return object;
  }

  RecordingCompanions companions;
  AttachedControl c{companions.All()};
};

TEST(AddedObject, GetsABarStepByStepAndNeitherExtentNorCaptionsNorToolTipOnPurpose) {
  Recorded r;
  r.c->SetAutoObjectCaption(1, etlctObjectType);
  const auto scalar = Make<ForeignObject>();
  scalar->SetTag(u"t");
  r.c.timeline->Insert(scalar, u"F");
  EXPECT_EQ(r.Take(),
            "Canvas.AddGraphic (F, 1); Item.Height F = 40; Item.Move F (0, 0, -, -); "
            "Item.ZOrder F (Int16 1); Item.Caption F (5) = 't'; Item.ForeColor F = 80000012; "
            "Item.BackColor F = 8000000F; Item.ZOrder The Cursor (Int16 1)");
}

TEST(AddedObject, GetsNoBarWhereItsKeyIsTaken) {
  Recorded r;
  r.c.Add(murtlotScalar, u"The Cursor");
  EXPECT_EQ(r.Take(), "Canvas.AddGraphic (The Cursor, 1)");
}

TEST(AddedObject, EndsItsStepsAtTheFirstFailure) {
  Recorded r;
  r.companions.log.failing = "Item.Caption";
  EXPECT_TRUE(r.c.Add(murtlotScalar, u"S"));
  EXPECT_EQ(r.Take(),
            "Canvas.AddGraphic (S, 1); Item.Height S = 40; Item.Move S (0, 0, -, -); "
            "Item.ZOrder S (Int16 1); Item.Caption S (5) = ''");
}

TEST(AddedObject, GoesOnAfterAFailingPlacement) {
  Recorded r;
  r.companions.log.failing = "Item.Move";
  r.c.Add(murtlotScalar, u"S");
  EXPECT_EQ(r.Take(),
            "Canvas.AddGraphic (S, 1); Item.Height S = 40; Item.Move S (0, 0, -, -); "
            "Item.Caption S (5) = ''; Item.ForeColor S = 80000012; Item.BackColor S = 8000000F; "
            "Item.ZOrder The Cursor (Int16 1)");
}

TEST(AddedObject, BringsItsChildrensBarsAlong) {
  Recorded r;
  const auto group = Make<CMURTimelineGroup>();
  const auto child = r.Quietly(murtlotScalar, u"S");
  group->Add(child, u"S");
  r.Take();
  r.c.timeline->Insert(group, u"G");
  EXPECT_EQ(r.Take(),
            "Canvas.AddGraphic (G, 1); Item.Height G = 40; Item.Move G (0, 0, -, -); "
            "Item.Move S (0, 43, -, -); Item.ZOrder S (Int16 1); Item.ZOrder G (Int16 1); "
            "Item.Caption G (5) = ''; Item.ForeColor G = 80000012; Item.BackColor G = 8000000F; "
            "Item.ZOrder The Cursor (Int16 1)");
}

TEST(RemovedObject, TakesTheItemOfItsKeyAlong) {
  Recorded r;
  r.Quietly(murtlotScalar, u"S");
  r.c.timeline->Remove(u"S");
  EXPECT_EQ(r.Take(), "Canvas.RemoveGraphic ('S')");
}

TEST(RemovedObject, ByPositionTakesTheCanvassItemThereOnPurpose) {
  const AttachedControl c;
  c.Add(murtlotScalar, u"S");
  c.timeline->Remove(1);
  EXPECT_FALSE(c.Item(u"The Cursor"));
  EXPECT_TRUE(c.Item(u"S"));
}

TEST(RemovedObject, WithoutAnItemIsPassedOver) {
  const AttachedControl c;
  c.Add(murtlotScalar, u"S");
  c.Canvas().RemoveGraphic(u"S");
  c.timeline->Remove(u"S");
  EXPECT_EQ(c.Canvas().GraphicCount(), 1u);
}

TEST(RemovedObject, LeavesTheSelectionAlone) {
  const AttachedControl c;
  c.Add(murtlotScalar, u"S");
  c.timeline->Remove(u"S");
  EXPECT_EQ(c->SelectedKey(), Variant());
}

TEST(AdoptedObject, IsPlacedAndRefreshesItsCaptionsAndItsParents) {
  Recorded r;
  const auto group = r.Quietly(murtlotGroup, u"G");
  const auto scalar = r.Quietly(murtlotScalar, u"S");
  r.c->SetAutoObjectCaption(1, etlctParent);
  r.c->SetAutoObjectCaption(2, etlctNChildren);
  group->Add(scalar, u"S");
  EXPECT_EQ(r.Take(),
            "Item.ToolTipText S = ''; Item.Move S (0, 43, -, -); Item.ZOrder S (Int16 1); "
            "Item.Caption S (1) = 'G'; Item.Caption S (2) = '0 children'; "
            "Item.Caption G (1) = '## No Parent ##'; Item.Caption G (2) = '1 children'");
}

TEST(AdoptedObject, WithoutABarStillRefreshesItsParentsCount) {
  Recorded r;
  const auto group = r.Quietly(murtlotGroup, u"G");
  r.c->SetAutoObjectCaption(2, etlctNChildren);
  group->Add(Make<CMURTimelineScalar>(), u"S");
  EXPECT_EQ(r.Take(), "Item.Caption G (2) = '1 children'");
  group->Item(1)->SetParent(nullptr);
}

TEST(OrphanedObject, RefreshesCaptionsButKeepsItsRowOnPurpose) {
  Recorded r;
  const auto group = r.Quietly(murtlotGroup, u"G");
  group->Add(r.Quietly(murtlotScalar, u"S"), u"S");
  r.c->SetAutoObjectCaption(2, etlctNChildren);
  r.Take();
  const auto scalar = group->Remove(u"S");
  EXPECT_EQ(r.Take(), "Item.Caption S (2) = '0 children'; Item.Caption G (2) = '0 children'");
  EXPECT_EQ(r.c.TopOf(u"S"), 43.0f);
}

TEST(ObjectProperty, DurationSpansTheBarAndWritesCaptionsAndToolTip) {
  Recorded r;
  const auto scalar = r.Quietly(murtlotScalar, u"S");
  scalar->SetWorldTimeT0(kNoon);
  r.c->SetAutoObjectCaption(4, etlctObjectType);
  r.Take();
  scalar->SetDuration(50);
  EXPECT_EQ(r.Take(),
            "Item.Move S (0, -, 50, -); Item.Caption S (4) = 'ObjectType: 1'; Item.ToolTipText S = ''");
}

TEST(ObjectProperty, WorldTimeT0OfAMediaObjectMovesItsBar) {
  Recorded r;
  const auto media = r.Quietly(murtlotMedia, u"M");
  media->SetWorldTimeT0(At(20));
  EXPECT_EQ(r.Take(), "Item.Move M (20, -, -, -); Item.ToolTipText M = ''");
}

TEST(ObjectProperty, WorldtimeT0OfAScalarOrGroupMovesNoBarOnPurpose) {
  Recorded r;
  const auto scalar = r.Quietly(murtlotScalar, u"S"), group = r.Quietly(murtlotGroup, u"G");
  scalar->SetWorldTimeT0(At(20));
  group->SetWorldTimeT0(At(20));
  EXPECT_EQ(r.Take(), "Item.ToolTipText S = ''; Item.ToolTipText G = ''");
}

TEST(ObjectProperty, OffsetAndTagRefreshCaptions) {
  Recorded r;
  const auto scalar = r.Quietly(murtlotScalar, u"S");
  r.c->SetAutoObjectCaption(1, etlctTag);
  scalar->SetOffset(3);
  scalar->SetTag(u"t");
  EXPECT_EQ(r.Take(),
            "Item.Caption S (1) = ''; Item.ToolTipText S = ''; Item.Caption S (1) = 't'; "
            "Item.ToolTipText S = 't'");
}

TEST(ObjectProperty, GroupTypeRecolours) {
  Recorded r;
  const auto group = r.Quietly(murtlotGroup, u"G");
  group->SetGroupType(murtlotMedia);
  EXPECT_EQ(r.Take(), "Item.ForeColor G = 80000012; Item.BackColor G = 8000000F; Item.ToolTipText G = ''");
}

TEST(ObjectProperty, GroupTypeEndsAtAFailingColour) {
  Recorded r;
  const auto group = r.Quietly(murtlotGroup, u"G");
  r.companions.log.failing = "Item.ForeColor";
  group->SetGroupType(murtlotMedia);
  EXPECT_EQ(r.Take(), "Item.ForeColor G = 80000012");
}

TEST(ObjectProperty, OfAnyOtherNameWritesTheToolTipAlone) {
  Recorded r;
  const auto scalar = r.Quietly(murtlotScalar, u"S");
  r.c->SetAutoObjectCaption(1, etlctTag);
  scalar->SetLockedToParent(true);
  for (const StringView name : {u"duration", u"WorldtimeT0", u"offset", u"TAG", u""})
    r.c.timeline->ObjectPropertyChanged(scalar, name, Variant());
  EXPECT_EQ(r.Take(),
            "Item.ToolTipText S = ''; Item.ToolTipText S = ''; Item.ToolTipText S = ''; "
            "Item.ToolTipText S = ''; Item.ToolTipText S = ''; Item.ToolTipText S = ''");
}

TEST(ObjectProperty, OfAnObjectWithoutABarDoesNothing) {
  Recorded r;
  const auto scalar = r.Quietly(murtlotScalar, u"S");
  scalar->SetKey(u"other");
  scalar->SetDuration(5);
  EXPECT_EQ(r.Take(), "");
}

TEST(ObjectProperty, IsReadFromTheObjectAndNotFromTheReport) {
  Recorded r;
  const auto scalar = r.Quietly(murtlotScalar, u"S");
  r.c.timeline->ObjectPropertyChanged(scalar, u"Duration", Variant(77.0));
  EXPECT_EQ(r.Take(), "Item.Move S (0, -, 0, -); Item.ToolTipText S = ''");
}

TEST(TimeLineProperty, DurationAndWorldTimeT0RepaintAndOthersDoNot) {
  Recorded r;
  Counter raised(r.c->CursorTimeChange);
  r.c.timeline->SetDuration(5);
  r.c.timeline->SetWorldTimeT0(At(1));
  EXPECT_EQ(raised.Take(), 2);
  r.Take();
  r.c.timeline->SetTag(u"t");
  r.c.timeline->SetAutoID(5);
  r.c.timeline->AddTrackKey(u"k");
  EXPECT_EQ(r.Take(), "");
}

TEST(TimeLineProperty, DoesNotMoveTheVisibleRangeOnPurpose) {
  const AttachedControl c;
  c.timeline->SetDuration(5);
  c.timeline->SetWorldTimeT0(At(1));
  EXPECT_EQ(c->Duration(), 1000);
  EXPECT_EQ(c->WorldTimeT0(), kNoon);
}

TEST(ClearedTimeLine, LeavesTheCursorItemAloneAndNoMarkers) {
  AttachedControl c;
  for (const auto* key : {u"S", u"T", u"U"}) c.Add(murtlotScalar, key);
  c.Scroller().MarkerAdd(kNoon, u"m", u"", true);
  c.clock.Set(At(9));
  c.timeline->Clear();
  EXPECT_EQ(c.Canvas().GraphicCount(), 1u);
  ASSERT_TRUE(c.Item(u"The Cursor"));
  EXPECT_EQ(c.Item(u"The Cursor")->Left(), 6.5f);
  EXPECT_EQ(c.Scroller().MarkersCount(), 0);
  EXPECT_EQ(c->CursorTime(), At(9));
}

TEST(ClearedTimeLine, PlacesTheNewCursorItemEvenAtTheSameMoment) {
  const AttachedControl c;
  Counter raised(c->CursorTimeChange);
  c.timeline->Clear();
  EXPECT_EQ(c.Item(u"The Cursor")->Width(), 5.0f);
  EXPECT_EQ(raised.Take(), 1);
}

TEST(ClearedTimeLine, EmptiesTheCanvasFromTheFrontThenMarkersThenCursor) {
  Recorded r;
  r.Quietly(murtlotScalar, u"S");
  r.c.timeline->Clear();
  EXPECT_EQ(r.Take(),
            "Canvas.RemoveGraphic (1); Canvas.RemoveGraphic (1); Scroller.MarkersClear; "
            "Canvas.ScaleMode = 3; Canvas.AddGraphic (The Cursor, 2); "
            "Scroller.CursorTime = #2000-01-01 12:00:00#; Item.Move The Cursor (-2.5, 0, 5, 200)");
}

TEST(ClearedTimeLine, EndsAtAFailureWhichReachesTheTimeLineAndNoFurther) {
  Recorded r;
  r.companions.log.failing = "Scroller.MarkersClear";
  EXPECT_NO_THROW(r.c.timeline->Clear());
  EXPECT_EQ(r.Take(), "Canvas.RemoveGraphic (1); Scroller.MarkersClear");
  EXPECT_THROW(r.c.timeline->Cleared.Raise(), std::runtime_error);
}

TEST(Report, OfNoObjectDoesNothing) {
  Recorded r;
  const auto group = r.Quietly(murtlotGroup, u"G");
  r.c->SetAutoObjectCaption(1, etlctTag);
  r.c.timeline->ObjectAdopted(nullptr, nullptr);
  r.c.timeline->ObjectAdopted(nullptr, group);
  r.c.timeline->ObjectPropertyChanged(nullptr, u"Tag", Variant());
  EXPECT_EQ(r.Take(), "Item.Move G (0, 0, -, -); Item.ZOrder G (Int16 1); Item.Caption G (1) = ''");
  r.c.timeline->ObjectOrphaned(group, nullptr);
  EXPECT_EQ(r.Take(), "Item.Caption G (1) = ''");
}

TEST(TimeScaleEvents, AreRaisedOnWithTheirArguments) {
  const BareControl c;
  Counter clicks(c->TimeScaleClick), doubleClicks(c->TimeScaleDblClick);
  const auto pressed = c->TimeScaleMouseDown.Connect(
      [](std::int16_t& button, std::int16_t& shift, float& x, float& y) { button = shift = 3, x = y = 7; });
  std::int16_t button = 1, shift = 0;
  float x = 1, y = 2;
  c.Scroller().ScaleClick.Raise();
  c.Scroller().ScaleDblClick.Raise();
  c.Scroller().ScaleMouseDown.Raise(button, shift, x, y);
  EXPECT_EQ(clicks.Take(), 1);
  EXPECT_EQ(doubleClicks.Take(), 1);
  EXPECT_EQ(button, 3);
  EXPECT_EQ(shift, 3);
  EXPECT_EQ(x, 7.0f);
  EXPECT_EQ(y, 7.0f);
}

TEST(TimeScaleEvents, OfThePointerReachTheEventOfTheirName) {
  const BareControl c;
  Counter moves(c->TimeScaleMouseMove), releases(c->TimeScaleMouseUp), presses(c->TimeScaleMouseDown);
  std::int16_t button = 1, shift = 0;
  float x = 1, y = 2;
  c.Scroller().ScaleMouseMove.Raise(button, shift, x, y);
  c.Scroller().ScaleMouseMove.Raise(button, shift, x, y);
  c.Scroller().ScaleMouseUp.Raise(button, shift, x, y);
  EXPECT_EQ(moves.Take(), 2);
  EXPECT_EQ(releases.Take(), 1);
  EXPECT_EQ(presses.Take(), 0);
}

TEST(MarkerEvents, AreRaisedOnWithKeyOrPosition) {
  const BareControl c;
  std::string heard;
  std::vector<Connection> connections;
  const auto note = [&](const char* name) {
    return [&heard, name](const Variant& key, auto... rest) {
      heard += std::string(name) + ' ' + ValueText(key);
      ((heard += ' ' + std::to_string(rest)), ...);
      heard += "; ";
    };
  };
  connections.push_back(c->MarkerClick.Connect(note("click")));
  connections.push_back(c->MarkerDblClick.Connect(note("double")));
  connections.push_back(c->MarkerMouseDown.Connect(note("down")));
  connections.push_back(c->MarkerMouseMove.Connect(note("move")));
  connections.push_back(c->MarkerMouseUp.Connect(note("up")));
  c.Scroller().MarkerClick.Raise(u"m");
  c.Scroller().MarkerDblClick.Raise(2);
  c.Scroller().MarkerMouseDown.Raise(u"m", 1, 2);
  c.Scroller().MarkerMouseMove.Raise(u"m", 0, 4);
  c.Scroller().MarkerMouseUp.Raise(u"m", 2, 0);
  EXPECT_EQ(heard, "click 'm'; double 2; down 'm' 1 2; move 'm' 0 4; up 'm' 2 0; ");
}

TEST(TimeScaleEvents, EndFailuresOfListenersAndOfTheTimeScaleHere) {
  RecordingCompanions recording;
  const BareControl c(recording.All());
  const auto thrower = c->TimeScaleClick.Connect([] { throw 42; });
  EXPECT_NO_THROW(c.Scroller().ScaleClick.Raise());
  recording.log.failing = "Scroller.CursorTime";
  EXPECT_NO_THROW(c.Scroller().CursorTimeChanged.Raise());
}

TEST(TimeScaleEvents, HaveOneMoreThatIsIgnored) {
  Recorded r;
  r.companions.scroller->VisibleRangeChanged.Raise();
  EXPECT_EQ(r.Take(), "");
}

}  // namespace
}  // namespace mur::test
