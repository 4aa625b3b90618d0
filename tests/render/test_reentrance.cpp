#include <functional>
#include <memory>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "tests/support/foreign_object.h"
#include "tests/support/print.h"
#include "tests/support/render_fixture.h"

namespace mur::test {
namespace {

// Something that a host may do in an event.
struct Deed {
  const char* name;
  std::function<void(AttachedControl&)> act;
};

const Deed kDeeds[] = {
    {"clears", [](AttachedControl& c) { c.timeline->Clear(); }},
    {"removes", [](AttachedControl& c) { c.timeline->Remove(1); }},
    {"frees",
     [](AttachedControl& c) {
       if (const auto member = c.timeline->Item(u"G")) member->Free();
     }},
    {"adds", [](AttachedControl& c) { c.timeline->Add(murtlotScalar); }},
    {"attaches again",
     [](AttachedControl& c) {
       if (c.control) c->SetTimeline(c.timeline.Get());
     }},
    {"attaches another",
     [](AttachedControl& c) {
       if (c.control) c->SetTimeline(Make<CMURTimeline>());
     }},
    {"detaches",
     [](AttachedControl& c) {
       if (c.control) c->SetTimeline(nullptr);
     }},
    {"repaints",
     [](AttachedControl& c) {
       if (c.control) c->SetDuration(c->Duration() + 1);
     }},
    {"throws", [](AttachedControl&) { throw 42; }},
    {"lets the control go", [](AttachedControl& c) { c.control = nullptr; }},
};

// Listens to every event of the control and its time line and does the deed in each, once.
class Doer {
 public:
  Doer(AttachedControl& ControlA, const Deed& DeedA) : mControl(ControlA), mDeed(DeedA) {
    CMURTimeline& timeline = *mControl.timeline;
    Listen(timeline.Clearing);
    Listen(timeline.Cleared);
    Listen(timeline.PropertyChanged);
    Listen(timeline.TLObjectAdded);
    Listen(timeline.TLObjectRemoved);
    Listen(timeline.TLObjectAdopted);
    Listen(timeline.TLObjectOrphaned);
    Listen(timeline.TLObjectPropertyChanged);
    Listen(mControl->CursorTimeChange);
    Listen(mControl->TimeScaleClick);
  }

 private:
  template <class... Arguments>
  void Listen(Event<Arguments...>& EventA) {
    mConnections.push_back(EventA.Connect([this, done = false](Arguments...) mutable {
      if (std::exchange(done, true)) return;
      mDeed.act(mControl);
    }));
  }

