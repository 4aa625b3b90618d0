#include "viewer/pictures.h"

#include <QBuffer>
#include <QGuiApplication>
#include <QImage>
#include <QSaveFile>

#include <murtimeline/qt/painter_surface.h>
#include <murtimeline/render/port/svg_surface.h>

#include "viewer/headless.h"

namespace mur::viewer {
namespace {

void WriteFile(const QString& PathA, const QByteArray& BytesA) {
  QSaveFile file(PathA);
  if (!file.open(QIODevice::WriteOnly) || file.write(BytesA) != BytesA.size() || !file.commit())
    throw HeadlessError("cannot write " + PathA.toStdString() + ": " + file.errorString().toStdString());
}

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
  if (!Draw(ControlA).save(&buffer, "PNG")) throw HeadlessError("the picture cannot be made");
  WriteFile(PathA, buffer.data());
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
  WriteFile(PathA, QByteArray::fromStdString(surface.Document()));
}

}  // namespace mur::viewer
