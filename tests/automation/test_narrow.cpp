#include <cmath>
#include <cstdint>
#include <limits>

#include <gtest/gtest.h>

#include <murtimeline/automation/narrow.h>

namespace mur {
namespace {

TEST(Narrow, RoundsHalvesToEven) {
  EXPECT_EQ(Narrow<std::int16_t>(0.5), 0);
  EXPECT_EQ(Narrow<std::int16_t>(1.5), 2);
  EXPECT_EQ(Narrow<std::int16_t>(2.5), 2);
  EXPECT_EQ(Narrow<std::int16_t>(-1.5), -2);
  EXPECT_EQ(Narrow<std::int16_t>(1.49), 1);
}

TEST(Narrow, TakesNumbersThatRoundIntoTheRange) {
  EXPECT_EQ(Narrow<std::int16_t>(32767.4), 32767);
  EXPECT_EQ(Narrow<std::int16_t>(-32768.5), -32768);
  EXPECT_EQ(Narrow<std::int32_t>(2147483647.0), 2147483647);
}

TEST(Narrow, OverflowsBeyondTheRangeAndForWhatIsNoNumber) {
  EXPECT_THROW(Narrow<std::int16_t>(32767.5), AutomationError);
  EXPECT_THROW(Narrow<std::int16_t>(-32769.0), AutomationError);
  EXPECT_THROW(Narrow<std::int32_t>(2147483648.0), AutomationError);
  EXPECT_THROW(Narrow<std::int64_t>(9223372036854775808.0), AutomationError);
  EXPECT_THROW(Narrow<std::uint8_t>(-1.0), AutomationError);
  EXPECT_THROW(Narrow<std::int32_t>(std::nan("")), AutomationError);
  EXPECT_THROW(Narrow<std::int32_t>(std::numeric_limits<double>::infinity()), AutomationError);
}

TEST(Narrow, ChecksWholeNumbersOfEverySign) {
  EXPECT_EQ(Narrow<std::int16_t>(std::size_t{32767}), 32767);
  EXPECT_THROW(Narrow<std::int16_t>(std::size_t{32768}), AutomationError);
  EXPECT_THROW(Narrow<std::uint32_t>(-1), AutomationError);
}

TEST(Narrow, TakesDoublesAsSinglesWhereTheyFit) {
  EXPECT_EQ(NarrowToSingle(0.1), 0.1f);
  EXPECT_TRUE(std::isnan(NarrowToSingle(std::nan(""))));
  EXPECT_TRUE(std::isinf(NarrowToSingle(-std::numeric_limits<double>::infinity())));
  EXPECT_THROW(NarrowToSingle(1e39), AutomationError);
  EXPECT_THROW(NarrowToSingle(-1e39), AutomationError);
}

}  // namespace
}  // namespace mur
