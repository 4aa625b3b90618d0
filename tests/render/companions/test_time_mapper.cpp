#include <cmath>
#include <limits>

#include <gtest/gtest.h>

#include <murtimeline/render/companions/time_mapper.h>

using namespace mur;

namespace {
constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

Ref<MURTimeMapper> MapperOf(double StartA, double EndA, double FirstA, double LastA) {
  auto mapper = Make<MURTimeMapper>();
  mapper->SetTimeRange(StartA, EndA);
  mapper->SetPixelRange(FirstA, LastA);
  return mapper;
}
}  // namespace

TEST(TimeMapper, MapsLinearlyBothWays) {
  const auto mapper = MapperOf(100, 200, 0, 1000);
  EXPECT_EQ(mapper->SecondsToX(150), 500);
  EXPECT_EQ(mapper->SecondsToX(90), -100);
  EXPECT_EQ(mapper->XToSeconds(250), 125);
}

TEST(TimeMapper, MapsTheEndsExactly) {
  const double start = 46000.123456789 * 86400;
  const auto mapper = MapperOf(start, start + 3600, 0, 1013);
  EXPECT_EQ(mapper->SecondsToX(start + 3600), 1013);
  EXPECT_EQ(mapper->XToSeconds(0), start);
  EXPECT_EQ(mapper->XToSeconds(1013), start + 3600);
}

TEST(TimeMapper, KeepsMillisecondsApartFarFromZero) {
  const double start = 46000.0 * 86400;
  const auto mapper = MapperOf(start, start + 0.01, 0, 1000);
  EXPECT_NEAR(mapper->SecondsToX(start + 0.001), 100, 0.1);
}

TEST(TimeMapper, MapsARangeThatRunsBackwards) {
  EXPECT_EQ(MapperOf(100, 0, 0, 1000)->SecondsToX(75), 250);
}

TEST(TimeMapper, AnswersTheStartWithoutARange) {
  const MURTimeMapper* mapper = Make<MURTimeMapper>().Detach();
  EXPECT_EQ(mapper->SecondsToX(123), 0);
  EXPECT_EQ(mapper->XToSeconds(123), 0);
  mapper->Release();
}

TEST(TimeMapper, AnswersTheStartOfAnEmptyRange) {
  EXPECT_EQ(MapperOf(100, 100, 7, 1000)->SecondsToX(123), 7);
  EXPECT_EQ(MapperOf(100, 200, 7, 7)->XToSeconds(55), 100);
}

TEST(TimeMapper, TakesARangeThatIsNotFiniteAsEmpty) {
  EXPECT_EQ(MapperOf(100, kInfinity, 7, 1000)->SecondsToX(123), 7);
  EXPECT_EQ(MapperOf(kNaN, kNaN, 7, 1000)->SecondsToX(123), 7);
  EXPECT_EQ(MapperOf(100, 200, 7, kNaN)->XToSeconds(55), 100);
}

TEST(TimeMapper, AnswersTheStartForWhatIsNoNumber) {
  const auto mapper = MapperOf(100, 200, 7, 1000);
  EXPECT_EQ(mapper->SecondsToX(kNaN), 7);
  EXPECT_EQ(mapper->XToSeconds(std::numeric_limits<float>::quiet_NaN()), 100);
}

TEST(TimeMapper, EndsAtTheBoundsOfTheNumberRange) {
  const auto mapper = MapperOf(0, 1e-300, 0, 1000);
  EXPECT_EQ(mapper->SecondsToX(1e300), std::numeric_limits<float>::max());
  EXPECT_EQ(mapper->SecondsToX(-kInfinity), std::numeric_limits<float>::lowest());
  EXPECT_TRUE(std::isfinite(MapperOf(0, 1e308, 0, 1)->XToSeconds(std::numeric_limits<float>::infinity())));
}
