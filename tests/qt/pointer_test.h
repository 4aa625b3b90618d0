#pragma once

#include <QTest>

#include <gmock/gmock.h>

#include <murtimeline/qt/timeline_widget.h>
#include <murtimeline/render/companions/canvas.h>

#include "tests/qt/companion_windows.h"
#include "tests/qt/sample_timeline.h"
#include "tests/qt/signal_log.h"

namespace mur::test {

/// A shown widget of 600 x 400 on which a second is a pixel: "Take 1" lies at 0 to 40, 74 to 108 of the
/// canvas, "Take 2" right beside it, the cursor at 212, and 245, 90 is background.
class PointerTest : public testing::Test {
 protected:
  static constexpr QPoint kTake1{20, 85};
  static constexpr QPoint kBackground{245, 90};

  PointerTest() {
    widget.resize(600, 400);
    widget.show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&widget));
    QCoreApplication::processEvents();
    log.Take();
  }

  QWidget& Canvas() const { return CanvasOf(widget); }
  QWidget& Scale() const { return ScaleOf(widget); }
  MURGraphicCanvas& CanvasItself() const {
    return dynamic_cast<MURGraphicCanvas&>(*widget.control()->Collaborators().canvas);
  }
  void Press(QPoint AtA, Qt::MouseButton ButtonA = Qt::LeftButton, Qt::KeyboardModifiers KeysA = {}) const {
    QTest::mousePress(&Canvas(), ButtonA, KeysA, AtA);
  }
  void Release(QPoint AtA, Qt::MouseButton ButtonA = Qt::LeftButton) const {
    QTest::mouseRelease(&Canvas(), ButtonA, {}, AtA);
  }
  // Sent straight to the canvas, so that it is heard exactly once on every platform.
  static void Move(QWidget& WindowA, QPoint AtA, Qt::MouseButtons ButtonsA = {},
                   Qt::KeyboardModifiers KeysA = {}) {
    QMouseEvent event(QEvent::MouseMove, AtA, WindowA.mapToGlobal(AtA), Qt::NoButton, ButtonsA, KeysA);
    QCoreApplication::sendEvent(&WindowA, &event);
  }
  void Move(QPoint AtA, Qt::MouseButtons ButtonsA = {}) const { Move(Canvas(), AtA, ButtonsA); }

  qt::TimelineWidget widget;
  SampleTimeline sample{widget};
  SignalLog log{widget};
};

}  // namespace mur::test
