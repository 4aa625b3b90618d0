#include <functional>

#include <gtest/gtest.h>

#include "tests/render/pointed_control.h"
#include "tests/support/foreign_object.h"
#include "tests/support/print.h"

namespace mur::test {
namespace {

constexpr std::int16_t kEveryButton = kLeftButton | kRightButton | kMiddleButton;

TEST(Interaction, TellsBarsFromTheCursorAndTheBackground) {
  PointedControl c;
  c.Bar(murtlotGroup, u"G", 100);
  c->SetAllowObjectDragging(false);
  for (const float x : {105.0F, 500.0F, 300.0F}) {
    c.Move(x, 5, 0);
    c.Click(x, 5, kRightButton);
    c.DoubleClick(x, 5, kRightButton);
  }
  EXPECT_EQ(c.log.Take(),
            "TLObjectMouseMove(G, 0, 0, 5, 5); TLObjectMouseDown(G, 2, 0, 5, 5); "
            "TLObjectMouseUp(G, 2, 0, 5, 5); TLObjectClick(G); TLObjectMouseDown(G, 2, 0, 5, 5); "
            "TLObjectMouseUp(G, 2, 0, 5, 5); TLObjectDblClick(G); "
            "CursorMouseMove(The Cursor, 0, 0, 2.5, 5); CursorMouseDown(The Cursor, 2, 0, 2.5, 5); "
            "CursorMouseUp(The Cursor, 2, 0, 2.5, 5); CursorClick(The Cursor); "
            "CursorMouseDown(The Cursor, 2, 0, 2.5, 5); CursorMouseUp(The Cursor, 2, 0, 2.5, 5); "
            "CursorDblClick(The Cursor); "
            "MouseMove(0, 0, 300, 5); MouseDown(2, 0, 300, 5); MouseUp(2, 0, 300, 5); Click(); "
            "MouseDown(2, 0, 300, 5); MouseUp(2, 0, 300, 5); DblClick()");
}

TEST(Interaction, HandsArgumentsOnByReference) {
  PointedControl c;
  c.Bar(murtlotGroup, u"G", 100);
  const auto change = [](std::int16_t& button, std::int16_t& shift, float& x, float& y) {
    button = 11, shift = 12, x = 13, y = 14;
  };
  const auto onObject = [&](const auto&, auto&... pointer) { change(pointer...); };
  const Connection connections[] = {c->MouseDown.Connect(change),
                                    c->MouseMove.Connect(change),
                                    c->MouseUp.Connect(change),
                                    c->TLObjectMouseDown.Connect(onObject),
                                    c->TLObjectMouseMove.Connect(onObject),
                                    c->TLObjectMouseUp.Connect(onObject),
                                    c->CursorMouseDown.Connect(onObject),
                                    c->CursorMouseMove.Connect(onObject),
                                    c->CursorMouseUp.Connect(onObject)};
  IGraphicCanvas& canvas = c.Canvas();
  const auto expect = [](auto&& raise) {
    std::int16_t button = kRightButton, shift = 0;
    float x = 1, y = 2;
    raise(button, shift, x, y);
    EXPECT_TRUE(button == 11 && shift == 12 && x == 13 && y == 14);
  };
  for (auto* event : {&canvas.MouseDown, &canvas.MouseMove, &canvas.MouseUp})
    expect([&](auto&... pointer) { event->Raise(pointer...); });
  for (auto* event : {&canvas.ItemMouseDown, &canvas.ItemMouseMove, &canvas.ItemMouseUp})
    for (const StringView key : {u"G", u"The Cursor"})
      expect([&](auto&... pointer) { event->Raise(c.Item(key), pointer...); });
}

TEST(Interaction, HandsDragsAndDropsOnByReference) {
  PointedControl c;
  const auto group = c.Bar(murtlotGroup, u"G", 100);
  c->SetOLEDropMode(1);
  const auto data = Ref<Object>(group);
  const auto drop = c->TLObjectOLEDragDrop.Connect(
      [&](const auto&, Ref<Object>& brought, std::int32_t& effect, auto&, auto&, auto&, auto&) {
        brought = data;
        effect = kDropMove;
      });
  const auto over = c->CursorOLEDragOver.Connect(
      [](auto, auto&, std::int32_t& effect, auto&, auto&, auto&, auto&, auto&) { effect = kDropNone; });
  DragInput onBar{{}, kDropCopy, {{105, 5}, 1, 0}}, onCursor{{}, kDropCopy, {{500, 5}, 1, 0}},
      onBackground{{}, kDropCopy, {{300, 5}, 1, 0}};
  for (DragInput* input : {&onBar, &onCursor, &onBackground}) {
    c.Pointed().DraggedOver(*input, kDragIsOver);
    c.Pointed().Dropped(*input);
  }
  EXPECT_EQ(
      c.log.Take(),
      "TLObjectOLEDragOver(G, nothing, 1, 1, 0, 5, 5, 2); TLObjectOLEDragDrop(G, nothing, 1, 1, 0, 5, 5); "
      "CursorOLEDragOver(The Cursor, nothing, 1, 1, 0, 2.5, 5, 2); "
      "CursorOLEDragDrop(The Cursor, nothing, 0, 1, 0, 2.5, 5); "
      "OLEDragOver(nothing, 1, 1, 0, 300, 5, 2); OLEDragDrop(nothing, 1, 1, 0, 300, 5)");
  EXPECT_EQ(onBar.data, data);
  EXPECT_EQ(onBar.effect, kDropMove);
}

TEST(Interaction, HearsOfNoDragWhileTheDropModeIsZero) {
  PointedControl c;
  DragInput input{{}, kDropCopy, {{105, 5}, 1, 0}};
  c.Pointed().DraggedOver(input, kDragIsOver);
  c.Pointed().Dropped(input);
  EXPECT_EQ(c.log.Take(), "");
  EXPECT_EQ(input.effect, kDropNone);
}

// What a canvas of the host's own may report.
TEST(Interaction, PassesOverReportsThatNameNoItem) {
  PointedControl c;
  std::int16_t button = kLeftButton, shift = 0, state = 0;
  std::int32_t effect = 0;
  float x = 1, y = 1;
  Ref<Object> data;
  IGraphicCanvas& canvas = c.Canvas();
  canvas.ItemMouseDown.Raise(nullptr, button, shift, x, y);
  canvas.ItemMouseMove.Raise(nullptr, button, shift, x, y);
  canvas.ItemMouseUp.Raise(nullptr, button, shift, x, y);
  canvas.ItemClick.Raise(nullptr);
  canvas.ItemDblClick.Raise(nullptr);
  canvas.ItemOLEDragDrop.Raise(nullptr, data, effect, button, shift, x, y);
  canvas.ItemOLEDragOver.Raise(nullptr, data, effect, button, shift, x, y, state);
  EXPECT_EQ(c.log.Take(), "");
  EXPECT_FALSE(c->IsDragging());
}

TEST(Interaction, RaisesNoEventForAnItemWithoutAnObject) {
  PointedControl c;
  c.Canvas().AddGraphic(u"stray", kObjectBarItem)->Move(100, 0.0F, 50.0F, 50.0F);
  c->SetAutoSelectMode(0xFF);
  c.Move(105, 5, 0);
  c.Press(105);
  c.Move(115);
  c.Release(115);
  c.DoubleClick(115);
  EXPECT_EQ(c.log.Take(), "");
  EXPECT_TRUE(c->SelectedKey().Is(VariantKind::Empty));
  EXPECT_FALSE(c->IsDragging());
  c->SetTimeline(nullptr);
  c.Click(105);
  EXPECT_EQ(c.log.Take(), "");
}

TEST(Interaction, TakesAnyKindButTheCursorsForABar) {
  PointedControl c;
  c.timeline->Add(murtlotGroup, Variant(u"The Other"));
  c.Canvas().RemoveGraphic(u"The Other");
  c.Canvas().AddGraphic(u"The Other", 77)->Move(100, 0.0F, 50.0F, 50.0F);
  c.Canvas().AddGraphic(u"second cursor", kCursorItem)->Move(200, 0.0F, 50.0F, 50.0F);
  c.Click(105, 5, kRightButton);
  c.Click(205, 5, kRightButton);
  EXPECT_EQ(c.log.Take(),
            "TLObjectMouseDown(The Other, 2, 0, 5, 5); TLObjectMouseUp(The Other, 2, 0, 5, 5); "
            "TLObjectClick(The Other); CursorMouseDown(The Cursor, 2, 0, 5, 5); "
            "CursorMouseUp(The Cursor, 2, 0, 5, 5); CursorClick(The Cursor)");
}

TEST(Interaction, SwallowsWhatListenersThrow) {
  PointedControl c;
  c.Bar(murtlotGroup, u"G", 100);
  const auto onBackground = c->MouseDown.Connect([](auto&...) { throw 42; });
  const auto onObject = c->TLObjectMouseDown.Connect([](const auto&, auto&...) { throw 42; });
  EXPECT_NO_THROW(c.Click(105));
  EXPECT_NO_THROW(c.Click(300));
}

struct ClickKind {
  std::int16_t button;
  bool isDouble;
  std::int32_t flag;
};
constexpr ClickKind kClickKinds[] = {
    {kLeftButton, false, etlcltLeftClick},
    {kMiddleButton, false, etlcltMiddleClick},
    {kRightButton, false, etlcltRightClick},
    {kLeftButton, true, etlcltLeftDblClick},
    {kMiddleButton, true, etlcltMiddleDblClick},
    {kRightButton, true, etlcltRightDblClick},
    {kEveryButton, false, etlcltLeftClick},
    {kEveryButton, true, etlcltLeftDblClick},
    {kLeftButton | kRightButton, false, etlcltLeftClick},
    {kMiddleButton | kRightButton, false, etlcltMiddleClick},
    {kMiddleButton | kRightButton, true, etlcltMiddleDblClick},
};

TEST(Selection, IsForTheKindsOfClicksOfTheMode) {
  for (const ClickKind& kind : kClickKinds)
    for (const std::int32_t mode : {kind.flag, ~kind.flag}) {
      PointedControl c;
      c.Bar(murtlotGroup, u"G", 100);
      c->SetAutoSelectMode(mode);
      if (kind.isDouble)
        c.DoubleClick(105, 5, kind.button);
      else
        c.Click(105, 5, kind.button);
      const bool selects = mode == kind.flag;
      EXPECT_EQ(c->SelectedKey(), selects ? Variant(u"G") : Variant()) << kind.button << " " << mode;
      EXPECT_EQ(c.ColorOf(u"G"), selects ? kHighlight : kBack) << kind.button << " " << mode;
      EXPECT_TRUE(c.log.Take().ends_with(kind.isDouble ? "TLObjectDblClick(G)" : "TLObjectClick(G)"));
    }
}

TEST(Selection, ComesBeforeTheEvent) {
  PointedControl c;
  c.Bar(murtlotGroup, u"G", 100);
  c->SetAutoSelectMode(etlcltLeftClick);
  Variant selected;
  OleColor color = 0;
  const auto hearing = c->TLObjectClick.Connect([&](const auto&) {
    selected = c->SelectedKey();
    color = c.ColorOf(u"G");
  });
  c.Click(105);
  EXPECT_EQ(selected, Variant(u"G"));
  EXPECT_EQ(color, kHighlight);
}

TEST(Selection, IsNoneForAClickWithoutAPress) {
  PointedControl c;
  c.Bar(murtlotGroup, u"G", 100);
  c->SetAutoSelectMode(0x3F);
  c.Canvas().ItemClick.Raise(c.Item(u"G"));
  c.Canvas().ItemDblClick.Raise(c.Item(u"G"));
  EXPECT_EQ(c.log.Take(), "TLObjectClick(G); TLObjectDblClick(G)");
  EXPECT_TRUE(c->SelectedKey().Is(VariantKind::Empty));
}

// The last press on any item counts, whatever is clicked then.
TEST(Selection, GoesByTheButtonOfTheLastPressOnAnItem) {
  PointedControl c;
  c.Bar(murtlotGroup, u"G", 100);
  c->SetAutoSelectMode(etlcltRightClick);
  c.Click(500, 5, kRightButton);
  c.Click(300, 5, kLeftButton);
  c.Canvas().ItemClick.Raise(c.Item(u"G"));
  EXPECT_EQ(c->SelectedKey(), Variant(u"G"));
}

TEST(Selection, NeverTakesTheCursor) {
  PointedControl c;
  c->SetAutoSelectMode(0x3F);
  c.Click(500);
  c.DoubleClick(500);
  EXPECT_TRUE(c->SelectedKey().Is(VariantKind::Empty));
}

TEST(Selection, StaysWhenItsObjectGoes) {
  PointedControl c;
  c.Bar(murtlotGroup, u"G", 100);
  c->SetAutoSelectMode(etlcltLeftClick);
  c.Click(105);
  c.timeline->Remove(u"G");
  EXPECT_EQ(c->SelectedKey(), Variant(u"G"));
}

TEST(Selection, GivesUpNoMoreThanTheColourOfTheOneBefore) {
  PointedControl c;
  c.Bar(murtlotGroup, u"A", 100);
  c.Bar(murtlotGroup, u"B", 300);
  c->SetAutoSelectMode(etlcltLeftClick);
  c.Click(105);
  c.Click(305, c.TopOf(u"B") + 1);
  EXPECT_EQ(c->SelectedKey(), Variant(u"B"));
  EXPECT_EQ(c.ColorOf(u"A"), kBack);
  EXPECT_EQ(c.ColorOf(u"B"), kHighlight);
}

// What a host may do in an event of the control.
using Deed = std::function<void(PointedControl&)>;
const Deed kDeeds[] = {
    [](PointedControl& c) { c.timeline->Clear(); },
    [](PointedControl& c) { c.timeline->Remove(u"M"); },
    [](PointedControl& c) { c->SetTimeline(c.timeline.Get()); },
    [](PointedControl& c) { c->SetTimeline(Make<CMURTimeline>()); },
    [](PointedControl& c) { c->SetTimeline(nullptr); },
    [](PointedControl& c) { c.Canvas().RemoveGraphic(1); },
    [](PointedControl& c) { c->CancelDrag(); },
    [](PointedControl& c) { c.Pointed().PointerLost(); },
    [](PointedControl& c) { c->SetAutoHighlightObjects(true); },
    [](PointedControl& c) { c.control = nullptr; },
    [](PointedControl&) { throw 42; },
};

// Does the deed in each event, once.
class Doer {
 public:
  Doer(PointedControl& ControlA, const Deed& DeedA) : mControl(ControlA), mDeed(DeedA) {
    MURTimelineRender& c = *ControlA.control;
    Listen(c.Click), Listen(c.DblClick), Listen(c.MouseDown), Listen(c.MouseMove), Listen(c.MouseUp);
    Listen(c.TLObjectClick), Listen(c.TLObjectDblClick), Listen(c.TLObjectMouseDown);
    Listen(c.TLObjectMouseMove), Listen(c.TLObjectMouseUp);
    Listen(c.CursorClick), Listen(c.CursorDblClick), Listen(c.CursorMouseDown);
    Listen(c.CursorMouseMove), Listen(c.CursorMouseUp), Listen(c.CursorTimeChange);
    Listen(ControlA.timeline->TLObjectPropertyChanged);
  }

