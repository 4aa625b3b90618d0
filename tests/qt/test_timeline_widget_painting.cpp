#include <QApplication>
#include <QPainter>
#include <QScreen>
#include <QSignalSpy>
#include <QTest>
#include <algorithm>
#include <cstdlib>

#include <gmock/gmock.h>

#include <murtimeline/qt/conversions.h>
#include <murtimeline/qt/palette_colors.h>

#include "tests/qt/companion_windows.h"
#include "tests/qt/palettes.h"
#include "tests/qt/sample_timeline.h"

namespace mur::qt {
namespace {

using test::CanvasOf;
using test::SampleTimeline;

constexpr QColor kCursor(0xD0, 0x20, 0x20);

// A widget of 600 x 400 on which a second is a pixel.
class Painting : public testing::Test {
 protected:
  Painting() {
    widget.setPalette(test::LightPalette());
    widget.resize(600, 400);
  }

  // At a logical point.
  static QColor At(const QImage& ImageA, int XA, int YA) {
    const double ratio = ImageA.devicePixelRatio();
    return ImageA.pixelColor(static_cast<int>(XA * ratio), static_cast<int>(YA * ratio));
  }

  // Its thin line may lie on either of the device pixels that meet there.
  static bool HasCursorAt(const QImage& ImageA, int XA) {
    const int x = static_cast<int>(XA * ImageA.devicePixelRatio());
    const int y = static_cast<int>(200 * ImageA.devicePixelRatio());
    return ImageA.pixelColor(x - 1, y) == kCursor || ImageA.pixelColor(x, y) == kCursor;
  }

  // By colour component, as far as both pictures reach: not every platform grabs its windows at full size.
  static int LargestDifference(const QImage& LeftA, const QImage& RightA) {
    int largest = 0;
    for (int y = 0; y < std::min(LeftA.height(), RightA.height()); ++y)
      for (int x = 0; x < std::min(LeftA.width(), RightA.width()); ++x) {
        const QRgb left = LeftA.pixel(x, y), right = RightA.pixel(x, y);
        largest = std::max({largest, std::abs(qRed(left) - qRed(right)),
                            std::abs(qGreen(left) - qGreen(right)), std::abs(qBlue(left) - qBlue(right))});
      }
    return largest;
  }

  void ExpectTheSample(const QImage& ImageA) const {
    EXPECT_EQ(ImageA.size(), QSize(600, 400) * ImageA.devicePixelRatio());
    EXPECT_EQ(At(ImageA, 3, 17), widget.palette().color(QPalette::Base)) << "scale";
    EXPECT_EQ(At(ImageA, 450, 46), QColor(0x55, 0x5F, 0x69)) << "group";
    EXPECT_EQ(At(ImageA, 20, 118), QColor(0x4A, 0x8A, 0xC0)) << "media";
    EXPECT_EQ(At(ImageA, 100, 312), QColor(0x60, 0xA8, 0x60)) << "scalar";
    EXPECT_EQ(At(ImageA, 245, 90), ToQColor(SystemColorOf(widget.palette(), 12))) << "background";
    EXPECT_TRUE(HasCursorAt(ImageA, 212)) << "cursor at scale factor " << ImageA.devicePixelRatio();
  }

  TimelineWidget widget;
  SampleTimeline sample{widget};
};

TEST_F(Painting, ThePictureShowsBarsCursorAndScaleWithoutAWindow) {
  for (const double ratio : {1.0, 1.5, 2.0}) ExpectTheSample(widget.renderToImage({600, 400}, ratio));
}

TEST_F(Painting, ThePictureFollowsADarkPalette) {
  widget.setPalette(test::DarkPalette());
  for (const double ratio : {1.0, 1.5, 2.0}) ExpectTheSample(widget.renderToImage({600, 400}, ratio));
}

TEST_F(Painting, AWindowLooksLikeThePicture) {
  widget.show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&widget));
  const QImage grabbed = widget.grab().toImage();
  ExpectTheSample(grabbed);
  EXPECT_EQ(
      grabbed.convertToFormat(QImage::Format_RGB32),
      widget.renderToImage({600, 400}, widget.devicePixelRatioF()).convertToFormat(QImage::Format_RGB32));
}

