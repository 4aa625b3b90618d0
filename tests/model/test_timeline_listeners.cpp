#include <gtest/gtest.h>

#include <murtimeline/automation/guard.h>

#include "tests/support/event_recorder.h"
#include "tests/support/foreign_object.h"
#include "tests/support/model_invariants.h"
#include "tests/support/model_objects.h"
#include "tests/support/print.h"

namespace mur::test {
namespace {

// What listeners may do while they are being told.
class TimelineListener : public testing::Test {
 protected:
  FrozenClock clock{DateOf(2000, 1, 1)};
  OwnedTimeline timeline;
  EventRecorder recorder{*timeline};
};

TEST_F(TimelineListener, MayRemoveTheMemberThatWasJustAdded) {
  const Connection connection =
      timeline->TLObjectAdded.Connect([&](const Variant& key) { timeline->Remove(key); });
  const auto member = timeline->Add(murtlotScalar, u"S", true);
  EXPECT_EQ(timeline->Count(), 0);
  EXPECT_EQ(recorder.Take(),
            "TLObjectAdded('S'); PropertyChanged(NTrackKeys); TLObjectRemoved('S', ''); "
            "PropertyChanged(NTrackKeys)");
  EXPECT_EQ(member->Key(), u"");
  ExpectSound(*timeline);
}

TEST_F(TimelineListener, MayClearTheTimelineInsideAnyEvent) {
  const auto clear = [&] { timeline->Clear(); };
  const Connection added = timeline->TLObjectAdded.Connect([&](const Variant&) { clear(); });
  timeline->Add(murtlotGroup, u"G", true);
  EXPECT_EQ(timeline->Count(), 0);
  const Connection changed =
      timeline->TLObjectPropertyChanged.Connect([&](const auto&, StringView, const Variant&) { clear(); });
  timeline->Add(murtlotGroup, u"G");
  timeline->Remove(u"G");
  EXPECT_EQ(timeline->Count(), 0);
  ExpectSound(*timeline);
}

TEST_F(TimelineListener, MayClearWhileAMemberReportsItsMove) {
  const auto group = timeline->Add(murtlotGroup, u"G");
  group->Add(timeline->Add(murtlotScalar, u"S"), u"S");
  recorder.Take();
  const Connection connection = timeline->TLObjectPropertyChanged.Connect(
      [&](const auto&, StringView, const Variant&) { timeline->Clear(); });
  group->SetWorldTimeT0(Date::Unchecked(1));
  EXPECT_EQ(recorder.Take(), "TLObjectPropertyChanged(S.Offset = -86400); Clearing; Cleared");
  EXPECT_EQ(group->Count(), 0);
}

TEST_F(TimelineListener, MayAddMembersWhileTheTimelineIsCleared) {
  const Connection connection = timeline->Clearing.Connect([&] { timeline->Add(murtlotScalar, u"late"); });
  timeline->Clear();
  EXPECT_EQ(timeline->Count(), 0);
  EXPECT_EQ(recorder.Take(), "Clearing; TLObjectAdded('late'); Cleared");
}

TEST_F(TimelineListener, MayLetGoOfTheTimelineWhileItAddsATrack) {
  auto lonely = Make<CMURTimeline>();
  const Connection added = lonely->TLObjectAdded.Connect([&](const Variant&) {
    lonely->Clear();
    lonely = nullptr;
  });
  lonely.Get()->Add(murtlotScalar, u"S", true);
  EXPECT_FALSE(lonely);
}

TEST_F(TimelineListener, MayLetGoOfTheTimelineInsideItsOwnEvents) {
  for (const auto change : std::vector<void (*)(CMURTimeline&)>{
           [](CMURTimeline& line) { line.SetTag(u"x"); }, [](CMURTimeline& line) { line.AddTrackKey(u"x"); },
           [](CMURTimeline& line) { line.EnumerateProperties(); },
           [](CMURTimeline& line) { line.RemoveTrackKey(1); }}) {
    auto lonely = Make<CMURTimeline>();
    const Connection changed = lonely->PropertyChanged.Connect([&](StringView) { lonely = nullptr; });
    change(*lonely);
    EXPECT_FALSE(lonely);
  }
}

TEST_F(TimelineListener, ThatFailsKeepsNoOtherListenerFromHearing) {
  const Connection failing = timeline->PropertyChanged.Connect([](StringView) { throw 42; });
  EventRecorder second(*timeline);
  timeline->SetTag(u"t");
  EXPECT_EQ(timeline->Tag(), u"t");
  EXPECT_EQ(second.Take(), "PropertyChanged(Tag)");
}

TEST_F(TimelineListener, EndlesslyChangingAPropertyEndsWithoutAnError) {
  double next = 0;
  const Connection connection =
      timeline->PropertyChanged.Connect([&](StringView) { timeline->SetDuration(++next); });
  timeline->SetDuration(++next);
  EXPECT_GT(next, 100);
}

TEST_F(TimelineListener, EndlesslyAddingMembersEndsWithoutAnError) {
  const Connection connection =
      timeline->TLObjectAdded.Connect([&](const Variant&) { timeline->Add(murtlotScalar); });
  timeline->Add(murtlotScalar);
  EXPECT_GT(timeline->Count(), 100);
  ExpectSound(*timeline);
}

TEST_F(TimelineListener, EndlesslyClearingEndsWithoutAnError) {
  int cleared = 0;
  const Connection connection = timeline->Clearing.Connect([&] {
    ++cleared;
    timeline->Clear();
  });
  timeline->Clear();
  EXPECT_GT(cleared, 100);
}

TEST_F(TimelineListener, EndlesslyEnumeratingLeavesNoUnchangedPutReported) {
  const auto member = timeline->Add(murtlotScalar, u"S");
  {
    const Connection enumerating =
        timeline->PropertyChanged.Connect([&](StringView) { timeline->EnumerateProperties(); });
    const Connection changed = timeline->TLObjectPropertyChanged.Connect(
        [&](const auto&, StringView, const Variant&) { timeline->EnumerateProperties(); });
    member->SetTag(u"t");
  }
  recorder.Take();
  timeline->SetTag(timeline->Tag());
  EXPECT_EQ(recorder.Take(), "");
}

// A member of a host's own that puts itself back whenever it is freed.
class Boomerang final : public ForeignObject {
 public:
  explicit Boomerang(CMURTimeline& TimelineA) : mTimeline(TimelineA) {}
  void Free() override {
    ForeignObject::Free();
    mTimeline.Insert(Ref<IMURTimelineObject>(this), FromAscii(std::to_string(timesFreed)));
  }

 private:
  CMURTimeline& mTimeline;
};

TEST_F(TimelineListener, ClearEndsAlthoughAMemberAlwaysComesBack) {
  auto boomerang = Make<Boomerang>(*timeline);
  timeline->Insert(boomerang, u"B");
  timeline->Clear();
  EXPECT_EQ(timeline->Count(), 0);
  EXPECT_GT(boomerang->timesFreed, 1);
  boomerang->SetEventSink(nullptr);
}

}  // namespace
}  // namespace mur::test
