#include <gtest/gtest.h>

#include "tests/support/event_recorder.h"
#include "tests/support/foreign_object.h"
#include "tests/support/model_objects.h"
#include "tests/support/print.h"

namespace mur::test {
namespace {

TEST(TimelineOwner, FreesAllThatHangsBelowTheMembersWhenItGoes) {
  Ref<IMURTimelineObject> child;
  {
    OwnedTimeline timeline;
    const auto group = timeline->Add(murtlotGroup, u"G");
    child = Make<CMURTimelineScalar>();
    group->Add(child, u"S");
  }
  EXPECT_EQ(child->Key(), u"");
  EXPECT_FALSE(child->Parent());
}

TEST(TimelineOwner, RaisesTheEventsOfAClearWhenItGoes) {
  auto owned = std::make_unique<OwnedTimeline>();
  const Ref<CMURTimeline> timeline = owned->Get();
  EventRecorder recorder(*timeline);
  owned = nullptr;
  EXPECT_EQ(recorder.Take(), "Clearing; Cleared");
}

TEST(TimelineOwner, MovedGivesItsTimelineOnAndFreesTheOneBefore) {
  OwnedTimeline first, second;
  const Ref<CMURTimeline> kept = first.Get();
  first->Add(murtlotScalar, u"S");
  const auto dropped = second->Add(murtlotScalar, u"D");
  second = std::move(first);
  EXPECT_EQ(second.Get(), kept);
  EXPECT_EQ(second->Count(), 1);
  EXPECT_EQ(dropped->Key(), u"");
  OwnedTimeline third(std::move(second));
  EXPECT_EQ(third.Get(), kept);
}

TEST(TimelineOwner, FreesATreeWhoseObjectsHoldEachOtherInARing) {
  const auto group = Make<CMURTimelineGroup>();
  const auto child = Make<CMURTimelineGroup>();
  group->Add(child, u"C");
  child->Add(group, u"G");
  FreeTree(group);
  EXPECT_EQ(group->Count(), 0);
  EXPECT_EQ(child->Count(), 0);
}

TEST(TimelineOwner, FreesNothingQuietly) {
  FreeTree(nullptr);
}

TEST(TimelineOwner, FreesTheOthersWhenAHostObjectLiesAboutItsCountOrFails) {
  for (const std::int16_t lie : {std::int16_t{-1}, std::int16_t{32767}}) {
    const auto group = Make<CMURTimelineGroup>();
    const auto hostile = Make<HostileObject>();
    const auto last = Make<CMURTimelineScalar>();
    hostile->count = lie;
    group->Add(hostile, u"H");
    group->Add(last, u"S");
    FreeTree(group);
    EXPECT_EQ(last->Key(), u"");
    EXPECT_EQ(hostile->timesFreed, 1);
  }
}

TEST(TimelineOwner, FreesTheOthersWhenAHostObjectThrows) {
  for (const char* member : {"Count", "Item", "Free"}) {
    const auto group = Make<CMURTimelineGroup>();
    const auto hostile = Make<HostileObject>();
    const auto last = Make<CMURTimelineScalar>();
    hostile->failing = member;
    hostile->count = 1;
    group->Add(hostile, u"H");
    group->Add(last, u"S");
    FreeTree(group);
    EXPECT_EQ(last->Key(), u"");
    hostile->SetParent(nullptr);
  }
}

}  // namespace
}  // namespace mur::test
