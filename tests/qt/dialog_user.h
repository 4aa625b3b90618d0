#pragma once

#include <QApplication>
#include <QPointer>
#include <QTest>
#include <QTimer>
#include <functional>
#include <initializer_list>

#include <gtest/gtest.h>

namespace mur::test {

/// Lets a user do something at the next modal window that opens, inside its own event loop. A window that is
/// left open is a failure, and is closed.
inline void AtNextWindow(const std::function<void(QWidget& WindowA)>& DeedA) {
  auto* const timer = new QTimer(qApp);
  const QPointer<QWidget> before = QApplication::activeModalWidget();
  QObject::connect(timer, &QTimer::timeout, timer, [timer, before, DeedA] {
    const QPointer<QWidget> window = QApplication::activeModalWidget();
    if (!window || window == before || !QTest::qWaitForWindowExposed(window)) return;
    timer->stop();
    timer->deleteLater();
    DeedA(*window);
    if (!window || !window->isVisible()) return;
    ADD_FAILURE() << "the window was left open";
    window->hide();
  });
  timer->start(1);
}

/// Keys as they come from the window system.
inline void Type(QWidget& WindowA, std::initializer_list<Qt::Key> KeysA) {
  const QPointer<QWidget> window = &WindowA;
  for (const Qt::Key key : KeysA)
    if (window && window->windowHandle()) QTest::keyClick(window->windowHandle(), key);
}

inline QString FocusName(const QWidget& WindowA) {
  return WindowA.focusWidget() ? WindowA.focusWidget()->objectName() : QString();
}

template <class Widget>
Widget& Part(const QWidget& WindowA, const char* NameA) {
  auto* const part = WindowA.findChild<Widget*>(NameA);
  if (!part) throw std::runtime_error(NameA);
  return *part;
}

}  // namespace mur::test
