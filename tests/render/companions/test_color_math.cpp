#include <gtest/gtest.h>

#include <murtimeline/render/companions/color_math.h>

using namespace mur;

namespace {
constexpr Rgba kBlack{0, 0, 0, 255};
constexpr Rgba kWhite{255, 255, 255, 255};
}  // namespace

TEST(ColorMath, MeasuresContrastByTheGuidelines) {
  EXPECT_DOUBLE_EQ(ContrastRatio(kBlack, kWhite), 21);
  EXPECT_DOUBLE_EQ(ContrastRatio(kWhite, kWhite), 1);
  EXPECT_NEAR(ContrastRatio({119, 119, 119, 255}, kWhite), 4.48, 0.01);
}

TEST(ColorMath, KeepsATextColorThatReadsWell) {
  const Rgba navy{0, 0, 128, 255};
  EXPECT_EQ(ReadableOn(kWhite, navy), navy);
}

TEST(ColorMath, ReplacesATextColorThatReadsBadly) {
  EXPECT_EQ(ReadableOn({10, 36, 106, 255}, {0, 0, 0, 255}), kWhite);
  EXPECT_EQ(ReadableOn({200, 200, 200, 255}, {255, 255, 255, 255}), kBlack);
}

TEST(ColorMath, FramesDarkerAndNearlyBlackLighter) {
  EXPECT_EQ(FrameColorOf({200, 100, 0, 255}), (Rgba{130, 65, 0, 255}));
  EXPECT_EQ(FrameColorOf(kBlack), (Rgba{89, 89, 89, 255}));
}

TEST(ColorMath, MixesBetweenTheEndsOnly) {
  EXPECT_EQ(Mixed(kBlack, kWhite, 0.5F), (Rgba{128, 128, 128, 255}));
  EXPECT_EQ(Mixed(kBlack, kWhite, 7), kWhite);
  EXPECT_EQ(Mixed(kBlack, kWhite, -7), kBlack);
}
