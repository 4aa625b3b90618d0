#include <QDrag>
#include <QMimeData>
#include <QPainter>
#include <QPixmap>
#include <QPointer>
#include <algorithm>

#include <murtimeline/qt/conversions.h>
#include <murtimeline/qt/timeline_widget_parts.h>

namespace mur::qt {
namespace {

constexpr float kWidestPicture = 240;  // pixels

QMimeData* DataOf(const IMURTimelineObject& ObjectA) {
  auto* data = new QMimeData;
  data->setText(ToQString(ObjectA.Tag()));
  const auto number = [](double value) {
    return QString::number(value, 'g', QLocale::FloatingPointShortest);
  };
  const QStringList lines{ToQString(ObjectA.Key()), number(ObjectA.WorldTimeT0().Days()),
                          number(ObjectA.Duration())};
  data->setData(QLatin1String(kBarFormat), lines.join(u'\n').toUtf8());
  return data;
}

// The bar as it is shown, as far as the canvas shows it.
QPixmap PictureOf(MURGraphicCanvas& CanvasA, const RectF& BoundsA, TextMeasures& MeasuresA, qreal RatioA) {
  const float left = std::max(BoundsA.left, 0.0F);
  const RectF shown{left, BoundsA.top, std::min(BoundsA.Right() - left, kWidestPicture), BoundsA.height};
  if (shown.IsEmpty()) return {};
  const QSizeF size(static_cast<qreal>(shown.width), static_cast<qreal>(shown.height));
  QPixmap picture((size * RatioA).toSize().expandedTo(QSize(1, 1)));
  picture.setDevicePixelRatio(RatioA);
  QPainter painter(&picture);
  painter.translate(-static_cast<qreal>(shown.left), -static_cast<qreal>(shown.top));
  PainterSurface surface(painter, MeasuresA);
  CanvasA.Paint(surface, shown);
  return picture;
}

}  // namespace

Qt::DropAction TimelineWidget::dragObject(const QVariant& keyIndex, Qt::DropActions actions) {
  const Ref<CMURTimeline> members = timeline();
  const Ref<IMURTimelineObject> object = members ? members->Item(ToVariant(keyIndex)) : nullptr;
  if (!object) return Qt::IgnoreAction;
  auto* drag = new QDrag(this);
  drag->setMimeData(DataOf(*object));
  if (const Ref<ICanvasItem> bar = mParts->canvas->GraphicByKey(object->KeyText().View()))
    drag->setPixmap(
        PictureOf(*mParts->canvas, mParts->canvas->PixelBounds(*bar), mParts->measures, devicePixelRatioF()));
  const QPointer<QDrag> alive(drag);
  mParts->canvasWidget->LosePointer();
  return alive ? drag->exec(actions) : Qt::IgnoreAction;
}

}  // namespace mur::qt
