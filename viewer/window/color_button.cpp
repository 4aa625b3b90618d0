#include "viewer/window/color_button.h"

#include <QColorDialog>
#include <QPainter>

#include <murtimeline/qt/conversions.h>

namespace mur::viewer {
namespace {

constexpr QSize kSwatch(36, 16);

}  // namespace

ColorButton::ColorButton(const QString& NameA) {
  setIconSize(kSwatch);
  setToolTip(QStringLiteral("Colour of %1").arg(NameA));
  setAccessibleName(toolTip());
  connect(this, &QToolButton::clicked, this, &ColorButton::Choose);
}

void ColorButton::SetColor(std::optional<OleColor> ChosenA, OleColor UsualA) {
  mShown = ChosenA.value_or(UsualA);
  const qreal ratio = devicePixelRatioF();
  QPixmap swatch(kSwatch * ratio);
  swatch.setDevicePixelRatio(ratio);
  swatch.fill(qt::ToQColor(mShown));
  QPainter painter(&swatch);
  painter.setPen(QColor(0, 0, 0, 80));
  painter.drawRect(QRectF(QPointF(), QSizeF(kSwatch)).adjusted(0.5, 0.5, -0.5, -0.5));
  painter.end();
  setIcon(swatch);
}

void ColorButton::Choose() {
  auto* dialog = new QColorDialog(qt::ToQColor(mShown), this);
  dialog->setAttribute(Qt::WA_DeleteOnClose);
  connect(dialog, &QColorDialog::colorSelected, this,
          [this](const QColor& color) { Q_EMIT Chosen(qt::ToOleColor(color)); });
  dialog->open();
}

}  // namespace mur::viewer
