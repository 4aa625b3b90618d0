#include <gtest/gtest.h>

#include "tests/support/print.h"
#include "tests/support/render_fixture.h"

namespace mur::test {
namespace {

TEST(NewControl, HasItsPublishedStartValues) {
  const BareControl c;
  EXPECT_EQ(c->AutoObjectTooltipText(), u"$$Tag$$");
  EXPECT_EQ(c->BackColor(), 0u);
  EXPECT_EQ(c->Duration(), 3600);
  EXPECT_EQ(c->DurationFormatString(), u"");
  EXPECT_EQ(c->DurationFormatStyle(), 4);
  EXPECT_EQ(c->FormatString(), u"hh:nn:ss");
  EXPECT_EQ(c->FormatStyle(), 4);
  EXPECT_EQ(c->TimeScaleBackColor(), 0x80000005u);
  EXPECT_EQ(c->TimeScaleForeColor(), 0x80000008u);
  EXPECT_EQ(c->TimeScaleFormatString(), u"hh:nn:ss");
  EXPECT_EQ(c->TimeScaleFormatStyle(), 4);
  EXPECT_EQ(c->TimeScaleMarkerHighlightColor(), 0x8000000Du);
  EXPECT_EQ(c->TimeScaleMarkerHighlightWidth(), 1.0f);
  EXPECT_EQ(c->TimesOffsetMode(), 0);
  EXPECT_EQ(c->TZero(), kNoon);
  EXPECT_EQ(c->WorldTimeT0(), kNoon);
  EXPECT_EQ(c->SelectedKey(), Variant());
  EXPECT_EQ(c->CursorTime(), Date());
}

TEST(NewControl, HasItsPublishedSizesAndSwitches) {
  const BareControl c;
  EXPECT_EQ(c->BarHeight(), 40.0f);
  EXPECT_EQ(c->BarSeparation(), 3.0f);
  EXPECT_EQ(c->TimeScaleHeight(), 600.0f);
  EXPECT_EQ(c->TrackSeparation(), 6.0f);
  EXPECT_FALSE(c->AllowObjectDragging());
  EXPECT_TRUE(c->AutoHighlightObjects());
  EXPECT_EQ(c->AutoSelectMode(), etlcltNoClicks);
  EXPECT_EQ(c->OLEDropMode(), 0);
  EXPECT_TRUE(c->ShowToolTips());
  EXPECT_EQ(c->ToolTipText(), u"");
  EXPECT_EQ(c->YToTrackKey(12), u"");
  for (int site = 1; site <= 9; ++site) EXPECT_EQ(c->AutoObjectCaption(site), etlctNoAutoCaption);
}

TEST(NewControl, HasAnEmptyTimeLineAndNoItems) {
  const BareControl c;
  ASSERT_TRUE(c->Timeline());
  EXPECT_EQ(c->Timeline()->Count(), 0);
  EXPECT_EQ(c.Canvas().GraphicCount(), 0u);
  EXPECT_EQ(c.Canvas().ScaleMode(), 1);
}

TEST(NewControl, HasADefaultConfigurationWithTheButtonColours) {
  const BareControl c;
  ASSERT_TRUE(c->DefaultRenderConfig());
  EXPECT_EQ(c->DefaultRenderConfig()->BackColor(), 0x8000000Fu);
  EXPECT_EQ(c->DefaultRenderConfig()->ForeColor(), 0x80000012u);
  EXPECT_EQ(c->DefaultRenderConfig()->HighlightColor(), 0x8000000Du);
  EXPECT_EQ(c->DefaultRenderConfig(), c->DefaultRenderConfig());
}

TEST(NewControl, WritesItsStartSettingsInOrderAndNoTimes) {
  RecordingCompanions recording;
  const BareControl c(recording.All());
  EXPECT_EQ(recording.log.Take(),
            "Scroller.BorderStyle = 0; Scroller.TimeScaleBackColor = 80000005; Scroller.TickEdge = 1; "
            "Scroller.ShowCursor = true; Scroller.LabelFontSize = 9; Scroller.ShowMarkers = true; "
            "Scroller.TimeScaleForeColor = 80000008; Scroller.TimeScaleMarkerHighlightColor = 8000000D; "
            "Scroller.TimeScaleMarkerHighlightWidth = 1; Canvas.BackColor = 8000000C");
}

TEST(NewControl, UsesTheCompanionsItIsGivenAndItsOwnForTheRest) {
  RecordingCompanions recording;
  const BareControl c({recording.canvas, nullptr, nullptr, nullptr});
  EXPECT_EQ(c->Collaborators().canvas.Get(), recording.canvas.Get());
  EXPECT_TRUE(c->Collaborators().scroller);
  EXPECT_TRUE(c->Collaborators().timeMapper);
  EXPECT_TRUE(c->Collaborators().timeText);
}

TEST(NewControl, SharesOneTimeTextServiceWithTheOthersOfItsThread) {
  const BareControl first, second;
  EXPECT_EQ(first->Collaborators().timeText, second->Collaborators().timeText);
}

TEST(EndOfControl, ReleasesTheTimeLineAndStopsListening) {
  OwnedTimeline timeline;
  {
    const BareControl c;
    c->SetTimeline(timeline.Get());
    EXPECT_TRUE(timeline->TLObjectAdded.HasListeners());
  }
  EXPECT_FALSE(timeline->TLObjectAdded.HasListeners());
  EXPECT_FALSE(timeline->Cleared.HasListeners());
}

TEST(EndOfControl, LeavesCompanionsThatTheHostKeepsAlone) {
  RecordingCompanions recording;
  { const BareControl c(recording.All()); }
  recording.log.Take();
  recording.canvas->Repaint.Raise();
  recording.scroller->CursorTimeChanged.Raise();
  EXPECT_EQ(recording.log.Take(), "");
}

TEST(Resize, StacksTheTimeScaleAndTheCanvas) {
  BareControl c;
  c.host.SetScaleWidth(9000);
  c.host.SetScaleHeight(6000);
  c->Resize();
  const ScriptedChild& scroller = c.host.ScrollerHost();
  const ScriptedChild& canvas = c.host.CanvasHost();
  EXPECT_EQ(scroller.Left(), 0.0f);
  EXPECT_EQ(scroller.Top(), 0.0f);
  EXPECT_EQ(scroller.Width(), 9000.0f);
  EXPECT_EQ(scroller.Height(), 600.0f);
  EXPECT_EQ(canvas.Left(), 0.0f);
  EXPECT_EQ(canvas.Top(), 600.0f);
  EXPECT_EQ(canvas.Width(), 9000.0f);
  EXPECT_EQ(canvas.Height(), 5400.0f);
}

TEST(Resize, GivesAControlTooLowForItsTimeScaleACanvasWithoutHeight) {
  BareControl c;
  c.host.SetScaleWidth(-20);
  c.host.SetScaleHeight(100);
  c->Resize();
  EXPECT_EQ(c.host.ScrollerHost().Width(), 0.0f);
  EXPECT_EQ(c.host.CanvasHost().Top(), 600.0f);
  EXPECT_EQ(c.host.CanvasHost().Width(), 0.0f);
  EXPECT_EQ(c.host.CanvasHost().Height(), 0.0f);
}

// A host whose time scale stays where it says.
class StubbornChild final : public ChildHost {
 public:
  float Left() const override { return 0; }
  float Top() const override { return top; }
  float Width() const override { return 0; }
  float Height() const override { return height; }
  void SetHeight(float) override {}
  void Move(float, std::optional<float>, std::optional<float>, std::optional<float>) override {}
  String ToolTipText() const override { throw 1; }
  void SetToolTipText(StringView) override { throw 1; }
  void Invalidate(const RectF&) override {}
  void InvalidateAll() override {}
  void SetPointerShape(PointerShape) override {}
  void CapturePointer(bool) override {}
  Rgba SystemColor(int) const override { return {}; }

