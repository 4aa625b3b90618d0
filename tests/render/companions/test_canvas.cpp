#include <gtest/gtest.h>

#include <murtimeline/automation/error.h>
#include <murtimeline/render/companions/canvas.h>
#include <murtimeline/render/port/scripted_host.h>

#include "tests/support/print.h"

using namespace mur;

namespace {

class Canvas : public ::testing::Test {
 protected:
  ~Canvas() override { EXPECT_TRUE(canvas->IsConsistent()); }

  Ref<ICanvasItem> Bar(StringView KeyA, float LeftA = 0, float WidthA = 10) {
    auto item = canvas->AddGraphic(KeyA, kObjectBarItem);
    item->Move(LeftA, 0.0F, WidthA, 10.0F);
    return item;
  }
  static std::string KeyOf(const Ref<ICanvasItem>& ItemA) { return ItemA ? ToUtf8(ItemA->Key()) : "none"; }

  ScriptedChild host;
  Ref<MURGraphicCanvas> canvas = [this] {
    auto made = Make<MURGraphicCanvas>(host);
    made->SetScaleMode(3);
    return made;
  }();
};

}  // namespace

TEST_F(Canvas, StartsEmptyWithItsDocumentedSettings) {
  const auto fresh = Make<MURGraphicCanvas>(host);
  EXPECT_EQ(fresh->GraphicCount(), 0U);
  EXPECT_EQ(fresh->ScaleMode(), 1);
  EXPECT_EQ(fresh->OLEDropMode(), 0);
  EXPECT_TRUE(fresh->ShowToolTips());
  EXPECT_EQ(fresh->BackColor(), 0x8000000CU);
}

TEST_F(Canvas, KeepsItsSettings) {
  canvas->SetOLEDropMode(2);
  canvas->SetShowToolTips(false);
  canvas->SetBackColor(0x123456);
  EXPECT_EQ(canvas->OLEDropMode(), 2);
  EXPECT_FALSE(canvas->ShowToolTips());
  EXPECT_EQ(canvas->BackColor(), 0x123456U);
}

TEST_F(Canvas, MeasuresItsDrawingAreaInItsScaleMode) {
  host.Move(0, 0, 3000, 1500);
  EXPECT_EQ(canvas->DrawingWidth(), 200);
  EXPECT_EQ(canvas->DrawingHeight(), 100);
  canvas->SetScaleMode(1);
  EXPECT_FLOAT_EQ(static_cast<float>(canvas->DrawingWidth()), 3000);
  EXPECT_FLOAT_EQ(static_cast<float>(canvas->DrawingHeight()), 1500);
}

TEST_F(Canvas, FindsItemsByKeyWhateverTheLetterCase) {
  Bar(u"Alpha");
  const auto beta = Bar(u"Beta");
  EXPECT_EQ(canvas->Graphic(u"bETA"), beta);
  EXPECT_EQ(canvas->GraphicByKey(u"BETA"), beta);
  EXPECT_EQ(KeyOf(canvas->Graphic(u"Gamma")), "none");
  EXPECT_EQ(KeyOf(canvas->GraphicByKey(u"Gamma")), "none");
}

TEST_F(Canvas, FindsItemsByPositionInTheOrderOfTheirAddition) {
  Bar(u"a");
  Bar(u"b");
  EXPECT_EQ(KeyOf(canvas->Graphic(1)), "a");
  EXPECT_EQ(KeyOf(canvas->Graphic(2.0)), "b");
  EXPECT_EQ(KeyOf(canvas->Graphic(0)), "none");
  EXPECT_EQ(KeyOf(canvas->Graphic(3)), "none");
  EXPECT_EQ(KeyOf(canvas->Graphic(Variant())), "none");
}

TEST_F(Canvas, RefusesAKeyThatExists) {
  const auto first = Bar(u"key");
  EXPECT_EQ(KeyOf(canvas->AddGraphic(u"KEY", 1)), "none");
  EXPECT_EQ(canvas->GraphicCount(), 1U);
  EXPECT_EQ(canvas->Graphic(1), first);
}

TEST_F(Canvas, TakesTheEmptyKeyLikeAnyOther) {
  EXPECT_EQ(KeyOf(canvas->AddGraphic(u"", 1)), "");
  EXPECT_EQ(KeyOf(canvas->AddGraphic(u"", 1)), "none");
  EXPECT_EQ(KeyOf(canvas->Graphic(u"")), "");
}

TEST_F(Canvas, RemovesByKeyAndByPosition) {
  Bar(u"a");
  Bar(u"b");
  Bar(u"c");
  canvas->RemoveGraphic(u"B");
  canvas->RemoveGraphic(2);
  EXPECT_EQ(canvas->GraphicCount(), 1U);
  EXPECT_EQ(KeyOf(canvas->Graphic(1)), "a");
}

TEST_F(Canvas, FailsToRemoveWhatIsNotThere) {
  Bar(u"a");
  for (const Variant& which : {Variant(u"b"), Variant(0), Variant(2), Variant()}) {
    try {
      canvas->RemoveGraphic(which);
      ADD_FAILURE() << "removed something";
    } catch (const AutomationError& error) {
      EXPECT_EQ(error.Code(), ErrorCode::SubscriptOutOfRange);
    }
  }
  EXPECT_EQ(canvas->GraphicCount(), 1U);
}

