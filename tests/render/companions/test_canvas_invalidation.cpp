#include <vector>

#include <gtest/gtest.h>

#include <murtimeline/render/companions/canvas.h>
#include <murtimeline/render/port/recording_surface.h>
#include <murtimeline/render/port/scripted_host.h>

using namespace mur;

namespace {

class CanvasInvalidation : public ::testing::Test {
 protected:
  CanvasInvalidation() {
    canvas->SetScaleMode(3);
    bar->Move(10, 20.0F, 30.0F, 40.0F);
    Paint();
  }
  void Paint() {
    RecordingSurface surface;
    canvas->Paint(surface, {0, 0, 100, 100});
    host.ForgetInvalidations();
  }
  std::vector<RectF> Asked() const { return host.Invalidated(); }

  ScriptedChild host;
  Ref<MURGraphicCanvas> canvas = Make<MURGraphicCanvas>(host);
  Ref<ICanvasItem> bar = canvas->AddGraphic(u"bar", kObjectBarItem);
  const RectF kBar{9, 19, 32, 42};  // with the pixel around it that alignment may touch
};

}  // namespace

TEST_F(CanvasInvalidation, AsksForTheOldAndTheNewPlaceOfAMove) {
  bar->Move(50);
  EXPECT_EQ(Asked(), (std::vector<RectF>{kBar, {49, 19, 32, 42}}));
  EXPECT_EQ(host.InvalidatedAll(), 0U);
}

TEST_F(CanvasInvalidation, AsksForThePlaceOfAChangedLook) {
  bar->SetBackColor(1);
  bar->SetForeColor(2);
  bar->SetCaption(5, u"caption");
  bar->SetVisible(false);
  bar->SetVisible(true);
  bar->ZOrder(1);
  bar->ZOrder(0);
  EXPECT_EQ(Asked(), std::vector<RectF>(7, kBar));
}

TEST_F(CanvasInvalidation, AsksForNothingWhenNothingChanges) {
  bar->Move(10, 20.0F);
  bar->SetHeight(40);
  bar->SetVisible(true);
  bar->SetBackColor(bar->BackColor());
  bar->SetForeColor(bar->ForeColor());
  bar->SetCaption(5, u"");
  bar->SetToolTipText(u"tip");
  bar->SetDragFlags(3);
  canvas->SetBackColor(canvas->BackColor());
  canvas->SetScaleMode(3);
  EXPECT_TRUE(Asked().empty());
  EXPECT_EQ(host.InvalidatedAll(), 0U);
}

TEST_F(CanvasInvalidation, AsksForNothingWhileAnItemIsHidden) {
  bar->SetVisible(false);
  host.ForgetInvalidations();
  bar->Move(50);
  bar->SetBackColor(1);
  EXPECT_TRUE(Asked().empty());
}

TEST_F(CanvasInvalidation, AsksForThePlaceOfARemovedItem) {
  canvas->RemoveGraphic(1);
  EXPECT_EQ(Asked(), std::vector<RectF>{kBar});
}

TEST_F(CanvasInvalidation, AsksInPixelsUnderTwips) {
  canvas->SetScaleMode(1);
  Paint();
  bar->Move(0, 0.0F, 150.0F, 150.0F);
  ASSERT_EQ(Asked().size(), 2U);
  EXPECT_FLOAT_EQ(Asked()[1].width, 12);
}

TEST_F(CanvasInvalidation, AsksForEverythingOnceChangesAreMany) {
  for (int step = 1; step <= 1000; ++step) bar->Move(static_cast<float>(step));
  EXPECT_LT(Asked().size(), 64U);
  EXPECT_EQ(host.InvalidatedAll(), 1U);
}

TEST_F(CanvasInvalidation, AsksForRectanglesAgainAfterThePainting) {
  for (int step = 1; step <= 1000; ++step) bar->Move(static_cast<float>(step));
  Paint();
  bar->SetBackColor(1);
  EXPECT_EQ(Asked().size(), 1U);
  EXPECT_EQ(host.InvalidatedAll(), 0U);
}

TEST_F(CanvasInvalidation, AsksForEverythingWhenTheCanvasChanges) {
  canvas->SetBackColor(1);
  canvas->SetScaleMode(1);
  EXPECT_EQ(host.InvalidatedAll(), 1U);  // once is enough until it is painted
  Paint();
  canvas->SetScaleMode(3);
  EXPECT_EQ(host.InvalidatedAll(), 1U);
}
