#include <gmock/gmock.h>

#include "tests/com/listener.h"

namespace mur::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

Ref<IConnectionPointContainer> PointsOf(const Late& ObjectA) {
  return Query<IConnectionPointContainer>(ObjectA.Pointer());
}

TEST(ConnectionPoints, OfATimelineAreTheOneOfItsEvents) {
  const Late timeline = NewTimeline();
  IEnumConnectionPoints* found = nullptr;
  ASSERT_EQ(PointsOf(timeline)->EnumConnectionPoints(&found), S_OK);
  const auto points = TakeOver(found);
  IConnectionPoint* met[2] = {};
  ULONG count = 0;
  EXPECT_EQ(points->Next(2, met, &count), S_FALSE);
  ASSERT_EQ(count, 1u);
  const auto point = TakeOver(met[0]);
  EXPECT_EQ(point, PointOf(timeline.Pointer()));
  IID events{};
  EXPECT_EQ(point->GetConnectionInterface(&events), S_OK);
  EXPECT_EQ(events, __uuidof(::__CMURTimeline));
  IConnectionPointContainer* container = nullptr;
  EXPECT_EQ(point->GetConnectionPointContainer(&container), S_OK);
  EXPECT_EQ(Query<IUnknown>(TakeOver(container).Get()), timeline.Identity());
}

TEST(ConnectionPoints, KeepTheirObjectAndAreObjectsOfTheirOwn) {
  Late timeline = NewTimeline();
  const IUnknown* const identity = timeline.Identity().Get();
  const auto point = PointOf(timeline.Pointer());
  timeline = Late();
  EXPECT_NE(Query<IUnknown>(point.Get()).Get(), identity);
  EXPECT_FALSE(Query<IDispatch>(point.Get()));
  IConnectionPointContainer* container = nullptr;
  ASSERT_EQ(point->GetConnectionPointContainer(&container), S_OK);
  EXPECT_EQ(Query<IUnknown>(TakeOver(container).Get()).Get(), identity);
}

TEST(ConnectionPoints, AreNotThereForOtherEvents) {
  const Late timeline = NewTimeline();
  IConnectionPoint* found = PointOf(timeline.Pointer()).Get();
  EXPECT_EQ(PointsOf(timeline)->FindConnectionPoint(__uuidof(::__MURTimelineRender), &found),
            CONNECT_E_NOCONNECTION);
  EXPECT_EQ(found, nullptr);
  EXPECT_EQ(PointsOf(timeline)->FindConnectionPoint(__uuidof(::__CMURTimeline), nullptr), E_POINTER);
  EXPECT_EQ(PointsOf(timeline)->EnumConnectionPoints(nullptr), E_POINTER);
}

TEST(ConnectionPoints, RefuseWhatCannotListen) {
  const Late timeline = NewTimeline();
  const auto point = PointOf(timeline.Pointer());
  DWORD cookie = 7;
  EXPECT_EQ(point->Advise(nullptr, &cookie), E_POINTER);
  EXPECT_EQ(point->Advise(timeline.Pointer(), nullptr), E_POINTER);
  const auto mute = server::Factory(__uuidof(::CMURTimeline));
  EXPECT_EQ(point->Advise(mute.Get(), &cookie), CONNECT_E_CANNOTCONNECT);
  EXPECT_EQ(cookie, 0u);
  EXPECT_EQ(point->Unadvise(7), CONNECT_E_NOCONNECTION);
  EXPECT_EQ(point->GetConnectionInterface(nullptr), E_POINTER);
  EXPECT_EQ(point->GetConnectionPointContainer(nullptr), E_POINTER);
  EXPECT_EQ(point->EnumConnections(nullptr), E_POINTER);
}

TEST(ConnectionPoints, ListTheirConnectionsInOrder) {
  const Late timeline = NewTimeline();
  const Listening first(timeline), second(timeline);
  IEnumConnections* found = nullptr;
  ASSERT_EQ(PointOf(timeline.Pointer())->EnumConnections(&found), S_OK);
  const auto connections = TakeOver(found);
  CONNECTDATA met[3] = {};
  ULONG count = 0;
  EXPECT_EQ(connections->Next(3, met, &count), S_FALSE);
  ASSERT_EQ(count, 2u);
  EXPECT_EQ(TakeOver(met[0].pUnk).Get(), static_cast<IUnknown*>(first.operator->()));
  EXPECT_EQ(TakeOver(met[1].pUnk).Get(), static_cast<IUnknown*>(second.operator->()));
  EXPECT_NE(met[0].dwCookie, met[1].dwCookie);
  EXPECT_EQ(connections->Reset(), S_OK);
  EXPECT_EQ(connections->Skip(1), S_OK);
  EXPECT_EQ(connections->Skip(2), S_FALSE);
  IEnumConnections* clone = nullptr;
  ASSERT_EQ(connections->Clone(&clone), S_OK);
  EXPECT_EQ(TakeOver(clone)->Next(1, met, nullptr), S_FALSE);
}