  float top = 0, height = 0;
};

class StubbornHost final : public ControlHost {
 public:
  float ScaleWidth() const override { return 1000; }
  float ScaleHeight() const override { return scaleHeight; }
  StubbornChild& ScrollerHost() override { return scroller; }
  StubbornChild& CanvasHost() override { return canvas; }

  float scaleHeight = 1000;
  StubbornChild scroller, canvas;
};

constexpr float kHuge = 3e38f;

void ExpectOverflow(MURTimelineRender& ControlA) {
  try {
    ControlA.Resize();
    ADD_FAILURE() << "no overflow";
  } catch (const AutomationError& error) {
    EXPECT_EQ(error.Code(), ErrorCode::Overflow);
  }
}

TEST(Resize, OverflowsWhereTheTimeScaleEndsBeyondTheSingleRange) {
  StubbornHost host;
  const auto control = Make<MURTimelineRender>(host);
  host.scroller.top = host.scroller.height = kHuge;
  ExpectOverflow(*control);
}

TEST(Resize, OverflowsWhereTheCanvasWouldBeHigherThanTheSingleRange) {
  StubbornHost host;
  const auto control = Make<MURTimelineRender>(host);
  host.scroller.top = -kHuge;
  host.scaleHeight = kHuge;
  ExpectOverflow(*control);
}

TEST(TimeScaleHeight, SwallowsAnOverflowOfTheLayout) {
  StubbornHost host;
  const auto control = Make<MURTimelineRender>(host);
  host.scroller.top = host.scroller.height = kHuge;
  EXPECT_NO_THROW(control->SetTimeScaleHeight(700));
  EXPECT_EQ(control->TimeScaleHeight(), 700.0f);
}

TEST(ToolTipText, ReadsEmptyWhereTheHostFails) {
  StubbornHost host;
  const auto control = Make<MURTimelineRender>(host);
  EXPECT_NO_THROW(control->SetToolTipText(u"t"));
  EXPECT_EQ(control->ToolTipText(), u"");
}

TEST(Timeline, IsTheOneThatWasAttached) {
  const AttachedControl c;
  EXPECT_EQ(c->Timeline(), c.timeline.Get());
}

TEST(Timeline, CreatesTheCursorItemAndPutsTheCursorAtThePresentWhenAttached) {
  const BareControl c;
  OwnedTimeline timeline;
  c->SetTimeline(timeline.Get());
  EXPECT_EQ(c.Canvas().ScaleMode(), 3);
  ASSERT_EQ(c.Canvas().GraphicCount(), 1u);
  EXPECT_EQ(c.Item(u"The Cursor")->Kind(), 2);
  EXPECT_EQ(c->CursorTime(), kNoon);
}

TEST(Timeline, KeepsTheOneCursorItemWhenAttachedAgainOnPurpose) {
  AttachedControl c;
  c.clock.Set(At(60));
  c->SetTimeline(c.timeline.Get());
  EXPECT_EQ(c.Canvas().GraphicCount(), 1u);
  EXPECT_EQ(c->CursorTime(), kNoon);
}

TEST(Timeline, HearsEachReportOnceAfterASecondAttachment) {
  const AttachedControl c;
  c->SetTimeline(c.timeline.Get());
  Counter raised(c->CursorTimeChange);
  c.timeline->SetDuration(5);
  EXPECT_EQ(raised.Take(), 1);
}

TEST(Timeline, ShowsNothingThatIsThereAlreadyOnPurpose) {
  const BareControl c;
  OwnedTimeline timeline;
  timeline->Add(murtlotScalar, u"S");
  c->SetTimeline(timeline.Get());
  c->SetDuration(10);
  EXPECT_FALSE(c.Item(u"S"));
}

TEST(Timeline, KeepsTheBarsOfTheOneBeforeOnPurpose) {
  const AttachedControl c;
  c.Add(murtlotScalar, u"S");
  OwnedTimeline other;
  c->SetTimeline(other.Get());
  EXPECT_TRUE(c.Item(u"S"));
  c.Add(murtlotScalar, u"T");
  EXPECT_FALSE(c.Item(u"T"));
}

TEST(Timeline, DetachesQuietlyWhenSetToNothing) {
  const AttachedControl c;
  c.Add(murtlotGroup, u"G", true);
  Counter raised(c->CursorTimeChange);
  c->SetTimeline(nullptr);
  EXPECT_FALSE(c->Timeline());
  EXPECT_EQ(raised.Take(), 0);
  EXPECT_FALSE(c.timeline->TLObjectAdded.HasListeners());
}

TEST(Timeline, LeavesEveryMemberUsableWhenThereIsNone) {
  const BareControl c;
  c->SetTimeline(nullptr);
  EXPECT_EQ(c->TrackTop(1), 0.0f);
  c->AlignTracks();
  c->ShowMembers();
  c->SetAutoHighlightObjects(false);
  c->SetBarHeight(10);
  c->SetCursorTime(At(1));
  EXPECT_EQ(c->CursorTime(), At(1));
}

TEST(ShowMembers, GivesMembersTheirBarsAndPlacesThem) {
  const AttachedControl c;
  OwnedTimeline timeline;
  auto scalar = timeline->Add(murtlotScalar, u"S");
  scalar->SetWorldTimeT0(At(100));
  scalar->SetDuration(50);
  c->SetTimeline(timeline.Get());
  c->ShowMembers();
  ASSERT_TRUE(c.Item(u"S"));
  EXPECT_EQ(c.Item(u"S")->Left(), 100.0f);
  EXPECT_EQ(c.Item(u"S")->Width(), 50.0f);
}

TEST(ShowMembers, AddsNoSecondBar) {
  const AttachedControl c;
  c.Add(murtlotScalar, u"S");
  c->ShowMembers();
  EXPECT_EQ(c.Canvas().GraphicCount(), 2u);
}

TEST(TrackTop, IsWhereTheBarBeginsBelowTheControlsTopInTwips) {
  AttachedControl c;
  c.host.SetScaleHeight(6000);
  c->Resize();
  c.Add(murtlotGroup, u"A", true);
  c.Add(murtlotGroup, u"B", true);
  c->AlignTracks();
  EXPECT_EQ(c->TrackTop(u"A"), 600.0f);
  EXPECT_EQ(c->TrackTop(2), 600.0f + (40 + 6) * 15);
}

TEST(TrackTop, TakesCanvasUnitsAsTheyAreWhileTheyAreTwips) {
  AttachedControl c;
  c.Add(murtlotGroup, u"A", true);
  c.Item(u"A")->Move(0, 70.0f);
  c.Canvas().SetScaleMode(1);
  EXPECT_EQ(c->TrackTop(u"A"), 70.0f);
}

TEST(TrackTop, IsZeroWithoutSuchATrackObjectOrBar) {
  AttachedControl c;
  c.host.CanvasHost().Move(0, 600.0f);
  EXPECT_EQ(c->TrackTop(u"none"), 0.0f);
  c.timeline->AddTrackKey(u"empty");
  EXPECT_EQ(c->TrackTop(u"empty"), 0.0f);
  c.Add(murtlotGroup, u"G", true);
  c.Canvas().RemoveGraphic(u"G");
  EXPECT_EQ(c->TrackTop(u"G"), 0.0f);
  EXPECT_EQ(c->TrackTop(Variant::Null()), 0.0f);
}

TEST(AlignTracks, PutsEveryTrackAndAllBelowOnItsRow) {
  AttachedControl c;
  const auto a = c.Add(murtlotGroup, u"A", true);
  c.Add(murtlotGroup, u"B", true);
  c.AddBelow(a, murtlotScalar, u"child");
  c->AlignTracks();
  EXPECT_EQ(c.TopOf(u"A"), 0.0f);
  EXPECT_EQ(c.TopOf(u"child"), 43.0f);
  EXPECT_EQ(c.TopOf(u"B"), 83.0f + 6.0f);
}

TEST(AlignTracks, LeavesObjectsOutsideTheTracksWhereTheyAre) {
  AttachedControl c;
  c.Add(murtlotScalar, u"loose");
  c.Item(u"loose")->Move(3, 77.0f);
  c->AlignTracks();
  EXPECT_EQ(c.TopOf(u"loose"), 77.0f);
}

TEST(AlignTracks, StartsEachTracksBarOnTheFirstRowOfItsTrackOnPurpose) {
  AttachedControl c;
  const auto group = c.Add(murtlotGroup, u"G");
  c.AddBelow(group, murtlotScalar, u"S");
  c.timeline->AddTrackKey(u"G");
  c.timeline->AddTrackKey(u"S");
  c->AlignTracks();
  // "S" is a track of its own but its top is that of its root's track: it ends on that track's first row.
  EXPECT_EQ(c.TopOf(u"S"), 0.0f);
}

}  // namespace
}  // namespace mur::test