  AttachedControl& mControl;
  const Deed& mDeed;
  std::vector<Connection> mConnections;
};

void Play(AttachedControl& ControlA, const Companions& CompanionsA) {
  const auto step = [&](const std::function<void(MURTimelineRender&)>& deed) {
    if (ControlA.control) deed(*ControlA.control);
  };
  ControlA.timeline->Add(murtlotGroup, u"G2", true);
  if (const auto group = ControlA.timeline->Item(u"G")) {
    group->Add(Make<ForeignObject>(), u"F");
    group->SetTag(u"t");
    group->SetDuration(4);
    group->SetGroupType(murtlotMedia);
    group->Remove(u"F");
  }
  step([](MURTimelineRender& control) { control.SetCursorTime(At(50)); });
  step([](MURTimelineRender& control) { control.SetDuration(77); });
  step([](MURTimelineRender& control) { control.AlignTracks(); });
  step([](MURTimelineRender& control) { control.SetAutoHighlightObjects(false); });
  CompanionsA.scroller->ScaleClick.Raise();
  CompanionsA.scroller->SetCursorTime(At(60));
  CompanionsA.scroller->CursorTimeChanged.Raise();
  CompanionsA.canvas->Repaint.Raise();
  ControlA.timeline->SetDuration(123);
  ControlA.timeline->Remove(1);
  ControlA.timeline->Clear();
}

TEST(HostInAnEvent, MayDoAnything) {
  for (const Deed& deed : kDeeds)
    for (const bool isFirst : {true, false}) {
      AttachedControl c;
      const Companions companions = c->Collaborators();
      c.Add(murtlotGroup, u"G", true);
      const auto before = isFirst ? nullptr : std::make_unique<Doer>(c, deed);
      // Attached again, the control hears after the host.
      if (!isFirst) c->SetTimeline(c.timeline.Get());
      const auto after = isFirst ? std::make_unique<Doer>(c, deed) : nullptr;
      EXPECT_NO_THROW(Play(c, companions)) << deed.name;
      EXPECT_LE(c.timeline->Count(), 1) << deed.name;  // what was added when it was cleared
    }
}

TEST(HostInAnEvent, MayLetGoOfTheControlItself) {
  AttachedControl c;
  const auto connection = c->CursorTimeChange.Connect([&](Date) { c.control = nullptr; });
  c->SetDuration(5);
  EXPECT_FALSE(c.control);
  EXPECT_FALSE(c.timeline->TLObjectAdded.HasListeners());
}

// An object that does something whenever it is asked for anything.
class Meddler final : public ForeignObject {
 public:
  String Key() const override { return Meddle(), ForeignObject::Key(); }
  String Tag() const override { return Meddle(), ForeignObject::Tag(); }
  Ref<IMURTimelineObject> Parent() const override { return Meddle(), ForeignObject::Parent(); }
  MURTimelineObjectType ObjectType() const override { return Meddle(), ForeignObject::ObjectType(); }
  std::int16_t Count() const override { return Meddle(), ForeignObject::Count(); }
  double Duration() const override { return Meddle(), ForeignObject::Duration(); }
  Date WorldTimeT0() const override { return Meddle(), ForeignObject::WorldTimeT0(); }
  bool SpansTime(Date DateA, bool IncludeBoundariesA) const override {
    return Meddle(), ForeignObject::SpansTime(DateA, IncludeBoundariesA);
  }

  std::function<void()> deed;

 private:
  void Meddle() const {
    if (const auto once = deed; once && countdown-- == 0) once();
  }

 public:
  mutable int countdown = 0;
};

TEST(HostObject, MayDoAnythingWheneverItIsAskedForSomething) {
  for (const Deed& deed : kDeeds)
    for (int asked = 0; asked < 40; ++asked) {
      AttachedControl c;
      const Companions companions = c->Collaborators();
      c->AddRenderConfig(murtlotScalar);
      c->SetAutoObjectCaption(1, etlctParent);
      c.Add(murtlotGroup, u"G", true);
      const auto meddler = Make<Meddler>();
      meddler->deed = [&] { deed.act(c); };
      meddler->countdown = asked;
      c.timeline->Insert(meddler, u"M");
      c.timeline->AddTrackKey(u"M");
      EXPECT_NO_THROW(Play(c, companions)) << deed.name;
      meddler->deed = nullptr;
    }
}

TEST(HostObject, MayChangeTheTemplateOfItsOwnToolTip) {
  const AttachedControl c;
  const auto meddler = Make<Meddler>();
  c.timeline->Insert(meddler, u"M");
  c->SetAutoObjectTooltipText(u"$$Tag$$, $$Duration$$ and $$Tag$$ $");
  meddler->deed = [&] {
    c->SetAutoObjectTooltipText(u"another, longer than what any short text can hold in place: $$Tag$$");
    c.timeline->ObjectPropertyChanged(meddler, u"Key", Variant());
  };
  meddler->countdown = 2;
  c.timeline->ObjectPropertyChanged(meddler, u"Key", Variant());
  EXPECT_EQ(c.Item(u"M")->ToolTipText(), u", 00:00:00:00 and  $");
  meddler->deed = nullptr;
}

}  // namespace
}  // namespace mur::test
