#include <gtest/gtest.h>

#include "tests/support/print.h"
#include "tests/support/render_fixture.h"

namespace mur::test {
namespace {

// A control on recording companions with a time line attached; the log begins after that.
struct Recorded {
  explicit Recorded() { companions.log.Take(); }

  std::string Take() { return companions.log.Take(); }

  RecordingCompanions companions;
  AttachedControl c{companions.All()};
  Counter<Date> raised{c->CursorTimeChange};
};

// What a full repaint of an empty time line does.
const std::string kRepaint =
    "Mapper.SetTimeRange(3155889600, 3155890600); Mapper.SetPixelRange(0, 1000); "
    "Scroller.CursorTime = #2000-01-01 12:00:00#; Item.Move The Cursor (-2.5, 0, 5, 200)";

TEST(WorldTimeT0, IsPassedOnAndRepaintsEvenWhenUnchanged) {
  Recorded r;
  r.c->SetWorldTimeT0(kNoon);
  EXPECT_EQ(r.Take(), "Scroller.WorldTimeT0 = #2000-01-01 12:00:00#; " + kRepaint);
  EXPECT_EQ(r.raised.Take(), 1);
}

TEST(Duration, IsPassedOnAndRepaintsEvenWhenUnchanged) {
  Recorded r;
  r.c->SetDuration(1000);
  EXPECT_EQ(r.Take(), "Scroller.Duration = 1000; " + kRepaint);
  EXPECT_EQ(r.raised.Take(), 1);
}

TEST(Duration, TakesZeroAndLessAndHandsTheMapperTheEmptyRange) {
  Recorded r;
  r.c->SetDuration(0);
  EXPECT_EQ(r.c->Duration(), 0);
  EXPECT_EQ(r.Take(),
            "Scroller.Duration = 0; Mapper.SetTimeRange(3155889600, 3155889600); "
            "Mapper.SetPixelRange(0, 1000); Scroller.CursorTime = #2000-01-01 12:00:00#; "
            "Item.Move The Cursor (-2.5, 0, 5, 200)");
  r.c->SetDuration(-5);
  EXPECT_EQ(r.c->Duration(), -5);
}

TEST(TZero, IsPassedOnWithoutARepaint) {
  Recorded r;
  r.c->SetTZero(At(5));
  EXPECT_EQ(r.c->TZero(), At(5));
  EXPECT_EQ(r.Take(), "Scroller.TZero = #2000-01-01 12:00:05#");
}

TEST(TimesOffsetMode, IsWhatTheTimeScaleHolds) {
  Recorded r;
  r.companions.scroller->SetTimesOffsetMode(7);
  EXPECT_EQ(r.c->TimesOffsetMode(), 7);
  r.Take();
  r.c->SetTimesOffsetMode(-1);
  EXPECT_EQ(r.Take(), "Scroller.TimesOffsetMode = -1");
  EXPECT_EQ(r.c->TimesOffsetMode(), -1);
}

TEST(Formats, RepaintEvenWhenUnchanged) {
  Recorded r;
  r.c->SetFormatString(u"hh:nn:ss");
  EXPECT_EQ(r.Take(), kRepaint);
  r.c->SetFormatStyle(4);
  EXPECT_EQ(r.Take(), kRepaint);
  r.c->SetDurationFormatString(u"");
  EXPECT_EQ(r.Take(), kRepaint);
  r.c->SetDurationFormatStyle(4);
  EXPECT_EQ(r.Take(), kRepaint);
  EXPECT_EQ(r.raised.Take(), 4);
}

TEST(Formats, ReadAsWritten) {
  Recorded r;
  r.c->SetFormatString(u"hh");
  r.c->SetFormatStyle(1);
  r.c->SetDurationFormatString(u"0.0");
  r.c->SetDurationFormatStyle(-2);
  EXPECT_EQ(r.c->FormatString(), u"hh");
  EXPECT_EQ(r.c->FormatStyle(), 1);
  EXPECT_EQ(r.c->DurationFormatString(), u"0.0");
  EXPECT_EQ(r.c->DurationFormatStyle(), -2);
}

TEST(TimeScaleFormats, ArePassedOnWithoutARepaint) {
  Recorded r;
  r.c->SetTimeScaleFormatString(u"nn");
  r.c->SetTimeScaleFormatStyle(2);
  EXPECT_EQ(r.Take(), "Scroller.TimeScaleFormatString = 'nn'; Scroller.TimeScaleFormatStyle = 2");
  EXPECT_EQ(r.c->TimeScaleFormatString(), u"nn");
  EXPECT_EQ(r.c->TimeScaleFormatStyle(), 2);
}

TEST(TimeScaleColours, ArePassedOnWithoutARepaint) {
  Recorded r;
  r.c->SetTimeScaleBackColor(1);
  r.c->SetTimeScaleForeColor(2);
  r.c->SetTimeScaleMarkerHighlightColor(3);
  r.c->SetTimeScaleMarkerHighlightWidth(2.5f);
  EXPECT_EQ(r.Take(),
            "Scroller.TimeScaleBackColor = 00000001; Scroller.TimeScaleForeColor = 00000002; "
            "Scroller.TimeScaleMarkerHighlightColor = 00000003; "
            "Scroller.TimeScaleMarkerHighlightWidth = 2.5");
  EXPECT_EQ(r.c->TimeScaleBackColor(), 1u);
  EXPECT_EQ(r.c->TimeScaleForeColor(), 2u);
  EXPECT_EQ(r.c->TimeScaleMarkerHighlightColor(), 3u);
  EXPECT_EQ(r.c->TimeScaleMarkerHighlightWidth(), 2.5f);
}

TEST(BackColor, IsInertOnPurpose) {
  Recorded r;
  r.c->SetBackColor(0xFF);
  EXPECT_EQ(r.c->BackColor(), 0u);
  EXPECT_EQ(r.Take(), "");
}

TEST(BarSizes, RepaintWhenTheyDifferAndOnlyThen) {
  Recorded r;
  r.c->SetBarHeight(40);
  r.c->SetBarSeparation(3);
  r.c->SetTrackSeparation(6);
  EXPECT_EQ(r.Take(), "");
  r.c->SetBarHeight(40.5f);
  EXPECT_EQ(r.Take(), kRepaint);
  r.c->SetBarSeparation(4);
  EXPECT_EQ(r.Take(), kRepaint);
  r.c->SetTrackSeparation(7);
  EXPECT_EQ(r.Take(), kRepaint);
  EXPECT_EQ(r.raised.Take(), 3);
  EXPECT_EQ(r.c->BarHeight(), 40.5f);
  EXPECT_EQ(r.c->BarSeparation(), 4.0f);
  EXPECT_EQ(r.c->TrackSeparation(), 7.0f);
}

TEST(BarSizes, MoveNoBarToAnotherRowUntilTracksAreAlignedOnPurpose) {
  const AttachedControl c;
  c.Add(murtlotGroup, u"A", true);
  c.Add(murtlotGroup, u"B", true);
  c->AlignTracks();
  c->SetTrackSeparation(10);
  EXPECT_EQ(c.TopOf(u"B"), 46.0f);
  EXPECT_EQ(c.Item(u"B")->Height(), 40.0f);
  c->AlignTracks();
  EXPECT_EQ(c.TopOf(u"B"), 50.0f);
}

TEST(TimeScaleHeight, SizesTheTimeScaleAndLaysOutAnew) {
  AttachedControl c;
  c.host.SetScaleWidth(900);
  c.host.SetScaleHeight(5000);
  c->SetTimeScaleHeight(450);
  EXPECT_EQ(c.host.ScrollerHost().Height(), 450.0f);
  EXPECT_EQ(c.host.ScrollerHost().Width(), 900.0f);
  EXPECT_EQ(c.host.CanvasHost().Top(), 450.0f);
  EXPECT_EQ(c.host.CanvasHost().Height(), 4550.0f);
}

TEST(TimeScaleHeight, DoesNothingWhenUnchanged) {
  AttachedControl c;
  c.host.ScrollerHost().SetHeight(10);
  c->SetTimeScaleHeight(600);
  EXPECT_EQ(c.host.ScrollerHost().Height(), 10.0f);
}

TEST(TimeScaleHeight, BelowZeroEndsAsZeroInTheLayout) {
  AttachedControl c;
  c.host.SetScaleHeight(5000);
  c->SetTimeScaleHeight(-30);
  EXPECT_EQ(c->TimeScaleHeight(), -30.0f);
  EXPECT_EQ(c.host.ScrollerHost().Height(), 0.0f);
  EXPECT_EQ(c.host.CanvasHost().Top(), 0.0f);
}

TEST(AllowObjectDragging, GivesEveryBarAllDragFlagsOrNoneAndTheCursorNone) {
  const AttachedControl c;
  c.Add(murtlotScalar, u"S");
  c.Add(murtlotGroup, u"G");
  c->SetAllowObjectDragging(true);
  EXPECT_TRUE(c->AllowObjectDragging());
  EXPECT_EQ(c.Item(u"S")->DragFlags(), 15);
  EXPECT_EQ(c.Item(u"G")->DragFlags(), 15);
  EXPECT_EQ(c.Item(u"The Cursor")->DragFlags(), 0);
  c->SetAllowObjectDragging(false);
  EXPECT_EQ(c.Item(u"S")->DragFlags(), 0);
}

TEST(AllowObjectDragging, DoesNothingWhenUnchanged) {
  Recorded r;
  r.c.Add(murtlotScalar, u"S");
  r.Take();
  r.c->SetAllowObjectDragging(false);
  EXPECT_EQ(r.Take(), "");
}

TEST(AllowObjectDragging, LeavesLaterItemsAtTheFirstFailure) {
  Recorded r;
  r.c.Add(murtlotScalar, u"S");
  r.c.Add(murtlotScalar, u"T");
  r.Take();
  r.companions.log.failing = "Item.DragFlags";
  r.c->SetAllowObjectDragging(true);
  EXPECT_EQ(r.Take(), "Item.DragFlags S = 15");
  EXPECT_TRUE(r.c->AllowObjectDragging());
}

TEST(AllowObjectDragging, GivesALaterBarNoFlagsOnPurpose) {
  const AttachedControl c;
  c->SetAllowObjectDragging(true);
  c.Add(murtlotScalar, u"S");
  EXPECT_EQ(c.Item(u"S")->DragFlags(), 0);
}

TEST(AutoObjectCaption, IsKeptBySiteFromOneToNineAndNowhereElse) {
  const BareControl c;
  for (int site = -1; site <= 11; ++site) c->SetAutoObjectCaption(site, site + 20);
  for (int site = 1; site <= 9; ++site) EXPECT_EQ(c->AutoObjectCaption(site), site + 20);
  EXPECT_EQ(c->AutoObjectCaption(0), 0);
  EXPECT_EQ(c->AutoObjectCaption(10), 0);
  EXPECT_EQ(c->AutoObjectCaption(-2147483647 - 1), 0);
}

TEST(AutoObjectCaption, ChangesNoBarUntilTheNextRepaintOnPurpose) {
  Recorded r;
  r.c.Add(murtlotScalar, u"S")->SetTag(u"t");
  r.Take();
  r.c->SetAutoObjectCaption(3, etlctTag);
  EXPECT_EQ(r.Take(), "");
  r.c->SetDuration(1000);
  EXPECT_EQ(r.c.Item(u"S")->Caption(3), u"t");
}

TEST(AutoObjectTooltipText, ChangesNoToolTipUntilTheObjectsNextPropertyChangeOnPurpose) {
  const AttachedControl c;
  const auto scalar = c.Add(murtlotScalar, u"S");
  scalar->SetTag(u"t");
  c->SetAutoObjectTooltipText(u"<$$Tag$$>");
  c->SetDuration(1000);
  EXPECT_EQ(c.Item(u"S")->ToolTipText(), u"t");
  scalar->SetLockedToParent(true);
  EXPECT_EQ(c.Item(u"S")->ToolTipText(), u"<t>");
}

TEST(AutoSelectMode, IsOnlyKept) {
  Recorded r;
  r.c->SetAutoSelectMode(etlcltRightClick | etlcltLeftDblClick);
  EXPECT_EQ(r.c->AutoSelectMode(), 12);
  EXPECT_EQ(r.Take(), "");
}

TEST(AutoHighlightObjects, SwitchedOffResetsAndSwitchedOnHighlightsWhatSpansTheCursor) {
  const AttachedControl c;
  const auto now = c.Add(murtlotScalar, u"now");
  c.Add(murtlotScalar, u"later")->SetWorldTimeT0(At(1));
  now->SetWorldTimeT0(kNoon);
  c->SetAutoHighlightObjects(false);
  EXPECT_EQ(c.Item(u"now")->BackColor(), 0x8000000Fu);
  c->SetAutoHighlightObjects(true);
  EXPECT_EQ(c.Item(u"now")->BackColor(), 0x8000000Du);
  EXPECT_EQ(c.Item(u"later")->BackColor(), 0x8000000Fu);
}

TEST(AutoHighlightObjects, RecoloursEachBarInTheOrderOfTheTimeLine) {
  Recorded r;
  r.c.Add(murtlotScalar, u"S");
  r.c.Add(murtlotGroup, u"G");
  r.c->AddRenderConfig(1)->SetBackColor(0x11);
  r.Take();
  r.c->SetAutoHighlightObjects(false);
  EXPECT_EQ(r.Take(), "Item.BackColor S = 00000011; Item.BackColor G = 8000000F");
  r.c->SetAutoHighlightObjects(false);
  EXPECT_EQ(r.Take(), "");
}

TEST(CanvasProperties, PassThrough) {
  Recorded r;
  r.c->SetOLEDropMode(2);
  r.c->SetShowToolTips(false);
  EXPECT_EQ(r.Take(), "Canvas.OLEDropMode = 2; Canvas.ShowToolTips = false");
  EXPECT_EQ(r.c->OLEDropMode(), 2);
  EXPECT_FALSE(r.c->ShowToolTips());
  r.c->SetToolTipText(u"tip");
  EXPECT_EQ(r.c.host.CanvasHost().ToolTipText(), u"tip");
  EXPECT_EQ(r.c->ToolTipText(), u"tip");
}

TEST(YToTrackKey, IsAlwaysEmptyOnPurpose) {
  const AttachedControl c;
  c.Add(murtlotGroup, u"G", true);
  EXPECT_EQ(c->YToTrackKey(0), u"");
  EXPECT_EQ(c->YToTrackKey(-1e30f), u"");
}

}  // namespace
}  // namespace mur::test
