#pragma once

#include <QWidget>

namespace mur::qt {

/// Shows the icon of the window that it is in.
class IconBox final : public QWidget {
 public:
  explicit IconBox(QWidget* ParentA);

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace mur::qt
