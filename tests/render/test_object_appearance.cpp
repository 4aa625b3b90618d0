#include <gtest/gtest.h>

#include <murtimeline/model/timeline_scalar.h>

#include "tests/support/print.h"
#include "tests/support/render_fixture.h"

namespace mur::test {
namespace {

constexpr std::int32_t kMiddleSite = 5;

TEST(ObjectAppearance, IsThatOfTheBarByKeyOrByPositionOnTheCanvas) {
  const AttachedControl c;
  c.Add(murtlotScalar, u"S");
  // The cursor is the first item.
  for (const Variant& bar : {Variant(u"S"), Variant(u"s"), Variant(2)}) {
    c->SetTLObject_BackColor(bar, 0x123456);
    c->SetTLObject_ForeColor(bar, 0x80000012);
    c->SetTLObject_Caption(bar, 1, u"one");
    c->SetTLObject_Visible(bar, false);
    EXPECT_EQ(c->TLObject_BackColor(bar), 0x123456U);
    EXPECT_EQ(c->TLObject_ForeColor(bar), 0x80000012U);
    EXPECT_EQ(c->TLObject_Caption(bar, 1), u"one");
    EXPECT_EQ(c->TLObject_Caption(bar, 9), u"");
    EXPECT_FALSE(c->TLObject_Visible(bar));
    EXPECT_EQ(c.Item(u"S")->BackColor(), 0x123456U);
    c->SetTLObject_BackColor(bar, 0);
    c->SetTLObject_Visible(bar, true);
    EXPECT_TRUE(c->TLObject_Visible(bar));
  }
}

TEST(ObjectAppearance, ShowsTheTagOfANewObjectInTheMiddle) {
  const AttachedControl c;
  const auto object = Make<CMURTimelineScalar>();
  object->SetTag(u"tag");
  c.timeline->Insert(object, u"S");
  EXPECT_EQ(c->TLObject_Caption(u"S", kMiddleSite), u"tag");
}

TEST(ObjectAppearance, IsEmptyWhereThereIsNoBar) {
  const AttachedControl c;
  c.Add(murtlotScalar, u"S");
  for (const Variant& none : {Variant(u"none such"), Variant(0), Variant(3), Variant(-1), Variant(),
                              Variant::Null(), Variant::Missing()}) {
    c->SetTLObject_BackColor(none, 1);
    c->SetTLObject_ForeColor(none, 1);
    c->SetTLObject_Caption(none, 1, u"x");
    c->SetTLObject_Visible(none, false);
    EXPECT_EQ(c->TLObject_BackColor(none), 0U);
    EXPECT_EQ(c->TLObject_ForeColor(none), 0U);
    EXPECT_EQ(c->TLObject_Caption(none, 1), u"");
    EXPECT_FALSE(c->TLObject_Visible(none));
  }
  EXPECT_TRUE(c->TLObject_Visible(u"S"));
}

TEST(ObjectAppearance, HasNineCaptionSites) {
  const AttachedControl c;
  c.Add(murtlotScalar, u"S");
  for (const std::int32_t site : {0, 10, -1, 2147483647}) {
    c->SetTLObject_Caption(u"S", site, u"x");
    EXPECT_EQ(c->TLObject_Caption(u"S", site), u"");
  }
  for (std::int32_t site = 1; site <= 9; ++site) c->SetTLObject_Caption(u"S", site, u"y");
  for (std::int32_t site = 1; site <= 9; ++site) EXPECT_EQ(c->TLObject_Caption(u"S", site), u"y");
}

TEST(ObjectAppearance, HidesTheCursor) {
  const AttachedControl c;
  c->SetTLObject_Visible(u"The Cursor", false);
  EXPECT_FALSE(c.Item(u"The Cursor")->Visible());
}

TEST(ObjectAppearance, TouchesNothingElse) {
  RecordingCompanions companions;
  const AttachedControl c(companions.All());
  const auto object = c.Add(murtlotScalar, u"S");
  Counter model(c.timeline->TLObjectPropertyChanged);
  Counter cursor(c->CursorTimeChange);
  companions.log.Take();
  c->SetTLObject_BackColor(u"S", 1);
  c->SetTLObject_ForeColor(u"S", 2);
  c->SetTLObject_Caption(u"S", kMiddleSite, u"x");
  c->SetTLObject_Visible(u"S", false);
  EXPECT_EQ(companions.log.Take(),
            "Item.BackColor S = 00000001; Item.ForeColor S = 00000002; Item.Caption S (5) = 'x'");
  EXPECT_EQ(model.Take() + cursor.Take(), 0);
  EXPECT_EQ(object->Tag(), u"");
}

TEST(ObjectAppearance, LastsUntilTheControlWritesTheSame) {
  const AttachedControl c;
  const auto object = c.Add(murtlotGroup, u"G");
  const OleColor back = c->DefaultRenderConfig()->BackColor();
  const OleColor fore = c->DefaultRenderConfig()->ForeColor();
  c->SetAutoObjectCaption(1, etlctTag);
  c->SetTLObject_BackColor(u"G", 1);
  c->SetTLObject_ForeColor(u"G", 2);
  c->SetTLObject_Caption(u"G", 1, u"mine");
  c->SetTLObject_Caption(u"G", 2, u"mine");
  c->SetTLObject_Visible(u"G", false);
  object->SetTag(u"tag");
  EXPECT_EQ(c->TLObject_Caption(u"G", 1), u"tag");
  EXPECT_EQ(c->TLObject_Caption(u"G", 2), u"mine");
  EXPECT_EQ(c->TLObject_BackColor(u"G"), 1U);
  object->SetGroupType(murtlotMedia);
  EXPECT_EQ(c->TLObject_BackColor(u"G"), back);
  EXPECT_EQ(c->TLObject_ForeColor(u"G"), fore);
  c->SetTLObject_BackColor(u"G", 1);
  c->SetTLObject_ForeColor(u"G", 2);
  c->SetAutoHighlightObjects(false);
  EXPECT_EQ(c->TLObject_BackColor(u"G"), back);
  EXPECT_EQ(c->TLObject_ForeColor(u"G"), 2U);
  c->SetDuration(77);
  EXPECT_FALSE(c->TLObject_Visible(u"G"));
}

TEST(ObjectAppearance, IsResetByTheSelectionOfAnotherObject) {
  const AttachedControl c;
  c.Add(murtlotScalar, u"A");
  c.Add(murtlotScalar, u"B");
  c->SetAutoSelectMode(etlcltLeftClick);
  c->SetTLObject_BackColor(u"A", 0x123456);
  std::int16_t button = 1, shift = 0;
  float x = 0, y = 0;
  c.Canvas().ItemMouseDown.Raise(c.Item(u"B"), button, shift, x, y);
  c.Canvas().ItemClick.Raise(c.Item(u"B"));
  EXPECT_EQ(c->TLObject_BackColor(u"A"), c->DefaultRenderConfig()->BackColor());
}

TEST(ObjectAppearance, LetsNothingOutWhicheverCallFails) {
  for (const char* call : {"*", "Canvas.Graphic", "Item.BackColor", "Item.ForeColor", "Item.Caption"}) {
    RecordingCompanions companions;
    const AttachedControl c(companions.All());
    c.Add(murtlotScalar, u"S");
    companions.log.failing = call;
    EXPECT_NO_THROW({
      c->SetTLObject_BackColor(u"S", 1);
      c->SetTLObject_ForeColor(u"S", 1);
      c->SetTLObject_Caption(u"S", 1, u"x");
      c->SetTLObject_Visible(u"S", false);
      c->TLObject_BackColor(u"S");
      c->TLObject_ForeColor(u"S");
      c->TLObject_Caption(u"S", 1);
      c->TLObject_Visible(u"S");
    }) << call;
  }
}

}  // namespace
}  // namespace mur::test
