#include <limits>

#include <gtest/gtest.h>

#include <murtimeline/automation/selector.h>

namespace mur {
namespace {

// Answers what it is asked for: "key k" or "position 3".
struct Echo {
  mutable std::string asked;
  std::size_t SlotOfKey(StringView KeyA) const { return asked = "key " + ToUtf8(KeyA), 0; }
  std::size_t SlotOfPosition(std::size_t PositionA) const {
    return asked = "position " + std::to_string(PositionA), 0;
  }
};

std::string Asked(const Variant& KeyIndexA) {
  Echo echo;
  Selector(KeyIndexA).SlotIn(echo);
  return echo.asked;
}

TEST(Selector, TakesATextAsAKeyEvenWhenItLooksLikeANumber) {
  EXPECT_EQ(Asked(u"k"), "key k");
  EXPECT_EQ(Asked(u"1"), "key 1");
  EXPECT_EQ(Asked(u""), "key ");
}

TEST(Selector, TakesANumberOfAnyKindAsAPositionRoundedHalfToEven) {
  EXPECT_EQ(Asked(1), "position 1");
  EXPECT_EQ(Asked(std::uint64_t{7}), "position 7");
  EXPECT_EQ(Asked(2.5), "position 2");
  EXPECT_EQ(Asked(3.5f), "position 4");
  EXPECT_EQ(Asked(Date::Unchecked(5)), "position 5");
  EXPECT_EQ(Asked(std::numeric_limits<std::int32_t>::max()), "position 2147483647");
}

TEST(Selector, TakesEverythingElseAsNoPosition) {
  for (const Variant& value :
       {Variant(), Variant::Null(), Variant::Missing(), Variant(0), Variant(-1), Variant(0.5), Variant(true),
        Variant(false), Variant(2147483648.0), Variant(std::numeric_limits<double>::quiet_NaN()),
        Variant(std::numeric_limits<double>::infinity()), Variant(Ref<Object>())})
    EXPECT_EQ(Asked(value), "position 0");
}

}  // namespace
}  // namespace mur
