#include <limits>

#include <gtest/gtest.h>

#include <murtimeline/automation/error.h>

#include "tests/support/event_recorder.h"
#include "tests/support/foreign_object.h"
#include "tests/support/model_invariants.h"
#include "tests/support/model_objects.h"
#include "tests/support/print.h"

namespace mur::test {
namespace {

const Date kMorning = DateOf(2000, 1, 1, 6);

class Timeline : public testing::Test {
 protected:
  void TearDown() override { ExpectSound(*timeline); }

  FrozenClock clock{kMorning};
  OwnedTimeline timeline;
  EventRecorder recorder{*timeline};
  ModelObjects objects;
};

TEST_F(Timeline, StartsEmptyWithAnHourFromNow) {
  EXPECT_EQ(timeline->Tag(), u"");
  EXPECT_EQ(timeline->AutoID(), 0);
  EXPECT_EQ(timeline->Duration(), 3600);
  EXPECT_EQ(timeline->WorldTimeT0(), kMorning);
  EXPECT_EQ(timeline->NTrackKeys(), 0);
  EXPECT_EQ(timeline->Count(), 0);
}

TEST_F(Timeline, RaisesPropertyChangedForEachNewValueOnly) {
  for (int i = 0; i < 2; ++i) {
    timeline->SetTag(u"t");
    timeline->SetAutoID(7);
    timeline->SetDuration(60);
    timeline->SetWorldTimeT0(DateOf(2000, 1, 2));
  }
  EXPECT_EQ(recorder.Take(),
            "PropertyChanged(Tag); PropertyChanged(AutoID); PropertyChanged(Duration); "
            "PropertyChanged(WorldTimeT0)");
}

TEST_F(Timeline, ComparesItsTagWithLetterCase) {
  timeline->SetTag(u"t");
  timeline->SetTag(u"T");
  EXPECT_EQ(recorder.Take(), "PropertyChanged(Tag); PropertyChanged(Tag)");
}

TEST_F(Timeline, ItsOwnStartAndLengthTouchNoMember) {
  timeline->Add(murtlotScalar, u"S");
  recorder.Take();
  timeline->SetWorldTimeT0(Date::Unchecked(5));
  timeline->SetDuration(5);
  EXPECT_EQ(recorder.Take(), "PropertyChanged(WorldTimeT0); PropertyChanged(Duration)");
  EXPECT_EQ(timeline->Item(1)->WorldTimeT0(), Date());
}

TEST_F(Timeline, GeneratesKeysOfSixDigitsWithoutReportingItsCounter) {
  for (int i = 0; i < 3; ++i) timeline->Add(murtlotGroup);
  EXPECT_EQ(recorder.Take(),
            "TLObjectAdded('Key_000000'); TLObjectAdded('Key_000001'); TLObjectAdded('Key_000002')");
  EXPECT_EQ(timeline->AutoID(), 3);
}

TEST_F(Timeline, GeneratesLongerAndNegativeKeysAsTheirNumbersSay) {
  timeline->SetAutoID(1234567);
  EXPECT_EQ(timeline->Add(murtlotScalar)->Key(), u"Key_1234567");
  timeline->SetAutoID(-5);
  EXPECT_EQ(timeline->Add(murtlotScalar)->Key(), u"Key_-000005");
  timeline->SetAutoID(std::numeric_limits<std::int32_t>::min());
  EXPECT_EQ(timeline->Add(murtlotScalar)->Key(), u"Key_-2147483648");
}

TEST_F(Timeline, RefusesAMemberWhenItsCounterIsAtItsEnd) {
  timeline->SetAutoID(std::numeric_limits<std::int32_t>::max());
  recorder.Take();
  EXPECT_FALSE(timeline->Add(murtlotScalar));
  EXPECT_EQ(timeline->Count(), 0);
  EXPECT_EQ(timeline->AutoID(), std::numeric_limits<std::int32_t>::max());
  EXPECT_EQ(recorder.Take(), "");
}

TEST_F(Timeline, CreatesTheClassOfEachType) {
  EXPECT_EQ(timeline->Add(murtlotGroup, u"G")->ObjectType(), murtlotGroup);
  EXPECT_EQ(timeline->Add(murtlotScalar, u"S")->ObjectType(), murtlotScalar);
  EXPECT_EQ(timeline->Add(murtlotMedia, u"M")->ObjectType(), murtlotMedia);
}

TEST_F(Timeline, CreatesNothingForAnyOtherType) {
  for (const int type : {int{murtlotMeasurements}, int{murtlotUnknown}, 5, -1})
    EXPECT_FALSE(timeline->Add(static_cast<MURTimelineObjectType>(type), u"K", true));
  EXPECT_EQ(recorder.Take(), "");
  EXPECT_EQ(timeline->AutoID(), 0);
}

TEST_F(Timeline, AddOfATrackAddsItsKeyAfterTheMember) {
  timeline->Add(murtlotScalar, u"A", true);
  EXPECT_EQ(recorder.Take(), "TLObjectAdded('A'); PropertyChanged(NTrackKeys)");
  EXPECT_EQ(timeline->NTrackKeys(), 1);
  EXPECT_EQ(timeline->TrackKey(1), u"A");
}

TEST_F(Timeline, BecomesTheSinkOfAMemberButNotItsParent) {
  const auto member = timeline->Add(murtlotScalar, u"A");
  EXPECT_EQ(member->EventSink(), timeline.Get());
  EXPECT_FALSE(member->Parent());
}

TEST_F(Timeline, InsertPutsTheKeyThroughTheOldSinkBeforeItTakesOver) {
  const auto scalar = objects.Scalar(u"old");
  objects.sink->Take();
  EXPECT_TRUE(timeline->Insert(scalar, u"new"));
  EXPECT_EQ(objects.sink->Take(), "new.Key = 'new'");
  EXPECT_EQ(recorder.Take(), "TLObjectAdded('new')");
}

TEST_F(Timeline, InsertRefusesAKnownKeyInAnyLetterCase) {
  timeline->Add(murtlotScalar, u"Straße");
  recorder.Take();
  EXPECT_FALSE(timeline->Add(murtlotScalar, u"STRAßE"));
  EXPECT_EQ(recorder.Take(), "");
  EXPECT_EQ(timeline->Count(), 1);
}

TEST_F(Timeline, InsertUsesUpAGeneratedNumberEvenWhenItsKeyIsKnown) {
  timeline->Add(murtlotScalar, u"Key_000000");
  EXPECT_FALSE(timeline->Add(murtlotScalar));
  EXPECT_EQ(timeline->AutoID(), 1);
  EXPECT_EQ(timeline->Add(murtlotScalar)->Key(), u"Key_000001");
}

TEST_F(Timeline, InsertRefusesNothingAndKeysThatAreNoText) {
  EXPECT_FALSE(timeline->Insert(nullptr, u"K"));
  for (const Variant& key : std::vector<Variant>{1, 1.5, Variant(), Variant::Null(), true, kMorning})
    EXPECT_FALSE(timeline->Insert(objects.Scalar(u""), key));
  EXPECT_EQ(recorder.Take(), "");
  EXPECT_EQ(timeline->Count(), 0);
}

TEST_F(Timeline, InsertTakesTheEmptyTextAndOddTextsAsKeysLikeAnyOther) {
  const std::vector<String> keys = {u"",
                                    {u'a', u'\0'},
                                    {u'a', u'\0', u'b'},
                                    {char16_t{0xD800}},
                                    {char16_t{0xDC00}},
                                    String(1'000'000, u'x')};
  for (const String& key : keys) EXPECT_TRUE(timeline->Insert(objects.Scalar(u""), key));
  for (std::size_t i = 0; i < keys.size(); ++i)
    EXPECT_EQ(timeline->Item(keys[i]), timeline->Item(static_cast<int>(i) + 1));
}

TEST_F(Timeline, InsertKeepsTheMemberButSaysFalseWhenItsKeyCannotBePut) {
  const auto hostile = objects.Keep(Make<HostileObject>());
  hostile->failing = "SetKey";
  EXPECT_FALSE(timeline->Insert(hostile, u"H"));
  EXPECT_EQ(timeline->Item(u"H"), hostile);
  EXPECT_FALSE(hostile->EventSink());
  EXPECT_EQ(recorder.Take(), "");
}

TEST_F(Timeline, InsertSaysFalseWhenItsListenerFailsAndAddThenGivesNothing) {
  const Connection connection = timeline->TLObjectAdded.Connect([](const Variant&) { throw 42; });
  EXPECT_FALSE(timeline->Add(murtlotScalar, u"S", true));
  EXPECT_EQ(recorder.Take(), "TLObjectAdded('S')");
  EXPECT_EQ(timeline->Count(), 1);
  EXPECT_EQ(timeline->NTrackKeys(), 0);
}

TEST_F(Timeline, ItemFindsByKeyInAnyLetterCaseAndByPosition) {
  const auto a = timeline->Add(murtlotScalar, u"a"), b = timeline->Add(murtlotScalar, u"b");
  EXPECT_EQ(timeline->Item(u"A"), a);
  EXPECT_EQ(timeline->ItemByKey(u"B"), b);
  EXPECT_EQ(timeline->Item(2), b);
  EXPECT_EQ(timeline->Item(2.5), b);
  EXPECT_FALSE(timeline->Item(u"2"));
  EXPECT_FALSE(timeline->Item(0));
  EXPECT_FALSE(timeline->Item(3));
  EXPECT_FALSE(timeline->Item(Variant::Missing()));
  EXPECT_FALSE(timeline->Item(Ref<Object>()));
}

TEST_F(Timeline, RemoveFreesTheMemberAndRaisesNTrackKeysBeforeTheRemoval) {
  const auto member = timeline->Add(murtlotScalar, u"A", true);
  member->SetTag(u"t");
  recorder.Take();
  timeline->Remove(u"a");
  EXPECT_EQ(recorder.Take(), "PropertyChanged(NTrackKeys); TLObjectRemoved('a', 't')");
  EXPECT_EQ(timeline->NTrackKeys(), 0);
  EXPECT_EQ(timeline->Count(), 0);
  EXPECT_EQ(member->Key(), u"");
  EXPECT_FALSE(member->EventSink());
}

TEST_F(Timeline, RemoveOfAPositionPassesThePositionOn) {
  timeline->Add(murtlotScalar, u"A");
  recorder.Take();
  timeline->Remove(1);
  EXPECT_EQ(recorder.Take(), "PropertyChanged(NTrackKeys); TLObjectRemoved(1, '')");
}

TEST_F(Timeline, RemoveRaisesNTrackKeysForAMemberThatIsNoTrackTooAndThatIsMeant) {
  timeline->Add(murtlotScalar, u"A", true);
  timeline->Add(murtlotScalar, u"B");
  recorder.Take();
  timeline->Remove(u"B");
  EXPECT_EQ(recorder.Take(), "PropertyChanged(NTrackKeys); TLObjectRemoved('B', '')");
  EXPECT_EQ(timeline->NTrackKeys(), 1);
}

TEST_F(Timeline, RemoveOfWhatIsNotThereRaisesNothing) {
  timeline->Add(murtlotScalar, u"A");
  recorder.Take();
  for (const Variant& missing : std::vector<Variant>{u"x", 0, 2, Variant(), Variant::Null()})
    timeline->Remove(missing);
  EXPECT_EQ(recorder.Take(), "");
  EXPECT_EQ(timeline->Count(), 1);
}

TEST_F(Timeline, RemoveKeepsAMemberThatCannotBeFreed) {
  const auto hostile = objects.Keep(Make<HostileObject>());
  timeline->Insert(hostile, u"H");
  recorder.Take();
  hostile->failing = "Free";
  timeline->Remove(u"H");
  EXPECT_EQ(recorder.Take(), "");
  EXPECT_EQ(timeline->Item(u"H"), hostile);
  hostile->failing.clear();
}

TEST_F(Timeline, ClearRaisesClearingAndClearedAloneAndStartsAnew) {
  const auto member = timeline->Add(murtlotGroup, u"A", true);
  timeline->SetTag(u"t");
  timeline->SetDuration(5);
  recorder.Take();
  clock.Set(DateOf(2000, 1, 1, 7));
  timeline->Clear();
  EXPECT_EQ(recorder.Take(), "Clearing; Cleared");
  EXPECT_EQ(timeline->Count(), 0);
  EXPECT_EQ(timeline->Tag(), u"");
  EXPECT_EQ(timeline->AutoID(), 0);
  EXPECT_EQ(timeline->Duration(), 3600);
  EXPECT_EQ(timeline->WorldTimeT0(), DateOf(2000, 1, 1, 7));
  EXPECT_EQ(timeline->NTrackKeys(), 0);
  EXPECT_FALSE(member->EventSink());
}

TEST_F(Timeline, ClearGoesOnWhenListenersAndMembersFail) {
  const Connection clearing = timeline->Clearing.Connect([] { throw 42; });
  const auto hostile = objects.Keep(Make<HostileObject>());
  hostile->failing = "Free";
  const auto scalar = objects.Scalar(u"");
  timeline->Insert(hostile, u"H");
  timeline->Insert(scalar, u"S");
  recorder.Take();
  timeline->Clear();
  EXPECT_EQ(recorder.Take(), "Clearing; Cleared");
  EXPECT_EQ(timeline->Count(), 0);
  EXPECT_EQ(scalar->Key(), u"");
  hostile->failing.clear();
}

TEST_F(Timeline, EnumerateRaisesEveryPropertyInItsOrder) {
  timeline->EnumerateProperties();
  EXPECT_EQ(recorder.Take(),
            "PropertyChanged(Tag); PropertyChanged(AutoID); PropertyChanged(Duration); "
            "PropertyChanged(WorldTimeT0); PropertyChanged(NTrackKeys)");
  timeline->SetDuration(3600);
  EXPECT_EQ(recorder.Take(), "");
}

TEST_F(Timeline, EnumerateReportsUnchangedPutsOfItsListenersTooWhileItRuns) {
  bool put = false;
  const Connection connection = timeline->PropertyChanged.Connect([&](StringView name) {
    if (name == u"AutoID" && !std::exchange(put, true)) timeline->SetTag(u"");
  });
  timeline->EnumerateProperties();
  EXPECT_EQ(recorder.Take(),
            "PropertyChanged(Tag); PropertyChanged(AutoID); PropertyChanged(Tag); PropertyChanged(Duration); "
            "PropertyChanged(WorldTimeT0); PropertyChanged(NTrackKeys)");
}

TEST_F(Timeline, TrackKeysStayUniqueButRaiseTheirEventAlways) {
  EXPECT_EQ(timeline->AddTrackKey(u"A"), Variant());
  timeline->AddTrackKey(u"a");
  timeline->AddTrackKey(u"B");
  EXPECT_EQ(timeline->NTrackKeys(), 2);
  timeline->RemoveTrackKey(u"x");
  timeline->RemoveTrackKey(1);
  EXPECT_EQ(timeline->TrackKey(1), u"B");
  EXPECT_EQ(recorder.Take(),
            "PropertyChanged(NTrackKeys); PropertyChanged(NTrackKeys); PropertyChanged(NTrackKeys); "
            "PropertyChanged(NTrackKeys); PropertyChanged(NTrackKeys)");
}

TEST_F(Timeline, TrackKeyIsEmptyWhenThereIsNone) {
  timeline->AddTrackKey(u"A");
  EXPECT_EQ(timeline->TrackKey(u"a"), u"A");
  EXPECT_EQ(timeline->TrackKey(0), u"");
  EXPECT_EQ(timeline->TrackKey(2), u"");
  EXPECT_EQ(timeline->TrackKey(u"B"), u"");
  EXPECT_EQ(timeline->TrackKey(Variant::Null()), u"");
}

TEST_F(Timeline, TrackPositionComparesWithLetterCase) {
  timeline->AddTrackKey(u"A");
  timeline->AddTrackKey(u"B");
  EXPECT_EQ(timeline->TrackPosition(u"B"), 2u);
  EXPECT_EQ(timeline->TrackPosition(u"b"), 0u);
  EXPECT_EQ(timeline->TrackPosition(u"C"), 0u);
}

TEST_F(Timeline, TooManyTrackKeysForSixteenBitsOverflowForTheReaderOnly) {
  for (int i = 0; i < 32768; ++i) timeline->AddTrackKey(FromAscii(std::to_string(i)));
  EXPECT_THROW(timeline->NTrackKeys(), AutomationError);
  EXPECT_THROW(timeline->AsString(u""), AutomationError);
  EXPECT_EQ(timeline->TrackKey(32768), u"32767");
  timeline->RemoveTrackKey(1);
  EXPECT_EQ(timeline->NTrackKeys(), 32767);
}

TEST_F(Timeline, TooManyMembersForSixteenBitsOverflowInTheDumpOnly) {
  for (int i = 0; i < 32768; ++i) timeline->Add(murtlotScalar);
  EXPECT_EQ(timeline->Count(), 32768);
  EXPECT_THROW(timeline->AsString(u""), AutomationError);
}

TEST_F(Timeline, RaisesTheReportsOfItsMembersAsItsOwnEvents) {
  const auto group = timeline->Add(murtlotGroup, u"G");
  const auto child = timeline->Add(murtlotScalar, u"S");
  recorder.Take();
  group->Add(child, u"S");
  group->SetWorldTimeT0(Date::Unchecked(1));
  group->Remove(u"S");
  EXPECT_EQ(
      recorder.Take(),
      "TLObjectPropertyChanged(S.Key = 'S'); TLObjectAdopted(G, S); "
      "TLObjectPropertyChanged(S.Offset = -86400); TLObjectPropertyChanged(S.WorldtimeT0 = #1899-12-30#); "
      "TLObjectPropertyChanged(G.WorldtimeT0 = #1899-12-31#); TLObjectOrphaned(G, S)");
}

TEST_F(Timeline, EnumerationGoesOnWhileMembersComeAndGo) {
  for (const auto* key : {u"a", u"b", u"c"}) timeline->Add(murtlotScalar, key);
  auto walk = timeline->NewEnum();
  EXPECT_EQ(walk.Next()->Key(), u"a");
  timeline->Remove(u"b");
  timeline->Add(murtlotScalar, u"d");
  EXPECT_EQ(walk.Next()->Key(), u"c");
  EXPECT_EQ(walk.Next()->Key(), u"d");
  EXPECT_FALSE(walk.Next());
  walk.Reset();
  EXPECT_EQ(walk.Next()->Key(), u"a");
}

TEST_F(Timeline, DumpsItsPropertiesAndThenItsMembersIndented) {
  EXPECT_EQ(ToUtf8(timeline->AsString(u"")),
            "Tag: \r\n"
            "AutoID: 0\r\n"
            "Duration: 3600\r\n"
            "WorldTimeT0: 1/1/2000 6:00:00 AM\r\n"
            "NTrackKeys: 0\r\n"
            "Count: 0\r\n");
  timeline->Add(murtlotScalar, u"S", true);
  timeline->Add(murtlotScalar, u"R");
  timeline->SetDuration(0.1 + 0.2);
  EXPECT_EQ(ToUtf8(timeline->AsString(u"> ")),
            "> Tag: \r\n"
            "> AutoID: 0\r\n"
            "> Duration: 0.3\r\n"
            "> WorldTimeT0: 1/1/2000 6:00:00 AM\r\n"
            "> NTrackKeys: 1\r\n"
            "> Count: 2\r\n"
            ">     CMURTimelineScalar: S  (Tag: ) - Scalar Data\r\n"
            ">       Parent         : ## No Parent ##\r\n"
            ">       Duration       : 0.000\r\n"
            ">       WorldtimeT0    : 12:00:00 AM\r\n"
            ">       Offset         : 0.000\r\n"
            ">       LockedToParent : False\r\n"
            ">     CMURTimelineScalar: R  (Tag: ) - Scalar Data\r\n"
            ">       Parent         : ## No Parent ##\r\n"
            ">       Duration       : 0.000\r\n"
            ">       WorldtimeT0    : 12:00:00 AM\r\n"
            ">       Offset         : 0.000\r\n"
            ">       LockedToParent : False\r\n");
}

TEST_F(Timeline, DumpsItsSpecificPartAlone) {
  timeline->SetDuration(1e21);
  EXPECT_EQ(ToUtf8(timeline->Specifics_AsString(u"  ")),
            "  Duration: 1E+21\r\n  WorldTimeT0: 1/1/2000 6:00:00 AM\r\n  NTrackKeys: 0\r\n");
}

}  // namespace
}  // namespace mur::test