TEST(Events, ReachEveryListenerInTheOrderOfTheirComing) {
  const Late timeline = NewTimeline();
  std::string order;
  const auto note = [&order](char name) {
    return [&order, name](const std::string&, std::vector<VARIANT>&) {
      order += name;
      return S_OK;
    };
  };
  const Listening a(timeline, note('a')), b(timeline, note('b')), c(timeline, note('c'));
  timeline.Put(L"Tag", {L"x"});
  EXPECT_EQ(order, "abc");
  EXPECT_THAT(c->heard, ElementsAre("PropertyChanged(\"Tag\")"));
}

TEST(Events, ReachTheOthersWhenAListenerFails) {
  const Late timeline = NewTimeline();
  for (const HRESULT failure : {E_FAIL, E_NOTIMPL, DISP_E_MEMBERNOTFOUND, DISP_E_EXCEPTION, E_OUTOFMEMORY,
                                static_cast<HRESULT>(0x800A0006)}) {
    const Listening failing(timeline, [=](const std::string&, std::vector<VARIANT>&) { return failure; });
    const Listening other(timeline);
    timeline.Put(L"AutoID", {timeline.Get(L"AutoID").Number() + 1});
    timeline.Put(L"AutoID", {timeline.Get(L"AutoID").Number() + 1});
    EXPECT_EQ(failing->heard.size(), 2u) << ResultText(failure);
    EXPECT_EQ(other->heard.size(), 2u) << ResultText(failure);
  }
}

TEST(Events, ReachNobodyWhoseProcessHasGone) {
  const Late timeline = NewTimeline();
  const Listening gone(timeline,
                       [](const std::string&, std::vector<VARIANT>&) { return RPC_E_DISCONNECTED; });
  const Listening other(timeline);
  timeline.Put(L"Tag", {L"x"});
  timeline.Put(L"Tag", {L"y"});
  EXPECT_EQ(gone->heard.size(), 1u);
  EXPECT_EQ(other->heard.size(), 2u);
}

TEST(Events, EndForAListenerThatLeavesInTheMiddle) {
  const Late timeline = NewTimeline();
  Listener* second = nullptr;
  const Listening first(timeline, [&](const std::string&, std::vector<VARIANT>&) {
    second->End();
    return S_OK;
  });
  const Listening leaving(timeline), third(timeline);
  second = leaving.operator->();
  timeline.Put(L"Tag", {L"x"});
  EXPECT_THAT(second->heard, IsEmpty());
  EXPECT_EQ(third->heard.size(), 1u);
}

TEST(Events, LetAListenerLeaveItself) {
  const Late timeline = NewTimeline();
  Listener* self = nullptr;
  const Listening once(timeline, [&](const std::string&, std::vector<VARIANT>&) {
    self->End();
    return S_OK;
  });
  self = once.operator->();
  timeline.Put(L"Tag", {L"x"});
  timeline.Put(L"Tag", {L"y"});
  EXPECT_EQ(self->heard.size(), 1u);
}

TEST(Events, DoNotReachThoseThatCameMeanwhile) {
  const Late timeline = NewTimeline();
  std::vector<std::unique_ptr<Listening>> later;
  const Listening first(timeline, [&](const std::string&, std::vector<VARIANT>&) {
    later.push_back(std::make_unique<Listening>(timeline));
    return S_OK;
  });
  timeline.Put(L"Tag", {L"x"});
  ASSERT_EQ(later.size(), 1u);
  EXPECT_THAT((*later[0])->heard, IsEmpty());
  timeline.Put(L"Tag", {L"y"});
  EXPECT_EQ((*later[0])->heard.size(), 1u);
}

TEST(Events, KeepTheirSourceUntilTheyAreOver) {
  Late timeline = NewTimeline();
  Listener* self = nullptr;
  const Listening only(timeline, [&](const std::string&, std::vector<VARIANT>&) {
    const Late last = std::exchange(timeline, Late());
    self->End();
    return S_OK;
  });
  const Listening other(timeline);
  self = only.operator->();
  timeline.Put(L"Tag", {L"x"});
  EXPECT_EQ(other->heard.size(), 1u);
}

TEST(Events, GiveTheirTextsAndValuesWhole) {
  const Late timeline = NewTimeline();
  timeline.Call(L"Add", {1, L"A"});
  Late(timeline.Get(L"Item", {1})).Put(L"Tag", {L"tag"});
  const Listening listening(timeline);
  timeline.Call(L"Remove", {1});
  EXPECT_THAT(listening->heard,
              ElementsAre("PropertyChanged(\"NTrackKeys\")", "TLObjectRemoved(1, \"tag\")"));
}

// A host that lets an object go without ending its connection: the object still holds the listener then.
TEST(Events, LetTheirListenersGoWithTheObject) {
  Late timeline = NewTimeline();
  const auto listener = Listener::On(timeline);
  const ULONG before = listener->References();
  listener->ForgetPoint();
  timeline = Late();
  EXPECT_EQ(listener->References(), before - 1);
}

}  // namespace
}  // namespace mur::test
