#include <utility>

#include "tests/render/companions/canvas_pointing.h"

namespace mur::test {
namespace {

// What a face brings as data.
class Parcel final : public Object {};

class CanvasDrops : public CanvasPointer {
 protected:
  CanvasDrops() {
    canvas->SetOLEDropMode(1);
    Bar(u"a", 10, 10);
  }
  static DragInput Dragged(float XA, float YA, Ref<Object> DataA = {}) {
    return {std::move(DataA), kDropCopy, On(XA, YA)};
  }
};

TEST_F(CanvasDrops, GoToTheItemUnderThePointerOrTheBackground) {
  DragInput onItem = Dragged(12, 13, Make<Parcel>());
  DragInput onBackground = Dragged(50, 60);
  canvas->DraggedOver(onItem, kDragEnters);
  canvas->DraggedOver(onItem, kDragIsOver);
  canvas->DraggedOver(onBackground, kDragLeaves);
  canvas->Dropped(onItem);
  canvas->Dropped(onBackground);
  EXPECT_EQ(log.Take(),
            "over a 1 0 2,3 data effect 1 state 0; over a 1 0 2,3 data effect 1 state 2; "
            "over - 1 0 50,60 nothing effect 1 state 1; drop a 1 0 2,3 data effect 1; "
            "drop - 1 0 50,60 nothing effect 1");
}

TEST_F(CanvasDrops, BringBackTheEffectAndTheDataOfTheirListeners) {
  const auto other = Make<Parcel>();
  const auto over = canvas->OLEDragOver.Connect(
      [](auto&, std::int32_t& effect, auto&, auto&, auto&, auto&, auto&) { effect = kDropMove; });
  const auto drop = canvas->ItemOLEDragDrop.Connect(
      [&](const auto&, Ref<Object>& data, auto&, auto&, auto&, auto&, auto&) { data = other; });
  DragInput onBackground = Dragged(50, 60);
  canvas->DraggedOver(onBackground, kDragIsOver);
  EXPECT_EQ(onBackground.effect, kDropMove);
  DragInput onItem = Dragged(12, 13);
  canvas->Dropped(onItem);
  EXPECT_EQ(onItem.data, Ref<Object>(other));
}

TEST_F(CanvasDrops, AreRefusedWhileTheDropModeIsZero) {
  canvas->SetOLEDropMode(0);
  DragInput input = Dragged(12, 13);
  canvas->DraggedOver(input, kDragIsOver);
  EXPECT_EQ(input.effect, kDropNone);
  input.effect = kDropCopy;
  canvas->Dropped(input);
  EXPECT_EQ(input.effect, kDropNone);
  EXPECT_EQ(log.Take(), "");
}

}  // namespace
}  // namespace mur::test
