#include <gtest/gtest.h>

#include <murtimeline/automation/error.h>

#include "tests/support/foreign_object.h"
#include "tests/support/model_invariants.h"
#include "tests/support/model_objects.h"
#include "tests/support/print.h"

namespace mur::test {
namespace {

constexpr std::size_t kAbsurdDepth = 100'000;

class Nesting : public testing::Test {
 protected:
  // A chain of groups, each in the one before, built from its end.
  std::vector<Ref<CMURTimelineGroup>> Chain(std::size_t LengthA, bool LockedA = false) {
    std::vector<Ref<CMURTimelineGroup>> groups(LengthA);
    for (auto& group : groups) group = objects.Keep(Make<CMURTimelineGroup>());
    for (std::size_t i = LengthA - 1; i > 0; --i) {
      groups[i]->SetLockedToParent(LockedA);
      groups[i - 1]->Add(groups[i], u"next");
    }
    return groups;
  }

  ModelObjects objects;
};

TEST_F(Nesting, KnowsTheDepthOfASubtreeThroughEveryChange) {
  const auto chain = Chain(4);
  EXPECT_EQ(chain[0]->KnownSubtreeDepth(), 4);
  chain[3]->Add(objects.Scalar(u""), u"S");
  EXPECT_EQ(chain[0]->KnownSubtreeDepth(), 5);
  chain[1]->Remove(u"next");
  EXPECT_EQ(chain[0]->KnownSubtreeDepth(), 2);
  EXPECT_EQ(chain[2]->KnownSubtreeDepth(), 3);
  ExpectSound(Ref<IMURTimelineObject>(chain[0]));
}

TEST_F(Nesting, KnowsNoDepthAboveAnObjectOfTheHosts) {
  const auto chain = Chain(2);
  const auto foreign = objects.Keep(Make<ForeignObject>());
  chain[1]->Add(foreign, u"F");
  EXPECT_EQ(chain[0]->KnownSubtreeDepth(), std::nullopt);
  chain[1]->Remove(u"F");
  EXPECT_EQ(chain[0]->KnownSubtreeDepth(), 2);
}

TEST_F(Nesting, KnowsTheDepthOfAGroupThatIsHeldTwice) {
  const auto top = objects.Group(u"T"), shared = objects.Group(u"S");
  top->Add(shared, u"a");
  top->Add(shared, u"b");
  shared->Add(objects.Scalar(u""), u"S");
  EXPECT_EQ(top->KnownSubtreeDepth(), 3);
  top->Remove(u"a");
  shared->Remove(u"S");
  EXPECT_EQ(top->KnownSubtreeDepth(), 2);
  top->Remove(u"b");
  EXPECT_EQ(top->KnownSubtreeDepth(), 1);
}

TEST_F(Nesting, MovesTheShapeRevisionForWatchedGroupsOnly) {
  const auto group = objects.Group(u"G");
  const auto before = ShapeRevision();
  group->Add(objects.Scalar(u""), u"a");
  EXPECT_EQ(ShapeRevision(), before);
  EXPECT_TRUE(group->WatchShape());
  group->Add(objects.Scalar(u""), u"b");
  EXPECT_EQ(ShapeRevision(), before);
  group->Clear();
  EXPECT_GT(ShapeRevision(), before);
}

TEST_F(Nesting, AGroupAddedToItselfIsItsOwnParentAndOfUnknownDepth) {
  const auto group = objects.Group(u"G");
  group->Add(group, u"G");
  EXPECT_EQ(group->Parent(), group);
  EXPECT_EQ(group->Count(), 1);
  EXPECT_EQ(group->KnownSubtreeDepth(), std::nullopt);
  group->Remove(u"G");
  EXPECT_EQ(group->KnownSubtreeDepth(), 1);
}

TEST_F(Nesting, DepthsBeyondWhatIsKeptAreUnknownAndKnownAgainWhenTheChainIsCut) {
  const auto chain = Chain(SubtreeDepth::kDeepestKept + 1, true);
  EXPECT_EQ(chain[0]->KnownSubtreeDepth(), std::nullopt);
  EXPECT_EQ(chain[1]->KnownSubtreeDepth(), SubtreeDepth::kDeepestKept);
  chain[1]->Remove(chain[2]->Key());
  EXPECT_EQ(chain[0]->KnownSubtreeDepth(), 2);
}

TEST_F(Nesting, AHundredThousandLevelsGrowFromTheTopDown) {
  Ref<IMURTimelineObject> bottom = objects.Group(u"");
  for (int level = 2; level <= 100'000; ++level) {
    const auto below = objects.Group(u"");
    bottom->Add(below, u"below");
    bottom = below;
  }
  EXPECT_EQ(bottom->KnownSubtreeDepth(), 1);
}

TEST_F(Nesting, AMovedGroupThatContainsItselfEndsWithoutAnError) {
  const auto group = objects.Group(u"G");
  group->Add(group, u"G");
  group->SetWorldTimeT0(Date::Unchecked(1));
  EXPECT_EQ(group->WorldTimeT0(), Date::Unchecked(1));
  group->SetLockedToParent(true);
  group->SetWorldTimeT0(Date::Unchecked(2));
  group->SetOffset(5);
  EXPECT_THROW(group->AsString(u""), AutomationError);
}

TEST_F(Nesting, AGroupAddedToItsOwnDescendantMovesWithoutAnErrorAndCanBeFreed) {
  const auto chain = Chain(5, true);
  chain[4]->Add(chain[0], u"top");
  chain[0]->SetWorldTimeT0(Date::Unchecked(1));
  chain[2]->SetWorldTimeT0(Date::Unchecked(2));
  EXPECT_EQ(chain[0]->KnownSubtreeDepth(), std::nullopt);
  EXPECT_THROW(chain[0]->AsString(u""), AutomationError);
  chain[4]->Remove(u"top");
  EXPECT_EQ(chain[0]->KnownSubtreeDepth(), 5);
}

TEST_F(Nesting, AParentChainInARingNeitherHangsNorCrashes) {
  const auto a = objects.Scalar(u"a"), b = objects.Scalar(u"b");
  a->SetParent(b);
  b->SetParent(a);
  a->SetLockedToParent(true);
  b->SetLockedToParent(true);
  a->SetWorldTimeT0(Date::Unchecked(1));
  b->ParentWorldtimeT0Changed();
  EXPECT_EQ(a->offset(), 86400);
}

TEST_F(Nesting, AHundredThousandLevelsAreBuiltMovedAndDestroyed) {
  const auto chain = Chain(kAbsurdDepth, true);
  chain.front()->SetWorldTimeT0(Date::Unchecked(1));
  EXPECT_EQ(chain.front()->WorldTimeT0(), Date::Unchecked(1));
  EXPECT_EQ(chain[1]->WorldTimeT0(), Date::Unchecked(1));
  EXPECT_EQ(chain.front()->KnownSubtreeDepth(), std::nullopt);
  EXPECT_THROW(chain.front()->AsString(u""), AutomationError);
}

TEST_F(Nesting, AHundredThousandLevelsWithoutParentsGoWhenTheTopGoes) {
  auto top = Make<CMURTimelineGroup>();
  const Ref<IMURTimelineObject> deepest = top;
  for (std::size_t i = 1; i < kAbsurdDepth; ++i) {
    const auto above = Make<CMURTimelineGroup>();
    above->Add(top, u"next");
    top->SetParent(nullptr);
    top = above;
  }
  top = nullptr;
  EXPECT_EQ(deepest->Count(), 0);
}

TEST_F(Nesting, AHundredThousandLevelsOfParentsGoWhenTheLastChildGoes) {
  Ref<IMURTimelineObject> child;
  for (std::size_t i = 0; i < kAbsurdDepth; ++i) {
    const auto next = Make<CMURTimelineScalar>();
    next->SetParent(child);
    child = next;
  }
  child->Free();
  EXPECT_FALSE(child->Parent());
}

TEST_F(Nesting, TheDeepestDumpIsWrittenAndADeeperOneEndsOutOfStackSpace) {
  const auto chain = Chain(300);
  const String text = chain.front()->AsString(u"");
  EXPECT_NE(text.rfind(String(299 * 4, u' ') + u"CMURTimelineGroup: next"), String::npos);
  EXPECT_THROW(Chain(4098).front()->AsString(u""), AutomationError);
}

}  // namespace
}  // namespace mur::test
