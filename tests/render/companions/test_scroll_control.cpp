#include <limits>

#include <gtest/gtest.h>

#include <murtimeline/automation/error.h>
#include <murtimeline/render/companions/scroll_control.h>
#include <murtimeline/render/port/scripted_host.h>

#include "tests/support/print.h"

using namespace mur;

namespace {

class Scroll : public ::testing::Test {
 protected:
  Scroll() {
    host.Move(0, 0, 1500, 600);
    host.ForgetInvalidations();
  }
  std::string MarkerCaption(const Variant& KeyIndexA) const {
    const auto marker = scroll->Marker(KeyIndexA);
    return marker ? ToUtf8(marker->Caption()) : "none";
  }

  const Date noon = Date::Unchecked(36526.5);
  FrozenClock clock{noon};
  ScriptedChild host;
  Ref<MURTimelineScroll> scroll = Make<MURTimelineScroll>(host);
};

}  // namespace

TEST_F(Scroll, StartsAtThePresentMomentWithItsDocumentedSettings) {
  EXPECT_EQ(scroll->WorldTimeT0(), noon);
  EXPECT_EQ(scroll->TZero(), noon);
  EXPECT_EQ(scroll->Duration(), 3600);
  EXPECT_EQ(scroll->CursorTime(), Date());
  EXPECT_EQ(scroll->TimesOffsetMode(), 0);
  EXPECT_TRUE(scroll->TimeScaleFormatString().empty());
  EXPECT_EQ(scroll->TimeScaleFormatStyle(), 4);
  EXPECT_EQ(scroll->TimeScaleBackColor(), 0x80000005U);
  EXPECT_EQ(scroll->TimeScaleForeColor(), 0x80000008U);
  EXPECT_EQ(scroll->TimeScaleMarkerHighlightColor(), 0x8000000DU);
  EXPECT_EQ(scroll->TimeScaleMarkerHighlightWidth(), 1);
  EXPECT_EQ(scroll->BorderStyle(), 0);
  EXPECT_EQ(scroll->TickEdge(), 1);
  EXPECT_TRUE(scroll->ShowCursor());
  EXPECT_EQ(scroll->LabelFontSize(), 9);
  EXPECT_TRUE(scroll->ShowMarkers());
  EXPECT_EQ(scroll->MarkersCount(), 0);
}

TEST_F(Scroll, KeepsItsSettings) {
  scroll->SetTZero(Date::Unchecked(7));
  scroll->SetTimesOffsetMode(-5);
  scroll->SetTimeScaleFormatString(u"nn:ss");
  scroll->SetTimeScaleFormatStyle(99);
  scroll->SetTimeScaleBackColor(1);
  scroll->SetTimeScaleForeColor(2);
  scroll->SetTimeScaleMarkerHighlightColor(3);
  scroll->SetTimeScaleMarkerHighlightWidth(2.5F);
  scroll->SetBorderStyle(1);
  scroll->SetTickEdge(0);
  scroll->SetShowCursor(false);
  scroll->SetLabelFontSize(12);
  scroll->SetShowMarkers(false);
  EXPECT_EQ(scroll->TZero(), Date::Unchecked(7));
  EXPECT_EQ(scroll->TimesOffsetMode(), -5);
  EXPECT_EQ(ToUtf8(scroll->TimeScaleFormatString()), "nn:ss");
  EXPECT_EQ(scroll->TimeScaleFormatStyle(), 99);
  EXPECT_EQ(scroll->TimeScaleBackColor(), 1U);
  EXPECT_EQ(scroll->TimeScaleForeColor(), 2U);
  EXPECT_EQ(scroll->TimeScaleMarkerHighlightColor(), 3U);
  EXPECT_EQ(scroll->TimeScaleMarkerHighlightWidth(), 2.5F);
  EXPECT_EQ(scroll->BorderStyle(), 1);
  EXPECT_EQ(scroll->TickEdge(), 0);
  EXPECT_FALSE(scroll->ShowCursor());
  EXPECT_EQ(scroll->LabelFontSize(), 12);
  EXPECT_FALSE(scroll->ShowMarkers());
  EXPECT_EQ(host.InvalidatedAll(), 13U);
}

TEST_F(Scroll, KeepsTheCursorTimeToTheBit) {
  const Date odd = Date::Unchecked(36526.1 + 1e-11);
  scroll->SetCursorTime(odd);
  EXPECT_EQ(scroll->CursorTime().Days(), odd.Days());
}

TEST_F(Scroll, RaisesNothingWhenItsCursorTimeIsWritten) {
  int raised = 0;
  const auto changed = scroll->CursorTimeChanged.Connect([&] { ++raised; });
  const auto changing = scroll->CursorTimeChanging.Connect([&] { ++raised; });
  scroll->SetCursorTime(noon);
  EXPECT_EQ(raised, 0);
}

