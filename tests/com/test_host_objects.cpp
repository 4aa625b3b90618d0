#include <gmock/gmock.h>

#include "tests/com/host_object.h"
#include "tests/com/listener.h"
#include "tests/com/script_object.h"

// Objects and sinks that hosts write: they come in as they are, and out again as themselves.

namespace mur::test {
namespace {

using testing::Contains;
using testing::ElementsAre;

Late LateOf(const Ref<HostObject>& ObjectA) {
  return Late(Ref<IDispatch>(ObjectA));
}

TEST(HostObject, IsAMemberAsItIs) {
  const Late timeline = NewTimeline();
  const auto host = HostObject::Make();
  EXPECT_EQ(timeline.Call(L"Insert", {host, L"H"}), Value(true));
  EXPECT_EQ(host->key, L"H");
  EXPECT_EQ(Query<IUnknown>(host->sink.Get()), timeline.Identity());
  EXPECT_TRUE(LateOf(host).IsSame(Late(timeline.Get(L"Item", {L"H"}))));
  EXPECT_EQ(Late(timeline.Get(L"Item", {1})).Pointer(), host.Get());
  timeline.Call(L"Remove", {L"H"});
  EXPECT_FALSE(host->sink);
  EXPECT_EQ(host->References(), 1u);
}

TEST(HostObject, HasItsPartInTheDump) {
  const Late timeline = NewTimeline();
  timeline.Call(L"Insert", {HostObject::Make(), L"H"});
  const Value dump = timeline.Call(L"AsString", {L""});
  EXPECT_TRUE(dump.Text().ends_with(L"Count: 1\r\n    host object H\r\n"));
  timeline.Call(L"Clear");
}

TEST(HostObject, IsToldWhenItsGroupMoves) {
  const Late group = NewGroup();
  const auto host = HostObject::Make();
  group.Call(L"Add", {host, L"H"});
  EXPECT_EQ(Query<IUnknown>(host->parent.Get()), group.Identity());
  group.Put(L"WorldTimeT0", {Value::Date(36526)});
  EXPECT_EQ(host->parentMoves, 1);
  host->parent = {};
  group.Call(L"Free");
}

TEST(HostObject, MayBeTheParentOfOurs) {
  const auto host = HostObject::Make();
  host->start = 100;
  const Late scalar = NewScalar(), common = scalar.As<::IMURTimelineObject>();
  common.Put(L"Parent", {host});
  common.Put(L"WorldTimeT0", {Value::Date(101)});
  EXPECT_EQ(common.Get(L"offset"), Value(86400.0));
  EXPECT_EQ(Late(common.Get(L"Parent")).Pointer(), host.Get());
  common.Call(L"Free");
}

TEST(HostObject, ComesWithTheEventsOfItsTimeline) {
  const Late timeline = NewTimeline();
  const auto host = HostObject::Make();
  timeline.Call(L"Insert", {host, L"H"});
  const Listening listening(timeline);
  ::IMURTimelineObject* self = host.Get();
  EXPECT_EQ(host->sink->ObjectPropertyChanged(&self, Text(L"Colour"), Value(7).Get()), S_OK);
  EXPECT_THAT(listening->heard, ElementsAre("TLObjectPropertyChanged(H, \"Colour\", 7)"));
  timeline.Call(L"Clear");
}

TEST(HostObject, GoesWhenTheHostHoldsItNoMore) {
  const Late timeline = NewTimeline();
  const long before = HostObjectsAlive();
  timeline.Call(L"Insert", {HostObject::Make(), L"H"});
  EXPECT_EQ(HostObjectsAlive(), before + 1);
  timeline.Call(L"Clear");
  EXPECT_EQ(HostObjectsAlive(), before);
}

TEST(HostSink, HearsWhatAnObjectReports) {
  const Late group = NewGroup(), child = NewScalar();
  const auto sink = HostSink::Make();
  group.As<::IMURTimelineObject>().Put(L"EventSink", {sink});
  EXPECT_EQ(Late(group.As<::IMURTimelineObject>().Get(L"EventSink")).Pointer(), sink.Get());
  group.Put(L"Key", {L"G"});
  group.Call(L"Add", {child, L"C"});
  EXPECT_TRUE(Late(group.Call(L"Remove", {L"C"})).IsSame(child));
  EXPECT_THAT(sink->heard,
              ElementsAre("ObjectPropertyChanged(G, Key)", "ObjectAdopted(G, C)", "ObjectOrphaned(G, C)"));
  child.Call(L"Free");
  group.Call(L"Free");
}

// The result of a removal is set only after the report.
TEST(HostSink, ThatFailsKeepsARemovalFromItsResult) {
  const Late group = NewGroup(), child = NewScalar();
  const auto sink = HostSink::Make();
  group.As<::IMURTimelineObject>().Put(L"EventSink", {sink});
  group.Call(L"Add", {child, L"C"});
  sink->answer = [](const std::string&) { return E_FAIL; };
  EXPECT_EQ(group.Call(L"Remove", {L"C"}), Value::Nothing());
  EXPECT_EQ(group.Get(L"Count"), Value(short{0}));
  group.Put(L"Tag", {L"set all the same"});
  EXPECT_EQ(group.Get(L"Tag"), Value(L"set all the same"));
  child.Call(L"Free");
  group.Call(L"Free");
}

class ScriptHost : public testing::TestWithParam<ScriptObject::Kind> {};
INSTANTIATE_TEST_SUITE_P(Engines, ScriptHost,
                         testing::Values(ScriptObject::Kind::Plain, ScriptObject::Kind::Extended));

TEST_P(ScriptHost, HasObjectsThatAreMembersAsTheyAre) {
  const Late timeline = NewTimeline();
  const auto script = ScriptTimelineObject(GetParam());
  EXPECT_EQ(timeline.Call(L"Insert", {script, L"S"}), Value(true));
  EXPECT_THAT(script->calls, ElementsAre("Key", "EventSink"));
  EXPECT_EQ(Late(timeline.Get(L"Item", {L"S"})).Pointer(), script.Get());
  EXPECT_EQ(Late(timeline.Get(L"Item", {1})).Pointer(), script.Get());
  timeline.Call(L"Clear");
  EXPECT_THAT(script->calls, Contains("Free"));
  EXPECT_EQ(script->References(), 1u);
}

TEST_P(ScriptHost, HasObjectsThatAreTheSameEverywhere) {
  const Late first = NewTimeline(), group = NewGroup();
  const auto script = ScriptTimelineObject(GetParam());
  first.Call(L"Insert", {script, L"S"});
  group.Call(L"Add", {script, L"S"});
  EXPECT_EQ(Late(first.Get(L"Item", {1})).Pointer(), script.Get());
  EXPECT_EQ(Late(group.Get(L"Item", {1})).Pointer(), script.Get());
  const Value parent = script->members[L"Parent"](DISPATCH_PROPERTYGET, {});
  EXPECT_TRUE(Late(parent).IsSame(group));
  first.Call(L"Clear");
  group.Call(L"Free");
}

TEST_P(ScriptHost, HasSinksThatHear) {
  const Late group = NewGroup(), child = NewScalar();
  const auto sink = ScriptObject::Make(GetParam());
  for (const wchar_t* name : {L"ObjectAdopted", L"ObjectOrphaned", L"ObjectPropertyChanged"})
    sink->members[name] = [](WORD, const Values&) { return Value(); };
  const Late common = group.As<::IMURTimelineObject>();
  common.Put(L"EventSink", {sink});
  EXPECT_EQ(Late(common.Get(L"EventSink")).Pointer(), sink.Get());
  group.Call(L"Add", {child, L"C"});
  group.Put(L"Tag", {L"t"});
  group.Call(L"Remove", {L"C"});
  EXPECT_THAT(sink->calls, ElementsAre("ObjectAdopted", "ObjectPropertyChanged", "ObjectOrphaned"));
  child.Call(L"Free");
  group.Call(L"Free");
  EXPECT_EQ(sink->References(), 1u);
}

TEST_P(ScriptHost, MayLackWhatIsAskedFor) {
  const Late timeline = NewTimeline(), group = NewGroup();
  const auto empty = ScriptObject::Make(GetParam());
  timeline.Call(L"Insert", {empty, L"S"});
  group.As<::IMURTimelineObject>().Put(L"EventSink", {empty});
  group.Put(L"Tag", {L"t"});
  EXPECT_EQ(group.Get(L"Tag"), Value(L"t"));
  timeline.Call(L"Clear");
  group.Call(L"Free");
}

TEST_P(ScriptHost, HasObjectsThatComeWithEvents) {
  const Late timeline = NewTimeline();
  const Late group(timeline.Call(L"Add", {0, L"G"}));
  const auto script = ScriptTimelineObject(GetParam());
  const IUnknown* met = nullptr;
  {
    const Listening listening(timeline, [&](const std::string&, std::vector<VARIANT>& arguments) {
      met = V_UNKNOWN(&arguments.back());
      return S_OK;
    });
    group.Call(L"Add", {script, L"S"});
  }
  EXPECT_EQ(met, static_cast<IDispatch*>(script.Get()));
  script->members[L"Free"](DISPATCH_METHOD, {});
  timeline.Call(L"Clear");
}

}  // namespace
}  // namespace mur::test
