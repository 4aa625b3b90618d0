#include <algorithm>
#include <cmath>
#include <vector>

#include <murtimeline/win32/shape_drawer.h>

namespace mur::win32 {
namespace {

constexpr double kFarthest = 1 << 24;  // what every device can count

COLORREF ToColorRef(Rgba ColorA) {
  return RGB(ColorA.red, ColorA.green, ColorA.blue);
}

LONG WidthOf(const RECT& PlaceA) {
  return PlaceA.right - PlaceA.left;
}
LONG HeightOf(const RECT& PlaceA) {
  return PlaceA.bottom - PlaceA.top;
}

// A radius that leaves room for its opposite.
double Fitting(double RadiusA, const RECT& PlaceA) {
  const double most = static_cast<double>(std::min(WidthOf(PlaceA), HeightOf(PlaceA)) / 2);
  return std::clamp(RadiusA, 0.0, std::max(most, 0.0));
}

// The quickest call that every device and metafile understands.
void FillOpaque(HDC DeviceA, const RECT& PlaceA, Rgba ColorA) {
  SetBkColor(DeviceA, ToColorRef(ColorA));
  ExtTextOutW(DeviceA, 0, 0, ETO_OPAQUE, &PlaceA, nullptr, 0, nullptr);
}

LONG Whole(double ValueA) {
  return std::isnan(ValueA) ? 0 : static_cast<LONG>(std::clamp(ValueA, -kFarthest, kFarthest));
}

// The whole pixels that a polygon touches, as far as they are shown.
RECT ShownBox(std::span<const PointF> PointsA, const RECT& ShownA) {
  double left = kFarthest, top = kFarthest, right = -kFarthest, bottom = -kFarthest;
  for (const PointF& point : PointsA) {
    left = std::min(left, static_cast<double>(point.x));
    top = std::min(top, static_cast<double>(point.y));
    right = std::max(right, static_cast<double>(point.x));
    bottom = std::max(bottom, static_cast<double>(point.y));
  }
  return {std::max(Whole(std::floor(left)), ShownA.left), std::max(Whole(std::floor(top)), ShownA.top),
          std::min(Whole(std::ceil(right)), ShownA.right), std::min(Whole(std::ceil(bottom)), ShownA.bottom)};
}

/// On screens and bitmaps: smooth, and translucent where the colour is.
class PixelDrawer final : public ShapeDrawer {
 public:
  PixelDrawer(HDC DeviceA, CornerTiles& CornersA) : mDevice(DeviceA), mCorners(CornersA) {}

  void Fill(const RECT& PlaceA, Rgba ColorA) override {
    if (ColorA.alpha == 255) return FillOpaque(mDevice, PlaceA, ColorA);
    if (ColorA.alpha != 0) Tile(ColorA).Spread(mDevice, PlaceA);
  }

  void FillRounded(const RECT& PlaceA, double RadiusA, Rgba ColorA) override {
    const double radius = Fitting(RadiusA, PlaceA);
    const LONG reach = DrawCorners(PlaceA, {radius, radius, ColorA});
    Fill({PlaceA.left + reach, PlaceA.top, PlaceA.right - reach, PlaceA.top + reach}, ColorA);
    Fill({PlaceA.left, PlaceA.top + reach, PlaceA.right, PlaceA.bottom - reach}, ColorA);
    Fill({PlaceA.left + reach, PlaceA.bottom - reach, PlaceA.right - reach, PlaceA.bottom}, ColorA);
  }

  void FrameRounded(const RECT& PlaceA, double RadiusA, LONG WidthA, Rgba ColorA) override {
    const LONG width = std::min({WidthA, WidthOf(PlaceA) / 2, HeightOf(PlaceA) / 2});
    const double radius = std::max(Fitting(RadiusA, PlaceA), static_cast<double>(width));
    const LONG reach = DrawCorners(PlaceA, {radius, static_cast<double>(width), ColorA});
    const LONG left = PlaceA.left + reach, right = PlaceA.right - reach;
    const LONG top = PlaceA.top + reach, bottom = PlaceA.bottom - reach;
    Fill({left, PlaceA.top, right, PlaceA.top + width}, ColorA);
    Fill({left, PlaceA.bottom - width, right, PlaceA.bottom}, ColorA);
    Fill({PlaceA.left, top, PlaceA.left + width, bottom}, ColorA);
    Fill({PlaceA.right - width, top, PlaceA.right, bottom}, ColorA);
  }

