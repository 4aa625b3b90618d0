#include <gtest/gtest.h>

#include <murtimeline/automation/error.h>

#include "tests/support/print.h"
#include "tests/support/render_fixture.h"

namespace mur::test {
namespace {

class Payload final : public Object {};
class ForeignPayload final : public ForeignValue {};

// Every reader's answer where there is no marker.
void ExpectEmpty(const MURTimelineRender& ControlA, const Variant& KeyIndexA) {
  EXPECT_EQ(ControlA.TimeScaleMarkerWorldTime(KeyIndexA), Date());
  EXPECT_EQ(ControlA.TimeScaleMarkerCaption(KeyIndexA), u"");
  EXPECT_EQ(ControlA.TimeScaleMarkerTag(KeyIndexA), u"");
  EXPECT_EQ(ControlA.TimeScaleMarkerUserData(KeyIndexA), Variant());
  EXPECT_FALSE(ControlA.TimeScaleMarkerDefinition(KeyIndexA));
}

void WriteAll(MURTimelineRender& ControlA, const Variant& KeyIndexA) {
  ControlA.SetTimeScaleMarkerWorldTime(KeyIndexA, At(5));
  ControlA.SetTimeScaleMarkerCaption(KeyIndexA, u"caption");
  ControlA.SetTimeScaleMarkerTag(KeyIndexA, u"tag");
  ControlA.SetTimeScaleMarkerUserData(KeyIndexA, 7);
}

TEST(TimeScaleMarker, IsAddedVisibleAndWithoutACaptionUnlessTold) {
  const BareControl c;
  c->TimeScaleMarkerAdd(At(1), u"a");
  c->TimeScaleMarkerAdd(At(2), u"b", u"caption", false);
  EXPECT_EQ(c->TimeScaleMarkersCount(), 2);
  EXPECT_EQ(c->TimeScaleMarkerWorldTime(u"a"), At(1));
  EXPECT_EQ(c->TimeScaleMarkerCaption(u"a"), u"");
  EXPECT_EQ(c->TimeScaleMarkerTag(u"a"), u"");
  EXPECT_EQ(c->TimeScaleMarkerUserData(u"a"), Variant());
  EXPECT_TRUE(c->TimeScaleMarkerDefinition(u"a")->Visible());
  EXPECT_EQ(c->TimeScaleMarkerCaption(u"b"), u"caption");
  EXPECT_FALSE(c->TimeScaleMarkerDefinition(u"b")->Visible());
}

TEST(TimeScaleMarker, IsTheSameRecordByPositionAndByKey) {
  const BareControl c;
  c->TimeScaleMarkerAdd(At(1), u"a");
  const auto record = c->TimeScaleMarkerDefinition(1);
  EXPECT_EQ(record, c->TimeScaleMarkerDefinition(u"A"));
  WriteAll(*c.control.Get(), 1);
  EXPECT_EQ(record->WorldTime(), At(5));
  EXPECT_EQ(record->Caption(), u"caption");
  EXPECT_EQ(record->Tag(), u"tag");
  EXPECT_EQ(record->UserData(), Variant(7));
  record->SetCaption(u"other");
  EXPECT_EQ(c->TimeScaleMarkerCaption(u"a"), u"other");
  EXPECT_EQ(c->TimeScaleMarkerTag(u"a"), u"tag");
}

TEST(TimeScaleMarker, GivesBackAnyUserData) {
  const BareControl c;
  c->TimeScaleMarkerAdd(At(1), u"a");
  const Ref<Object> object = Make<Payload>();
  const Ref<ForeignValue> foreign = Make<ForeignPayload>();
  for (const Variant& value : {Variant(), Variant::Null(), Variant::Missing(), Variant(true),
                               Variant(std::int8_t{-1}), Variant(std::uint16_t{65535}), Variant(42),
                               Variant(std::int64_t{1} << 60), Variant(1.5F), Variant(0.1), Variant(At(3)),
                               Variant(u"text"), Variant(object), Variant(Ref<Object>()), Variant(foreign)}) {
    c->SetTimeScaleMarkerUserData(u"a", value);
    EXPECT_EQ(c->TimeScaleMarkerUserData(u"a"), value);
    EXPECT_EQ(c->TimeScaleMarkerUserData(u"a").Kind(), value.Kind());
  }
}

TEST(TimeScaleMarker, KeepsAValueOfItsOwn) {
  const BareControl c;
  c->TimeScaleMarkerAdd(At(1), u"a");
  Variant value = 1;
  c->SetTimeScaleMarkerUserData(u"a", value);
  value = 2;
  EXPECT_EQ(c->TimeScaleMarkerUserData(u"a"), Variant(1));
}

TEST(TimeScaleMarker, IsEmptyToReadersWhereThereIsNone) {
  const BareControl c;
  c->TimeScaleMarkerAdd(At(1), u"a", u"caption");
  for (const Variant& none : {Variant(u"none such"), Variant(0), Variant(2), Variant(-1), Variant(1e30),
                              Variant(), Variant::Null(), Variant::Missing()}) {
    ExpectEmpty(*c.control.Get(), none);
    WriteAll(*c.control.Get(), none);
    c->TimeScaleMarkerRemove(none);
  }
  EXPECT_EQ(c->TimeScaleMarkersCount(), 1);
  EXPECT_EQ(c->TimeScaleMarkerCaption(1), u"caption");
}

TEST(TimeScaleMarker, IsAddedOncePerKeyIgnoringLetterCase) {
  const BareControl c;
  c->TimeScaleMarkerAdd(At(1), u"a", u"first");
  c->TimeScaleMarkerAdd(At(2), u"A", u"second");
  c->TimeScaleMarkerAdd(At(3), u"", u"empty key");
  EXPECT_EQ(c->TimeScaleMarkersCount(), 2);
  EXPECT_EQ(c->TimeScaleMarkerCaption(u"A"), u"first");
  EXPECT_EQ(c->TimeScaleMarkerCaption(u""), u"empty key");
}

TEST(TimeScaleMarker, GoesByKeyAndByPosition) {
  const BareControl c;
  for (const char16_t* key : {u"a", u"b", u"c"}) c->TimeScaleMarkerAdd(At(1), key, key);
  c->TimeScaleMarkerRemove(u"B");
  EXPECT_EQ(c->TimeScaleMarkerCaption(2), u"c");
  c->TimeScaleMarkerRemove(1);
  EXPECT_EQ(c->TimeScaleMarkersCount(), 1);
  c->TimeScaleMarkersClear();
  EXPECT_EQ(c->TimeScaleMarkersCount(), 0);
}

TEST(TimeScaleMarker, TakesTimesOutOfTheDateRange) {
  const BareControl c;
  c->TimeScaleMarkerAdd(Date::Unchecked(1e9), u"a");
  EXPECT_EQ(c->TimeScaleMarkerWorldTime(u"a"), Date::Unchecked(1e9));
  c->SetTimeScaleMarkerWorldTime(u"a", Date::Unchecked(-1e9));
  EXPECT_EQ(c->TimeScaleMarkerWorldTime(u"a"), Date::Unchecked(-1e9));
}

TEST(TimeScaleMarker, GoesWhenTheTimeLineIsClearedByContract) {
  const AttachedControl c;
  c->TimeScaleMarkerAdd(At(1), u"a");
  c.timeline->Clear();
  EXPECT_EQ(c->TimeScaleMarkersCount(), 0);
}

TEST(TimeScaleMarker, NeitherRepaintsTheCanvasNorRaisesAnything) {
  RecordingCompanions companions;
  companions.scroller->marker = Make<RecordingMarker>(companions.log);
  const AttachedControl c(companions.All());
  Counter cursor(c->CursorTimeChange);
  companions.log.Take();
  c->TimeScaleMarkerAdd(At(1), u"a");
  c->TimeScaleMarkerAdd(At(1), u"b", u"caption", false);
  WriteAll(*c.control.Get(), u"a");
  c->TimeScaleMarkerRemove(2);
  c->TimeScaleMarkersClear();
  EXPECT_EQ(companions.log.Take(),
            "Scroller.MarkerAdd (#2000-01-01 12:00:01#, 'a', '', true); "
            "Scroller.MarkerAdd (#2000-01-01 12:00:01#, 'b', 'caption', false); "
            "Marker.WorldTime = #2000-01-01 12:00:05#; Marker.Caption = 'caption'; Marker.Tag = 'tag'; "
            "Marker.UserData = 7; Scroller.MarkerRemove (2); Scroller.MarkersClear");
  EXPECT_EQ(cursor.Take(), 0);
}

TEST(TimeScaleMarker, LetsNothingOutWhicheverCallFails) {
  for (const char* call : {"*", "Scroller.Marker", "Marker.WorldTime", "Marker.Caption", "Marker.Tag",
                           "Marker.UserData", "Scroller.MarkersCount"}) {
    RecordingCompanions companions;
    companions.scroller->marker = Make<RecordingMarker>(companions.log);
    companions.scroller->markersCount = 3;
    const BareControl c(companions.All());
    WriteAll(*c.control.Get(), u"a");
    companions.log.failing = call;
    EXPECT_NO_THROW({
      WriteAll(*c.control.Get(), u"a");
      c->TimeScaleMarkerAdd(At(1), u"a");
      c->TimeScaleMarkerRemove(u"a");
      c->TimeScaleMarkersClear();
      c->TimeScaleMarkersCount();
      c->TimeScaleMarkerDefinition(u"a");
    }) << call;
    const auto fails = [&](const char* name) {
      return std::string("*") == call || std::string("Scroller.Marker") == call || std::string(name) == call;
    };
    EXPECT_EQ(c->TimeScaleMarkerWorldTime(u"a"), fails("Marker.WorldTime") ? Date() : At(5)) << call;
    EXPECT_EQ(c->TimeScaleMarkerCaption(u"a"), fails("Marker.Caption") ? u"" : u"caption") << call;
    EXPECT_EQ(c->TimeScaleMarkerTag(u"a"), fails("Marker.Tag") ? u"" : u"tag") << call;
    EXPECT_EQ(c->TimeScaleMarkerUserData(u"a"), fails("Marker.UserData") ? Variant() : Variant(7)) << call;
    const bool countFails = std::string("*") == call || std::string("Scroller.MarkersCount") == call;
    EXPECT_EQ(c->TimeScaleMarkersCount(), countFails ? 0 : 3) << call;
  }
}

TEST(TimeScaleMarker, CountReadsZeroBeyondSixteenBitsAsAfterAnyOtherFailure) {
  RecordingCompanions companions;
  const BareControl c(companions.All());
  companions.scroller->markersCount = 32767;
  EXPECT_EQ(c->TimeScaleMarkersCount(), 32767);
  companions.scroller->markersCount = 32768;
  EXPECT_EQ(c->TimeScaleMarkersCount(), 0);
}

TEST(TimeScaleMarker, MayDropTheControlAtTheEndOfItsUserData) {
  struct Last final : Object {
    explicit Last(Ref<MURTimelineRender>& ControlA) : control(ControlA) {}
    ~Last() override { control = {}; }
    Ref<MURTimelineRender>& control;
  };
  ScriptedHost host;
  for (int way = 0; way < 3; ++way) {
    auto control = Make<MURTimelineRender>(host);
    control->TimeScaleMarkerAdd(At(1), u"a");
    control->SetTimeScaleMarkerUserData(u"a", Ref<Object>(Make<Last>(control)));
    if (way == 0) control->SetTimeScaleMarkerUserData(u"a", {});
    if (way == 1) control->TimeScaleMarkerRemove(u"a");
    if (way == 2) control->TimeScaleMarkersClear();
    EXPECT_FALSE(control) << way;
  }
}

}  // namespace
}  // namespace mur::test
