#include <cmath>

#include <murtimeline/automation/narrow.h>
#include <murtimeline/com/embedding/extent.h>

namespace mur::com {
namespace {

constexpr double kUnitsPerPixel = 2540.0 / 96;  // of a logical pixel
constexpr double kNaturalWidth = 480, kNaturalHeight = 160;
// Beyond this neither windows nor their messages carry a size.
constexpr LONG kMostPixels = 32767;

LONG InUnits(double PixelsA) {
  return std::lround(PixelsA * kUnitsPerPixel);
}

}  // namespace

Extent::Extent(win32::TimelineWindow& WindowA) : mWindow(WindowA) {
  mWindow.SetSize(Pixels());
}

void Extent::Set(const SIZEL& SizeA) {
  const SIZE pixels = PixelsOf(SizeA);
  if (pixels.cx > kMostPixels || pixels.cy > kMostPixels) throw AutomationError(ErrorCode::Overflow);
  mSize = SizeA;
}

SIZE Extent::Pixels() const {
  return PixelsOf(mSize);
}

SIZEL Extent::Natural() noexcept {
  return {InUnits(kNaturalWidth), InUnits(kNaturalHeight)};
}

SIZE Extent::PixelsOf(const SIZEL& SizeA) const {
  const double pixelsPerUnit = mWindow.ScaleFactor() / kUnitsPerPixel;
  return {Narrow<LONG>(static_cast<double>(SizeA.cx) * pixelsPerUnit),
          Narrow<LONG>(static_cast<double>(SizeA.cy) * pixelsPerUnit)};
}

}  // namespace mur::com
