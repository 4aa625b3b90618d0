#include <limits>

#include <gtest/gtest.h>

#include "tests/support/foreign_object.h"
#include "tests/support/model_invariants.h"
#include "tests/support/model_objects.h"
#include "tests/support/print.h"

namespace mur::test {
namespace {

class Group : public testing::Test {
 protected:
  void SetUp() override { sink.Take(); }
  void TearDown() override { ExpectSound(Ref<IMURTimelineObject>(group)); }

  ModelObjects objects;
  Ref<CMURTimelineGroup> group = objects.Group(u"G");
  RecordingSink& sink = *objects.sink;
};

TEST_F(Group, StartsEmptyAtDateZeroWithAnUnknownGroupType) {
  const auto fresh = Make<CMURTimelineGroup>();
  EXPECT_EQ(fresh->ObjectType(), murtlotGroup);
  EXPECT_EQ(fresh->GroupType(), murtlotUnknown);
  EXPECT_EQ(fresh->Key(), u"");
  EXPECT_EQ(fresh->Tag(), u"");
  EXPECT_FALSE(fresh->EventSink());
  EXPECT_FALSE(fresh->Parent());
  EXPECT_EQ(fresh->Count(), 0);
  EXPECT_EQ(fresh->Duration(), 0);
  EXPECT_EQ(fresh->WorldTimeT0(), Date());
  EXPECT_EQ(fresh->offset(), 0);
  EXPECT_FALSE(fresh->LockedToParent());
}

TEST_F(Group, ReportsKeyTagGroupTypeAndDurationAtEveryPutChangedOrNot) {
  for (int i = 0; i < 2; ++i) {
    group->SetKey(u"G");
    group->SetTag(u"t");
    group->SetGroupType(murtlotMedia);
    group->SetDuration(10);
  }
  EXPECT_EQ(sink.Take(),
            "G.Key = 'G'; G.Tag = 't'; G.GroupType = 2; G.Duration = 10; "
            "G.Key = 'G'; G.Tag = 't'; G.GroupType = 2; G.Duration = 10");
}

TEST_F(Group, ReportsEachPropertyWithItsOwnKindOfValue) {
  group->SetGroupType(murtlotScalar);
  group->SetDuration(10);
  group->SetOffset(5);
  group->SetWorldTimeT0(DateOf(2000, 1, 1));
  group->SetLockedToParent(true);
  EXPECT_EQ(sink.Values(), (std::vector<Variant>{std::int32_t{1}, 10.0, 5.0, 0.0, DateOf(2000, 1, 1), true}));
}

TEST_F(Group, ReportsTheLockOnlyWhenItChangesAndRecomputesNothing) {
  group->SetLockedToParent(false);
  group->SetLockedToParent(true);
  group->SetLockedToParent(true);
  EXPECT_EQ(sink.Take(), "G.LockedToParent = true");
}

TEST_F(Group, OnTopWithAnOffsetReportsItsResetThenTellsTheChildrenThenReportsItsStart) {
  const auto child = objects.Scalar(u"S");
  group->Add(child, u"S");
  group->SetOffset(60);
  sink.Take();
  group->SetWorldTimeT0(Date::Unchecked(1));
  EXPECT_EQ(sink.Take(),
            "G.Offset = 0; S.Offset = -86400; S.WorldtimeT0 = #1899-12-30#; G.WorldtimeT0 = #1899-12-31#");
}

TEST_F(Group, WithAParentReportsItsNewStartAfterTheChildrenAndThenItsOffset) {
  const auto child = objects.Group(u"C");
  const auto grandchild = objects.Scalar(u"S");
  group->Add(child, u"C");
  child->Add(grandchild, u"S");
  sink.Take();
  child->SetOffset(43200);
  EXPECT_EQ(sink.Take(),
            "S.Offset = -43200; S.WorldtimeT0 = #1899-12-30#; "
            "C.WorldtimeT0 = #1899-12-30 12:00:00#; C.Offset = 43200");
}

TEST_F(Group, MovedByAnHourTakesALockedChildAlongAndChangesTheOffsetOfAnUnlockedOne) {
  const auto locked = objects.Scalar(u"L");
  const auto unlocked = objects.Scalar(u"U");
  group->Add(locked, u"L");
  group->Add(unlocked, u"U");
  locked->SetLockedToParent(true);
  group->SetWorldTimeT0(Date::Unchecked(1.0 / 24));
  EXPECT_EQ(locked->WorldTimeT0(), Date::Unchecked(1.0 / 24));
  EXPECT_EQ(locked->offset(), 0);
  EXPECT_EQ(unlocked->WorldTimeT0(), Date());
  EXPECT_EQ(unlocked->offset(), -3600);
}

TEST_F(Group, MovesLockedDescendantsOfLockedGroupsAndLeavesThoseOfUnlockedOnes) {
  const auto locked = objects.Group(u"L");
  const auto unlocked = objects.Group(u"U");
  const auto below = objects.Scalar(u"A");
  const auto stays = objects.Scalar(u"B");
  group->Add(locked, u"L");
  group->Add(unlocked, u"U");
  locked->Add(below, u"A");
  unlocked->Add(stays, u"B");
  locked->SetLockedToParent(true);
  below->SetLockedToParent(true);
  stays->SetLockedToParent(true);
  group->SetWorldTimeT0(Date::Unchecked(1));
  EXPECT_EQ(below->WorldTimeT0(), Date::Unchecked(1));
  EXPECT_EQ(stays->WorldTimeT0(), Date());
}

TEST_F(Group, TellsItsChildrenInTheirOrder) {
  for (const auto* key : {u"B", u"A", u"C"}) {
    const auto child = objects.Scalar(key);
    child->SetLockedToParent(true);
    group->Add(child, key);
  }
  sink.Take();
  group->SetWorldTimeT0(Date::Unchecked(1));
  EXPECT_EQ(sink.Take(),
            "B.WorldtimeT0 = #1899-12-31#; B.Offset = 0; A.WorldtimeT0 = #1899-12-31#; A.Offset = 0; "
            "C.WorldtimeT0 = #1899-12-31#; C.Offset = 0; G.WorldtimeT0 = #1899-12-31#");
}

TEST_F(Group, DurationTouchesNoChild) {
  const auto child = objects.Scalar(u"S");
  group->Add(child, u"S");
  sink.Take();
  group->SetDuration(100);
  EXPECT_EQ(sink.Take(), "G.Duration = 100");
}

TEST_F(Group, AddPutsKeyThenParentThenReportsTheAdoption) {
  const auto child = objects.Scalar(u"old");
  sink.Take();
  group->Add(child, u"new");
  EXPECT_EQ(sink.Take(), "new.Key = 'new'; G adopts new");
  EXPECT_EQ(child->Parent(), group);
  EXPECT_EQ(group->Item(u"NEW"), child);
  EXPECT_EQ(group->Item(1), child);
}

TEST_F(Group, AddNeitherSetsTheChildsSinkNorItsOffset) {
  const auto child = Make<CMURTimelineScalar>();
  group->SetWorldTimeT0(Date::Unchecked(1));
  group->Add(child, u"S");
  EXPECT_FALSE(child->EventSink());
  EXPECT_EQ(child->offset(), 0);
}

TEST_F(Group, AddOfAKeyThatExistsInAnyLetterCaseChangesNothing) {
  const auto first = objects.Scalar(u"first"), second = objects.Scalar(u"second");
  group->Add(first, u"K");
  sink.Take();
  group->Add(second, u"k");
  EXPECT_EQ(sink.Take(), "");
  EXPECT_EQ(group->Count(), 1);
  EXPECT_EQ(second->Key(), u"second");
  EXPECT_FALSE(second->Parent());
}

TEST_F(Group, AddOfNothingDoesNothing) {
  group->Add(nullptr, u"K");
  EXPECT_EQ(group->Count(), 0);
  EXPECT_EQ(sink.Take(), "");
}

TEST_F(Group, AddOfAChildOfAnotherParentLeavesItThereAndThatIsMeant) {
  const auto other = objects.Group(u"O");
  const auto child = objects.Scalar(u"S");
  other->Add(child, u"S");
  group->Add(child, u"S");
  EXPECT_EQ(child->Parent(), group);
  EXPECT_EQ(other->Count(), 1);
  EXPECT_EQ(group->Count(), 1);
}

TEST_F(Group, AddKeepsTheChildWhenItsKeyCannotBePut) {
  const auto hostile = objects.Keep(Make<HostileObject>());
  hostile->failing = "SetKey";
  group->Add(hostile, u"H");
  EXPECT_EQ(group->Count(), 1);
  EXPECT_FALSE(hostile->Parent());
  EXPECT_EQ(sink.Take(), "");
}

TEST_F(Group, AddKeepsTheChildButReportsNoAdoptionWhenItsParentCannotBePut) {
  const auto hostile = objects.Keep(Make<HostileObject>());
  hostile->failing = "SetParent";
  group->Add(hostile, u"H");
  EXPECT_EQ(group->Item(u"H"), hostile);
  EXPECT_EQ(sink.Take(), "");
}

TEST_F(Group, RemoveReportsTheOrphanWhichKeepsKeyAndParent) {
  const auto child = objects.Scalar(u"S");
  group->Add(child, u"S");
  sink.Take();
  EXPECT_EQ(group->Remove(u"s"), child);
  EXPECT_EQ(sink.Take(), "G orphans S");
  EXPECT_EQ(group->Count(), 0);
  EXPECT_EQ(child->Key(), u"S");
  EXPECT_EQ(child->Parent(), group);
}

TEST_F(Group, RemoveWithoutASinkTakesTheChildOutButGivesNoneAndThatIsMeant) {
  group->Add(objects.Scalar(u"S"), u"S");
  group->SetEventSink(nullptr);
  EXPECT_FALSE(group->Remove(1));
  EXPECT_EQ(group->Count(), 0);
}

TEST_F(Group, RemoveGivesNoneWhenTheSinkFailsAlthoughTheChildWent) {
  group->Add(objects.Scalar(u"S"), u"S");
  sink.onOrphaned = [] { throw 42; };
  EXPECT_FALSE(group->Remove(1));
  EXPECT_EQ(group->Count(), 0);
}

TEST_F(Group, RemoveOfWhatIsNotThereReportsNothing) {
  group->Add(objects.Scalar(u"S"), u"S");
  sink.Take();
  for (const Variant& missing : std::vector<Variant>{u"x", u"1", 0, 2, -1, Variant(), Variant::Null()})
    EXPECT_FALSE(group->Remove(missing));
  EXPECT_EQ(sink.Take(), "");
  EXPECT_EQ(group->Count(), 1);
}

TEST_F(Group, ItemTakesAnyKindOfNumberAsAPositionRoundedHalfToEven) {
  const auto first = objects.Scalar(u"a"), second = objects.Scalar(u"b");
  group->Add(first, u"a");
  group->Add(second, u"b");
  EXPECT_EQ(group->Item(std::uint8_t{2}), second);
  EXPECT_EQ(group->Item(1.4), first);
  EXPECT_EQ(group->Item(1.5f), second);
  EXPECT_EQ(group->Item(2.5), second);
  EXPECT_EQ(group->Item(Date::Unchecked(1)), first);
  EXPECT_FALSE(group->Item(0.5));
  EXPECT_FALSE(group->Item(true));
  EXPECT_FALSE(group->Item(1e300));
  EXPECT_FALSE(group->Item(std::numeric_limits<double>::quiet_NaN()));
}

TEST_F(Group, ClearDropsChildrenWithoutFreeingThemAndKeepsItsGroupType) {
  const auto child = objects.Scalar(u"S");
  group->Add(child, u"S");
  group->SetGroupType(murtlotScalar);
  group->SetTag(u"t");
  group->SetDuration(1);
  group->SetWorldTimeT0(Date::Unchecked(1));
  group->SetLockedToParent(true);
  sink.Take();
  group->Clear();
  EXPECT_EQ(sink.Take(), "");
  EXPECT_EQ(group->Count(), 0);
  EXPECT_EQ(group->Key(), u"");
  EXPECT_EQ(group->Tag(), u"");
  EXPECT_FALSE(group->EventSink());
  EXPECT_EQ(group->Duration(), 0);
  EXPECT_EQ(group->WorldTimeT0(), Date());
  EXPECT_EQ(group->offset(), 0);
  EXPECT_FALSE(group->LockedToParent());
  EXPECT_EQ(group->GroupType(), murtlotScalar);
  EXPECT_EQ(child->Key(), u"S");
  EXPECT_EQ(child->Parent(), group);
}

TEST_F(Group, ClearedTakesChildrenAgain) {
  group->Clear();
  group->Add(objects.Scalar(u"S"), u"S");
  EXPECT_EQ(group->Count(), 1);
}

TEST_F(Group, FreedHasNoChildrenTakesNoneAndRaisesNoError) {
  const auto child = objects.Scalar(u"S");
  group->Add(child, u"S");
  group->Free();
  EXPECT_EQ(group->Count(), 0);
  EXPECT_FALSE(group->Item(1));
  EXPECT_FALSE(group->Remove(1));
  group->Add(child, u"S");
  EXPECT_EQ(group->Count(), 0);
  group->SetWorldTimeT0(Date::Unchecked(1));
  EXPECT_EQ(group->WorldTimeT0(), Date::Unchecked(1));
  group->Clear();
  group->Free();
  EXPECT_EQ(child->Parent(), group);
}

TEST_F(Group, CountsTooManyChildrenForSixteenBitsAsAnOverflowButWorksOn) {
  for (int i = 0; i < 32768; ++i) {
    const auto child = Make<CMURTimelineScalar>();
    child->SetLockedToParent(true);
    group->Add(child, FromAscii(std::to_string(i)));
  }
  EXPECT_THROW(group->Count(), AutomationError);
  EXPECT_EQ(group->ChildCount(), 32768u);
  group->SetWorldTimeT0(Date::Unchecked(1));
  EXPECT_EQ(group->Item(32768)->WorldTimeT0(), Date::Unchecked(1));
  EXPECT_THROW(group->AsString(u""), AutomationError);
  group->Remove(32768);
  EXPECT_EQ(group->Count(), 32767);
}

TEST_F(Group, PutToNotANumberNeitherHangsNorFails) {
  constexpr double kNone = std::numeric_limits<double>::quiet_NaN();
  const auto child = objects.Group(u"C");
  group->Add(child, u"C");
  sink.Take();
  child->SetWorldTimeT0(Date::Unchecked(kNone));
  child->SetOffset(kNone);
  EXPECT_EQ(sink.Take(), "C.WorldtimeT0 = #nan#; C.Offset = nan");
}

TEST_F(Group, TellsAForeignChildThatItMoved) {
  const auto foreign = objects.Keep(Make<ForeignObject>());
  group->Add(foreign, u"F");
  group->SetWorldTimeT0(Date::Unchecked(1));
  EXPECT_EQ(foreign->timesToldThatTheParentMoved, 1);
}

TEST_F(Group, TellsTheOtherChildrenWhenOneFails) {
  const auto hostile = objects.Keep(Make<HostileObject>());
  const auto scalar = objects.Scalar(u"S");
  scalar->SetLockedToParent(true);
  hostile->failing = "ParentWorldtimeT0Changed";
  group->Add(hostile, u"H");
  group->Add(scalar, u"S");
  group->SetWorldTimeT0(Date::Unchecked(1));
  EXPECT_EQ(scalar->WorldTimeT0(), Date::Unchecked(1));
}

TEST_F(Group, OfAForeignParentTakesItsOffsetFromIt) {
  const auto parent = objects.Keep(Make<ForeignObject>());
  parent->SetWorldTimeT0(Date::Unchecked(10));
  parent->Add(group, u"G");
  group->SetWorldTimeT0(Date::Unchecked(11));
  EXPECT_EQ(group->offset(), 86400);
  group->SetOffset(172800);
  EXPECT_EQ(group->WorldTimeT0(), Date::Unchecked(12));
}

TEST_F(Group, KeepsItsOffsetWhenTheParentCannotSayItsTime) {
  const auto parent = objects.Keep(Make<HostileObject>());
  parent->failing = "WorldTimeT0";
  group->SetParent(parent);
  group->SetWorldTimeT0(Date::Unchecked(11));
  EXPECT_EQ(group->offset(), 0);
  EXPECT_EQ(sink.Take(), "G.WorldtimeT0 = #1900-01-10#");
}

TEST_F(Group, ChildrenRemovedInsideAReportAreNotToldAnyMore) {
  const auto first = objects.Scalar(u"a"), second = objects.Scalar(u"b");
  group->Add(first, u"a");
  group->Add(second, u"b");
  sink.Take();
  sink.onReport = [&](const auto&, StringView) {
    while (group->Count() > 0) group->Remove(1);
  };
  group->SetWorldTimeT0(Date::Unchecked(1));
  EXPECT_EQ(sink.Take(),
            "a.Offset = -86400; G orphans a; G orphans b; a.WorldtimeT0 = #1899-12-30#; "
            "G.WorldtimeT0 = #1899-12-31#");
}

TEST_F(Group, FreedInsideAReportCompletesItsPut) {
  group->Add(objects.Scalar(u"a"), u"a");
  group->Add(objects.Scalar(u"b"), u"b");
  sink.Take();
  sink.onReport = [&](const auto&, StringView) { group->Free(); };
  group->SetWorldTimeT0(Date::Unchecked(1));
  EXPECT_EQ(group->Count(), 0);
  EXPECT_EQ(sink.Take(), "a.Offset = -86400; a.WorldtimeT0 = #1899-12-30#");
}

TEST_F(Group, EndlessAdoptionsFromTheSinkEndWithoutAnError) {
  int adopted = 0;
  sink.onAdopted = [&] { group->Add(Make<CMURTimelineScalar>(), FromAscii(std::to_string(++adopted))); };
  group->Add(Make<CMURTimelineScalar>(), u"first");
  EXPECT_GT(adopted, 100);
}

}  // namespace
}  // namespace mur::test
