#include <functional>

#include <gtest/gtest.h>

#include "tests/support/foreign_object.h"
#include "tests/support/print.h"
#include "tests/support/render_fixture.h"

namespace mur::test {
namespace {

// Every public member, with what reaches the model's events.
void UseEverything(AttachedControl& ControlA) {
  MURTimelineRender& control = *ControlA.control;
  control.SetWorldTimeT0(At(1));
  control.SetDuration(5);
  control.SetTZero(At(2));
  control.SetTimesOffsetMode(1);
  control.TimesOffsetMode();
  control.SetCursorTime(At(3));
  control.SetFormatString(u"");
  control.SetFormatStyle(1);
  control.SetDurationFormatString(u"0");
  control.SetDurationFormatStyle(1);
  control.SetTimeScaleFormatString(u"");
  control.SetTimeScaleFormatStyle(1);
  control.SetTimeScaleBackColor(1);
  control.SetTimeScaleForeColor(1);
  control.SetTimeScaleMarkerHighlightColor(1);
  control.SetTimeScaleMarkerHighlightWidth(2);
  control.SetTimeScaleHeight(control.TimeScaleHeight() + 1);
  control.SetBarHeight(control.BarHeight() + 1);
  control.SetBarSeparation(control.BarSeparation() + 1);
  control.SetTrackSeparation(control.TrackSeparation() + 1);
  control.TrackTop(1);
  control.AlignTracks();
  control.ShowMembers();
  control.SetAutoObjectCaption(1, etlctDuration);
  control.SetAutoObjectTooltipText(u"$$Duration$$");
  control.SetAutoHighlightObjects(!control.AutoHighlightObjects());
  control.SetAllowObjectDragging(!control.AllowObjectDragging());
  control.SetOLEDropMode(1);
  control.OLEDropMode();
  control.SetShowToolTips(true);
  control.ShowToolTips();
  control.XToWorldTime(1);
  control.Resize();
}

void UseTheTimeLine(AttachedControl& ControlA) {
  const auto group = ControlA.Add(murtlotGroup, u"new group", true);
  const auto media = ControlA.AddBelow(group, murtlotMedia, u"new media");
  media->SetWorldTimeT0(At(1));
  media->SetDuration(5);
  media->SetTag(u"t");
  group->SetGroupType(murtlotMedia);
  group->Remove(u"new media");
  ControlA.timeline->SetDuration(ControlA.timeline->Duration() + 1);
  ControlA.timeline->Remove(u"new media");
  ControlA.timeline->Remove(u"new group");
  ControlA.control->SetTimeline(ControlA.timeline.Get());
}

const char* const kCalls[] = {
    "*",
    "Canvas.BackColor",
    "Canvas.ScaleMode",
    "Canvas.DrawingWidth",
    "Canvas.DrawingHeight",
    "Canvas.GraphicCount",
    "Canvas.Graphic",
    "Canvas.AddGraphic",
    "Canvas.RemoveGraphic",
    "Canvas.OLEDropMode",
    "Item.Height",
    "Item.Move",
    "Item.ZOrder",
    "Item.Caption",
    "Item.ToolTipText",
    "Item.BackColor",
    "Item.ForeColor",
    "Item.DragFlags",
    "Mapper.SetTimeRange",
    "Mapper.SetPixelRange",
    "Mapper.SecondsToX",
    "Mapper.XToSeconds",
    "TimeText.FormatSeconds",
    "Scroller.BorderStyle",
    "Scroller.CursorTime",
    "Scroller.Duration",
    "Scroller.MarkersClear",
};

TEST(FailingCompanion, LetsNothingOutOfTheControlWhicheverCallFails) {
  for (const char* call : kCalls) {
    RecordingCompanions companions;
    AttachedControl c(companions.All());
    c.Add(murtlotGroup, u"G", true);
    companions.log.failing = call;
    EXPECT_NO_THROW(UseEverything(c)) << call;
    EXPECT_NO_THROW(UseTheTimeLine(c)) << call;
  }
}

TEST(FailingCompanion, LetsAControlBeMade) {
  for (const char* call : kCalls) {
    RecordingCompanions companions;
    companions.log.failing = call;
    EXPECT_NO_THROW(AttachedControl{companions.All()}) << call;
  }
}

TEST(FailingCompanion, LeavesEveryMemberItsNewValue) {
  RecordingCompanions companions;
  AttachedControl c(companions.All());
  companions.log.failing = "*";
  UseEverything(c);
  EXPECT_EQ(c->WorldTimeT0(), At(1));
  EXPECT_EQ(c->Duration(), 5);
  EXPECT_EQ(c->TZero(), At(2));
  EXPECT_EQ(c->CursorTime(), At(3));
  EXPECT_EQ(c->DurationFormatString(), u"0");
  EXPECT_EQ(c->BarHeight(), 41.0f);
  EXPECT_EQ(c->TimeScaleHeight(), 601.0f);
  EXPECT_TRUE(c->AllowObjectDragging());
}

TEST(FailingCompanion, LeavesTheModelUntouched) {
  RecordingCompanions companions;
  AttachedControl c(companions.All());
  companions.log.failing = "*";
  const auto group = c.Add(murtlotGroup, u"G");
  ASSERT_TRUE(group);
  c.AddBelow(group, murtlotScalar, u"S");
  EXPECT_EQ(group->Count(), 1);
  EXPECT_EQ(c.timeline->Count(), 2);
}

TEST(FailingCompanion, ReadsAsTheEmptyValue) {
  RecordingCompanions companions;
  const AttachedControl c(companions.All());
  c->SetTimesOffsetMode(3);
  c->SetOLEDropMode(3);
  companions.log.failing = "*";
  EXPECT_EQ(c->TimesOffsetMode(), 0);
  EXPECT_EQ(c->OLEDropMode(), 0);
  EXPECT_FALSE(c->ShowToolTips());
  EXPECT_EQ(c->XToWorldTime(1), Date());
  EXPECT_EQ(c->TrackTop(1), 0.0f);
}

TEST(FailingRepaint, StillMovesTheOtherBars) {
  RecordingCompanions companions;
  const AttachedControl c(companions.All());
  const auto hostile = Make<HostileObject>();
  c.timeline->Insert(hostile, u"H");
  c.Add(murtlotScalar, u"S")->SetWorldTimeT0(At(10));
  hostile->failing = "WorldTimeT0";
  c->SetDuration(1000);
  EXPECT_EQ(c.Item(u"S")->Left(), 10.0f);
}

TEST(FailingPlacement, EndsForTheObjectThatItBefellAndThoseBelowItAlone) {
  RecordingCompanions companions;
  const AttachedControl c(companions.All());
  const auto group = c.Add(murtlotGroup, u"G");
  const auto hostile = Make<HostileObject>();
  c.timeline->Insert(hostile, u"H");
  group->Add(hostile, u"H");
  c.AddBelow(group, murtlotScalar, u"S");
  c.timeline->AddTrackKey(u"G");
  companions.log.Take();
  hostile->failing = "Count";
  c->AlignTracks();
  EXPECT_EQ(companions.log.Take(),
            "Item.Move G (0, 0, -, -); Item.Move H (0, 43, -, -); Item.Move S (0, 43, -, -); "
            "Item.ZOrder S (Int16 1); Item.ZOrder G (Int16 1)");
}

TEST(FailingPlacement, DoesNotSendAnObjectToTheBackWhoseChildrenCannotBeMet) {
  RecordingCompanions companions;
  const AttachedControl c(companions.All());
  const auto hostile = Make<HostileObject>();
  c.timeline->Insert(hostile, u"H");
  c.timeline->AddTrackKey(u"H");
  companions.log.Take();
  hostile->count = 3;
  hostile->failing = "Item";
  c->AlignTracks();
  EXPECT_EQ(companions.log.Take(), "Item.Move H (0, 0, -, -)");
}

}  // namespace
}  // namespace mur::test
