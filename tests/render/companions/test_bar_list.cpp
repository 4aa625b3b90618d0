#include <gtest/gtest.h>

#include <murtimeline/render/companions/bar_list.h>
#include <murtimeline/render/port/scripted_host.h>

namespace mur {
namespace {

class ListedBars : public testing::Test {
 protected:
  ListedBars() {
    canvas->SetScaleMode(3);
    host.Move(0, 0, 100 * ChildHost::kTwipsPerPixel, 50 * ChildHost::kTwipsPerPixel);
    canvas->AddGraphic(u"A", kObjectBarItem);
    canvas->AddGraphic(u"The Cursor", kCursorItem);
    canvas->AddGraphic(u"B", kObjectBarItem);
  }
  Ref<ICanvasItem> Item(StringView KeyA) const { return canvas->GraphicByKey(KeyA); }

  ScriptedChild host;
  Ref<MURGraphicCanvas> canvas = Make<MURGraphicCanvas>(host);
  BarList bars{*canvas};
};

TEST_F(ListedBars, TheCursorIsNotAmongThem) {
  EXPECT_EQ(bars.Count(), 2U);
  EXPECT_EQ(bars.At(0), Item(u"A"));
  EXPECT_EQ(bars.At(1), Item(u"B"));
  EXPECT_FALSE(bars.At(2));
  EXPECT_EQ(bars.PlaceOf(*Item(u"A")), 0U);
  EXPECT_EQ(bars.PlaceOf(*Item(u"B")), 1U);
  EXPECT_FALSE(bars.PlaceOf(*Item(u"The Cursor")));
}

TEST_F(ListedBars, WhatIsOffTheCanvasHasNoPlace) {
  const auto gone = Item(u"A");
  canvas->RemoveGraphic(Variant(u"A"));
  EXPECT_FALSE(bars.PlaceOf(*gone));
  EXPECT_EQ(bars.PlaceOf(*Item(u"B")), 0U);
  canvas->RemoveGraphic(Variant(u"The Cursor"));
  EXPECT_EQ(bars.Count(), 1U);
  EXPECT_EQ(bars.At(0), Item(u"B"));
}

TEST_F(ListedBars, ABarIsInViewWhileAnyPartOfItIs) {
  const auto bar = Item(u"A");
  EXPECT_FALSE(bars.IsInView(*bar));  // it has no extent
  bar->Move(99, 0, 10, 10);
  EXPECT_TRUE(bars.IsInView(*bar));
  bar->Move(100);
  EXPECT_FALSE(bars.IsInView(*bar));
  bar->Move(-10);
  EXPECT_FALSE(bars.IsInView(*bar));
  bar->Move(0, 50);
  EXPECT_FALSE(bars.IsInView(*bar));
}

}  // namespace
}  // namespace mur
