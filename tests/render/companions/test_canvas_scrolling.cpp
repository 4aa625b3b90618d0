#include <limits>
#include <string>
#include <vector>

#include <gmock/gmock.h>

#include <murtimeline/render/companions/canvas.h>
#include <murtimeline/render/port/recording_surface.h>
#include <murtimeline/render/port/scripted_host.h>

using namespace mur;
using ::testing::Contains;
using ::testing::ElementsAre;

namespace {

constexpr float kNaN = std::numeric_limits<float>::quiet_NaN();
constexpr float kMost = std::numeric_limits<float>::max();

// 200 x 100 pixels with rows of 20 pixels.
class CanvasScrolling : public ::testing::Test {
 protected:
  CanvasScrolling() {
    host.Move(0, 0, 3000, 1500);
    canvas->SetScaleMode(3);
    cursor = canvas->AddGraphic(u"The Cursor", kCursorItem);
    cursor->Move(150, 0, 5, 100);
  }
  Ref<ICanvasItem> Bar(int RowA, float LeftA = 10, float WidthA = 50) {
    auto item = canvas->AddGraphic(FromAscii(std::to_string(canvas->GraphicCount())), kObjectBarItem);
    item->Move(LeftA, static_cast<float>(20 * RowA), WidthA, 20);
    item->SetBackColor(0xFF);
    return item;
  }
  std::vector<std::string> Paint() {
    RecordingSurface surface;
    canvas->Paint(surface, canvas->Area());
    return surface.Lines();
  }

  ScriptedChild host;
  Ref<MURGraphicCanvas> canvas = Make<MURGraphicCanvas>(host);
  Ref<ICanvasItem> cursor;
};

}  // namespace

TEST_F(CanvasScrolling, TheContentEndsWithItsLowestBar) {
  EXPECT_EQ(canvas->ContentHeight(), 0);
  Bar(3);
  const auto lowest = Bar(9);
  Bar(5)->SetHeight(45);
  EXPECT_EQ(canvas->ContentHeight(), 200);
  lowest->SetHeight(30);
  EXPECT_EQ(canvas->ContentHeight(), 210);
  canvas->RemoveGraphic(lowest->Key());
  EXPECT_EQ(canvas->ContentHeight(), 145);
}

TEST_F(CanvasScrolling, TheContentFollowsManyBarsThatCameAndWent) {
  std::vector<Ref<ICanvasItem>> bars;
  for (int row = 0; row < 2000; ++row) bars.push_back(Bar(row));
  EXPECT_EQ(canvas->ContentHeight(), 40000);
  for (std::size_t row = 1999; row >= 1; --row) {
    canvas->RemoveGraphic(bars[row]->Key());
    ASSERT_EQ(canvas->ContentHeight(), static_cast<float>(20 * row));
  }
  bars[0]->Move(0, 0.0F, 0.0F);
  EXPECT_EQ(canvas->ContentHeight(), 0);
  EXPECT_TRUE(canvas->IsConsistent());
}

TEST_F(CanvasScrolling, ScrollsAsFarAsThereIsSomethingToSee) {
  Bar(9);
  for (const auto& [put, read] :
       {std::pair{50.0F, 50.0F}, {150.0F, 100.0F}, {-5.0F, 0.0F}, {kNaN, 0.0F}, {kMost, 100.0F}}) {
    canvas->SetScrollTop(put);
    EXPECT_EQ(canvas->ScrollTop(), read) << put;
  }
}

TEST_F(CanvasScrolling, AHigherCanvasScrollsBackAsFarAsNeeded) {
  Bar(9);
  canvas->SetScrollTop(100);
  host.Move(0, 0, 3000, 2400);
  canvas->Resized();
  EXPECT_EQ(canvas->ScrollTop(), 40);
}

TEST_F(CanvasScrolling, PositionsStayAndBarsAreShownFurtherUp) {
  const auto bar = Bar(4);
  Bar(9);
  canvas->SetScrollTop(70);
  EXPECT_EQ(bar->Top(), 80);
  EXPECT_EQ(canvas->PixelBounds(*bar), (RectF{10, 10, 50, 20}));
  EXPECT_EQ(canvas->ItemAt({20, 15}), bar);
  EXPECT_EQ(canvas->PointOn(*bar, {20, 15}), (PointF{10, 5}));
  EXPECT_EQ(canvas->UnitsAt({20, 15}), (PointF{20, 85}));
}

TEST_F(CanvasScrolling, PaintsWhatIsScrolledIntoView) {
  Bar(0);
  Bar(9);
  canvas->SetScrollTop(100);
  const std::vector<std::string> lines = Paint();
  EXPECT_THAT(lines, Contains(testing::HasSubstr("10,80 50x20")));
  EXPECT_THAT(lines, testing::Not(Contains(testing::HasSubstr("10,-100 50x20"))));
}

TEST_F(CanvasScrolling, TheCursorDoesNotScroll) {
  Bar(9, 140, 30);
  canvas->SetScrollTop(100);
  EXPECT_EQ(canvas->ItemAt({152, 5}), cursor);
  EXPECT_EQ(canvas->ItemAt({152, 85}), cursor);
  EXPECT_EQ(canvas->PixelBounds(*cursor), (RectF{150, 0, 5, 100}));
  EXPECT_EQ(canvas->PointOn(*cursor, {152, 30}), (PointF{2, 30}));
}

TEST_F(CanvasScrolling, ReportsOnTheBackgroundAreWhereBarsLie) {
  Bar(9);
  canvas->SetScrollTop(60);
  PointF heard;
  const auto listening = canvas->MouseDown.Connect([&](auto&, auto&, float& x, float& y) { heard = {x, y}; });
  canvas->PointerPressed({{5, 7}, kLeftButton, 0});
  EXPECT_EQ(heard, (PointF{5, 67}));
}

TEST_F(CanvasScrolling, ScrollingRepaintsAllAndAChangeWhereItIsSeen) {
  const auto bar = Bar(9);
  Paint();
  host.ForgetInvalidations();
  canvas->SetScrollTop(100);
  EXPECT_EQ(host.InvalidatedAll(), 1U);
  Paint();
  bar->SetBackColor(0xFF00);
  EXPECT_THAT(host.Invalidated(), ElementsAre(RectF{9, 79, 52, 22}));
}

TEST_F(CanvasScrolling, InTwipsToo) {
  canvas->SetScaleMode(1);
  cursor->Move(2250, 0.0F, 75.0F, 1500.0F);
  const auto bar = canvas->AddGraphic(u"twips", kObjectBarItem);
  bar->Move(150, 2400.0F, 750.0F, 600.0F);
  EXPECT_FLOAT_EQ(canvas->ContentHeight(), 200);
  canvas->SetScrollTop(100);
  EXPECT_EQ(canvas->ItemAt({20, 70}), bar);
  EXPECT_NEAR(canvas->PixelBounds(*bar).top, 60, 1e-4);
}

TEST_F(CanvasScrolling, TheFocusedItemHasARingAroundIt) {
  const auto bar = Bar(1);
  canvas->SetFocusedItem(bar);
  EXPECT_THAT(Paint(), Contains(testing::HasSubstr("8,18 54x24")));
  EXPECT_EQ(canvas->FocusedItem(), bar);
}

TEST_F(CanvasScrolling, TheRingGoesWithItsItem) {
  const auto bar = Bar(1);
  canvas->SetFocusedItem(bar);
  canvas->RemoveGraphic(bar->Key());
  EXPECT_FALSE(canvas->FocusedItem());
  canvas->SetFocusedItem(bar);
  EXPECT_FALSE(canvas->FocusedItem());
}
