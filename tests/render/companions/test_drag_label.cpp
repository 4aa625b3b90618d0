#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <murtimeline/render/companions/canvas.h>
#include <murtimeline/render/port/recording_surface.h>
#include <murtimeline/render/port/scripted_host.h>

using namespace mur;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

// A canvas of 200 x 100 pixels. In the fixed font eight characters of size 11 are 53 pixels wide.
class DragLabel : public ::testing::Test {
 protected:
  DragLabel() {
    host.Move(0, 0, 200 * ChildHost::kTwipsPerPixel, 100 * ChildHost::kTwipsPerPixel);
    canvas->SetScaleMode(3);
  }
  Ref<ICanvasItem> Item(float LeftA, float TopA, float HeightA = 20, int KindA = kObjectBarItem) const {
    auto item = canvas->AddGraphic(u"item", KindA);
    item->Move(LeftA, TopA, 5.0F, HeightA);
    return item;
  }
  std::vector<std::string> Boxes() const {
    RecordingSurface surface;
    canvas->Paint(surface, {0, 0, 200, 100});
    return surface.LinesOf("fill-rounded");
  }

  ScriptedChild host;
  Ref<MURGraphicCanvas> canvas = Make<MURGraphicCanvas>(host);
};

TEST_F(DragLabel, StandsAboveTheStartOfItsItemInTheColoursOfToolTips) {
  canvas->ShowDragLabel(Item(30, 50), u"12:00:00");
  RecordingSurface surface;
  canvas->Paint(surface, {0, 0, 200, 100});
  EXPECT_THAT(surface.LinesOf("fill-rounded"), ElementsAre("fill-rounded 30,31 63x17 #ffffe1 radius 3"));
  EXPECT_THAT(surface.LinesOf("frame-rounded"),
              ElementsAre("frame-rounded 30,31 63x17 #a6a692 width 1 radius 3"));
  EXPECT_THAT(surface.LinesOf("text"), ElementsAre("text 35,42.8 \"12:00:00\" #000000 size 11"));
}

TEST_F(DragLabel, StandsBelowWhereThereIsNoRoomAbove) {
  canvas->ShowDragLabel(Item(30, 10), u"12:00:00");
  EXPECT_THAT(Boxes(), ElementsAre("fill-rounded 30,32 63x17 #ffffe1 radius 3"));
}

TEST_F(DragLabel, KeepsInsideTheCanvas) {
  const auto item = Item(-40, -500, 2000);
  canvas->ShowDragLabel(item, u"12:00:00");
  EXPECT_THAT(Boxes(), ElementsAre("fill-rounded 0,83 63x17 #ffffe1 radius 3"));
  item->Move(190);
  canvas->ShowDragLabel(item, u"12:00:00");
  EXPECT_THAT(Boxes(), ElementsAre("fill-rounded 137,83 63x17 #ffffe1 radius 3"));
}

TEST_F(DragLabel, OfTheCursorStandsBesideItsHandle) {
  const auto cursor = Item(30, 0, 100, kCursorItem);
  canvas->ShowDragLabel(cursor, u"12:00:00");
  EXPECT_THAT(Boxes(), ElementsAre("fill-rounded 37,2 63x17 #ffffe1 radius 3"));
  cursor->Move(190);
  canvas->ShowDragLabel(cursor, u"12:00:00");
  EXPECT_THAT(Boxes(), ElementsAre("fill-rounded 125,2 63x17 #ffffe1 radius 3"));
}

TEST_F(DragLabel, ShortensATextThatIsWiderThanTheCanvas) {
  canvas->ShowDragLabel(Item(30, 50), String(100, u'8'));
  RecordingSurface surface;
  canvas->Paint(surface, {0, 0, 200, 100});
  const auto texts = surface.LinesOf("text");
  ASSERT_EQ(texts.size(), 1U);
  EXPECT_THAT(texts[0], ::testing::HasSubstr("8…"));
  host.Move(0, 0, 10 * ChildHost::kTwipsPerPixel, 100 * ChildHost::kTwipsPerPixel);
  EXPECT_THAT(Boxes(), IsEmpty());
}

TEST_F(DragLabel, GoesWithAnEmptyTextOrWithItsItem) {
  const auto item = Item(30, 50);
  canvas->ShowDragLabel(item, u"12:00:00");
  canvas->ShowDragLabel(item, u"");
  EXPECT_THAT(Boxes(), IsEmpty());
  canvas->ShowDragLabel(item, u"12:00:00");
  canvas->ShowDragLabel({}, {});
  EXPECT_THAT(Boxes(), IsEmpty());
  canvas->ShowDragLabel(item, u"12:00:00");
  canvas->RemoveGraphic(u"item");
  EXPECT_THAT(Boxes(), IsEmpty());
  canvas->ShowDragLabel(item, u"12:00:00");  // of no item of this canvas
  EXPECT_THAT(Boxes(), IsEmpty());
}

TEST_F(DragLabel, AsksForTheRepaintOfWhereItWasAndWhereItIs) {
  const auto item = Item(30, 50);
  canvas->ShowDragLabel(item, u"12:00:00");
  Boxes();
  item->Move(30, 80.0F);
  host.ForgetInvalidations();
  canvas->ShowDragLabel(item, u"12:00:01");
  EXPECT_THAT(host.Invalidated(), ElementsAre(RectF{0, 31, 200, 17}, RectF{0, 61, 200, 17}));
  host.ForgetInvalidations();
  canvas->ShowDragLabel({}, {});
  EXPECT_THAT(host.Invalidated(), ElementsAre(RectF{0, 61, 200, 17}));
  host.ForgetInvalidations();
  canvas->ShowDragLabel({}, {});
  EXPECT_THAT(host.Invalidated(), IsEmpty());
}

}  // namespace