TEST_F(Canvas, LetsARemovedItemLiveOn) {
  const auto item = Bar(u"a", 5);
  canvas->RemoveGraphic(u"a");
  item->Move(7, {}, 9);
  item->SetCaption(5, u"caption");
  item->ZOrder(0);
  EXPECT_EQ(item->Left(), 7);
  EXPECT_EQ(item->Width(), 9);
  EXPECT_EQ(KeyOf(item), "a");
  EXPECT_EQ(KeyOf(canvas->ItemAt({8, 5})), "none");
}

TEST_F(Canvas, TakesTheKeyOfARemovedItemAnew) {
  const auto old = Bar(u"a", 100);
  canvas->RemoveGraphic(u"a");
  const auto fresh = Bar(u"a", 0);
  old->Move(0);
  EXPECT_EQ(canvas->ItemAt({5, 5}), fresh);
}

TEST_F(Canvas, LetsItemsOutliveIt) {
  auto short_lived = Make<MURGraphicCanvas>(host);
  const auto item = short_lived->AddGraphic(u"a", 1);
  short_lived = {};
  host.ForgetInvalidations();
  item->Move(1, 2.0F, 3.0F, 4.0F);
  item->SetVisible(false);
  item->SetBackColor(5);
  EXPECT_EQ(item->Width(), 3);
  EXPECT_EQ(item->BackColor(), 5U);
  EXPECT_TRUE(host.Invalidated().empty());
}

TEST_F(Canvas, IsNotKeptByItsItems) {
  struct Face final : HostFace {
    explicit Face(bool& GoneA) : gone(GoneA) {}
    ~Face() override { gone = true; }
    bool& gone;
  };
  bool gone = false;
  auto shortLived = Make<MURGraphicCanvas>(host);
  shortLived->SetFace(new Face(gone));
  const auto item = shortLived->AddGraphic(u"a", 1);
  shortLived = {};
  EXPECT_TRUE(gone);
}

TEST_F(Canvas, RaisesRepaintWhenItsAreaChanges) {
  int raised = 0;
  const auto connection = canvas->Repaint.Connect([&] { ++raised; });
  canvas->Resized();
  EXPECT_EQ(raised, 1);
  EXPECT_EQ(host.InvalidatedAll(), 1U);
}

TEST_F(Canvas, HitsTheTopmostVisibleItem) {
  const auto below = Bar(u"below", 0, 20);
  const auto above = Bar(u"above", 10, 20);
  EXPECT_EQ(canvas->ItemAt({15, 5}), above);
  above->SetVisible(false);
  EXPECT_EQ(canvas->ItemAt({15, 5}), below);
}

TEST_F(Canvas, HitsWithinTheEdgesOnly) {
  const auto item = Bar(u"a", 10, 20);
  EXPECT_EQ(canvas->ItemAt({10, 0}), item);
  EXPECT_EQ(KeyOf(canvas->ItemAt({9.9F, 5})), "none");
  EXPECT_EQ(KeyOf(canvas->ItemAt({30, 5})), "none");
  EXPECT_EQ(KeyOf(canvas->ItemAt({15, 10})), "none");
}

TEST_F(Canvas, HitsTheCursorBeforeAllBarsEvenWhenItLiesAtTheBack) {
  const auto bar = Bar(u"bar", 0, 100);
  const auto cursor = canvas->AddGraphic(u"The Cursor", kCursorItem);
  cursor->Move(10, 0.0F, 5.0F, 10.0F);
  cursor->ZOrder(1);
  EXPECT_EQ(canvas->ItemAt({12, 5}), cursor);
  EXPECT_EQ(canvas->ItemAt({16, 5}), bar);
}

TEST_F(Canvas, HitsInPixelsWhateverTheScaleMode) {
  const auto item = Bar(u"a", 150, 150);
  item->Move(150, 0.0F, 150.0F, 150.0F);
  canvas->SetScaleMode(1);
  EXPECT_EQ(canvas->ItemAt({15, 5}), item);
  EXPECT_EQ(KeyOf(canvas->ItemAt({155, 5})), "none");
  EXPECT_FLOAT_EQ(canvas->PixelBounds(*item).left, 10);
  EXPECT_FLOAT_EQ(canvas->PixelBounds(*item).height, 10);
}

TEST_F(Canvas, ShowsTheToolTipOfTheItemElseItsOwn) {
  host.SetToolTipText(u"canvas tip");
  Bar(u"with", 0)->SetToolTipText(u"item tip");
  Bar(u"without", 20);
  EXPECT_EQ(ToUtf8(canvas->ToolTipAt({5, 5})), "item tip");
  EXPECT_EQ(ToUtf8(canvas->ToolTipAt({25, 5})), "canvas tip");
  EXPECT_EQ(ToUtf8(canvas->ToolTipAt({50, 5})), "canvas tip");
  canvas->SetShowToolTips(false);
  EXPECT_EQ(ToUtf8(canvas->ToolTipAt({5, 5})), "");
}

TEST_F(Canvas, EmptiesFromTheFirstPosition) {
  for (int number = 0; number < 2000; ++number)
    Bar(FromAscii(std::to_string(number)), static_cast<float>(number));
  EXPECT_NE(KeyOf(canvas->ItemAt({5, 5})), "none");
  while (canvas->GraphicCount() > 0) canvas->RemoveGraphic(1);
  EXPECT_EQ(KeyOf(canvas->ItemAt({5, 5})), "none");
}
