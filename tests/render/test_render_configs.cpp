#include <limits>

#include <gtest/gtest.h>

#include "tests/support/foreign_object.h"
#include "tests/support/print.h"
#include "tests/support/render_fixture.h"

namespace mur::test {
namespace {

TEST(RenderConfig, IsNothingForAnUnknownKey) {
  const BareControl c;
  EXPECT_FALSE(c->RenderConfig(7));
  EXPECT_FALSE(c->RenderConfig(u"Key_7"));
}

TEST(AddRenderConfig, GivesANewEntryTheStartColoursAndAKnownOneBack) {
  const BareControl c;
  const auto config = c->AddRenderConfig(1);
  ASSERT_TRUE(config);
  EXPECT_EQ(config->BackColor(), 0x8000000Fu);
  EXPECT_EQ(c->AddRenderConfig(1), config);
  EXPECT_EQ(c->AddRenderConfig(u"Key_1"), config);
  EXPECT_NE(config, c->DefaultRenderConfig());
}

// Adds an entry under a key and says under which text it can be found.
bool IsFoundUnder(const Variant& KeyA, StringView TextA) {
  const BareControl c;
  const auto config = c->AddRenderConfig(KeyA);
  return config && c->RenderConfig(TextA) == config && c->RenderConfig(KeyA) == config;
}

TEST(RenderConfigKey, OfANumberIsThatNumberRoundedAwayFromZero) {
  EXPECT_TRUE(IsFoundUnder(2, u"Key_2"));
  EXPECT_TRUE(IsFoundUnder(2.6, u"Key_3"));
  EXPECT_TRUE(IsFoundUnder(2.5, u"Key_3"));
  EXPECT_TRUE(IsFoundUnder(3.5f, u"Key_4"));
  EXPECT_TRUE(IsFoundUnder(-2.5, u"Key_-3"));
  EXPECT_TRUE(IsFoundUnder(-0.4, u"Key_0"));
  EXPECT_TRUE(IsFoundUnder(std::numeric_limits<std::int64_t>::max(), u"Key_9223372036854780000"));
}

TEST(RenderConfigKey, OfATextThatIsANumberIsTheNumber) {
  EXPECT_TRUE(IsFoundUnder(u"12", u"Key_12"));
  EXPECT_TRUE(IsFoundUnder(u" 7 ", u"Key_7"));
  EXPECT_TRUE(IsFoundUnder(u"1e1", u"Key_10"));
  EXPECT_TRUE(IsFoundUnder(u"2.6", u"Key_3"));
  EXPECT_TRUE(IsFoundUnder(u"&H10", u"Key_16"));
}

TEST(RenderConfigKey, OfABooleanOrEmptyIsItsNumber) {
  EXPECT_TRUE(IsFoundUnder(true, u"Key_-1"));
  EXPECT_TRUE(IsFoundUnder(false, u"Key_0"));
  EXPECT_TRUE(IsFoundUnder(Variant(), u"Key_0"));
}

TEST(RenderConfigKey, OfOtherTextIsTheTextUnchangedWhateverItsLetterCase) {
  EXPECT_TRUE(IsFoundUnder(u"", u""));
  EXPECT_TRUE(IsFoundUnder(u"  ", u"  "));
  EXPECT_TRUE(IsFoundUnder(u"My Key", u"my key"));
  EXPECT_FALSE(IsFoundUnder(u" x", u"x"));
}

TEST(RenderConfigKey, OfADateIsItsText) {
  EXPECT_TRUE(IsFoundUnder(DateOf(2000, 1, 1), u"1/1/2000"));
}

TEST(RenderConfigKey, IsNoneForNullMissingObjectsAndADateOutOfRange) {
  const BareControl c;
  for (const Variant& key : {Variant::Null(), Variant::Missing(), Variant(c->DefaultRenderConfig()),
                             Variant(Date::Unchecked(1e9))}) {
    EXPECT_FALSE(c->AddRenderConfig(key));
    EXPECT_FALSE(c->RenderConfig(key));
  }
}

TEST(RenderConfigKey, OfNumbersThatAreNotFiniteDoesNoHarm) {
  const BareControl c;
  for (const double number :
       {std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::infinity(), 1e308, -1e308}) {
    c->AddRenderConfig(number);
    EXPECT_EQ(c->RenderConfig(number), c->AddRenderConfig(number));
  }
}

Ref<CMURTLRenderConfig> WithColors(const Ref<CMURTLRenderConfig>& ConfigA, OleColor BackA, OleColor ForeA) {
  ConfigA->SetBackColor(BackA);
  ConfigA->SetForeColor(ForeA);
  return ConfigA;
}

TEST(ColoursOfABar, AreThoseOfItsObjectType) {
  const AttachedControl c;
  WithColors(c->AddRenderConfig(murtlotScalar), 0x10, 0x11);
  WithColors(c->AddRenderConfig(murtlotMedia), 0x20, 0x21);
  c.Add(murtlotScalar, u"S");
  c.Add(murtlotMedia, u"M");
  EXPECT_EQ(c.Item(u"S")->BackColor(), 0x10u);
  EXPECT_EQ(c.Item(u"S")->ForeColor(), 0x11u);
  EXPECT_EQ(c.Item(u"M")->BackColor(), 0x20u);
}

TEST(ColoursOfABar, AreThoseOfAGroupsGroupType) {
  const AttachedControl c;
  WithColors(c->AddRenderConfig(murtlotUnknown), 0x40, 0x41);
  WithColors(c->AddRenderConfig(murtlotMedia), 0x20, 0x21);
  const auto group = c.Add(murtlotGroup, u"G");
  EXPECT_EQ(c.Item(u"G")->BackColor(), 0x40u);
  group->SetGroupType(murtlotMedia);
  EXPECT_EQ(c.Item(u"G")->BackColor(), 0x20u);
  EXPECT_EQ(c.Item(u"G")->ForeColor(), 0x21u);
}

TEST(ColoursOfABar, AreTheDefaultsWithoutAnEntry) {
  const AttachedControl c;
  WithColors(c->DefaultRenderConfig(), 0x50, 0x51);
  c->AddRenderConfig(9);
  c.Add(murtlotScalar, u"S");
  EXPECT_EQ(c.Item(u"S")->BackColor(), 0x50u);
  EXPECT_EQ(c.Item(u"S")->ForeColor(), 0x51u);
}

class Typeless final : public ForeignObject {
 public:
  MURTimelineObjectType ObjectType() const override { throw 42; }
};

TEST(ColoursOfABar, AreTheDefaultsOfAnObjectThatCannotTellItsKind) {
  const AttachedControl c;
  c->AddRenderConfig(murtlotScalar);
  c.timeline->Insert(Make<Typeless>(), u"F");
  EXPECT_EQ(c.Item(u"F")->BackColor(), 0x8000000Fu);
  EXPECT_EQ(c.Item(u"F")->ForeColor(), 0x80000012u);
}

}  // namespace
}  // namespace mur::test
