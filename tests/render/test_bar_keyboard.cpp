#include <gmock/gmock.h>

#include <murtimeline/render/bar_keyboard.h>

#include "tests/render/pointed_control.h"

namespace mur {
namespace {

using test::At;
using test::PointedControl;

class BarKeys : public testing::Test {
 protected:
  BarKeys() {
    // Two rows: A and B above, C below.
    shown.Bar(murtlotMedia, u"A", 100);
    const auto c = shown.Bar(murtlotMedia, u"C", 120);
    const auto b = shown.AddBelow(shown.timeline->Item(u"A"), murtlotMedia, u"B");
    b->SetWorldTimeT0(At(300));
    if (auto* media = dynamic_cast<CMURTimelineMedia*>(b.Get())) media->SetMediaDuration(100);
    b->SetDuration(100);
    shown.Item(u"B")->Move(300, 0);
    shown.log.Take();
  }

  bool Press(Key KeyA, int ShiftA = 0) { return keyboard->Press({KeyA, static_cast<std::int16_t>(ShiftA)}); }
  std::string Ringed() const {
    const auto item = shown.Pointed().FocusedItem();
    return item ? ToUtf8(item->Key()) : "-";
  }
  std::string RingedAfter(Key KeyA) {
    Press(KeyA);
    return Ringed();
  }

  PointedControl shown;
  Ref<BarKeyboard> keyboard = Make<BarKeyboard>(*shown.control, Ref(&shown.Pointed()),
                                                Ref(static_cast<MURTimelineScroll*>(&shown.Scroller())));
};

TEST_F(BarKeys, ArrowsWalkFromBarToBar) {
  EXPECT_EQ(RingedAfter(Key::Right), "A");
  EXPECT_EQ(RingedAfter(Key::Right), "B");
  EXPECT_EQ(RingedAfter(Key::Left), "A");
  EXPECT_EQ(RingedAfter(Key::Down), "C");
  EXPECT_EQ(RingedAfter(Key::Up), "A");
  EXPECT_EQ(RingedAfter(Key::End), "B");
  EXPECT_EQ(RingedAfter(Key::Home), "A");
}

TEST_F(BarKeys, TellsWhichBarWasReached) {
  std::string reached;
  const auto watching =
      keyboard->BarReached.Connect([&](const Ref<ICanvasItem>& bar) { reached += ToUtf8(bar->Key()) + ';'; });
  Press(Key::Right);
  Press(Key::Down);
  EXPECT_EQ(reached, "A;C;");
}

TEST_F(BarKeys, EnterAndSpaceClickTheCurrentBar) {
  keyboard->TakeUp(shown.Item(u"C"));
  const std::string click =
      "TLObjectMouseDown(C, 1, 0, 50, 20); TLObjectMouseUp(C, 1, 0, 50, 20); TLObjectClick(C)";
  EXPECT_TRUE(Press(Key::Enter));
  EXPECT_EQ(shown.log.Take(), click);
  EXPECT_TRUE(Press(Key::Space));
  EXPECT_EQ(shown.log.Take(), click);
}

TEST_F(BarKeys, TheMenuKeyAndShiftEnterClickWithTheRightButton) {
  keyboard->TakeUp(shown.Item(u"C"));
  const std::string click =
      "TLObjectMouseDown(C, 2, 0, 50, 20); TLObjectMouseUp(C, 2, 0, 50, 20); TLObjectClick(C)";
  Press(Key::Menu);
  EXPECT_EQ(shown.log.Take(), click);
  Press(Key::Enter, kShiftKey);
  EXPECT_EQ(shown.log.Take(), click);
}

TEST_F(BarKeys, WithoutABarThereIsNothingToClick) {
  EXPECT_FALSE(Press(Key::Enter));
  EXPECT_FALSE(Press(Key::Right, kControlKey));
}

TEST_F(BarKeys, ControlAndArrowsNudgeByPixels) {
  keyboard->TakeUp(shown.Item(u"C"));
  Press(Key::Right, kControlKey);
  EXPECT_EQ(PointedControl::StartOf(shown.timeline->Item(u"C")), 121);
  Press(Key::Left, kControlKey | kShiftKey);
  EXPECT_EQ(PointedControl::StartOf(shown.timeline->Item(u"C")), 111);
}

TEST_F(BarKeys, CommaAndFullStopStepTheCursor) {
  Press(Key::FullStop);
  EXPECT_NEAR(shown.control->CursorTime().Days(), At(501).Days(), 1e-9);
  Press(Key::Comma, kShiftKey);
  EXPECT_EQ(shown.control->CursorTime(), At(400));  // the end of B
  Press(Key::Comma, kShiftKey);
  EXPECT_EQ(shown.control->CursorTime(), At(300));
}

TEST_F(BarKeys, MGoesFromMarkerToMarker) {
  shown.control->TimeScaleMarkerAdd(At(700), u"m");
  shown.control->TimeScaleMarkerAdd(At(200), u"n");
  Press(Key::M);
  EXPECT_EQ(shown.control->CursorTime(), At(700));
  Press(Key::M, kShiftKey);
  EXPECT_EQ(shown.control->CursorTime(), At(200));
}

TEST_F(BarKeys, EscapePutsBackWhatIsDragged) {
  shown.Press(150, 50);
  shown.Move(190, 50);
  int cancelled = 0;
  const auto watching = keyboard->DragsCancelled.Connect([&] { ++cancelled; });
  EXPECT_TRUE(Press(Key::Escape));
  EXPECT_EQ(PointedControl::StartOf(shown.timeline->Item(u"C")), 120);
  EXPECT_EQ(cancelled, 1);
  shown.Release(190, 50);
  EXPECT_FALSE(Press(Key::Escape));
}

TEST_F(BarKeys, MeansNothingByAltAndByOtherKeys) {
  EXPECT_FALSE(Press(Key::Right, kAltKey));
  EXPECT_FALSE(Press(Key::Home, kControlKey));
  EXPECT_FALSE(Press(Key::Up, kShiftKey));
  EXPECT_FALSE(Press(Key::Other));
}

TEST_F(BarKeys, TheRingComesAndGoesWithTheKeyboard) {
  Press(Key::Right);
  keyboard->ShowRing(false);
  EXPECT_EQ(Ringed(), "-");
  keyboard->ShowRing(true);
  EXPECT_EQ(Ringed(), "A");
}

TEST_F(BarKeys, AHandlerMayEndTheKeyboard) {
  keyboard->TakeUp(shown.Item(u"C"));
  const auto watching = shown.control->TLObjectClick.Connect([&](const auto&) { keyboard = {}; });
  EXPECT_TRUE(Press(Key::Enter));
  EXPECT_FALSE(keyboard);
}

}  // namespace
}  // namespace mur
