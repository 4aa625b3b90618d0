#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

#include <murtimeline/win32/gdi_surface.h>

namespace mur::win32 {
namespace {

LONG Nearest(double UnitsA) {
  constexpr double kFarthest = 1 << 24;  // what every device can count
  return std::isnan(UnitsA) ? 0 : static_cast<LONG>(std::lround(std::clamp(UnitsA, -kFarthest, kFarthest)));
}

}  // namespace

GdiSurface::GdiSurface(HDC DeviceA, const DevicePlace& PlaceA, GdiTools& ToolsA)
    : mDevice(DeviceA), mPlace(PlaceA), mTools(ToolsA), mShapes(MakeShapeDrawer(DeviceA, ToolsA.corners)) {
  SaveDC(mDevice);
  SetBkMode(mDevice, TRANSPARENT);
  SetTextAlign(mDevice, TA_LEFT | TA_BASELINE);
}

GdiSurface::~GdiSurface() {
  while (mOpenClips > 0) PopClip();
  RestoreDC(mDevice, -1);
}

void GdiSurface::FillRectangle(const RectF& RectA, Rgba ColorA) {
  if (!RectA.IsEmpty()) mShapes->Fill(Snapped(RectA), ColorA);
}

void GdiSurface::FrameRectangle(const RectF& RectA, Rgba ColorA, float WidthA) {
  if (RectA.IsEmpty()) return;
  const RECT outer = Snapped(RectA);
  const LONG width = SnappedWidth(WidthA);
  const LONG top = std::min(outer.top + width, outer.bottom), bottom = std::max(outer.bottom - width, top);
  const LONG left = std::min(outer.left + width, outer.right), right = std::max(outer.right - width, left);
  for (const RECT& side :
       {RECT{outer.left, outer.top, outer.right, top}, RECT{outer.left, bottom, outer.right, outer.bottom},
        RECT{outer.left, top, left, bottom}, RECT{right, top, outer.right, bottom}})
    mShapes->Fill(side, ColorA);
}

void GdiSurface::FillRoundedRectangle(const RectF& RectA, float RadiusA, Rgba ColorA) {
  if (!RectA.IsEmpty()) mShapes->FillRounded(Snapped(RectA), static_cast<double>(RadiusA) * mPlace.x, ColorA);
}

void GdiSurface::FrameRoundedRectangle(const RectF& RectA, float RadiusA, Rgba ColorA, float WidthA) {
  if (!RectA.IsEmpty())
    mShapes->FrameRounded(Snapped(RectA), static_cast<double>(RadiusA) * mPlace.x, SnappedWidth(WidthA),
                          ColorA);
}

// An upright or level line is a rectangle about its middle, any other one a polygon.
void GdiSurface::DrawLine(PointF FromA, PointF ToA, Rgba ColorA, float WidthA) {
  const float half = WidthA / 2;
  const float across = ToA.x - FromA.x, down = ToA.y - FromA.y;
  const float left = std::min(FromA.x, ToA.x), top = std::min(FromA.y, ToA.y);
  if (across == 0) return FillRectangle({left - half, top, WidthA, std::fabs(down)}, ColorA);
  if (down == 0) return FillRectangle({left, top - half, std::fabs(across), WidthA}, ColorA);
  const float length = std::hypot(across, down);
  const float x = down / length * half, y = across / length * half;
  const std::array<PointF, 4> corners = {{{FromA.x + x, FromA.y - y},
                                          {ToA.x + x, ToA.y - y},
                                          {ToA.x - x, ToA.y + y},
                                          {FromA.x - x, FromA.y + y}}};
  FillPolygon(corners, ColorA);
}

void GdiSurface::FillPolygon(std::span<const PointF> PointsA, Rgba ColorA) {
  std::vector<PointF> points;
  for (const PointF& point : PointsA) {
    if (!std::isfinite(point.x) || !std::isfinite(point.y)) return;
    points.push_back({static_cast<float>(mPlace.origin.x + static_cast<double>(point.x) * mPlace.x),
                      static_cast<float>(mPlace.origin.y + static_cast<double>(point.y) * mPlace.y)});
  }
  if (points.size() > 2) mShapes->FillPolygon(points, ColorA);
}

void GdiSurface::DrawTextLine(PointF BaselineA, StringView TextA, const TextStyle& StyleA) {
  if (StyleA.color.alpha == 0) return;
  const StringView text = TextA.substr(0, kMostTextUnits);
  const Selected font(mDevice, mTools.fonts.FontOf(StyleA, mPlace.y));
  SetTextColor(mDevice, RGB(StyleA.color.red, StyleA.color.green, StyleA.color.blue));
  ExtTextOutW(mDevice, DeviceX(static_cast<double>(BaselineA.x)), DeviceY(static_cast<double>(BaselineA.y)),
              mTextOptions, nullptr, ToWide(text), static_cast<UINT>(text.size()), nullptr);
}

TextExtent GdiSurface::MeasureText(StringView TextA, const TextStyle& StyleA) const {
  const GdiFonts::Measure measure = mTools.fonts.MeasureText(TextA, StyleA, mPlace.y);
  return {static_cast<float>(measure.width / mPlace.x), static_cast<float>(measure.ascent / mPlace.y),
          static_cast<float>(measure.descent / mPlace.y)};
}

void GdiSurface::PushClip(const RectF& RectA) {
  SaveDC(mDevice);
  ++mOpenClips;
  const RECT clip = RectA.IsEmpty() ? RECT{} : Snapped(RectA);
  IntersectClipRect(mDevice, clip.left, clip.top, clip.right, clip.bottom);
}

void GdiSurface::PopClip() {
  if (mOpenClips == 0) return;
  RestoreDC(mDevice, -1);
  --mOpenClips;
}

LONG GdiSurface::DeviceX(double PixelA) const {
  return Nearest(static_cast<double>(mPlace.origin.x) + PixelA * mPlace.x);
}

LONG GdiSurface::DeviceY(double PixelA) const {
  return Nearest(static_cast<double>(mPlace.origin.y) + PixelA * mPlace.y);
}

// At least a unit of the device wide and high: what there is can be seen.
RECT GdiSurface::Snapped(const RectF& RectA) const {
  const LONG left = DeviceX(static_cast<double>(RectA.left)), top = DeviceY(static_cast<double>(RectA.top));
  return {left, top, std::max(DeviceX(static_cast<double>(RectA.Right())), left + 1),
          std::max(DeviceY(static_cast<double>(RectA.Bottom())), top + 1)};
}

// At least one unit of the device; a half is dropped, so that thin lines stay thin at 1.5.
LONG GdiSurface::SnappedWidth(float WidthA) const {
  return std::max(Nearest(std::ceil(static_cast<double>(WidthA) * mPlace.x - 0.5)), 1L);
}

}  // namespace mur::win32