TEST_F(Painting, ThePictureIsOpaqueToItsLastPixelAtEveryScale) {
  for (const double ratio : {1.0, 1.25, 1.5, 2.0}) {
    QImage image(QSize(601, 401) * ratio, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::magenta);
    {
      QPainter painter(&image);
      widget.renderToPainter(painter, image.deviceIndependentSize());
    }
    for (int x = 0; x < image.width(); ++x)
      ASSERT_NE(image.pixelColor(x, image.height() - 1), QColor(Qt::magenta)) << ratio << " at " << x;
    for (int y = 0; y < image.height(); ++y)
      ASSERT_NE(image.pixelColor(image.width() - 1, y), QColor(Qt::magenta)) << ratio << " at " << y;
  }
}

TEST_F(Painting, APictureOfAnotherSizeLeavesTheWidgetAsItWas) {
  const QImage before = widget.renderToImage({600, 400});
  const QRect place = CanvasOf(widget).geometry();
  const QImage wide = widget.renderToImage({1200, 400});
  EXPECT_EQ(At(wide, 424, 200), kCursor) << "cursor";
  EXPECT_EQ(CanvasOf(widget).geometry(), place);
  EXPECT_EQ(widget.renderToImage({600, 400}), before);
}

TEST_F(Painting, ThePictureGoesWhereThePainterIs) {
  QImage image(700, 500, QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::magenta);
  QPainter painter(&image);
  painter.translate(50, 60);
  widget.renderToPainter(painter, QSizeF(600, 400));
  painter.end();
  EXPECT_EQ(image.pixelColor(49, 200), QColor(Qt::magenta));
  EXPECT_EQ(image.pixelColor(50 + 212, 60 + 200), kCursor);
  EXPECT_EQ(image.copy(50, 60, 600, 400).pixelColor(450, 46), QColor(0x55, 0x5F, 0x69));
  EXPECT_EQ(image.pixelColor(660, 480), QColor(Qt::magenta));
}

TEST_F(Painting, AWindowRepaintedPieceByPieceLooksLikeOnePaintedAtOnce) {
  widget.show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&widget));
  const auto control = widget.control();
  const auto canvas = control->Collaborators().canvas;
  for (int step = 0; step < 40; ++step) {
    control->SetCursorTime(SampleTimeline::At(7.3 * step));
    canvas->Graphic(u"Chase")->SetBackColor(static_cast<OleColor>(step * 0x050301));
    sample.timeline->Item(u"Note 2")->SetDuration(100 - step * 1.7);
    QCoreApplication::processEvents();
  }
  const QImage onScreen = widget.screen()->grabWindow(widget.winId()).toImage();
  const QImage atOnce = widget.renderToImage({600, 400}, widget.devicePixelRatioF());
  ASSERT_FALSE(onScreen.isNull());
  EXPECT_LE(LargestDifference(onScreen, atOnce), 3);  // of 255, where smooth edges meet the seams
}

// Notes which parts of a window were painted.
class PaintedRegions final : public QObject {
 public:
  explicit PaintedRegions(QWidget& WindowA) { WindowA.installEventFilter(this); }
  QRegion painted;

 protected:
  bool eventFilter(QObject* /*WatchedA*/, QEvent* EventA) override {
    if (EventA->type() == QEvent::Paint) painted += static_cast<QPaintEvent*>(EventA)->region();
    return false;
  }
};

TEST_F(Painting, AMovedCursorRepaintsItsPlacesAlone) {
  widget.show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&widget));
  QCoreApplication::processEvents();
  PaintedRegions regions(CanvasOf(widget));
  widget.control()->SetCursorTime(SampleTimeline::At(245));
  QCoreApplication::processEvents();
  EXPECT_TRUE(regions.painted.contains(QPoint(212, 100)));
  EXPECT_TRUE(regions.painted.contains(QPoint(245, 100)));
  EXPECT_FALSE(regions.painted.contains(QPoint(100, 100)));
  EXPECT_FALSE(regions.painted.contains(QPoint(400, 100)));
}

TEST_F(Painting, AnotherPaletteOrFontRepaintsEverything) {
  widget.show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&widget));
  QCoreApplication::processEvents();
  PaintedRegions regions(CanvasOf(widget));
  widget.setPalette(test::DarkPalette());
  QCoreApplication::processEvents();
  EXPECT_EQ(regions.painted.boundingRect(), CanvasOf(widget).rect());
  regions.painted = {};
  widget.setFont(QFont("monospace"));
  QCoreApplication::processEvents();
  EXPECT_EQ(regions.painted.boundingRect(), CanvasOf(widget).rect());
}

TEST_F(Painting, TheFontIsTheWidgets) {
  const QImage before = widget.renderToImage({600, 400});
  QFont font = widget.font();
  font.setItalic(true);
  widget.setFont(font);
  EXPECT_NE(widget.renderToImage({600, 400}), before);
}

}  // namespace
}  // namespace mur::qt
