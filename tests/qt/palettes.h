#pragma once

#include <QPalette>

namespace mur::test {

inline QPalette LightPalette() {
  QPalette palette(QColor(239, 239, 239), QColor(239, 239, 239));
  palette.setColor(QPalette::Base, Qt::white);
  palette.setColor(QPalette::Highlight, QColor(48, 140, 198));
  return palette;
}

inline QPalette DarkPalette() {
  QPalette palette(QColor(60, 62, 66), QColor(43, 45, 48));
  palette.setColor(QPalette::Base, QColor(30, 31, 34));
  palette.setColor(QPalette::Highlight, QColor(53, 116, 240));
  return palette;
}

}  // namespace mur::test
