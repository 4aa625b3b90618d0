#include <functional>

#include <gtest/gtest.h>

#include <murtimeline/render/object_walks.h>

#include "tests/support/foreign_object.h"
#include "tests/support/model_objects.h"

namespace mur::test {
namespace {

using ObjectRef = Ref<IMURTimelineObject>;

ErrorCode ErrorOf(const std::function<void()>& WalkA) {
  try {
    WalkA();
  } catch (const AutomationError& error) {
    return error.Code();
  }
  ADD_FAILURE() << "no error";
  return {};
}

TEST(ObjectWalk, FindsRootLevelAndDepth) {
  ModelObjects objects;
  const auto top = objects.Group(u"top"), middle = objects.Group(u"middle");
  const auto leaf = objects.Scalar(u"leaf");
  top->Add(middle, u"middle");
  middle->Add(leaf, u"leaf");
  EXPECT_EQ(GetRootObject(leaf), ObjectRef(top));
  EXPECT_EQ(GetRootObject(top), ObjectRef(top));
  EXPECT_EQ(GetNestingLevel(leaf), 3);
  EXPECT_EQ(GetNestingLevel(top), 1);
  EXPECT_EQ(GetSubtreeDepth(top), 3);
  EXPECT_EQ(GetSubtreeDepth(leaf), 1);
}

TEST(ObjectWalk, FindsTheDepthThroughObjectsOfTheHostsOwn) {
  ModelObjects objects;
  const auto top = objects.Keep(Make<ForeignObject>()), below = objects.Keep(Make<ForeignObject>());
  const auto group = objects.Group(u"group");
  group->Add(objects.Scalar(u"leaf"), u"leaf");
  below->Add(group, u"group");
  top->Add(objects.Scalar(u"shallow"), u"shallow");
  top->Add(below, u"below");
  EXPECT_EQ(GetSubtreeDepth(top), 4);
}

TEST(ObjectWalk, OverflowsForParentsInARing) {
  ModelObjects objects;
  const auto a = objects.Scalar(u"a"), b = objects.Scalar(u"b"), c = objects.Scalar(u"c");
  c->SetParent(a);
  a->SetParent(b);
  b->SetParent(a);
  EXPECT_EQ(ErrorOf([&] { GetRootObject(c); }), ErrorCode::Overflow);
  EXPECT_EQ(ErrorOf([&] { GetNestingLevel(a); }), ErrorCode::Overflow);
}

TEST(ObjectWalk, OverflowsForAnObjectThatContainsItself) {
  ModelObjects objects;
  const auto foreign = objects.Keep(Make<ForeignObject>());
  foreign->Add(foreign, u"itself");
  const auto group = objects.Group(u"group");
  group->Add(group, u"itself");
  EXPECT_EQ(ErrorOf([&] { GetSubtreeDepth(foreign); }), ErrorCode::Overflow);
  EXPECT_EQ(ErrorOf([&] { GetSubtreeDepth(group); }), ErrorCode::Overflow);
}

TEST(ObjectWalk, CountsUpToAsManyLevelsAsSixteenBitsSay) {
  ModelObjects objects;
  ObjectRef bottom = objects.Scalar(u"1");
  for (int level = 2; level <= 32767; ++level) {
    const auto below = objects.Scalar(u"");
    below->SetParent(bottom);
    bottom = below;
  }
  EXPECT_EQ(GetNestingLevel(bottom), 32767);
  const auto beyond = objects.Scalar(u"");
  beyond->SetParent(bottom);
  EXPECT_EQ(ErrorOf([&] { GetNestingLevel(beyond); }), ErrorCode::Overflow);
  EXPECT_EQ(GetRootObject(beyond)->Key(), u"1");
}

TEST(ObjectWalk, OverflowsForHostObjectsNestedDeeperThanSixteenBitsSay) {
  ModelObjects objects;
  auto top = objects.Keep(Make<ForeignObject>());
  for (int level = 2; level <= 32767; ++level) {
    const auto above = objects.Keep(Make<ForeignObject>());
    above->Add(top, u"");
    top = above;
  }
  EXPECT_EQ(GetSubtreeDepth(top), 32767);
  const auto beyond = objects.Keep(Make<ForeignObject>());
  beyond->Add(top, u"");
  EXPECT_EQ(ErrorOf([&] { GetSubtreeDepth(beyond); }), ErrorCode::Overflow);
}

}  // namespace
}  // namespace mur::test