 private:
  template <class... Arguments>
  void Listen(Event<Arguments...>& EventA) {
    mConnections.push_back(EventA.Connect([this, done = false](Arguments...) mutable {
      if (!std::exchange(done, true) && mControl.control) mDeed(mControl);
    }));
  }

  PointedControl& mControl;
  const Deed& mDeed;
  std::vector<Connection> mConnections;
};

TEST(HostInAnEventOfThePointer, MayDoAnything) {
  for (const Deed& deed : kDeeds)
    for (const bool highlights : {false, true})
      for (const float x : {105.0F, 300.0F, 500.0F}) {
        PointedControl c;
        const Ref<IGraphicCanvas> canvas(&c.Canvas());  // hosts may keep it longer than the control
        auto& pointed = static_cast<MURGraphicCanvas&>(*canvas);
        c.Bar(murtlotMedia, u"M", 100);
        c->SetAutoSelectMode(0x3F);
        c->SetAutoHighlightObjects(highlights);
        const Doer doer(c, deed);
        const auto at = [&](float offset) { return PointerInput{{x + offset, 5}, kLeftButton, 0}; };
        const auto play = [&] {
          for (int round = 0; round < 3; ++round) {
            pointed.PointerMoved({{x, 5}, 0, 0});
            pointed.PointerPressed(at(0));
            pointed.PointerMoved(at(10));
            pointed.PointerMoved(at(20));
            pointed.PointerReleased(at(20));
            pointed.PointerDoublePressed(at(20));
            pointed.PointerReleased(at(20));
          }
        };
        EXPECT_NO_THROW(play());
        EXPECT_TRUE(pointed.IsConsistent());
        EXPECT_FALSE(c.control && c->IsDragging());
      }
}

}  // namespace
}  // namespace mur::test
