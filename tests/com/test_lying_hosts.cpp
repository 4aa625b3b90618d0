#include <limits>

#include <gtest/gtest.h>

#include "tests/com/host_object.h"
#include "tests/com/listener.h"

// Hosts' objects that fail, lie or do what nobody expects in the middle of a call: the server goes on, and
// all is let go at the end.

namespace mur::test {
namespace {

/// A time line that a control shows, with a group.
class ShownTimeline {
 public:
  ShownTimeline() { control.Put(L"Timeline", {timeline}); }
  ShownTimeline(const ShownTimeline&) = delete;
  ShownTimeline& operator=(const ShownTimeline&) = delete;
  ~ShownTimeline() { timeline.Call(L"Clear"); }

  const Late control = NewControl(), timeline = NewTimeline();
  const Late group = Late(timeline.Call(L"Add", {0, L"G", true}));
};

// Everything that makes the server ask an object.
void UseAsMember(const Ref<HostObject>& ObjectA) {
  const ShownTimeline shown;
  shown.timeline.Call(L"Insert", {ObjectA, L"H"});
  shown.timeline.Call(L"AddTrackKey", {L"H"});
  shown.group.Call(L"Add", {ObjectA, L"H"});
  shown.group.Put(L"WorldTimeT0", {Value::Date(36526)});
  shown.control.Call(L"AlignTracks");
  for (int type = 0; type <= 11; ++type) shown.control.Put(L"AutoObjectCaption", {1, type});
  shown.control.Put(L"CursorTime", {Value::Date(36526)});
  shown.control.Call(L"TrackTop", {L"H"});
  shown.timeline.Try(L"AsString", DISPATCH_METHOD, {L""});
  shown.group.Call(L"Remove", {L"H"});
  shown.timeline.Call(L"Remove", {L"H"});
  EXPECT_EQ(shown.group.Get(L"Count"), Value(short{0}));
}

// Lets go of what lies keep in a circle.
void Forget(HostObject& ObjectA) {
  ObjectA.before = {};
  ObjectA.item = {};
  ObjectA.claimedCount.reset();
  ObjectA.Free();
}

TEST(LyingHost, MayCountWhatItLikes) {
  for (const short count : {short{-32768}, short{-1}, short{1}, short{32767}}) {
    const auto host = HostObject::Make();
    host->claimedCount = count;
    UseAsMember(host);
    Forget(*host);
    EXPECT_EQ(host->References(), 1u) << count;
  }
}

TEST(LyingHost, MayCountMoreEachTime) {
  const auto host = HostObject::Make();
  host->claimedCount = short{0};
  host->before = [&](std::string_view member) {
    if (member == "get_Count") ++*host->claimedCount;
    return S_OK;
  };
  UseAsMember(host);
  Forget(*host);
  EXPECT_EQ(host->References(), 1u);
}

TEST(LyingHost, MayBeItsOwnChild) {
  const auto host = HostObject::Make();
  host->claimedCount = short{3};
  host->item = [&](const VARIANT&, ::IMURTimelineObject** result) {
    *result = HostObject::Child(host.Get()).Detach();
    return S_OK;
  };
  UseAsMember(host);
  Forget(*host);
  EXPECT_EQ(host->References(), 1u);
}

TEST(LyingHost, MayBeItsOwnGrandparent) {
  const auto host = HostObject::Make(), other = HostObject::Make();
  host->children.emplace_back(other.Get());
  other->children.emplace_back(host.Get());
  host->parent = HostObject::Child(other.Get());
  other->parent = HostObject::Child(host.Get());
  // Neither is let go by what the server writes.
  host->before = other->before = [](std::string_view member) {
    return member == "Free" || member == "putref_Parent" ? E_NOTIMPL : S_OK;
  };
  UseAsMember(host);
  Forget(*host);
  Forget(*other);
  EXPECT_EQ(host->References(), 1u);
  EXPECT_EQ(other->References(), 1u);
}

TEST(LyingHost, MayFailInEveryWay) {
  for (const HRESULT failure : {E_FAIL, E_NOTIMPL, E_POINTER, E_UNEXPECTED, E_OUTOFMEMORY, E_ABORT,
                                E_ACCESSDENIED, RPC_E_DISCONNECTED, DISP_E_EXCEPTION, DISP_E_OVERFLOW,
                                static_cast<HRESULT>(0x800A0006), static_cast<HRESULT>(0x800A001C),
                                static_cast<HRESULT>(0x800A01C9), static_cast<HRESULT>(0xFFFFFFFF)}) {
    const auto host = HostObject::Make();
    host->before = [=](std::string_view) { return failure; };
    UseAsMember(host);
    Forget(*host);
    EXPECT_EQ(host->References(), 1u) << ResultText(failure);
  }
}

TEST(LyingHost, MayFailInAnySingleMember) {
  for (const std::string failing :
       {"get_Key", "put_Key", "get_Tag", "putref_EventSink", "get_Parent", "putref_Parent", "get_ObjectType",
        "get_GroupType", "Free", "AsString", "get_Count", "get_Duration", "get_WorldTimeT0", "get_offset",
        "get_LockedToParent", "ParentWorldtimeT0Changed"}) {
    const auto host = HostObject::Make();
    host->before = [=](std::string_view member) { return member == failing ? E_FAIL : S_OK; };
    UseAsMember(host);
    Forget(*host);
    EXPECT_EQ(host->References(), 1u) << failing;
  }
}

TEST(LyingHost, MaySayTimesThatAreNone) {
  for (const double odd : {std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::infinity(),
                           -std::numeric_limits<double>::infinity(), 1e300, -1e300}) {
    const auto host = HostObject::Make();
    host->start = host->duration = host->distance = odd;
    UseAsMember(host);
    Forget(*host);
    EXPECT_EQ(host->References(), 1u) << odd;
  }
}

// Clears, removes and adds from within each call that the server makes.
TEST(LyingHost, MayChangeTheTimelineInTheMiddle) {
  for (const std::string when : {"put_Key", "putref_EventSink", "get_Key", "get_Tag", "Free", "get_Count",
                                 "get_Duration", "get_Parent"})
    for (int deed = 0; deed < 3; ++deed) {
      const ShownTimeline shown;
      const auto host = HostObject::Make();
      int rest = 3;
      host->before = [&](std::string_view member) {
        if (member != when || rest-- <= 0) return S_OK;
        if (deed == 0) shown.timeline.Call(L"Clear");
        if (deed == 1) shown.timeline.Call(L"Remove", {1});
        if (deed == 2) shown.timeline.Call(L"Add", {1, Value::Missing(), true});
        return S_OK;
      };
      shown.timeline.Call(L"Insert", {host, L"H"});
      shown.control.Call(L"AlignTracks");
      shown.timeline.Call(L"Remove", {L"H"});
      Forget(*host);
      shown.timeline.Call(L"Clear");
      EXPECT_EQ(host->References(), 1u) << when << " " << deed;
    }
}

TEST(LyingHost, MayLetItselfGoInTheMiddle) {
  const ShownTimeline shown;
  auto host = HostObject::Make();
  host->before = [&](std::string_view member) {
    if (member == "put_Key") host = {};
    return S_OK;
  };
  const Value passed = host;
  EXPECT_EQ(shown.timeline.Call(L"Insert", {passed, L"H"}), Value(true));
  EXPECT_FALSE(host);
  static_cast<HostObject*>(V_DISPATCH(&passed.Get()))->before = {};
}

TEST(Listeners, MayChangeTheTimelineInTheMiddle) {
  for (const std::string when : {"Clearing", "Cleared", "PropertyChanged", "TLObjectAdded", "TLObjectRemoved",
                                 "TLObjectAdopted", "TLObjectOrphaned", "TLObjectPropertyChanged"})
    for (const wchar_t* const deed : {L"Clear", L"Remove", L"Add"}) {
      const ShownTimeline shown;
      int rest = 4;
      const Listening listening(shown.timeline, [&](const std::string& event, std::vector<VARIANT>&) {
        if (event != when || rest-- <= 0) return S_OK;
        shown.timeline.Call(deed, std::wstring_view(deed) == L"Clear" ? Values{} : Values{1});
        return S_OK;
      });
      const Late child = NewScalar();
      shown.timeline.Call(L"Add", {1, L"A", true});
      shown.group.Call(L"Add", {child, L"C"});
      shown.group.Put(L"Tag", {L"t"});
      shown.group.Call(L"Remove", {L"C"});
      shown.timeline.Call(L"Remove", {L"A"});
      shown.timeline.Call(L"Clear");
      child.Call(L"Free");
      EXPECT_LT(rest, 4) << when;
    }
}

// What a host releases too often is still there for the time line.
TEST(CarelessHost, TakesNothingFromTheModelByReleasingTooOften) {
  const Late timeline = NewTimeline();
  IUnknown* const member = Late(timeline.Call(L"Add", {1, L"A"})).Identity().Get();
  for (int i = 0; i < 5; ++i) EXPECT_EQ(member->Release(), 0u);
  EXPECT_EQ(Late(timeline.Get(L"Item", {1})).Get(L"Key"), Value(L"A"));
  timeline.Call(L"Clear");
}

TEST(CarelessHost, MayHoldAMemberLongerThanItsTimeline) {
  Late member;
  {
    const Late timeline = NewTimeline();
    member = Late(timeline.Call(L"Add", {0, L"A"}));
    timeline.Call(L"Clear");
  }
  EXPECT_EQ(member.Get(L"Key"), Value(L""));
  EXPECT_EQ(member.Get(L"EventSink"), Value::Nothing());
  EXPECT_EQ(member.Get(L"Count"), Value(short{0}));
}

}  // namespace
}  // namespace mur::test
