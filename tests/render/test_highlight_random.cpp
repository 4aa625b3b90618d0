#include <map>
#include <random>

#include <gtest/gtest.h>

#include <murtimeline/model/timeline_group.h>

#include "tests/render/pointed_control.h"
#include "tests/support/foreign_object.h"

namespace mur::test {
namespace {

// Random changes of all kinds, between passes and within their events. After each pass every bar must have
// the colour that a pass over all objects, written for clarity, gives it.
class RandomHighlights : public testing::TestWithParam<unsigned> {
 protected:
  using Colors =
      std::map<Ref<ICanvasItem>, OleColor,
               decltype([](const auto& left, const auto& right) { return left.Get() < right.Get(); })>;

  RandomHighlights() {
    for (PointedControl* each : {&c, &other}) {
      (*each)->SetAutoHighlightObjects(true);
      (*each)->SetAutoSelectMode(etlcltLeftClick);
    }
    other->SetTimeline(c.timeline.Get());
    for (int i = 0; i < 150; ++i) AddOne();
    // The last to hear of the steps of a drag before their pass.
    changing.push_back(c.timeline->TLObjectPropertyChanged.Connect([this](auto&&...) { MeddleAndLook(); }));
    for (PointedControl* each : {&c, &other})
      changing.push_back((*each)->CursorTimeChange.Connect([this](Date) { MeddleAndLook(); }));
  }

  int Pick(int BoundA) { return static_cast<int>(random() % static_cast<unsigned>(BoundA)); }
  Ref<IMURTimelineObject> PickMember() {
    return c.timeline->Item(1 + Pick(std::max(1, c.timeline->Count())));
  }
  Date PickTime() { return At(Pick(1000)); }
  String PickKey() { return FromAscii((Pick(2) ? "key " : "KEY ") + std::to_string(Pick(300))); }

  void AddOne() {
    if (GetParam() % 2 == 1 && Pick(50) == 0) {
      c.timeline->Insert(Make<ForeignObject>(), Variant(PickKey()));
      return;
    }
    constexpr MURTimelineObjectType kTypes[] = {murtlotGroup, murtlotScalar, murtlotMedia};
    const auto member = c.timeline->Add(kTypes[Pick(3)], Variant(PickKey()));
    if (!member) return;
    member->SetWorldTimeT0(PickTime());
    member->SetDuration(Pick(300));
  }

  void Change() {
    const auto member = PickMember();
    if (!member) return AddOne();
    switch (Pick(24)) {
      case 0:
        return member->SetDuration(Pick(30) == 0 ? 1e300 : Pick(300));
      case 1:
        if (auto* media = dynamic_cast<CMURTimelineMedia*>(member.Get())) media->SetUseClipping(Pick(2) == 0);
        return;
      case 2:
        if (auto* media = dynamic_cast<CMURTimelineMedia*>(member.Get())) media->SetMediaDuration(Pick(300));
        return;
      case 3:
        return member->SetGroupType(static_cast<MURTimelineObjectType>(Pick(4)));
      case 4:
        if (Pick(10) == 0) member->SetKey(PickKey());
        return;
      case 5:
        if (Pick(10) == 0) c.timeline->Remove(Variant(1 + Pick(150)));
        return;
      case 6:
        if (Pick(10) == 0) c.timeline->Remove(Variant(member->Key()));
        return;
      case 7:
        if (Pick(200) == 0) c.timeline->Clear();
        return;
      case 8:
        if (Pick(4) == 0) AddOne();
        return;
      case 9:
        if (const auto item = c.Canvas().Graphic(1 + Pick(150)); item && Pick(4) == 0) item->SetBackColor(7);
        return;
      case 10:
        if (Pick(20) == 0 && c.Canvas().GraphicCount() > 2) c.Canvas().RemoveGraphic(2);
        return;
      case 11:
        if (Pick(4) == 0) c->DefaultRenderConfig()->SetHighlightColor(static_cast<OleColor>(Pick(100)));
        return;
      case 12:
        if (Pick(10) == 0) c->AddRenderConfig(Pick(4))->SetBackColor(static_cast<OleColor>(Pick(100)));
        return;
      case 13:
        if (Pick(50) == 0) member->SetEventSink(nullptr);
        return;
      case 14:
        if (Pick(100) == 0) member->Free();
        return;
      case 15: {
        const auto parent = PickMember();
        if (dynamic_cast<CMURTimelineGroup*>(parent.Get()) && parent->Key() < member->Key())
          parent->Add(member, member->Key()), member->SetLockedToParent(Pick(2) == 0);
        return;
      }
      case 16:
        if (Pick(20) == 0)
          c->SetTimeline(c->Timeline() == c.timeline.Get() ? Make<CMURTimeline>() : c.timeline.Get());
        return;
      default:
        return member->SetWorldTimeT0(PickTime());
    }
  }

