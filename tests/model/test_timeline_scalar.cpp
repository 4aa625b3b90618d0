#include <limits>

#include <gtest/gtest.h>

#include "tests/support/model_objects.h"
#include "tests/support/print.h"

namespace mur::test {
namespace {

// With its parent at 1 January 2000 00:00, where a time put through days and back is not what it was.
constexpr double kDriftedHour = 3599.9999997904524;

class Scalar : public testing::Test {
 protected:
  void AdoptInto(const Ref<CMURTimelineGroup>& ParentA) {
    ParentA->Add(scalar, u"S");
    objects.sink->Take();
  }

  ModelObjects objects;
  Ref<CMURTimelineScalar> scalar = objects.Scalar(u"S");
  RecordingSink& sink = *objects.sink;
  void SetUp() override { sink.Take(); }
};

TEST_F(Scalar, StartsEmptyAtDateZeroWithoutLengthUnlockedAndAlone) {
  const auto fresh = Make<CMURTimelineScalar>();
  EXPECT_EQ(fresh->Key(), u"");
  EXPECT_EQ(fresh->Tag(), u"");
  EXPECT_FALSE(fresh->EventSink());
  EXPECT_FALSE(fresh->Parent());
  EXPECT_EQ(fresh->Duration(), 0);
  EXPECT_EQ(fresh->WorldTimeT0(), Date());
  EXPECT_EQ(fresh->offset(), 0);
  EXPECT_FALSE(fresh->LockedToParent());
}

TEST_F(Scalar, SaysThatItIsAScalarWithoutAGroupType) {
  scalar->SetGroupType(murtlotMedia);
  EXPECT_EQ(scalar->ObjectType(), murtlotScalar);
  EXPECT_EQ(scalar->GroupType(), murtlotUnknown);
  EXPECT_EQ(sink.Take(), "");
}

TEST_F(Scalar, HasNoChildrenAndTakesNone) {
  const auto child = objects.Scalar(u"C");
  sink.Take();
  scalar->Add(child, u"C");
  EXPECT_EQ(scalar->Count(), 0);
  EXPECT_FALSE(scalar->Item(u"C"));
  EXPECT_FALSE(scalar->Item(1));
  EXPECT_FALSE(scalar->Remove(1));
  EXPECT_FALSE(child->Parent());
  EXPECT_EQ(sink.Take(), "");
}

TEST_F(Scalar, ReportsKeyTagAndDurationAtEveryPutChangedOrNot) {
  scalar->SetKey(u"K");
  scalar->SetKey(u"K");
  scalar->SetTag(u"t");
  scalar->SetTag(u"t");
  scalar->SetDuration(10);
  scalar->SetDuration(10);
  EXPECT_EQ(sink.Take(),
            "K.Key = 'K'; K.Key = 'K'; K.Tag = 't'; K.Tag = 't'; K.Duration = 10; K.Duration = 10");
}

TEST_F(Scalar, ReportsTheLockOnlyWhenItChanges) {
  scalar->SetLockedToParent(false);
  scalar->SetLockedToParent(true);
  scalar->SetLockedToParent(true);
  EXPECT_EQ(sink.Take(), "S.LockedToParent = true");
}

TEST_F(Scalar, ReportsEachPropertyWithItsOwnKindOfValue) {
  scalar->SetTag(u"t");
  scalar->SetDuration(10);
  scalar->SetOffset(5);
  scalar->SetWorldTimeT0(DateOf(2000, 1, 1));
  scalar->SetLockedToParent(true);
  EXPECT_EQ(sink.Values(), (std::vector<Variant>{u"t", 10.0, 5.0, 0.0, DateOf(2000, 1, 1), true}));
}

TEST_F(Scalar, StoresANegativeDurationAndAnEmptyKeyAsTheyAre) {
  scalar->SetDuration(-5);
  scalar->SetKey(u"");
  EXPECT_EQ(scalar->Duration(), -5);
  EXPECT_EQ(scalar->Key(), u"");
}

TEST_F(Scalar, WithoutAParentAndWithoutAnOffsetReportsANewStartAlone) {
  scalar->SetWorldTimeT0(DateOf(2000, 1, 1, 1));
  EXPECT_EQ(sink.Take(), "S.WorldtimeT0 = #2000-01-01 01:00:00#");
}

TEST_F(Scalar, WithoutAParentANewStartResetsTheOffsetFirst) {
  scalar->SetOffset(60);
  scalar->SetWorldTimeT0(DateOf(2000, 1, 1));
  EXPECT_EQ(sink.Take(), "S.Offset = 60; S.Offset = 0; S.WorldtimeT0 = #2000-01-01#");
  EXPECT_EQ(scalar->offset(), 0);
}

TEST_F(Scalar, WithoutAParentAnOffsetIsStoredAndReportedButMovesNothing) {
  scalar->SetOffset(60);
  EXPECT_EQ(sink.Take(), "S.Offset = 60");
  EXPECT_EQ(scalar->WorldTimeT0(), Date());
}

TEST_F(Scalar, StaysSilentForAnUnchangedStartOrOffset) {
  scalar->SetWorldTimeT0(Date());
  scalar->SetOffset(0);
  EXPECT_EQ(sink.Take(), "");
}

TEST_F(Scalar, OfAParentReportsItsOffsetBeforeItsNewStart) {
  AdoptInto(objects.Group(u"G"));
  scalar->SetWorldTimeT0(Date::Unchecked(0.5));
  EXPECT_EQ(sink.Take(), "S.Offset = 43200; S.WorldtimeT0 = #1899-12-30 12:00:00#");
}

TEST_F(Scalar, OfAParentReportsItsNewStartBeforeItsOffset) {
  AdoptInto(objects.Group(u"G"));
  scalar->SetOffset(43200);
  EXPECT_EQ(sink.Take(), "S.WorldtimeT0 = #1899-12-30 12:00:00#; S.Offset = 43200");
  EXPECT_EQ(scalar->WorldTimeT0(), Date::Unchecked(0.5));
}

TEST_F(Scalar, DriftOfTheOffsetThroughDaysAndBackIsMeant) {
  const auto group = objects.Group(u"G");
  group->SetWorldTimeT0(Date::Unchecked(36526));
  AdoptInto(group);
  scalar->SetWorldTimeT0(Date::Unchecked(36526));
  sink.Take();
  scalar->SetOffset(3600);
  EXPECT_EQ(sink.Take(),
            "S.Offset = 3599.9999997904524; S.WorldtimeT0 = #2000-01-01 01:00:00#; "
            "S.Offset = 3599.9999997904524");
  EXPECT_EQ(scalar->offset(), kDriftedHour);
  EXPECT_EQ(scalar->WorldTimeT0(), DateOf(2000, 1, 1, 1));
}

TEST_F(Scalar, LockedFollowsItsParentAndReportsTheUnchangedOffsetToo) {
  const auto group = objects.Group(u"G");
  AdoptInto(group);
  scalar->SetLockedToParent(true);
  group->SetEventSink(nullptr);
  sink.Take();
  group->SetWorldTimeT0(Date::Unchecked(0.25));
  EXPECT_EQ(sink.Take(), "S.WorldtimeT0 = #1899-12-30 06:00:00#; S.Offset = 0");
  EXPECT_EQ(scalar->WorldTimeT0(), Date::Unchecked(0.25));
}

TEST_F(Scalar, LockedToldOfAParentThatDidNotMoveReportsItsOffsetAlone) {
  AdoptInto(objects.Group(u"G"));
  scalar->SetLockedToParent(true);
  sink.Take();
  scalar->ParentWorldtimeT0Changed();
  EXPECT_EQ(sink.Take(), "S.Offset = 0");
}

TEST_F(Scalar, UnlockedStaysWhereItIsAndReportsTheUnchangedStartToo) {
  const auto group = objects.Group(u"G");
  AdoptInto(group);
  group->SetEventSink(nullptr);
  group->SetWorldTimeT0(Date::Unchecked(0.25));
  EXPECT_EQ(sink.Take(), "S.Offset = -21600; S.WorldtimeT0 = #1899-12-30#");
  EXPECT_EQ(scalar->WorldTimeT0(), Date());
}

TEST_F(Scalar, UnlockedWithoutAParentIsPutToOffsetZeroWhenToldOfOne) {
  scalar->SetOffset(60);
  sink.Take();
  scalar->ParentWorldtimeT0Changed();
  EXPECT_EQ(sink.Take(), "S.Offset = 0; S.WorldtimeT0 = #1899-12-30#");
}

TEST_F(Scalar, AParentPutDirectlyRecomputesNothingUntilTheNextChange) {
  const auto group = objects.Group(u"G");
  group->SetWorldTimeT0(Date::Unchecked(10));
  sink.Take();
  scalar->SetParent(group);
  EXPECT_EQ(sink.Take(), "");
  EXPECT_EQ(scalar->offset(), 0);
  scalar->ParentWorldtimeT0Changed();
  EXPECT_EQ(scalar->offset(), -864000);
}

TEST_F(Scalar, WithoutASinkCompletesEverySetter) {
  scalar->SetEventSink(nullptr);
  scalar->SetKey(u"K");
  scalar->SetTag(u"t");
  scalar->SetDuration(1);
  scalar->SetOffset(2);
  scalar->SetWorldTimeT0(Date::Unchecked(3));
  scalar->SetLockedToParent(true);
  EXPECT_EQ(scalar->Key(), u"K");
  EXPECT_EQ(scalar->offset(), 0);
  EXPECT_EQ(scalar->WorldTimeT0(), Date::Unchecked(3));
  EXPECT_TRUE(scalar->LockedToParent());
  EXPECT_EQ(sink.Take(), "");
}

TEST_F(Scalar, GoesOnWhenItsSinkThrows) {
  sink.onReport = [](const auto&, StringView) { throw 42; };
  scalar->SetOffset(60);
  scalar->SetWorldTimeT0(Date::Unchecked(1));
  EXPECT_EQ(sink.Take(), "S.Offset = 60; S.Offset = 0; S.WorldtimeT0 = #1899-12-31#");
  EXPECT_EQ(scalar->WorldTimeT0(), Date::Unchecked(1));
}

TEST_F(Scalar, AnOffsetThatLeadsOutOfTheDateRangeIsStoredButMovesNothing) {
  AdoptInto(objects.Group(u"G"));
  scalar->SetOffset(1e300);
  EXPECT_EQ(sink.Take(), "S.Offset = 1e+300");
  EXPECT_EQ(scalar->offset(), 1e300);
  EXPECT_EQ(scalar->WorldTimeT0(), Date());
}

TEST_F(Scalar, StoresAStartOutsideTheDateRangeThatIsPutFromOutside) {
  scalar->SetWorldTimeT0(Date::Unchecked(1e9));
  EXPECT_EQ(scalar->WorldTimeT0(), Date::Unchecked(1e9));
}

TEST_F(Scalar, IgnoresNotANumberBecauseItIsNeitherLessNorGreater) {
  scalar->SetOffset(std::numeric_limits<double>::quiet_NaN());
  scalar->SetWorldTimeT0(Date::Unchecked(std::numeric_limits<double>::quiet_NaN()));
  EXPECT_EQ(scalar->offset(), 0);
  EXPECT_EQ(scalar->WorldTimeT0(), Date());
  EXPECT_EQ(sink.Take(), "");
}

TEST_F(Scalar, KeepsItsOffsetWhenAnInfiniteStartMakesItOverflow) {
  AdoptInto(objects.Group(u"G"));
  scalar->SetWorldTimeT0(Date::Unchecked(std::numeric_limits<double>::infinity()));
  EXPECT_EQ(scalar->offset(), 0);
  EXPECT_EQ(sink.Take(), "S.WorldtimeT0 = #inf#");
}

TEST_F(Scalar, SpansItsStartAndEndOnlyWithBoundaries) {
  scalar->SetWorldTimeT0(Date::Unchecked(1));
  scalar->SetDuration(86400);
  for (const double boundary : {1.0, 2.0}) {
    EXPECT_TRUE(scalar->SpansTime(Date::Unchecked(boundary)));
    EXPECT_FALSE(scalar->SpansTime(Date::Unchecked(boundary), false));
  }
  EXPECT_TRUE(scalar->SpansTime(Date::Unchecked(1.5), false));
  EXPECT_FALSE(scalar->SpansTime(Date::Unchecked(0.9)));
  EXPECT_FALSE(scalar->SpansTime(Date::Unchecked(2.1)));
}

TEST_F(Scalar, WithoutLengthSpansItsStartWithBoundariesAndNothingWithout) {
  EXPECT_TRUE(scalar->SpansTime(Date()));
  EXPECT_FALSE(scalar->SpansTime(Date(), false));
}

TEST_F(Scalar, WithANegativeLengthSpansNothing) {
  scalar->SetDuration(-86400);
  EXPECT_FALSE(scalar->SpansTime(Date()));
  EXPECT_FALSE(scalar->SpansTime(Date::Unchecked(-0.5)));
}

TEST_F(Scalar, WhoseEndLeavesTheDateRangeSpansNothing) {
  scalar->SetDuration(1e15);
  EXPECT_FALSE(scalar->SpansTime(Date()));
  scalar->SetDuration(86400);
  scalar->SetWorldTimeT0(DateOf(9999, 12, 31));
  EXPECT_FALSE(scalar->SpansTime(DateOf(9999, 12, 31)));
}

TEST_F(Scalar, DoesNotSpanATimeThatIsNotANumber) {
  EXPECT_FALSE(scalar->SpansTime(Date::Unchecked(std::numeric_limits<double>::quiet_NaN())));
}

TEST_F(Scalar, ClearAndFreeResetAndDetachWithoutAReport) {
  for (const auto detach : {&IMURTimelineObject::Clear, &IMURTimelineObject::Free}) {
    const auto group = objects.Group(u"G");
    scalar->SetEventSink(objects.sink);
    AdoptInto(group);
    scalar->SetTag(u"t");
    scalar->SetDuration(1);
    scalar->SetWorldTimeT0(Date::Unchecked(2));
    scalar->SetLockedToParent(true);
    sink.Take();
    (scalar.Get()->*detach)();
    EXPECT_EQ(scalar->Key(), u"");
    EXPECT_EQ(scalar->Tag(), u"");
    EXPECT_FALSE(scalar->EventSink());
    EXPECT_FALSE(scalar->Parent());
    EXPECT_EQ(scalar->Duration(), 0);
    EXPECT_EQ(scalar->WorldTimeT0(), Date());
    EXPECT_EQ(scalar->offset(), 0);
    EXPECT_FALSE(scalar->LockedToParent());
    EXPECT_EQ(sink.Take(), "");
  }
}

TEST_F(Scalar, FreedTwiceStaysInert) {
  scalar->Free();
  scalar->Free();
  scalar->ParentWorldtimeT0Changed();
  EXPECT_EQ(scalar->Key(), u"");
}

TEST_F(Scalar, ReportsToTheSinkThatReplacesItInsideAReport) {
  const auto second = Make<RecordingSink>();
  sink.onReport = [&](const auto& object, StringView) { object->SetEventSink(second); };
  scalar->SetOffset(60);
  scalar->SetWorldTimeT0(Date::Unchecked(1));
  EXPECT_EQ(sink.Take(), "S.Offset = 60");
  EXPECT_EQ(second->Take(), "S.Offset = 0; S.WorldtimeT0 = #1899-12-31#");
}

TEST_F(Scalar, MayBePutAgainFromInsideItsOwnReport) {
  sink.onReport = [&](const auto& object, StringView name) {
    if (name == u"WorldtimeT0" && object->WorldTimeT0() < Date::Unchecked(3))
      object->SetWorldTimeT0(Date::Unchecked(object->WorldTimeT0().Days() + 1));
  };
  scalar->SetWorldTimeT0(Date::Unchecked(1));
  EXPECT_EQ(sink.Take(),
            "S.WorldtimeT0 = #1899-12-31#; S.WorldtimeT0 = #1900-01-01#; S.WorldtimeT0 = #1900-01-02#");
}

TEST_F(Scalar, LivesUntilItsReportReturnsWhenItsLastHolderLetsItGo) {
  auto lonely = Make<CMURTimelineScalar>();
  const auto own = Make<RecordingSink>();
  lonely->SetEventSink(own);
  own->onReport = [&](const auto&, StringView) { lonely = nullptr; };
  lonely->SetOffset(60);
  EXPECT_EQ(own->Take(), ".Offset = 60");
  EXPECT_FALSE(lonely);
}

TEST_F(Scalar, EndlessPutsFromItsOwnReportEndWithoutStackAndWithoutAnError) {
  double next = 0;
  sink.onReport = [&](const auto& object, StringView) { object->SetOffset(++next); };
  scalar->SetOffset(++next);
  EXPECT_GT(next, 100);
  EXPECT_GT(scalar->offset(), 100);
}

TEST_F(Scalar, KeepsTextsWithEmbeddedNullsLoneSurrogatesAndAMillionCharacters) {
  const String odd = {u'a', u'\0', char16_t{0xD800}, u'b'};
  const String huge(1'000'000, u'x');
  scalar->SetKey(odd);
  scalar->SetTag(huge);
  EXPECT_EQ(scalar->Key(), odd);
  EXPECT_EQ(scalar->Tag(), huge);
}

}  // namespace
}  // namespace mur::test
