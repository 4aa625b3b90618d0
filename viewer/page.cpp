#include "viewer/page.h"

#include <QBuffer>
#include <QFileInfo>
#include <QGuiApplication>
#include <QPainter>
#include <QPdfWriter>
#include <algorithm>

#include <murtimeline/qt/painter_surface.h>

#include "viewer/output_file.h"
#include "viewer/time_texts.h"

namespace mur::viewer {
namespace {

constexpr double kMarginPoints = 36;
constexpr double kNamePoints = 14, kRangePoints = 9, kGapPoints = 10;
constexpr double kHeadlinePoints = 24;  // the row of name and range
constexpr int kPdfResolution = 600;     // dots an inch
constexpr double kPointsAnInch = 72;

QFont FontOf(double DotsA, QFont::Weight WeightA) {
  QFont font = QGuiApplication::font();
  font.setPixelSize(std::max(static_cast<int>(DotsA), 1));
  font.setWeight(WeightA);
  return font;
}

// The name on the left, shortened where it must be, the range on the right.
void PaintTitle(QPainter& PainterA, const QRectF& AreaA, double DotsPerPointA, const PageTitle& TitleA) {
  PainterA.setPen(Qt::black);
  PainterA.setFont(FontOf(kRangePoints * DotsPerPointA, QFont::Normal));
  const QRectF range = PainterA.boundingRect(AreaA, Qt::AlignRight | Qt::AlignVCenter, TitleA.range);
  PainterA.drawText(AreaA, Qt::AlignRight | Qt::AlignVCenter, TitleA.range);
  PainterA.setFont(FontOf(kNamePoints * DotsPerPointA, QFont::DemiBold));
  const double room = AreaA.width() - range.width() - kGapPoints * DotsPerPointA;
  const QString name =
      PainterA.fontMetrics().elidedText(TitleA.name, Qt::ElideMiddle, std::max(static_cast<int>(room), 0));
  PainterA.drawText(AreaA, Qt::AlignLeft | Qt::AlignVCenter, name);
}

void PaintPicture(QPainter& PainterA, const QRectF& AreaA, HeadlessControl& ControlA) {
  const QSizeF size = ControlA.Size();
  const double scale = std::min(AreaA.width() / size.width(), AreaA.height() / size.height());
  qt::TextMeasures measures{QGuiApplication::font()};
  PainterA.save();
  PainterA.translate(AreaA.left() + (AreaA.width() - scale * size.width()) / 2, AreaA.top());
  PainterA.scale(scale, scale);
  ControlA.PaintChildren([&](PointF offset, const auto& paint) {
    PainterA.save();
    PainterA.translate(QPointF(offset.x, offset.y));
    {
      qt::PainterSurface surface(PainterA, measures);
      paint(surface);
    }
    PainterA.restore();
  });
  PainterA.setClipping(false);
  PainterA.setBrush(Qt::NoBrush);
  PainterA.setPen(QPen(QColor(0x9AA3AF), 1));
  PainterA.drawRect(QRectF(QPointF(), size));
  PainterA.restore();
}

}  // namespace

PageTitle TitleOf(const QString& PathA, const LoadedFile& FileA, const MURTimelineRender& ControlA) {
  return {QFileInfo(PathA).fileName(), RangeText(FileA, ControlA.WorldTimeT0(), ControlA.Duration())};
}

QPageLayout UsualPageLayout() {
  return {QPageSize(QPageSize::A4), QPageLayout::Landscape,
          QMarginsF(kMarginPoints, kMarginPoints, kMarginPoints, kMarginPoints), QPageLayout::Point};
}

QSize PictureSizeFor(const QPageLayout& LayoutA, int WidthA) {
  const QRectF area = LayoutA.paintRect(QPageLayout::Point);
  const double height = std::max(area.height() - kHeadlinePoints - kGapPoints, 1.0);
  return {WidthA, std::max(static_cast<int>(WidthA * height / std::max(area.width(), 1.0)), 1)};
}

void PaintPage(QPainter& PainterA, const QSizeF& SizeA, int DotsPerInchA, const PageTitle& TitleA,
               HeadlessControl& ControlA) {
  const double dotsPerPoint = DotsPerInchA / kPointsAnInch;
  const double headline = kHeadlinePoints * dotsPerPoint, top = headline + kGapPoints * dotsPerPoint;
  PaintTitle(PainterA, QRectF(0, 0, SizeA.width(), headline), dotsPerPoint, TitleA);
  PaintPicture(PainterA, QRectF(0, top, SizeA.width(), SizeA.height() - top), ControlA);
}

void WritePdf(const QString& PathA, HeadlessControl& ControlA, const PageTitle& TitleA) {
  QBuffer buffer;
  buffer.open(QIODevice::WriteOnly);
  {
    QPdfWriter writer(&buffer);
    writer.setResolution(kPdfResolution);
    writer.setPageLayout(UsualPageLayout());
    writer.setTitle(TitleA.name);
    writer.setCreator(QStringLiteral("MURTimeline Viewer"));
    QPainter painter(&writer);
    PaintPage(painter, QSizeF(writer.width(), writer.height()), writer.resolution(), TitleA, ControlA);
  }
  WriteWholeFile(PathA, buffer.data());
}

}  // namespace mur::viewer
