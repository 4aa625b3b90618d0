#include <QIconEngine>
#include <QPainter>

#include <murtimeline/qt/dialogs/default_icon.h>

namespace mur::qt {
namespace {

class BarsIcon final : public QIconEngine {
 public:
  void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State /*state*/) override {
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(Qt::NoPen);
    if (mode == QIcon::Disabled) painter->setOpacity(0.4);
    // Drawn on a grid of 16 units.
    painter->translate(rect.topLeft());
    painter->scale(rect.width() / 16.0, rect.height() / 16.0);
    const auto box = [&](QRectF place, QRgb color, double radius) {
      painter->setBrush(QColor(color));
      painter->drawRoundedRect(place, radius, radius);
    };
    box({0.5, 0.5, 15, 15}, 0x2b3f55, 3);
    box({2.5, 3.5, 6, 2.5}, 0x5aa9e6, 0.8);
    box({5, 7, 8.5, 2.5}, 0x7fc97f, 0.8);
    box({2.5, 10.5, 4, 2.5}, 0x5aa9e6, 0.8);
    box({8, 10.5, 5.5, 2.5}, 0xf2b84b, 0.8);
    box({9.6, 2, 0.8, 12}, 0xffffff, 0);
    painter->restore();
  }

  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
    QPixmap pixmap(size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    paint(&painter, QRect(QPoint(), size), mode, state);
    return pixmap;
  }

  QIconEngine* clone() const override { return new BarsIcon; }
};

}  // namespace

QIcon DefaultIcon() {
  return QIcon(new BarsIcon);
}

}  // namespace mur::qt
