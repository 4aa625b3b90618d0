#include "viewer/pictures.h"

#include <QBuffer>
#include <QGuiApplication>
#include <QImage>

#include <murtimeline/qt/painter_surface.h>
#include <murtimeline/render/port/svg_surface.h>

#include "viewer/output_file.h"

namespace mur::viewer {
namespace {

QImage Draw(HeadlessControl& ControlA) {
  QImage image(ControlA.Size(), QImage::Format_RGB32);
  image.fill(Qt::white);
  qt::TextMeasures measures{QGuiApplication::font()};
  ControlA.PaintChildren([&](PointF offset, const auto& paint) {
    QPainter painter(&image);
    painter.translate(QPointF(offset.x, offset.y));
    qt::PainterSurface surface(painter, measures);
    paint(surface);
  });
  return image;
}

}  // namespace

void WritePng(const QString& PathA, HeadlessControl& ControlA) {
  QBuffer buffer;
  buffer.open(QIODevice::WriteOnly);
  if (!Draw(ControlA).save(&buffer, "PNG")) throw OutputError("the picture cannot be made");
  WriteWholeFile(PathA, buffer.data());
}

void WriteSvg(const QString& PathA, HeadlessControl& ControlA) {
  QImage scrap(1, 1, QImage::Format_RGB32);
  QPainter painter(&scrap);
  qt::TextMeasures measures{QGuiApplication::font()};
  const qt::PainterSurface measuring(painter, measures);
  SvgSurface surface(static_cast<float>(ControlA.Size().width()),
                     static_cast<float>(ControlA.Size().height()), &measuring);
  ControlA.PaintChildren([&](PointF offset, const auto& paint) {
    surface.PushOffset(offset);
    paint(surface);
    surface.PopClip();
  });
  WriteWholeFile(PathA, QByteArray::fromStdString(surface.Document()));
}

}  // namespace mur::viewer
