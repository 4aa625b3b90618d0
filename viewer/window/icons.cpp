#include "viewer/window/icons.h"

#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>
#include <QPalette>

namespace mur::viewer {
namespace {

// All symbols are drawn on a square of this side.
constexpr qreal kGrid = 16;
constexpr qreal kLine = 1.25;

void AddLine(QPainterPath& PathA, QPointF FromA, QPointF ToA) {
  PathA.moveTo(FromA);
  PathA.lineTo(ToA);
}

void AddPolyline(QPainterPath& PathA, std::initializer_list<QPointF> PointsA) {
  PathA.addPolygon(QPolygonF(QList<QPointF>(PointsA)));
}

void AddLens(QPainterPath& PathA) {
  PathA.addEllipse(QPointF(6.5, 6.5), 4.5, 4.5);
  AddLine(PathA, {9.8, 9.8}, {14, 14});
  AddLine(PathA, {4.5, 6.5}, {8.5, 6.5});
}

QPainterPath FolderPath() {
  QPainterPath path;
  AddPolyline(path, {{1.5, 13}, {1.5, 3}, {6, 3}, {7.5, 5}, {13, 5}, {13, 7}});
  AddPolyline(path, {{1.5, 13}, {4, 7}, {15, 7}, {12.5, 13}, {1.5, 13}});
  return path;
}

QPainterPath PicturePath() {
  QPainterPath path;
  path.addRoundedRect(QRectF(1.5, 2.5, 13, 11), 1, 1);
  AddPolyline(path, {{2, 12}, {6, 7.5}, {8.5, 10}, {10.5, 8}, {14, 12}});
  path.addEllipse(QPointF(11, 5.5), 1, 1);
  return path;
}

QPainterPath FitPath() {
  QPainterPath path;
  AddLine(path, {1.5, 3}, {1.5, 13});
  AddLine(path, {14.5, 3}, {14.5, 13});
  AddLine(path, {4, 8}, {12, 8});
  AddPolyline(path, {{6, 5.75}, {3.75, 8}, {6, 10.25}});
  AddPolyline(path, {{10, 5.75}, {12.25, 8}, {10, 10.25}});
  return path;
}

QPainterPath ZoomPath(bool InA) {
  QPainterPath path;
  AddLens(path);
  if (InA) AddLine(path, {6.5, 4.5}, {6.5, 8.5});
  return path;
}

QPainterPath PanelPath() {
  QPainterPath path;
  path.addRoundedRect(QRectF(1.5, 2.5, 13, 11), 1, 1);
  AddLine(path, {9.5, 2.5}, {9.5, 13.5});
  AddLine(path, {11.25, 5.5}, {12.75, 5.5});
  AddLine(path, {11.25, 8}, {12.75, 8});
  return path;
}

QPainterPath CancelPath() {
  QPainterPath path;
  AddLine(path, {4, 4}, {12, 12});
  AddLine(path, {12, 4}, {4, 12});
  return path;
}

QPainterPath TimelinePath() {
  QPainterPath path;
  AddLine(path, {1.5, 3}, {14.5, 3});
  for (const qreal tick : {1.5, 5.8, 10.2, 14.5}) AddLine(path, {tick, 3}, {tick, 1.5});
  path.addRoundedRect(QRectF(1.5, 5, 7, 2.5), 0.5, 0.5);
  path.addRoundedRect(QRectF(5, 8.75, 9.5, 2.5), 0.5, 0.5);
  path.addRoundedRect(QRectF(2.5, 12.5, 6, 2.5), 0.5, 0.5);
  return path;
}

QPainterPath PathOf(Symbol SymbolA) {
  switch (SymbolA) {
    case Symbol::Open:
      return FolderPath();
    case Symbol::Picture:
      return PicturePath();
    case Symbol::Fit:
      return FitPath();
    case Symbol::ZoomIn:
      return ZoomPath(true);
    case Symbol::ZoomOut:
      return ZoomPath(false);
    case Symbol::Panel:
      return PanelPath();
    case Symbol::Cancel:
      return CancelPath();
    case Symbol::Timeline:
      return TimelinePath();
  }
  return {};
}

class SymbolEngine final : public QIconEngine {
 public:
  explicit SymbolEngine(Symbol SymbolA) : mSymbol(SymbolA) {}

  void paint(QPainter* PainterA, const QRect& RectA, QIcon::Mode ModeA, QIcon::State /*StateA*/) override {
    const auto group = ModeA == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
    const QColor color = QGuiApplication::palette().color(group, QPalette::WindowText);
    const qreal side = qMin(RectA.width(), RectA.height());
    PainterA->save();
    PainterA->setRenderHint(QPainter::Antialiasing);
    PainterA->translate(QRectF(RectA).center() - QPointF(side, side) / 2);
    PainterA->scale(side / kGrid, side / kGrid);
    PainterA->setPen(QPen(color, kLine, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    PainterA->drawPath(PathOf(mSymbol));
    PainterA->restore();
  }

  QPixmap pixmap(const QSize& SizeA, QIcon::Mode ModeA, QIcon::State StateA) override {
    QPixmap pixmap(SizeA);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    paint(&painter, QRect(QPoint(), SizeA), ModeA, StateA);
    return pixmap;
  }

  QIconEngine* clone() const override { return new SymbolEngine(mSymbol); }

 private:
  Symbol mSymbol;
};

}  // namespace

QIcon MakeIcon(Symbol SymbolA) {
  return QIcon(new SymbolEngine(SymbolA));
}

}  // namespace mur::viewer
