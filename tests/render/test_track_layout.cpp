#include <algorithm>
#include <random>

#include <gtest/gtest.h>

#include <murtimeline/model/timeline_group.h>

#include "tests/support/foreign_object.h"
#include "tests/support/print.h"
#include "tests/support/render_fixture.h"

namespace mur::test {
namespace {

using ObjectRef = Ref<IMURTimelineObject>;

// Three tracks "A", "B", "C"; bars 10 high, 2 apart, tracks 5 apart.
struct ThreeTracks : AttachedControl {
  ThreeTracks() {
    control->SetBarHeight(10);
    control->SetBarSeparation(2);
    control->SetTrackSeparation(5);
    control->AlignTracks();
  }
  void ExpectTops(float BA, float CA) const {
    control->AlignTracks();
    EXPECT_EQ(TopOf(u"A"), 0.0f);
    EXPECT_EQ(TopOf(u"B"), BA);
    EXPECT_EQ(TopOf(u"C"), CA);
  }

  ObjectRef a = Add(murtlotGroup, u"A", true);
  ObjectRef b = Add(murtlotGroup, u"B", true);
  ObjectRef c = Add(murtlotGroup, u"C", true);
};

TEST(TrackLayout, GivesATrackOneRowForEachLevel) {
  ThreeTracks t;
  t.ExpectTops(15, 30);
  const auto inner = t.AddBelow(t.a, murtlotGroup, u"inner");
  t.ExpectTops(27, 42);
  t.AddBelow(inner, murtlotScalar, u"leaf");
  t.ExpectTops(39, 54);
  EXPECT_EQ(t.TopOf(u"inner"), 12.0f);
  EXPECT_EQ(t.TopOf(u"leaf"), 24.0f);
}

TEST(TrackLayout, FollowsObjectsThatGo) {
  ThreeTracks t;
  const auto inner = t.AddBelow(t.a, murtlotGroup, u"inner");
  t.AddBelow(inner, murtlotScalar, u"leaf");
  t.ExpectTops(39, 54);
  inner->Remove(u"leaf");
  t.ExpectTops(27, 42);
  t.a->Remove(u"inner");
  t.ExpectTops(15, 30);
}

TEST(TrackLayout, FollowsTrackKeys) {
  ThreeTracks t;
  t.AddBelow(t.a, murtlotScalar, u"S");
  t.timeline->RemoveTrackKey(u"A");
  t.control->AlignTracks();
  EXPECT_EQ(t.TopOf(u"B"), 0.0f);
  EXPECT_EQ(t.TopOf(u"C"), 15.0f);
  t.timeline->AddTrackKey(u"A");
  t.control->AlignTracks();
  EXPECT_EQ(t.TopOf(u"A"), 30.0f);
  EXPECT_EQ(t.TopOf(u"S"), 42.0f);
}

TEST(TrackLayout, GivesATrackKeyWithoutAnObjectOneRow) {
  const AttachedControl c;
  c.timeline->AddTrackKey(u"none");
  c.Add(murtlotGroup, u"A", true);
  c->AlignTracks();
  EXPECT_EQ(c.TopOf(u"A"), 46.0f);
}

TEST(TrackLayout, FindsATrackByItsExactKeyOnPurpose) {
  const AttachedControl c;
  c.timeline->AddTrackKey(u"first");
  c.timeline->AddTrackKey(u"track");
  c.Add(murtlotGroup, u"TRACK");
  c->AlignTracks();
  EXPECT_EQ(c.TopOf(u"TRACK"), 0.0f);
}

TEST(TrackLayout, PutsAnObjectOutsideEveryTrackAtTheTop) {
  ThreeTracks t;
  const auto group = t.Add(murtlotGroup, u"loose");
  t.AddBelow(group, murtlotScalar, u"S");
  EXPECT_EQ(t.TopOf(u"loose"), 0.0f);
  EXPECT_EQ(t.TopOf(u"S"), 12.0f);
}

TEST(TrackLayout, GivesATrackWhoseObjectLiesBelowAnotherTheHeightOfTheWhole) {
  ThreeTracks t;
  t.a->Add(t.b, u"B");
  t.control->AlignTracks();
  EXPECT_EQ(t.TopOf(u"C"), 2 * (22.0f + 5));
  t.AddBelow(t.b, murtlotScalar, u"S");
  t.control->AlignTracks();
  EXPECT_EQ(t.TopOf(u"C"), 2 * (34.0f + 5));
}

TEST(TrackLayout, FollowsAHostsOwnObjectsWithoutBeingTold) {
  ThreeTracks t;
  const auto foreign = Make<ForeignObject>();
  t.a->Add(foreign, u"F");
  t.ExpectTops(27, 42);
  const auto leaf = Make<ForeignObject>();
  foreign->Add(leaf, u"L");
  t.ExpectTops(39, 54);
  foreign->Remove(u"L");
  t.ExpectTops(27, 42);
  foreign->Free();
  leaf->Free();
}

TEST(TrackLayout, GivesATrackThatContainsItselfOneRowUntilItNoLongerDoes) {
  ThreeTracks t;
  t.a->Add(t.a, u"A");
  t.a->SetParent(nullptr);
  t.control->AlignTracks();
  EXPECT_EQ(t.TopOf(u"B"), 15.0f);
  EXPECT_EQ(t.TopOf(u"C"), 30.0f);
  t.a->Remove(u"A");
  t.AddBelow(t.a, murtlotScalar, u"S");
  t.ExpectTops(27, 42);
}

TEST(TrackLayout, GivesATrackInARingOfParentsOneRowUntilTheRingIsBroken) {
  ThreeTracks t;
  t.AddBelow(t.a, murtlotScalar, u"S");
  t.a->SetParent(t.b);
  t.b->SetParent(t.a);
  t.control->AlignTracks();
  EXPECT_EQ(t.TopOf(u"C"), 30.0f);
  t.a->SetParent(nullptr);
  t.b->SetParent(nullptr);
  t.ExpectTops(27, 42);
}

TEST(TrackLayout, IsKeptFromNoOtherObjectByARing) {
  ThreeTracks t;
  t.a->SetParent(t.b);
  t.b->SetParent(t.a);
  EXPECT_TRUE(t.AddBelow(t.c, murtlotScalar, u"S"));
  EXPECT_EQ(t.TopOf(u"S"), 42.0f);
  t.a->SetParent(nullptr);
  t.b->SetParent(nullptr);
}

TEST(TrackLayout, FollowsTheTimeLineThatIsAttached) {
  ThreeTracks t;
  OwnedTimeline other;
  t.control->SetTimeline(other.Get());
  other->AddTrackKey(u"none");
  other->AddTrackKey(u"D");
  other->Add(murtlotGroup, u"D");
  EXPECT_EQ(t.TopOf(u"D"), 15.0f);
}

int NaiveDepth(const ObjectRef& ObjectA) {
  int deepest = 0;
  for (std::int16_t i = 1; i <= ObjectA->Count(); ++i)
    deepest = std::max(deepest, NaiveDepth(ObjectA->Item(i)));
  return deepest + 1;
}

ObjectRef NaiveRoot(ObjectRef ObjectA) {
  while (ObjectA->Parent()) ObjectA = ObjectA->Parent();
  return ObjectA;
}

// The layout's rule as it is stated, in single precision from the first track on.
float NaiveTop(const AttachedControl& ControlA, const ObjectRef& ObjectA) {
  const String key = NaiveRoot(ObjectA)->Key();
  const float row = ControlA->BarHeight() + ControlA->BarSeparation();
  float top = 0;
  for (std::int16_t i = 1; i <= ControlA.timeline->NTrackKeys(); ++i) {
    const String track = ControlA.timeline->TrackKey(i);
    if (track == key) return top;
    const ObjectRef object = ControlA.timeline->Item(Variant(track));
    const int depth = object ? NaiveDepth(NaiveRoot(object)) : 1;
    const float height = row * static_cast<float>(depth - 1) + ControlA->BarHeight();
    top = top + (height + ControlA->TrackSeparation());
  }
  return 0;
}

void ExpectNaiveTops(const AttachedControl& ControlA) {
  ControlA->AlignTracks();
  for (std::int16_t i = 1; i <= ControlA.timeline->NTrackKeys(); ++i) {
    const ObjectRef object = ControlA.timeline->Item(Variant(ControlA.timeline->TrackKey(i)));
    if (!object || object->Parent()) continue;
    ASSERT_EQ(ControlA.TopOf(object->Key()), NaiveTop(ControlA, object)) << ToUtf8(object->Key());
  }
}

TEST(TrackLayout, AgreesWithTheRuleToTheBitAfterRandomChanges) {
  std::mt19937 random(4);
  const AttachedControl c;
  c->SetBarHeight(10.1f);
  c->SetBarSeparation(0.3f);
  std::vector<ObjectRef> objects;
  const auto any = [&] { return objects[random() % objects.size()]; };
  const auto isAbove = [](const ObjectRef& above, ObjectRef object) {
    while (object && object != above) object = object->Parent();
    return object == above;
  };
  for (int step = 0; step < 1500; ++step) {
    const String key = FromAscii("k" + std::to_string(step));
    if (objects.size() < 12) {
      ObjectRef object = random() % 4 == 0 ? ObjectRef(Make<ForeignObject>()) : Make<CMURTimelineGroup>();
      c.timeline->Insert(object, Variant(key));
      objects.push_back(object);
    }
    const ObjectRef parent = any(), child = any();
    switch (random() % 6) {
      case 0:
        c.timeline->AddTrackKey(parent->Key());
        break;
      case 1:
        c.timeline->RemoveTrackKey(1);
        break;
      case 2:
      case 3:
        if (!child->Parent() && !isAbove(child, parent)) parent->Add(child, child->Key());
        break;
      case 4:
        if (const ObjectRef above = child->Parent()) {
          above->Remove(Variant(child->Key()));
          child->SetParent(nullptr);
        }
        break;
      default:
        c->SetTrackSeparation(0.1f * static_cast<float>(random() % 5));
    }
    ExpectNaiveTops(c);
  }
}

}  // namespace
}  // namespace mur::test
