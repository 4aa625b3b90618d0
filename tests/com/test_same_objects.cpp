#include <gtest/gtest.h>

#include "tests/com/listener.h"

// One object is the same to a host, whoever hands it out.

namespace mur::test {
namespace {

// The objects that an event brings, by its name.
class MetObjects {
 public:
  explicit MetObjects(const Late& ObjectA)
      : mListening(ObjectA, [this](const std::string&, std::vector<VARIANT>& arguments) {
          for (const VARIANT& argument : arguments)
            if (V_VT(&argument) == VT_DISPATCH) objects.push_back(Late(Value::CopyOf(argument)));
          return S_OK;
        }) {}

  std::vector<Late> objects;

 private:
  Listening mListening;
};

TEST(SameObject, ComesFromAddAndItemAndForEach) {
  const Late timeline = NewTimeline();
  const Late added(timeline.Call(L"Add", {0, L"G"}));
  EXPECT_TRUE(added.IsSame(Late(timeline.Get(L"Item", {L"g"}))));
  EXPECT_TRUE(added.IsSame(Late(timeline.Get(L"Item", {1}))));
  const Value members = timeline.Get(L"NewEnum");
  Value member;
  ASSERT_EQ(Query<IEnumVARIANT>(members.Object())->Next(1, &member, nullptr), S_OK);
  EXPECT_TRUE(added.IsSame(Late(member)));
  timeline.Call(L"Clear");
}

TEST(SameObject, ComesWithTheEventsThatTellOfIt) {
  const Late timeline = NewTimeline();
  const Late group(timeline.Call(L"Add", {0, L"G"}));
  const Late child = NewScalar();
  {
    const MetObjects met(timeline);
    group.Call(L"Add", {child, L"C"});
    group.Put(L"Tag", {L"tag"});
    group.Call(L"Remove", {L"C"});
    ASSERT_EQ(met.objects.size(), 5u);
    EXPECT_TRUE(met.objects[0].IsSame(group));
    EXPECT_TRUE(met.objects[1].IsSame(child));
    EXPECT_TRUE(met.objects[2].IsSame(group));
    EXPECT_TRUE(met.objects[3].IsSame(group));
    EXPECT_TRUE(met.objects[4].IsSame(child));
  }
  child.Call(L"Free");
  timeline.Call(L"Clear");
}

TEST(SameObject, IsTheParentAndTheSinkOfItsMembers) {
  const Late timeline = NewTimeline();
  const Late group(timeline.Call(L"Add", {0, L"G"}));
  const Late child = NewScalar();
  group.Call(L"Add", {child, L"C"});
  EXPECT_TRUE(group.IsSame(Late(child.As<::IMURTimelineObject>().Get(L"Parent"))));
  EXPECT_TRUE(timeline.IsSame(Late(group.Get(L"EventSink"))));
  child.Call(L"Free");
  timeline.Call(L"Clear");
}

TEST(SameObject, IsWhatAControlShowsAndDrawsWith) {
  const Late control = NewControl(), timeline = NewTimeline();
  control.Put(L"Timeline", {timeline});
  EXPECT_TRUE(timeline.IsSame(Late(control.Get(L"Timeline"))));
  const Late config(control.Call(L"AddRenderConfig", {1}));
  EXPECT_TRUE(config.IsSame(Late(control.Get(L"RenderConfig", {1}))));
  EXPECT_TRUE(Late(control.Get(L"DefaultRenderConfig")).IsSame(Late(control.Get(L"DefaultRenderConfig"))));
  control.Call(L"TimeScaleMarkerAdd", {Value::Date(1), L"m"});
  EXPECT_TRUE(Late(control.Get(L"TimeScaleMarkerDefinition", {L"m"}))
                  .IsSame(Late(control.Get(L"TimeScaleMarkerDefinition", {1}))));
  control.Put(L"TimeScaleMarkerUserData", {L"m", timeline});
  EXPECT_TRUE(timeline.IsSame(Late(control.Get(L"TimeScaleMarkerUserData", {L"m"}))));
}

TEST(SameObject, IsThereAgainAfterTheHostLetItGo) {
  const Late timeline = NewTimeline();
  IUnknown* before = Late(timeline.Call(L"Add", {1, L"S"})).Identity().Get();
  EXPECT_EQ(Late(timeline.Get(L"Item", {1})).Identity().Get(), before);
  timeline.Call(L"Clear");
}

// The members of the default interface first where an object is asked for, of the common one where that
// comes.
TEST(SameObject, HasOneNumberForANameOfTwoInterfacesAtATime) {
  const Late timeline = NewTimeline();
  const Late member(timeline.Call(L"Add", {2, L"M"}));
  EXPECT_EQ(member.IdOf(L"Key"), 0x6803000B);
  EXPECT_EQ(member.IdOf(L"CutIn"), 0x68030031);
  EXPECT_EQ(member.As<IDispatch>().IdOf(L"Key"), 0x68030011);
  timeline.Call(L"Clear");
}

}  // namespace
}  // namespace mur::test
