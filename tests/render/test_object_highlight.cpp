#include <functional>

#include <gtest/gtest.h>

#include <murtimeline/model/timeline_scalar.h>

#include "tests/render/pointed_control.h"
#include "tests/support/blank_surface.h"
#include "tests/support/foreign_object.h"
#include "tests/support/print.h"

namespace mur::test {
namespace {

// Drags of the cursor make the passes; bars are highlighted by it.
struct HighlightedControl : PointedControl {
  HighlightedControl() { control->SetAutoHighlightObjects(true); }

  void PutCursorAt(int SecondsA) const {
    const auto cursor = Item(u"The Cursor");
    std::int16_t button = kLeftButton, shift = 0;
    float x = static_cast<float>(SecondsA) - cursor->Left(), y = 0;
    Canvas().ItemMouseDown.Raise(cursor, button, shift, x, y);
    Canvas().ItemMouseMove.Raise(cursor, button, shift, x, y);
    x = static_cast<float>(SecondsA) - cursor->Left();
    Canvas().ItemMouseUp.Raise(cursor, button, shift, x, y);
  }
  bool IsHighlighted(StringView KeyA) const { return ColorOf(KeyA) == kHighlight; }
  /// How many items a deed puts a colour.
  template <class Deed>
  std::uint64_t WrittenBy(Deed&& DeedA) const {
    const auto before = Canvas().ColorRevision().value();
    DeedA();
    return Canvas().ColorRevision().value() - before;
  }
};

TEST(ObjectHighlight, IsForTheSpanOfAnObjectItsEndsIncluded) {
  HighlightedControl c;
  c.Bar(murtlotMedia, u"M", 100);
  for (const auto& [at, highlighted] :
       {std::pair{99, false}, {100, true}, {150, true}, {200, true}, {201, false}}) {
    c.PutCursorAt(at);
    EXPECT_EQ(c.IsHighlighted(u"M"), highlighted) << at;
  }
}

TEST(ObjectHighlight, IsInTheColoursOfTheKind) {
  HighlightedControl c;
  const auto config = c->AddRenderConfig(murtlotMedia);
  config->SetBackColor(1);
  config->SetHighlightColor(2);
  c.Bar(murtlotMedia, u"M", 100);
  c.Bar(murtlotScalar, u"S", 100);
  c.PutCursorAt(150);
  EXPECT_EQ(c.ColorOf(u"M"), 2U);
  EXPECT_EQ(c.ColorOf(u"S"), kHighlight);
  c.PutCursorAt(250);
  EXPECT_EQ(c.ColorOf(u"M"), 1U);
  EXPECT_EQ(c.ColorOf(u"S"), kBack);
}

TEST(ObjectHighlight, OfAnObjectWhoseEndIsNoDateNeverShows) {
  HighlightedControl c;
  const auto media = c.Bar(murtlotMedia, u"M", 100);
  c.PutCursorAt(150);
  EXPECT_TRUE(c.IsHighlighted(u"M"));
  media->SetDuration(1e300);
  static_cast<CMURTimelineMedia&>(*media).SetMediaDuration(1e300);
  c.PutCursorAt(150);
  EXPECT_FALSE(c.IsHighlighted(u"M"));
}

TEST(ObjectHighlight, IsSwitchedAtOnce) {
  HighlightedControl c;
  c.Bar(murtlotMedia, u"M", 450);
  c->SetAutoHighlightObjects(false);
  c->SetAutoHighlightObjects(true);
  EXPECT_TRUE(c.IsHighlighted(u"M"));
  c.Item(u"M")->SetBackColor(3);
  c->SetAutoHighlightObjects(false);
  EXPECT_EQ(c.ColorOf(u"M"), kBack);
}

TEST(ObjectHighlight, TakesNoNoticeOfTheCursorWhileItIsOff) {
  HighlightedControl c;
  c->SetAutoHighlightObjects(false);
  c.Bar(murtlotMedia, u"M", 100);
  EXPECT_EQ(c.WrittenBy([&] { c.PutCursorAt(150); }), 0U);
}

TEST(ObjectHighlight, WritesOnlyWhatChangesWhenNothingElseDid) {
  HighlightedControl c;
  for (int i = 0; i < 100; ++i)
    c.timeline->Add(murtlotScalar)->SetWorldTimeT0(At(i * 10)), c.timeline->Item(i + 1)->SetDuration(9);
  EXPECT_EQ(c.WrittenBy([&] { c.PutCursorAt(505); }), 100U);
  EXPECT_EQ(c.WrittenBy([&] { c.PutCursorAt(506); }), 0U);
  EXPECT_EQ(c.WrittenBy([&] { c.PutCursorAt(515); }), 2U);
  c.timeline->Item(3)->SetDuration(1000);
  EXPECT_EQ(c.WrittenBy([&] { c.PutCursorAt(516); }), 2U);  // written once as flipped, once as changed
  EXPECT_EQ(c.WrittenBy([&] { c.PutCursorAt(517); }), 0U);
}

TEST(ObjectHighlight, LooksAtAllAgainWhenManyChanged) {
  HighlightedControl c;
  for (int i = 0; i < 100; ++i) c.timeline->Add(murtlotScalar);
  c.PutCursorAt(100);
  for (int i = 1; i <= 100; ++i) c.timeline->Item(i)->SetDuration(1000);
  EXPECT_EQ(c.WrittenBy([&] { c.PutCursorAt(101); }), 100U);
}

TEST(SelectionHighlight, IsForExactlyThatKey) {
  HighlightedControl c;
  c.Bar(murtlotMedia, u"A", 100);
  c.Bar(murtlotMedia, u"B", 300);
  c->SetAutoSelectMode(etlcltLeftClick);
  c.timeline->Item(u"A")->SetKey(u"a");  // found under "A" still, but another text
  c.Click(105);
  EXPECT_EQ(c->SelectedKey(), Variant(u"A"));  // the item's
  EXPECT_TRUE(c.IsHighlighted(u"A"));
  c.Click(305, c.TopOf(u"B") + 1);
  EXPECT_FALSE(c.IsHighlighted(u"A"));
  EXPECT_TRUE(c.IsHighlighted(u"B"));
}

TEST(SelectionHighlight, WritesOnlyWhatChangesWhenNothingElseDid) {
  HighlightedControl c;
  c.Bar(murtlotMedia, u"A", 100);
  c.Bar(murtlotMedia, u"B", 300);
  for (int i = 0; i < 100; ++i) c.timeline->Add(murtlotScalar);
  c->SetAutoSelectMode(etlcltRightClick);
  const auto click = [&](StringView key) {
    c.Click(c.Item(key)->Left() + 5, c.TopOf(key) + 5, kRightButton);
  };
  EXPECT_EQ(c.WrittenBy([&] { click(u"A"); }), 102U);
  EXPECT_EQ(c.WrittenBy([&] { click(u"B"); }), 2U);
  EXPECT_EQ(c.WrittenBy([&] { click(u"B"); }), 0U);
  EXPECT_EQ(c.WrittenBy([&] { c.PutCursorAt(150); }), 2U);  // from the selected one to that at the cursor
  EXPECT_TRUE(c.IsHighlighted(u"A"));
  EXPECT_FALSE(c.IsHighlighted(u"B"));
}

TEST(SelectionHighlight, GoesOnAfterAnObjectThatCannotTellItsKey) {
  HighlightedControl c;
  const auto hostile = Make<HostileObject>();
  c.timeline->Insert(hostile, u"H");
  c.Bar(murtlotMedia, u"M", 100);
  c->SetAutoSelectMode(etlcltLeftClick);
  hostile->failing = "Key";
  c.Click(105, c.TopOf(u"M") + 5);
  EXPECT_TRUE(c.IsHighlighted(u"M"));
}

TEST(ObjectHighlight, EndsAtAnObjectThatCannotTellItsSpan) {
  class Timeless final : public ForeignObject {
   public:
    bool SpansTime(Date, bool) const override { throw 42; }
  };
  HighlightedControl c;
  c.Bar(murtlotMedia, u"A", 100);
  c.timeline->Insert(Make<Timeless>(), u"T");
  c.Bar(murtlotMedia, u"B", 100);
  c.PutCursorAt(150);
  EXPECT_TRUE(c.IsHighlighted(u"A"));
  EXPECT_FALSE(c.IsHighlighted(u"B"));
}

// A host that changes things while the passes write.
class MeddlingHost final : public ChildHost {
 public:
  float Left() const override { return 0; }
  float Top() const override { return 0; }
  float Width() const override { return 15000; }
  float Height() const override { return 3000; }
  void SetHeight(float) override {}
  void Move(float, std::optional<float>, std::optional<float>, std::optional<float>) override {}
  String ToolTipText() const override { return {}; }
  void SetToolTipText(StringView) override {}
  void Invalidate(const RectF&) override {
    if (const auto once = std::exchange(deed, nullptr)) once();
  }
  void InvalidateAll() override {}
  void SetPointerShape(PointerShape) override {}
  void CapturePointer(bool) override {}
  Rgba SystemColor(int) const override { return {}; }

