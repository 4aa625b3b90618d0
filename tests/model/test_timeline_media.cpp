#include <limits>

#include <gtest/gtest.h>

#include <murtimeline/automation/error.h>

#include "tests/support/model_objects.h"
#include "tests/support/print.h"

namespace mur::test {
namespace {

class Media : public testing::Test {
 protected:
  void SetUp() override { sink.Take(); }

  ModelObjects objects;
  Ref<CMURTimelineMedia> media = objects.Media(u"M");
  RecordingSink& sink = *objects.sink;
};

TEST_F(Media, StartsWithoutFileLengthSectionAndClipping) {
  EXPECT_EQ(media->ObjectType(), murtlotMedia);
  EXPECT_EQ(media->GroupType(), murtlotUnknown);
  EXPECT_EQ(media->MediaFilename(), u"");
  EXPECT_EQ(media->MediaDuration(), 0);
  EXPECT_EQ(media->Duration(), 0);
  EXPECT_EQ(media->CutIn(), 0);
  EXPECT_EQ(media->CutOut(), 0);
  EXPECT_FALSE(media->UseClipping());
}

TEST_F(Media, WithoutClippingStandsForTheWholeMedia) {
  media->SetMediaDuration(120);
  EXPECT_EQ(sink.Take(), "M.Duration = 120; M.MediaDuration = 120");
  EXPECT_EQ(media->Duration(), 120);
  EXPECT_EQ(media->CutIn(), 0);
  EXPECT_EQ(media->CutOut(), 120);
}

TEST_F(Media, SwitchingClippingChangesWhatIsReadButIsReportedAlone) {
  media->SetMediaDuration(120);
  sink.Take();
  media->SetUseClipping(true);
  EXPECT_EQ(sink.Take(), "M.UseClipping = true");
  EXPECT_EQ(media->Duration(), 0);
  EXPECT_EQ(media->CutOut(), 0);
  media->SetUseClipping(true);
  EXPECT_EQ(sink.Take(), "");
}

TEST_F(Media, WithClippingMovesItsSectionWithTheCutInAndResizesItWithTheCutOut) {
  media->SetUseClipping(true);
  sink.Take();
  media->SetCutIn(10);
  EXPECT_EQ(sink.Take(), "M.CutIn = 10; M.CutOut = 10");
  media->SetCutOut(40);
  EXPECT_EQ(sink.Take(), "M.Duration = 30; M.CutOut = 40");
  media->SetCutIn(20);
  EXPECT_EQ(sink.Take(), "M.CutIn = 20; M.CutOut = 50");
  EXPECT_EQ(media->Duration(), 30);
  EXPECT_EQ(media->CutOut(), 50);
}

TEST_F(Media, WithClippingReportsItsLengthOfMediaAlone) {
  media->SetUseClipping(true);
  sink.Take();
  media->SetMediaDuration(120);
  EXPECT_EQ(sink.Take(), "M.MediaDuration = 120");
  media->SetMediaDuration(120);
  EXPECT_EQ(sink.Take(), "");
}

TEST_F(Media, ACutOutBeforeTheCutInGivesANegativeDuration) {
  media->SetUseClipping(true);
  media->SetCutIn(20);
  media->SetCutOut(5);
  EXPECT_EQ(media->Duration(), -15);
}

TEST_F(Media, ACutOutThatIsThereAlreadyReportsNothing) {
  media->SetUseClipping(true);
  media->SetCutIn(10);
  media->SetCutOut(40);
  sink.Take();
  media->SetCutOut(40);
  EXPECT_EQ(sink.Take(), "");
}

TEST_F(Media, DurationReportsTwiceAtEveryPutChangedOrNot) {
  media->SetUseClipping(true);
  media->SetCutIn(10);
  sink.Take();
  media->SetDuration(5);
  media->SetDuration(5);
  EXPECT_EQ(sink.Take(), "M.Duration = 5; M.CutOut = 15; M.Duration = 5; M.CutOut = 15");
}

TEST_F(Media, WithoutClippingStoresTheSectionUnseenAndReportsTheWholeMedia) {
  media->SetMediaDuration(120);
  sink.Take();
  media->SetDuration(30);
  EXPECT_EQ(sink.Take(), "M.Duration = 120; M.CutOut = 120");
  media->SetCutIn(10);
  EXPECT_EQ(sink.Take(), "M.CutIn = 10; M.CutOut = 120");
  EXPECT_EQ(media->CutIn(), 0);
  media->SetUseClipping(true);
  EXPECT_EQ(media->Duration(), 30);
  EXPECT_EQ(media->CutIn(), 10);
  EXPECT_EQ(media->CutOut(), 40);
}

TEST_F(Media, WithoutClippingPuttingTheCutOutItReadsChangesTheStoredSectionAndThatIsMeant) {
  media->SetMediaDuration(120);
  media->SetCutIn(10);
  sink.Take();
  media->SetCutOut(120);
  EXPECT_EQ(sink.Take(), "M.Duration = 120; M.CutOut = 120");
  media->SetUseClipping(true);
  EXPECT_EQ(media->Duration(), 110);
}

TEST_F(Media, StaysSilentForAnUnchangedCutIn) {
  media->SetCutIn(10);
  sink.Take();
  media->SetCutIn(10);
  EXPECT_EQ(sink.Take(), "");
}

TEST_F(Media, ComparesItsFileNameWithLetterCase) {
  media->SetMediaFilename(u"a.wav");
  media->SetMediaFilename(u"A.WAV");
  media->SetMediaFilename(u"A.WAV");
  EXPECT_EQ(sink.Take(), "M.MediaFilename = 'a.wav'; M.MediaFilename = 'A.WAV'");
}

TEST_F(Media, ReportsEachPropertyWithItsOwnKindOfValue) {
  media->SetMediaFilename(u"a.wav");
  media->SetMediaDuration(1);
  media->SetCutIn(2);
  media->SetUseClipping(true);
  EXPECT_EQ(sink.Values(), (std::vector<Variant>{u"a.wav", 1.0, 1.0, 2.0, 1.0, true}));
}

TEST_F(Media, ReportsItsStartWithACapitalTUnlikeGroupsAndScalarsAndThatIsMeant) {
  media->SetWorldTimeT0(DateOf(2000, 1, 1));
  EXPECT_EQ(sink.Take(), "M.WorldTimeT0 = #2000-01-01#");
}

TEST_F(Media, IsCoupledToItsParentLikeAScalar) {
  const auto group = objects.Group(u"G");
  group->Add(media, u"M");
  group->SetEventSink(nullptr);
  sink.Take();
  media->SetOffset(43200);
  EXPECT_EQ(sink.Take(), "M.WorldTimeT0 = #1899-12-30 12:00:00#; M.Offset = 43200");
  media->SetLockedToParent(true);
  sink.Take();
  group->SetWorldTimeT0(Date::Unchecked(1));
  EXPECT_EQ(sink.Take(), "M.WorldTimeT0 = #1899-12-31 12:00:00#; M.Offset = 43200");
}

TEST_F(Media, SpansWhatItsClippingSays) {
  media->SetMediaDuration(86400);
  EXPECT_TRUE(media->SpansTime(Date::Unchecked(0.5)));
  media->SetUseClipping(true);
  EXPECT_FALSE(media->SpansTime(Date::Unchecked(0.5)));
}

TEST_F(Media, HasNoChildrenAndTakesNone) {
  media->Add(objects.Scalar(u"C"), u"C");
  EXPECT_EQ(media->Count(), 0);
  EXPECT_FALSE(media->Item(u"C"));
  EXPECT_FALSE(media->Remove(u"C"));
}

TEST_F(Media, ACutOutBeyondWhatADoubleHoldsOverflowsForTheReaderAndSkipsItsReport) {
  constexpr double kHuge = std::numeric_limits<double>::max();
  media->SetUseClipping(true);
  media->SetDuration(kHuge);
  sink.Take();
  media->SetCutIn(kHuge);
  EXPECT_EQ(sink.Take(), "M.CutIn = 1.7976931348623157e+308");
  EXPECT_THROW(media->CutOut(), AutomationError);
}

TEST_F(Media, NotANumberNeverCountsAsANewCutInOrLengthOfMedia) {
  constexpr double kNone = std::numeric_limits<double>::quiet_NaN();
  media->SetCutIn(kNone);
  media->SetMediaDuration(kNone);
  EXPECT_EQ(sink.Take(), "");
  EXPECT_EQ(media->MediaDuration(), 0);
}

TEST_F(Media, ClearAndFreeResetItWithoutAReport) {
  for (const auto reset : {&IMURTimelineObject::Clear, &IMURTimelineObject::Free}) {
    media->SetEventSink(objects.sink);
    media->SetMediaFilename(u"a.wav");
    media->SetMediaDuration(120);
    media->SetCutIn(10);
    media->SetDuration(5);
    media->SetUseClipping(true);
    sink.Take();
    (media.Get()->*reset)();
    EXPECT_EQ(media->Key(), u"");
    EXPECT_EQ(media->MediaFilename(), u"");
    EXPECT_EQ(media->MediaDuration(), 0);
    EXPECT_FALSE(media->UseClipping());
    EXPECT_FALSE(media->EventSink());
    media->SetUseClipping(true);
    EXPECT_EQ(media->CutIn(), 0);
    EXPECT_EQ(media->Duration(), 0);
    EXPECT_EQ(sink.Take(), "");
    media->SetUseClipping(false);
  }
}

TEST_F(Media, LivesThroughEveryReportOfOnePutWhenItsLastHolderLetsItGo) {
  auto lonely = Make<CMURTimelineMedia>();
  const auto own = Make<RecordingSink>();
  lonely->SetEventSink(own);
  own->onReport = [&](const auto&, StringView) { lonely = nullptr; };
  lonely->SetMediaDuration(60);
  EXPECT_EQ(own->Take(), ".Duration = 60; .MediaDuration = 60");
}

}  // namespace
}  // namespace mur::test