  void FillPolygon(std::span<const PointF> PointsA, Rgba ColorA) override {
    RECT shown{};
    if (GetClipBox(mDevice, &shown) == ERROR) return;
    const RECT box = ShownBox(PointsA, shown);
    if (WidthOf(box) > 0 && HeightOf(box) > 0)
      Tile(Coverage::OfPolygon(PointsA, box), ColorA).Draw(mDevice, box, {0, 0});
  }

 private:
  // How far the corners reach into the place.
  LONG DrawCorners(const RECT& PlaceA, const Corner& CornerA) {
    const auto reach = static_cast<LONG>(std::ceil(CornerA.radius));
    if (reach == 0) return 0;
    const Tile& tile = mCorners.Of(CornerA);
    for (const LONG row : {0L, 1L})
      for (const LONG column : {0L, 1L}) {
        const LONG left = column == 0 ? PlaceA.left : PlaceA.right - reach;
        const LONG top = row == 0 ? PlaceA.top : PlaceA.bottom - reach;
        tile.Draw(mDevice, {left, top, left + reach, top + reach}, {column * reach, row * reach});
      }
    return reach;
  }

  HDC mDevice;
  CornerTiles& mCorners;
};

/// On printers and in metafiles: shapes, for the device to make sharp.
class OutlineDrawer final : public ShapeDrawer {
 public:
  explicit OutlineDrawer(HDC DeviceA) : mDevice(DeviceA) {}

  void Fill(const RECT& PlaceA, Rgba ColorA) override {
    if (ColorA.alpha != 0) FillOpaque(mDevice, PlaceA, OnWhite(ColorA));
  }

  // Without a pen the right and bottom edges are left out.
  void FillRounded(const RECT& PlaceA, double RadiusA, Rgba ColorA) override {
    WithBrush(ColorA, [&] {
      const int across = Across(RadiusA, PlaceA);
      RoundRect(mDevice, PlaceA.left, PlaceA.top, PlaceA.right + 1, PlaceA.bottom + 1, across, across);
    });
  }

  void FrameRounded(const RECT& PlaceA, double RadiusA, LONG WidthA, Rgba ColorA) override {
    if (ColorA.alpha == 0) return;
    const UniquePen pen(CreatePen(PS_INSIDEFRAME, WidthA, ToColorRef(OnWhite(ColorA))));
    const Selected line(mDevice, pen.Get()), hollow(mDevice, GetStockObject(NULL_BRUSH));
    const int across = Across(RadiusA, PlaceA);
    RoundRect(mDevice, PlaceA.left, PlaceA.top, PlaceA.right, PlaceA.bottom, across, across);
  }

  void FillPolygon(std::span<const PointF> PointsA, Rgba ColorA) override {
    std::vector<POINT> points;
    for (const PointF& point : PointsA)
      points.push_back(
          {Whole(std::round(static_cast<double>(point.x))), Whole(std::round(static_cast<double>(point.y)))});
    WithBrush(ColorA, [&] { Polygon(mDevice, points.data(), static_cast<int>(points.size())); });
  }

 private:
  static Rgba OnWhite(Rgba ColorA) {
    const auto part = [&](std::uint8_t value) {
      return static_cast<std::uint8_t>((value * ColorA.alpha + 255 * (255 - ColorA.alpha)) / 255);
    };
    return {part(ColorA.red), part(ColorA.green), part(ColorA.blue), 255};
  }

  static int Across(double RadiusA, const RECT& PlaceA) {
    return static_cast<int>(std::lround(2 * Fitting(RadiusA, PlaceA)));
  }

  template <class Work>
  void WithBrush(Rgba ColorA, Work&& WorkA) {
    if (ColorA.alpha == 0) return;
    const UniqueBrush brush(CreateSolidBrush(ToColorRef(OnWhite(ColorA))));
    const Selected fill(mDevice, brush.Get()), none(mDevice, GetStockObject(NULL_PEN));
    WorkA();
  }

  HDC mDevice;
};

bool HasPixels(HDC DeviceA) {
  const DWORD kind = GetObjectType(DeviceA);
  return kind == OBJ_MEMDC || (kind == OBJ_DC && GetDeviceCaps(DeviceA, TECHNOLOGY) == DT_RASDISPLAY);
}

}  // namespace

std::unique_ptr<ShapeDrawer> MakeShapeDrawer(HDC DeviceA, CornerTiles& CornersA) {
  if (HasPixels(DeviceA)) return std::make_unique<PixelDrawer>(DeviceA, CornersA);
  return std::make_unique<OutlineDrawer>(DeviceA);
}

}  // namespace mur::win32
