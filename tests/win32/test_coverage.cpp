#include <array>

#include <gtest/gtest.h>

#include <murtimeline/win32/coverage.h>

namespace mur::win32 {
namespace {

TEST(Coverage, OfAPolygonIsTheShareOfEachPixel) {
  const std::array<PointF, 4> box = {{{0.5F, 0}, {2, 0}, {2, 1.5F}, {0.5F, 1.5F}}};
  const Coverage coverage = Coverage::OfPolygon(box, {0, 0, 3, 2});
  EXPECT_FLOAT_EQ(coverage.At(0, 0), 0.5F);
  EXPECT_FLOAT_EQ(coverage.At(0, 1), 1);
  EXPECT_FLOAT_EQ(coverage.At(0, 2), 0);
  EXPECT_FLOAT_EQ(coverage.At(1, 0), 0.25F);
  EXPECT_FLOAT_EQ(coverage.At(1, 1), 0.5F);
}

TEST(Coverage, WhereAPolygonCrossesItselfThereIsAHole) {
  const std::array<PointF, 8> twice = {{{0, 0}, {6, 0}, {6, 6}, {0, 6}, {2, 4}, {4, 4}, {4, 2}, {2, 2}}};
  EXPECT_FLOAT_EQ(Coverage::OfPolygon(twice, {0, 0, 6, 6}).At(3, 3), 0);
}

TEST(Coverage, CornersAreEmptyOutsideAndFullInside) {
  const Coverage coverage = Coverage::OfCorners(4, 4);
  EXPECT_EQ(coverage.Width(), 8);
  EXPECT_EQ(coverage.At(0, 0), 0);
  EXPECT_EQ(coverage.At(7, 7), 0);
  EXPECT_EQ(coverage.At(3, 3), 1);
  EXPECT_EQ(coverage.At(1, 2), coverage.At(6, 5));
}

TEST(Coverage, CornersOfAFrameHaveAHole) {
  const Coverage coverage = Coverage::OfCorners(4, 1);
  EXPECT_EQ(coverage.At(3, 3), 0);
  EXPECT_GT(coverage.At(3, 0), 0.9F);
}

TEST(Coverage, AFractionalRadiusStillReachesTheEdges) {
  const Coverage coverage = Coverage::OfCorners(4.5, 4.5);
  EXPECT_EQ(coverage.Width(), 10);
  EXPECT_GT(coverage.At(4, 0), 0.9F);
  EXPECT_GT(coverage.At(0, 4), 0.9F);
}

TEST(Coverage, OfNothingIsNothing) {
  EXPECT_EQ(Coverage::OfCorners(0, 0).Width(), 0);
  EXPECT_EQ(Coverage::OfPolygon({}, {3, 3, 1, 1}).Height(), 0);
}

}  // namespace
}  // namespace mur::win32
