#include <limits>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <murtimeline/render/companions/canvas.h>
#include <murtimeline/render/port/recording_surface.h>
#include <murtimeline/render/port/scripted_host.h>

#include "tests/support/golden.h"

using namespace mur;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

namespace {

constexpr OleColor kRed = 0x000000FF;
constexpr OleColor kGreen = 0x0000FF00;
constexpr RectF kAll{0, 0, 200, 100};

class CanvasPainting : public ::testing::Test {
 protected:
  CanvasPainting() {
    host.Move(0, 0, 3000, 1500);
    canvas->SetScaleMode(3);
  }
  Ref<ICanvasItem> Bar(float LeftA, float WidthA, OleColor ColorA = kRed, float TopA = 0,
                       float HeightA = 20) {
    auto item = canvas->AddGraphic(FromAscii(std::to_string(canvas->GraphicCount())), kObjectBarItem);
    item->Move(LeftA, TopA, WidthA, HeightA);
    item->SetBackColor(ColorA);
    return item;
  }
  /// The calls of that name after the background.
  std::vector<std::string> Drawn(const char* CallA, const RectF& DirtyA = kAll, float RatioA = 1) {
    RecordingSurface surface(RatioA);
    canvas->Paint(surface, DirtyA);
    std::vector<std::string> lines = surface.LinesOf(CallA);
    if (std::string(CallA) == "fill") lines.erase(lines.begin());
    return lines;
  }

  ScriptedChild host;
  Ref<MURGraphicCanvas> canvas = Make<MURGraphicCanvas>(host);
};

}  // namespace

TEST_F(CanvasPainting, FillsTheBackgroundOfWhatIsDirtyOnly) {
  RecordingSurface surface;
  canvas->Paint(surface, {10, 20, 30, 40});
  EXPECT_THAT(surface.Lines(), ElementsAre("clip 10,20 30x40", "fill 10,20 30x40 #808080", "unclip"));
}

TEST_F(CanvasPainting, PaintsASceneAsBefore) {
  Bar(0, 150, 0x00B8860B, 0, 40)->SetCaption(5, u"Parent");
  const auto child = Bar(20, 60, 0x00E0A050, 43, 40);
  child->SetCaption(1, u"Child with a long name");
  child->SetCaption(9, u"end");
  Bar(90, 8, kGreen, 43, 40);
  Bar(100, 2, kGreen, 43, 40);
  Bar(104, 0.25F, kRed, 43, 40);
  const auto cursor = canvas->AddGraphic(u"The Cursor", kCursorItem);
  cursor->Move(47.5F, 0.0F, 5.0F, 100.0F);
  cursor->ZOrder(1);
  RecordingSurface surface;
  canvas->Paint(surface, kAll);
  EXPECT_EQ(surface.Log(), test::Golden(test::GoldenPath(__FILE__, "canvas_scene.txt"), surface.Log()));
}

TEST_F(CanvasPainting, DrawsNothingOfAnItemWithoutExtent) {
  canvas->AddGraphic(u"new", 1);
  Bar(10, 0);
  Bar(10, -5);
  Bar(10, 5, kRed, 0, 0);
  EXPECT_THAT(Drawn("fill"), IsEmpty());
}

TEST_F(CanvasPainting, DrawsVisibleItemsOnly) {
  Bar(0, 5)->SetVisible(false);
  Bar(10, 2);
  EXPECT_THAT(Drawn("fill"), ElementsAre("fill 10,0 2x20 #ff0000"));
}

TEST_F(CanvasPainting, DrawsWhatTheDirtyRectangleTouchesOnly) {
  Bar(0, 2);
  Bar(50, 2);
  Bar(50, 2, kRed, 60);
  EXPECT_THAT(Drawn("fill", {40, 0, 20, 20}), ElementsAre("fill 50,0 2x20 #ff0000"));
}

TEST_F(CanvasPainting, DrawsByStackingOrder) {
  const auto first = Bar(0, 2, kRed);
  Bar(1, 2, kGreen);
  EXPECT_THAT(Drawn("fill"), ElementsAre("fill 0,0 2x20 #ff0000", "fill 1,0 2x20 #00ff00"));
  first->ZOrder(0);
  EXPECT_THAT(Drawn("fill"), ElementsAre("fill 1,0 2x20 #00ff00", "fill 0,0 2x20 #ff0000"));
}

TEST_F(CanvasPainting, FramesSmallBarsAndRoundsLargeOnes) {
  Bar(0, 5);
  Bar(20, 50);
  EXPECT_THAT(Drawn("fill"), ElementsAre("fill 0,0 5x20 #a60000", "fill 1,1 3x18 #ff0000"));
  EXPECT_THAT(Drawn("fill-rounded"), ElementsAre("fill-rounded 20,0 50x20 #ff0000 radius 3"));
  EXPECT_THAT(Drawn("frame-rounded"), ElementsAre("frame-rounded 20,0 50x20 #a60000 width 1 radius 3"));
}

TEST_F(CanvasPainting, AlignsEdgesToDevicePixels) {
  Bar(10.3F, 2.1F);
  EXPECT_THAT(Drawn("fill"), ElementsAre("fill 10,0 2x20 #ff0000"));
  EXPECT_THAT(Drawn("fill", kAll, 2), ElementsAre("fill 10.5,0 2x20 #ff0000"));
}

