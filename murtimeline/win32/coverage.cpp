#include <algorithm>
#include <cmath>

#include <murtimeline/win32/coverage.h>

namespace mur::win32 {
namespace {

constexpr int kLinesAPixel = 8;

// Where a polygon's edges cross a height, from left to right.
std::vector<double> CrossingsAt(std::span<const PointF> PointsA, double YA) {
  std::vector<double> crossings;
  for (std::size_t i = 0; i < PointsA.size(); ++i) {
    const PointF& from = PointsA[i];
    const PointF& to = PointsA[(i + 1) % PointsA.size()];
    const auto fromX = static_cast<double>(from.x), fromY = static_cast<double>(from.y);
    const auto toX = static_cast<double>(to.x), toY = static_cast<double>(to.y);
    if ((fromY <= YA) != (toY <= YA))
      crossings.push_back(fromX + (YA - fromY) / (toY - fromY) * (toX - fromX));
  }
  std::sort(crossings.begin(), crossings.end());
  return crossings;
}

// How much of a disc covers the pixel whose middle is that far from the disc's.
double DiscShare(double RadiusA, double DistanceA) {
  return std::clamp(RadiusA - DistanceA + 0.5, 0.0, 1.0);
}

}  // namespace

Coverage::Coverage(const RECT& BoxA) : mBox(BoxA) {
  mBox.right = std::max(mBox.left, mBox.right);
  mBox.bottom = std::max(mBox.top, mBox.bottom);
  mShares.resize(static_cast<std::size_t>(Width()) * static_cast<std::size_t>(Height()));
}

// Exact along each of several lines through a row of pixels.
Coverage Coverage::OfPolygon(std::span<const PointF> PointsA, const RECT& BoxA) {
  Coverage coverage(BoxA);
  for (int row = 0; row < coverage.Height(); ++row)
    for (int line = 0; line < kLinesAPixel; ++line) {
      const double y = static_cast<double>(BoxA.top) + row + (line + 0.5) / kLinesAPixel;
      const std::vector<double> crossings = CrossingsAt(PointsA, y);
      for (std::size_t i = 0; i + 1 < crossings.size(); i += 2)
        coverage.AddSpan(row, crossings[i] - static_cast<double>(BoxA.left),
                         crossings[i + 1] - static_cast<double>(BoxA.left), 1.0F / kLinesAPixel);
    }
  return coverage;
}

void Coverage::AddSpan(int RowA, double LeftA, double RightA, float ShareA) {
  const double left = std::clamp(LeftA, 0.0, static_cast<double>(Width()));
  const double right = std::clamp(RightA, 0.0, static_cast<double>(Width()));
  for (int column = static_cast<int>(left); column < right; ++column) {
    const double covered = std::min(right, column + 1.0) - std::max(left, static_cast<double>(column));
    mShares[Index(RowA, column)] += ShareA * static_cast<float>(covered);
  }
}

Coverage Coverage::OfPixel() {
  Coverage coverage(RECT{0, 0, 1, 1});
  coverage.mShares[0] = 1;
  return coverage;
}

// The middle of each arc lies the radius away from both edges.
Coverage Coverage::OfCorners(double RadiusA, double WidthA) {
  const auto reach = static_cast<LONG>(std::ceil(RadiusA));
  const LONG side = 2 * reach;
  Coverage coverage(RECT{0, 0, side, side});
  const auto inward = [&](LONG at) {
    return RadiusA - static_cast<double>(std::min(at, side - 1 - at)) - 0.5;
  };
  for (LONG row = 0; row < side; ++row)
    for (LONG column = 0; column < side; ++column) {
      const double distance = std::hypot(std::max(inward(column), 0.0), std::max(inward(row), 0.0));
      const double hole = WidthA < RadiusA ? DiscShare(RadiusA - WidthA, distance) : 0;
      coverage.mShares[coverage.Index(static_cast<int>(row), static_cast<int>(column))] =
          static_cast<float>(DiscShare(RadiusA, distance) - hole);
    }
  return coverage;
}

}  // namespace mur::win32
