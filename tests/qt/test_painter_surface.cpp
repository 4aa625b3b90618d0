#include <QImage>
#include <array>

#include <gmock/gmock.h>

#include <murtimeline/qt/conversions.h>
#include <murtimeline/qt/painter_surface.h>

namespace mur::qt {
namespace {

constexpr Rgba kRed{255, 0, 0, 255};

// A white sheet of 40 x 20 logical pixels, on which `DrawA(surface)` draws from (`OriginA`, `OriginA`) on.
template <class Draw>
QImage Drawn(double RatioA, Draw DrawA, double OriginA = 0) {
  QImage image(QSize(40, 20) * RatioA, QImage::Format_RGB32);
  image.setDevicePixelRatio(RatioA);
  image.fill(Qt::white);
  QPainter painter(&image);
  painter.translate(OriginA, OriginA);
  TextMeasures measures{QFont()};
  PainterSurface surface(painter, measures);
  DrawA(surface);
  return image;
}

// The pixels that are neither paper nor of the one colour drawn.
int Blurred(const QImage& ImageA, Rgba ColorA = kRed) {
  int blurred = 0;
  for (int y = 0; y < ImageA.height(); ++y)
    for (int x = 0; x < ImageA.width(); ++x)
      if (ImageA.pixelColor(x, y) != QColor(Qt::white) && ImageA.pixelColor(x, y) != ToQColor(ColorA))
        ++blurred;
  return blurred;
}

int Colored(const QImage& ImageA) {
  int colored = 0;
  for (int y = 0; y < ImageA.height(); ++y)
    for (int x = 0; x < ImageA.width(); ++x)
      if (ImageA.pixelColor(x, y) == ToQColor(kRed)) ++colored;
  return colored;
}

TEST(PainterSurface, TellsTheRatioOfItsDevice) {
  Drawn(1.5, [](Surface& surface) { EXPECT_EQ(surface.DevicePixelRatio(), 1.5F); });
}

TEST(PainterSurface, RectanglesAreSharpAtEveryScaleWhereverTheyLie) {
  for (const double ratio : {1.0, 1.5, 2.0})
    for (const float at : {3.0F, 3.3F, 3.5F, 3.9F}) {
      const QImage filled = Drawn(ratio, [&](Surface& surface) {
        surface.FillRectangle({at, at, 10.3F, 5.7F}, kRed);
      });
      const QImage framed = Drawn(ratio, [&](Surface& surface) {
        surface.FrameRectangle({at, at, 10.3F, 5.7F}, kRed, 1);
      });
      EXPECT_EQ(Blurred(filled), 0) << ratio << ' ' << at;
      EXPECT_EQ(Blurred(framed), 0) << ratio << ' ' << at;
      EXPECT_GT(Colored(filled), Colored(framed)) << ratio << ' ' << at;
    }
}

TEST(PainterSurface, RectanglesAreSharpFromAnOriginBetweenDevicePixels) {
  const QImage image = Drawn(
      1.5,
      [](Surface& surface) {
        surface.FillRectangle({1, 1, 10, 5}, kRed);
      },
      5);
  EXPECT_EQ(Blurred(image), 0);
}

TEST(PainterSurface, WhatIsThinnerThanADevicePixelIsOneWide) {
  EXPECT_EQ(Colored(Drawn(1, [](Surface& surface) { surface.FillRectangle({3, 3, 0.1F, 4}, kRed); })), 4);
}

TEST(PainterSurface, EmptyRectanglesLeaveNoTrace) {
  const QImage image = Drawn(1, [](Surface& surface) {
    surface.FillRectangle({3, 3, 0, 4}, kRed);
    surface.FrameRectangle({3, 3, 4, -1}, kRed, 1);
    surface.FillRoundedRectangle({3, 3, -4, 4}, 2, kRed);
    surface.FrameRoundedRectangle({3, 3, 0, 0}, 2, kRed, 1);
  });
  EXPECT_EQ(Colored(image) + Blurred(image), 0);
}

TEST(PainterSurface, AFrameLiesInsideItsRectangle) {
  const QImage image = Drawn(1, [](Surface& surface) { surface.FrameRectangle({2, 3, 6, 5}, kRed, 1); });
  EXPECT_EQ(Colored(image), 2 * 6 + 2 * 3);
  EXPECT_EQ(image.pixelColor(2, 3), ToQColor(kRed));
  EXPECT_EQ(image.pixelColor(7, 7), ToQColor(kRed));
  EXPECT_EQ(image.pixelColor(3, 4), QColor(Qt::white));
}

TEST(PainterSurface, AThickFrameFillsItsRectangleAndNoMore) {
  EXPECT_EQ(Colored(Drawn(1, [](Surface& surface) { surface.FrameRectangle({2, 3, 6, 5}, kRed, 9); })), 30);
}

TEST(PainterSurface, AThinFrameStaysThinAtOneAndAHalf) {
  const QImage image = Drawn(1.5, [](Surface& surface) { surface.FrameRectangle({2, 2, 20, 10}, kRed, 1); });
  EXPECT_EQ(Colored(image), 2 * 30 + 2 * 13);
}

TEST(PainterSurface, RoundedRectanglesHaveSharpSidesAndOpenCorners) {
  for (const double ratio : {1.0, 1.5, 2.0}) {
    const QImage image = Drawn(ratio, [](Surface& surface) {
      surface.FillRoundedRectangle({2, 2, 30.3F, 15}, 4, kRed);
    });
    const int middle = image.height() / 2, left = static_cast<int>(2 * ratio);
    EXPECT_EQ(image.pixelColor(left, middle), ToQColor(kRed)) << ratio;
    EXPECT_EQ(image.pixelColor(left - 1, middle), QColor(Qt::white)) << ratio;
    EXPECT_NE(image.pixelColor(left, left), ToQColor(kRed)) << ratio;
  }
}

TEST(PainterSurface, UprightAndLevelLinesAreSharp) {
  for (const double ratio : {1.0, 1.5, 2.0}) {
    const QImage image = Drawn(ratio, [](Surface& surface) {
      surface.DrawLine({5.5F, 2}, {5.5F, 15}, kRed, 1);
      surface.DrawLine({30, 7.2F}, {10, 7.2F}, kRed, 1);
    });
    EXPECT_EQ(Blurred(image), 0) << ratio;
    EXPECT_GT(Colored(image), 0) << ratio;
  }
}

TEST(PainterSurface, SlantedLinesAndPolygonsAreSmooth) {
  const std::array<PointF, 3> triangle = {{{2, 2}, {15, 4}, {5, 15}}};
  EXPECT_GT(Blurred(Drawn(1, [&](Surface& surface) { surface.FillPolygon(triangle, kRed); })), 0);
  EXPECT_GT(Blurred(Drawn(1, [](Surface& surface) { surface.DrawLine({2, 2}, {30, 9}, kRed, 2); })), 0);
}

TEST(PainterSurface, ClipsLimitEachOtherAndEnd) {
  const QImage image = Drawn(1, [](Surface& surface) {
    surface.PushClip({0, 0, 10, 20});
    surface.PushClip({5, 0, 30, 20});
    surface.FillRectangle({0, 0, 40, 1}, kRed);
    surface.PopClip();
    surface.FillRectangle({0, 2, 40, 1}, kRed);
    surface.PopClip();
    surface.FillRectangle({0, 4, 40, 1}, kRed);
    surface.PopClip();
  });
  EXPECT_EQ(Colored(image), 5 + 10 + 40);
}

TEST(PainterSurface, AnOpenClipEndsWithTheSurface) {
  QImage image(10, 10, QImage::Format_RGB32);
  QPainter painter(&image);
  TextMeasures measures{QFont()};
  { PainterSurface(painter, measures).PushClip({0, 0, 1, 1}); }
  EXPECT_FALSE(painter.hasClipping());
}

TEST(PainterSurface, TextsAreAsWideAsTheyAreMeasured) {
  TextExtent extent;
  const TextStyle style{12, false, {0, 0, 0, 255}};
  const QImage image = Drawn(1, [&](Surface& surface) {
    extent = surface.MeasureText(u"HHH", style);
    surface.DrawTextLine({0, 15}, u"HHH", style);
  });
  int last = 0;
  for (int x = 0; x < image.width(); ++x)
    for (int y = 0; y < image.height(); ++y)
      if (image.pixelColor(x, y).lightness() < 128) last = x;
  EXPECT_NEAR(last, extent.width, 3);
  EXPECT_GT(extent.ascent, 6);
  EXPECT_GT(extent.descent, 0);
}

TEST(PainterSurface, MeasuresDependOnSizeAndWeight) {
  Drawn(1, [](Surface& surface) {
    const auto width = [&](float size, bool bold) {
      return surface.MeasureText(u"Width", {size, bold, {}}).width;
    };
    EXPECT_LT(width(12, false), width(24, false));
    EXPECT_LT(width(12, false), width(12, true));
    EXPECT_EQ(width(12, false), width(12, false));
    EXPECT_EQ(surface.MeasureText(u"", {}).width, 0);
  });
}

}  // namespace
}  // namespace mur::qt
