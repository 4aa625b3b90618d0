#include <gtest/gtest.h>

#include <murtimeline/automation/variant.h>

#include "tests/support/print.h"

namespace mur {
namespace {

enum Flavour : int { kSweet = 7 };
class Thing final : public Object {};
class Decimal final : public ForeignValue {};

TEST(Variant, KnowsTheKindOfEachValue) {
  EXPECT_TRUE(Variant().Is(VariantKind::Empty));
  EXPECT_TRUE(Variant::Null().Is(VariantKind::Null));
  EXPECT_TRUE(Variant::Missing().Is(VariantKind::Missing));
  EXPECT_TRUE(Variant(true).Is(VariantKind::Boolean));
  EXPECT_TRUE(Variant(std::int8_t{1}).Is(VariantKind::Int8));
  EXPECT_TRUE(Variant(std::uint8_t{1}).Is(VariantKind::UInt8));
  EXPECT_TRUE(Variant(std::int16_t{1}).Is(VariantKind::Int16));
  EXPECT_TRUE(Variant(std::uint16_t{1}).Is(VariantKind::UInt16));
  EXPECT_TRUE(Variant(1).Is(VariantKind::Int32));
  EXPECT_TRUE(Variant(1u).Is(VariantKind::UInt32));
  EXPECT_TRUE(Variant(std::int64_t{1}).Is(VariantKind::Int64));
  EXPECT_TRUE(Variant(std::uint64_t{1}).Is(VariantKind::UInt64));
  EXPECT_TRUE(Variant(1.0f).Is(VariantKind::Single));
  EXPECT_TRUE(Variant(1.0).Is(VariantKind::Double));
  EXPECT_TRUE(Variant(Date()).Is(VariantKind::Date));
  EXPECT_TRUE(Variant(u"x").Is(VariantKind::Text));
  EXPECT_TRUE(Variant(Ref<Thing>(Make<Thing>())).Is(VariantKind::Object));
  EXPECT_TRUE(Variant(Ref<Decimal>(Make<Decimal>())).Is(VariantKind::Foreign));
}

TEST(Variant, TakesAnEnumerationAsThirtyTwoBits) {
  EXPECT_EQ(Variant(kSweet), Variant(std::int32_t{7}));
}

TEST(Variant, GivesTheNumberInItAndTrueIsMinusOne) {
  EXPECT_EQ(Variant(true).Number(), -1.0);
  EXPECT_EQ(Variant(false).Number(), 0.0);
  EXPECT_EQ(Variant(std::int16_t{-3}).Number(), -3.0);
  EXPECT_EQ(Variant(0.5f).Number(), 0.5);
  EXPECT_EQ(Variant(Date::Unchecked(2)).Number(), 2.0);
}

TEST(Variant, HasNoNumberInATextNorInNothing) {
  for (const Variant& value :
       {Variant(), Variant::Null(), Variant::Missing(), Variant(u"1"), Variant(Ref<Thing>())})
    EXPECT_EQ(value.Number(), std::nullopt);
}

TEST(Variant, GivesItsValueByItsVeryTypeOnly) {
  EXPECT_EQ(*Variant(1.5).As<double>(), 1.5);
  EXPECT_EQ(Variant(1.5).As<float>(), nullptr);
  EXPECT_EQ(*Variant(StringView(u"x")).As<String>(), u"x");
}

TEST(Variant, IsEqualToTheSameKindAndValueOnly) {
  const auto thing = Make<Thing>();
  EXPECT_EQ(Variant(thing), Variant(thing));
  EXPECT_NE(Variant(thing), Variant(Make<Thing>()));
  EXPECT_NE(Variant(1), Variant(1.0));
  EXPECT_NE(Variant(u"a"), Variant(u"A"));
  EXPECT_EQ(Variant::Null(), Variant::Null());
  EXPECT_NE(Variant(), Variant::Missing());
}

TEST(Variant, GivesAForeignValueBackUnchanged) {
  const auto decimal = Make<Decimal>();
  const Variant variant(decimal);
  EXPECT_EQ(variant.As<Ref<ForeignValue>>()->Get(), decimal.Get());
}

TEST(Variant, NamesItsKinds) {
  EXPECT_STREQ(KindName(VariantKind::Empty), "Empty");
  EXPECT_STREQ(KindName(VariantKind::Foreign), "Foreign");
}

}  // namespace
}  // namespace mur