TEST_F(Scroll, AsksForTheOldAndTheNewPlaceOfTheCursorOnly) {
  scroll->SetCursorTime(Date::Unchecked(36526.5 + 1800.0 / 86400));
  ASSERT_EQ(host.Invalidated().size(), 1U);
  EXPECT_NEAR(host.Invalidated()[0].left, 44, 0.01);
  EXPECT_EQ(host.Invalidated()[0].height, 40);
  scroll->SetCursorTime(noon);
  EXPECT_EQ(host.Invalidated().size(), 3U);
  EXPECT_EQ(host.InvalidatedAll(), 0U);
}

TEST_F(Scroll, RaisesVisibleRangeChangedForANewStartOrDuration) {
  int raised = 0;
  const auto connection = scroll->VisibleRangeChanged.Connect([&] { ++raised; });
  scroll->SetWorldTimeT0(Date::Unchecked(1));
  scroll->SetDuration(60);
  EXPECT_EQ(raised, 2);
  scroll->SetWorldTimeT0(Date::Unchecked(1));
  scroll->SetDuration(60);
  EXPECT_EQ(raised, 2);
}

TEST_F(Scroll, TakesAnyDuration) {
  for (const double seconds : {0.0, -5.0, std::numeric_limits<double>::infinity()}) {
    scroll->SetDuration(seconds);
    EXPECT_EQ(scroll->Duration(), seconds);
  }
}

TEST_F(Scroll, AddsMarkersUnderKeysThatIgnoreLetterCase) {
  scroll->MarkerAdd(noon, u"Key", u"first", true);
  scroll->MarkerAdd(noon, u"kEY", u"second", true);
  scroll->MarkerAdd(noon, u"other", u"third", false);
  EXPECT_EQ(scroll->MarkersCount(), 2);
  EXPECT_EQ(MarkerCaption(u"KEY"), "first");
  EXPECT_EQ(MarkerCaption(2), "third");
  EXPECT_EQ(MarkerCaption(3), "none");
  EXPECT_EQ(MarkerCaption(u"none such"), "none");
}

TEST_F(Scroll, GivesANewMarkerEmptyTagAndData) {
  scroll->MarkerAdd(noon, u"Key", u"caption", false);
  const auto marker = scroll->Marker(1);
  EXPECT_EQ(ToUtf8(marker->Key()), "Key");
  EXPECT_EQ(marker->WorldTime(), noon);
  EXPECT_FALSE(marker->Visible());
  EXPECT_TRUE(marker->Tag().empty());
  EXPECT_TRUE(marker->UserData().Is(VariantKind::Empty));
}

TEST_F(Scroll, GivesTheSameRecordEachTime) {
  scroll->MarkerAdd(noon, u"Key", u"", true);
  EXPECT_EQ(scroll->Marker(1), scroll->Marker(u"key"));
  scroll->Marker(1)->SetTag(u"tag");
  scroll->Marker(1)->SetUserData(Variant(42));
  EXPECT_EQ(ToUtf8(scroll->Marker(u"key")->Tag()), "tag");
  EXPECT_EQ(scroll->Marker(u"key")->UserData(), Variant(42));
}

TEST_F(Scroll, RemovesMarkers) {
  scroll->MarkerAdd(noon, u"a", u"a", true);
  scroll->MarkerAdd(noon, u"b", u"b", true);
  scroll->MarkerAdd(noon, u"c", u"c", true);
  scroll->MarkerRemove(u"B");
  EXPECT_EQ(MarkerCaption(2), "c");
  scroll->MarkerRemove(1);
  EXPECT_EQ(MarkerCaption(1), "c");
  scroll->MarkersClear();
  EXPECT_EQ(scroll->MarkersCount(), 0);
}

TEST_F(Scroll, FailsToRemoveAMarkerThatIsNotThere) {
  try {
    scroll->MarkerRemove(u"none such");
    ADD_FAILURE() << "removed something";
  } catch (const AutomationError& error) {
    EXPECT_EQ(error.Code(), ErrorCode::SubscriptOutOfRange);
  }
}

TEST_F(Scroll, RepaintsWhenAMarkerChanges) {
  scroll->MarkerAdd(noon, u"a", u"", true);
  const auto marker = scroll->Marker(1);
  marker->SetCaption(u"new");
  marker->SetWorldTime(Date::Unchecked(1));
  marker->SetVisible(false);
  EXPECT_EQ(host.InvalidatedAll(), 4U);
}

TEST_F(Scroll, LetsAMarkerLiveOn) {
  scroll->MarkerAdd(noon, u"a", u"", true);
  const auto marker = scroll->Marker(1);
  scroll = {};
  host.ForgetInvalidations();
  marker->SetCaption(u"new");
  EXPECT_EQ(ToUtf8(marker->Caption()), "new");
  EXPECT_EQ(host.InvalidatedAll(), 0U);
}
