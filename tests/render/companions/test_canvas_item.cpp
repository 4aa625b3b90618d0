#include <limits>

#include <gtest/gtest.h>

#include <murtimeline/automation/error.h>
#include <murtimeline/render/companions/canvas.h>
#include <murtimeline/render/port/scripted_host.h>

using namespace mur;

namespace {

class CanvasItems : public ::testing::Test {
 protected:
  CanvasItems() { canvas->SetScaleMode(3); }

  Ref<ICanvasItem> Bar(StringView KeyA) {
    auto bar = canvas->AddGraphic(KeyA, kObjectBarItem);
    bar->Move(0, 0.0F, 10.0F, 10.0F);
    return bar;
  }
  Ref<ICanvasItem> Topmost() const { return canvas->ItemAt({5, 5}); }

  ScriptedChild host;
  Ref<MURGraphicCanvas> canvas = Make<MURGraphicCanvas>(host);
};

template <class Call>
ErrorCode ErrorOf(Call&& CallA) {
  try {
    CallA();
  } catch (const AutomationError& error) {
    return error.Code();
  }
  return ErrorCode{};
}

}  // namespace

TEST_F(CanvasItems, StartVisibleOnTopWithoutExtent) {
  const auto item = canvas->AddGraphic(u"Key", 7);
  EXPECT_EQ(ToUtf8(item->Key()), "Key");
  EXPECT_EQ(item->Kind(), 7);
  EXPECT_TRUE(item->Visible());
  EXPECT_EQ(item->Left(), 0);
  EXPECT_EQ(item->Top(), 0);
  EXPECT_EQ(item->Width(), 0);
  EXPECT_EQ(item->Height(), 0);
  EXPECT_EQ(item->DragFlags(), 0);
  EXPECT_EQ(ToUtf8(item->ToolTipText()), "");
}

TEST_F(CanvasItems, KeepALongKey) {
  const String key(100000, u'k');
  EXPECT_TRUE(canvas->AddGraphic(key, 1)->Key() == key);
}

TEST_F(CanvasItems, MoveOnlyWhatIsGiven) {
  const auto item = canvas->AddGraphic(u"a", 1);
  item->SetHeight(40);
  item->Move(1);
  item->Move(2, 3.0F);
  item->Move(4, {}, 5.0F);
  EXPECT_EQ(item->Left(), 4);
  EXPECT_EQ(item->Top(), 3);
  EXPECT_EQ(item->Width(), 5);
  EXPECT_EQ(item->Height(), 40);
}

TEST_F(CanvasItems, LieOnTopOfEarlierOnes) {
  Bar(u"first");
  EXPECT_EQ(Topmost(), Bar(u"second"));
}

TEST_F(CanvasItems, GoToTheBackAndToTheFront) {
  const auto first = Bar(u"first");
  const auto second = Bar(u"second");
  const auto third = Bar(u"third");
  third->ZOrder(1);
  EXPECT_EQ(Topmost(), second);
  first->ZOrder(0);
  EXPECT_EQ(Topmost(), first);
  third->ZOrder(Variant::Missing());
  EXPECT_EQ(Topmost(), third);
}

TEST_F(CanvasItems, KnowNoOtherStackingPosition) {
  const auto item = Bar(u"a");
  EXPECT_EQ(ErrorOf([&] { item->ZOrder(2); }), ErrorCode::InvalidProcedureCall);
  EXPECT_EQ(ErrorOf([&] { item->ZOrder(u"1"); }), ErrorCode::InvalidProcedureCall);
}

TEST_F(CanvasItems, HaveNineIndependentCaptions) {
  const auto item = Bar(u"a");
  for (int site = 1; site <= 9; ++site) item->SetCaption(site, FromAscii("caption " + std::to_string(site)));
  item->SetToolTipText(u"tip");
  item->SetCaption(5, u"");
  EXPECT_EQ(ToUtf8(item->Caption(1)), "caption 1");
  EXPECT_EQ(ToUtf8(item->Caption(5)), "");
  EXPECT_EQ(ToUtf8(item->Caption(9)), "caption 9");
  EXPECT_EQ(ToUtf8(item->ToolTipText()), "tip");
}

TEST_F(CanvasItems, FailForASiteThatIsNone) {
  const auto item = Bar(u"a");
  EXPECT_EQ(ErrorOf([&] { item->Caption(0); }), ErrorCode::SubscriptOutOfRange);
  EXPECT_EQ(ErrorOf([&] { item->Caption(10); }), ErrorCode::SubscriptOutOfRange);
  EXPECT_EQ(ErrorOf([&] { item->SetCaption(-1, u"x"); }), ErrorCode::SubscriptOutOfRange);
}

TEST_F(CanvasItems, KeepColorsAndFlags) {
  const auto item = Bar(u"a");
  item->SetBackColor(0x010203);
  item->SetForeColor(0x80000008);
  item->SetDragFlags(15);
  EXPECT_EQ(item->BackColor(), 0x010203U);
  EXPECT_EQ(item->ForeColor(), 0x80000008U);
  EXPECT_EQ(item->DragFlags(), 15);
}

TEST_F(CanvasItems, KeepPlacesThatCannotBeDrawn) {
  constexpr float kHuge = std::numeric_limits<float>::max();
  constexpr float kNaN = std::numeric_limits<float>::quiet_NaN();
  constexpr float kInfinity = std::numeric_limits<float>::infinity();
  const auto item = Bar(u"a");
  for (const float left : {kNaN, kInfinity, -kInfinity}) {
    item->Move(left);
    EXPECT_FALSE(Topmost());
  }
  item->Move(kHuge, {}, kHuge);
  EXPECT_EQ(item->Left(), kHuge);
  EXPECT_FALSE(Topmost());
  item->Move(-1, {}, kNaN);
  EXPECT_FALSE(Topmost());
  item->Move(0, {}, -5.0F);
  EXPECT_FALSE(Topmost());
  item->Move(0, {}, 10.0F);
  EXPECT_EQ(Topmost(), item);
  EXPECT_TRUE(canvas->IsConsistent());
}

TEST_F(CanvasItems, TakeLittleMemory) {
  EXPECT_LE(sizeof(CanvasItem) + sizeof(ItemPlace) + sizeof(ItemLook), 120U);
}
