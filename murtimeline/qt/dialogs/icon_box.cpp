#include <QEvent>
#include <QIcon>
#include <QPainter>

#include <murtimeline/qt/dialogs/icon_box.h>

namespace mur::qt {

IconBox::IconBox(QWidget* ParentA) : QWidget(ParentA) {
  constexpr int kExtent = 40;
  setFixedSize(kExtent, kExtent);
}

bool IconBox::event(QEvent* event) {
  if (event->type() == QEvent::WindowIconChange) update();
  return QWidget::event(event);
}

void IconBox::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  window()->windowIcon().paint(&painter, rect());
}

}  // namespace mur::qt