  void MeddleAndLook() {
    if (!inPass) return;
    if (!std::exchange(meddles, false)) return Look();
    for (int count = Pick(4); count > 0; --count) Change();
    Look();
  }
  void Look() {
    shown.clear();
    const IGraphicCanvas& canvas = passing->Canvas();
    for (std::size_t i = 1; i <= canvas.GraphicCount(); ++i) {
      const auto item = canvas.Graphic(static_cast<std::int32_t>(i));
      shown[item] = item->BackColor();
    }
  }

  OleColor ColorFor(const IMURTimelineObject& ObjectA, bool HighlightedA) const {
    const MURTimelineObjectType type = ObjectA.ObjectType();
    auto config = (*passing)->RenderConfig(Variant(type == murtlotGroup ? ObjectA.GroupType() : type));
    if (!config) config = (*passing)->DefaultRenderConfig();
    return HighlightedA ? config->HighlightColor() : config->BackColor();
  }
  // One pass over all objects, on what was seen before.
  template <class IsHighlighted>
  void Recolor(IsHighlighted&& IsHighlightedA) {
    auto members = (*passing)->Timeline()->NewEnum();
    while (const auto member = members.Next())
      if (const auto item = passing->Item(member->Key()))
        shown[item] = ColorFor(*member, IsHighlightedA(*member));
  }

  void DragCursor() {
    const auto cursor = passing->Item(u"The Cursor");
    if (!cursor) return;
    std::int16_t button = kLeftButton, shift = 0;
    float x = static_cast<float>(Pick(4) == 0 ? 500 : Pick(1000)) - cursor->Left(), y = 0;
    passing->Canvas().ItemMouseDown.Raise(cursor, button, shift, x, y);
    Step(cursor, x);
  }
  void DragBar() {
    const auto member = PickMember();
    const auto item = member ? passing->Item(member->Key()) : Ref<ICanvasItem>();
    if (!item || (*passing)->Timeline()->ItemByKey(item->Key()) != member) return;
    std::int16_t button = kLeftButton, shift = 0;
    float x = 0, y = 0;
    passing->Canvas().ItemMouseDown.Raise(item, button, shift, x, y);
    Step(item, static_cast<float>(Pick(100) - 50));
  }
  void Step(const Ref<ICanvasItem>& ItemA, float XA) {
    std::int16_t button = kLeftButton, shift = 0;
    float y = 0;
    passed = false;
    const auto passEnds = (*passing)->TLObjectMouseMove.Connect([this](auto&&...) { passed = true; });
    const auto cursorPassEnds = (*passing)->CursorMouseMove.Connect([this](auto&&...) { passed = true; });
    inPass = meddles = true;
    Look();
    passing->Canvas().ItemMouseMove.Raise(ItemA, button, shift, XA, y);
    inPass = false;
    if (passed) Recolor([&](const auto& object) { return object.SpansTime((*passing)->CursorTime()); });
    if (passed) ExpectColors();
    (*passing)->CancelDrag();
  }
  void Select() {
    const auto member = PickMember();
    const auto item = member ? passing->Item(member->Key()) : Ref<ICanvasItem>();
    if (!item || (*passing)->Timeline()->ItemByKey(item->Key()) != member) return;
    std::int16_t button = kLeftButton, shift = 0;
    float x = 0, y = 0;
    passing->Canvas().ItemMouseDown.Raise(item, button, shift, x, y);
    Look();
    passing->Canvas().ItemClick.Raise(item);
    Recolor([&](const auto& object) { return object.Key() == member->Key(); });
    ExpectColors();
    (*passing)->CancelDrag();
  }
  void ExpectColors() const {
    for (const auto& [item, color] : shown) ASSERT_EQ(item->BackColor(), color) << ToUtf8(item->Key());
  }

  std::mt19937 random{GetParam()};
  PointedControl c, other;
  PointedControl* passing = &c;
  std::vector<Connection> changing;
  bool inPass = false, meddles = false, passed = false;
  Colors shown;
};

TEST_P(RandomHighlights, AreThoseOfAPassOverAllObjects) {
  int brief = 0;
  for (int step = 0; step < 4000; ++step) {
    passing = Pick(4) == 0 ? &other : &c;
    for (int changes = Pick(4) == 0 ? Pick(5) : 0; changes > 0; --changes) Change();
    const auto before = passing->Canvas().ColorRevision().value();
    if (const int kind = Pick(10); kind < 5)
      DragCursor();
    else if (kind < 9)
      DragBar();
    else
      Select();
    if (passing->Canvas().ColorRevision().value() - before < 100) ++brief;
    if (HasFatalFailure()) FAIL() << "step " << step;
  }
  EXPECT_GT(brief, GetParam() % 2 == 0 ? 400 : 10);
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomHighlights, testing::Values(2U, 3U, 4U, 5U, 6U));

}  // namespace
}  // namespace mur::test