  std::function<void()> deed;
};

TEST(ObjectHighlight, IsRightWhateverTheHostDoesWhileItIsWritten) {
  const std::function<void(AttachedControl&)> deeds[] = {
      [](AttachedControl& c) { c.timeline->Item(u"B")->SetWorldTimeT0(At(500)); },
      [](AttachedControl& c) { c.Item(u"B")->SetBackColor(7); },
      [](AttachedControl& c) { c.timeline->Remove(u"C"); },
      [](AttachedControl& c) { c.timeline->Add(murtlotScalar); },
      [](AttachedControl& c) { c->SetTimeline(Make<CMURTimeline>()); },
      [](AttachedControl& c) {
        c->SetAutoHighlightObjects(false);
        c->SetAutoHighlightObjects(true);
      },
      [](AttachedControl& c) { c.timeline->Clear(); },
  };
  for (const auto& deed : deeds)
    for (const bool first : {true, false}) {
      MeddlingHost host;
      const auto canvas = Make<MURGraphicCanvas>(host);
      AttachedControl c({canvas, {}, {}, {}});
      for (const StringView key : {u"A", u"B", u"C"}) {
        const auto scalar = c.Add(murtlotScalar, key);
        scalar->SetDuration(100);
        scalar->SetWorldTimeT0(At(100));
      }
      canvas->Repaint.Raise();
      c->SetAllowObjectDragging(true);
      const auto drag = [&](float x) {
        BlankSurface blank;
        canvas->Paint(blank, {0, 0, 1000, 200});
        canvas->PointerPressed({{canvas->GraphicByKey(u"The Cursor")->Left() + 2, 5}, kLeftButton, 0});
        canvas->PointerMoved({{x, 5}, kLeftButton, 0});
        canvas->PointerReleased({{x, 5}, kLeftButton, 0});
      };
      if (!first) drag(50);
      host.deed = [&] { deed(c); };
      drag(150);
      drag(400);
      drag(150);
      auto members = c->Timeline()->NewEnum();
      while (const auto member = members.Next())
        if (const auto item = c.Item(member->Key())) {
          EXPECT_EQ(item->BackColor() == kHighlight, member->SpansTime(c->CursorTime()));
        }
    }
}

}  // namespace
}  // namespace mur::test