TEST_F(CanvasPainting, DrawsABarLowerThanAPixelAsOnePixel) {
  Bar(10, 5, kRed, 10, 0.1F);
  EXPECT_THAT(Drawn("fill"), ElementsAre("fill 10,10 5x1 #ff0000"));
}

TEST_F(CanvasPainting, FoldsSliversOfOneColorIntoARun) {
  for (int number = 0; number < 100; ++number) Bar(static_cast<float>(number) * 0.1F, 0.05F);
  EXPECT_THAT(Drawn("fill"), ElementsAre("fill 0,0 10x20 #ff0000"));
}

TEST_F(CanvasPainting, StartsANewRunAtAGapAColorAndARow) {
  Bar(0, 0.5F);
  Bar(1, 0.5F, kGreen);
  Bar(5, 0.5F, kGreen);
  Bar(6, 0.5F, kGreen, 40);
  EXPECT_THAT(Drawn("fill"), ElementsAre("fill 0,0 1x20 #ff0000", "fill 1,0 1x20 #00ff00",
                                         "fill 5,0 1x20 #00ff00", "fill 6,40 1x20 #00ff00"));
}

TEST_F(CanvasPainting, ShowsTheTopmostOfTheSliversInAPixel) {
  Bar(0.1F, 0.2F, kRed);
  const auto back = Bar(0.3F, 0.2F, kGreen);
  EXPECT_THAT(Drawn("fill"), ElementsAre("fill 0,0 1x20 #00ff00"));
  back->ZOrder(1);
  EXPECT_THAT(Drawn("fill"), ElementsAre("fill 0,0 1x20 #ff0000"));
}

TEST_F(CanvasPainting, FoldsByDevicePixels) {
  Bar(1, 0.6F);
  EXPECT_THAT(Drawn("fill", kAll, 2), ElementsAre("fill 1,0 0.5x20 #ff0000"));
}

TEST_F(CanvasPainting, DrawsTheCursorAboveAllBars) {
  const auto cursor = canvas->AddGraphic(u"The Cursor", kCursorItem);
  cursor->Move(10, 0.0F, 5.0F, 100.0F);
  cursor->ZOrder(1);
  cursor->SetBackColor(kGreen);
  Bar(0, 2);
  EXPECT_THAT(Drawn("fill"), ElementsAre("fill 0,0 2x20 #ff0000", "fill 12,0 1x100 #00ff00"));
  EXPECT_THAT(Drawn("polygon"), ElementsAre("polygon 10,0 15,0 15,4 12.5,8 10,4 #00ff00"));
}

TEST_F(CanvasPainting, KeepsTheTextReadable) {
  const auto bar = Bar(0, 100, 0x00600000, 0, 20);
  bar->SetForeColor(0);
  bar->SetCaption(5, u"text");
  EXPECT_THAT(Drawn("text"), Contains(HasSubstr("#ffffff")));
  bar->SetForeColor(0x0000FFFF);
  EXPECT_THAT(Drawn("text"), Contains(HasSubstr("#ffff00")));
}

TEST_F(CanvasPainting, KeepsCaptionsWithinTheCanvasWhateverIsDirty) {
  const auto bar = Bar(-500, 600);
  bar->SetCaption(4, u"left");
  EXPECT_THAT(Drawn("text"), ElementsAre(HasSubstr("text 4,13 \"left\"")));
  EXPECT_THAT(Drawn("text", {50, 0, 10, 10}), ElementsAre(HasSubstr("text 4,13 \"left\"")));
}

TEST_F(CanvasPainting, CutsHugeBarsNearWhatIsPainted) {
  Bar(-1e30F, 2e30F);
  EXPECT_THAT(Drawn("fill-rounded"), ElementsAre("fill-rounded -16,0 232x20 #ff0000 radius 3"));
}

TEST_F(CanvasPainting, DrawsNothingThatIsNotFinite) {
  const float nan = std::numeric_limits<float>::quiet_NaN();
  const float infinity = std::numeric_limits<float>::infinity();
  Bar(nan, 10);
  Bar(0, infinity);
  Bar(-infinity, infinity);
  Bar(0, 10, kRed, nan);
  Bar(std::numeric_limits<float>::max(), std::numeric_limits<float>::max());
  EXPECT_THAT(Drawn("fill"), IsEmpty());
  EXPECT_THAT(Drawn("fill-rounded"), IsEmpty());
}

TEST_F(CanvasPainting, DrawsTwipsAsPixels) {
  Bar(150, 30, kRed, 150, 300);
  canvas->SetScaleMode(1);
  EXPECT_THAT(Drawn("fill"), ElementsAre("fill 10,10 2x20 #ff0000"));
}

TEST_F(CanvasPainting, ResolvesSystemColorsWhenItPaints) {
  Bar(0, 2, 0x80000005);
  EXPECT_THAT(Drawn("fill"), ElementsAre("fill 0,0 2x20 #ffffff"));
}

TEST_F(CanvasPainting, SurvivesADirtyRectangleThatIsNoNumber) {
  Bar(0, 10);
  const float nan = std::numeric_limits<float>::quiet_NaN();
  EXPECT_THAT(Drawn("frame", {nan, nan, nan, nan}), IsEmpty());
}
