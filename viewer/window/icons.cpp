#include "viewer/window/icons.h"

#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>
#include <QPalette>
#include <QTransform>

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

QPainterPath SavePath() {
  QPainterPath path;
  AddPolyline(path, {{2, 2}, {11.5, 2}, {14, 4.5}, {14, 14}, {2, 14}, {2, 2}});
  AddPolyline(path, {{5, 2}, {5, 6}, {10.5, 6}, {10.5, 2}});
  AddPolyline(path, {{4.5, 14}, {4.5, 9.5}, {11.5, 9.5}, {11.5, 14}});
  return path;
}

// An arrow that bends back to the left; mirrored, one that goes on to the right.
QPainterPath UndoPath(bool MirroredA) {
  QPainterPath path;
  AddPolyline(path, {{5.5, 3}, {2.5, 6}, {5.5, 9}});
  path.moveTo(2.5, 6);
  path.lineTo(10, 6);
  path.arcTo(QRectF(6.5, 6, 7, 7), 90, -180);
  path.lineTo(6.5, 13);
  return MirroredA ? QTransform(-1, 0, 0, 1, kGrid, 0).map(path) : path;
}

QPainterPath FindPath() {
  QPainterPath path;
  path.addEllipse(QPointF(6.5, 6.5), 4.5, 4.5);
  AddLine(path, {9.8, 9.8}, {14, 14});
  return path;
}

QPainterPath ChevronPath(bool DownA) {
  QPainterPath path;
  if (DownA)
    AddPolyline(path, {{4, 6}, {8, 10}, {12, 6}});
  else
    AddPolyline(path, {{4, 10}, {8, 6}, {12, 10}});
  return path;
}

QPainterPath PausePath() {
  QPainterPath path;
  AddLine(path, {5.5, 3.5}, {5.5, 12.5});
  AddLine(path, {10.5, 3.5}, {10.5, 12.5});
  return path;
}

QPainterPath CopyPath() {
  QPainterPath path;
  path.addRoundedRect(QRectF(5.5, 5.5, 8.5, 8.5), 1, 1);
  AddPolyline(path, {{10.5, 3.5}, {10.5, 2}, {2, 2}, {2, 10.5}, {3.5, 10.5}});
  return path;
}

QPainterPath ClearPath() {
  QPainterPath path;
  AddLine(path, {2.5, 4}, {13.5, 4});
  AddPolyline(path, {{6, 4}, {6, 2}, {10, 2}, {10, 4}});
  AddPolyline(path, {{4, 4}, {4.7, 14}, {11.3, 14}, {12, 4}});
  return path;
}

QPainterPath SlidersPath() {
  QPainterPath path;
  for (const auto& [y, knob] : {std::pair{4.0, 10.5}, {8.0, 5.0}, {12.0, 9.0}}) {
    AddLine(path, {1.5, y}, {knob - 1.5, y});
    AddLine(path, {knob + 1.5, y}, {14.5, y});
    path.addEllipse(QPointF(knob, y), 1.5, 1.5);
  }
  return path;
}

QPainterPath EventsPath() {
  QPainterPath path;
  for (const qreal y : {4.0, 8.0, 12.0}) {
    path.addEllipse(QPointF(2.5, y), 0.4, 0.4);
    AddLine(path, {5.5, y}, {14.5, y});
  }
  return path;
}

QPainterPath PathOf(Symbol SymbolA) {
  switch (SymbolA) {
    case Symbol::Open:
      return FolderPath();
    case Symbol::Save:
      return SavePath();
    case Symbol::Undo:
      return UndoPath(false);
    case Symbol::Redo:
      return UndoPath(true);
    case Symbol::Find:
      return FindPath();
    case Symbol::Previous:
      return ChevronPath(false);
    case Symbol::Next:
      return ChevronPath(true);
    case Symbol::Pause:
      return PausePath();
    case Symbol::Copy:
      return CopyPath();
    case Symbol::Clear:
      return ClearPath();
    case Symbol::Sliders:
      return SlidersPath();
    case Symbol::Events:
      return EventsPath();
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
