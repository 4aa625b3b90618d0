#include <QPainter>
#include <QScrollBar>
#include <QWheelEvent>

#include "tests/qt/pointer_test.h"

namespace mur::qt {
namespace {

using test::PointerTest;
using test::SampleTimeline;

// The sample is 302 pixels high; the canvas of a widget of 200 pixels is 160.
class RowScrolling : public PointerTest {
 protected:
  RowScrolling() {
    widget.setNavigationEnabled(true);
    SetHeight(200);
  }
  void SetHeight(int HeightA) {
    widget.resize(600, HeightA);
    QCoreApplication::processEvents();
    QCoreApplication::processEvents();
  }
  QScrollBar& Bar() const { return *Canvas().findChild<QScrollBar*>(); }
  void Wheel(QPoint TurnedA, Qt::KeyboardModifiers KeysA = {}) const {
    const QPointF at(100, 20);
    QWheelEvent event(at, Canvas().mapToGlobal(at), {}, TurnedA, Qt::NoButton, KeysA, Qt::NoScrollPhase,
                      false);
    QCoreApplication::sendEvent(&Canvas(), &event);
  }
};

TEST_F(RowScrolling, TheBarAppearsOnlyWhereItIsNeeded) {
  EXPECT_TRUE(Bar().isVisible());
  EXPECT_EQ(Bar().maximum(), 142);
  EXPECT_EQ(Bar().pageStep(), 160);
  SetHeight(400);
  EXPECT_FALSE(Bar().isVisible());
}

TEST_F(RowScrolling, TheBarLiesAtTheRightEdgeAndChangesNoMapping) {
  EXPECT_EQ(Bar().geometry().right(), Canvas().rect().right());
  EXPECT_EQ(Bar().height(), Canvas().height());
  EXPECT_EQ(Canvas().width(), 600);
  EXPECT_EQ(Scale().width(), 600);
  EXPECT_NEAR(widget.xOf(SampleTimeline::At(600)), 600, 1e-3);
}

TEST_F(RowScrolling, TheBarFollowsBarsThatComeAndGo) {
  sample.timeline->Remove(u"Notes");
  for (const auto* note : {u"Note 1", u"Note 2", u"Note 3"}) sample.timeline->Remove(note);
  QCoreApplication::processEvents();
  EXPECT_EQ(Bar().maximum(), 65);  // 225 are left
  sample.timeline->Clear();
  QCoreApplication::processEvents();
  EXPECT_FALSE(Bar().isVisible());
}

TEST_F(RowScrolling, AHiddenWidgetIsInStepOnceItIsShown) {
  widget.hide();
  sample.timeline->Clear();
  widget.show();
  EXPECT_TRUE(QTest::qWaitForWindowExposed(&widget));
  QCoreApplication::processEvents();
  EXPECT_FALSE(Bar().isVisible());
}

TEST_F(RowScrolling, TheBarScrolls) {
  Bar().setValue(40);
  EXPECT_EQ(CanvasItself().ScrollTop(), 40);
  EXPECT_EQ(CanvasItself().Graphic(u"Take 1")->Top(), 74);
}

TEST_F(RowScrolling, TheWheelScrollsRowsAsFarAsThereAreAny) {
  Wheel({0, -120});
  EXPECT_EQ(Bar().value(), 60);
  Wheel({0, -1200});
  EXPECT_EQ(Bar().value(), 142);
  Wheel({0, 2400});
  EXPECT_EQ(Bar().value(), 0);
}

TEST_F(RowScrolling, ThePlainWheelDoesWhatTheHostWants) {
  widget.setWheelAction(WheelAction::Zoom);
  Wheel({0, 360});
  EXPECT_NEAR(widget.duration(), 300, 1e-6);
  EXPECT_EQ(Bar().value(), 0);
  Wheel({0, -360});
  EXPECT_EQ(widget.duration(), 600);
  widget.setWheelAction(WheelAction::Pan);
  Wheel({0, -120});
  EXPECT_EQ(widget.control()->WorldTimeT0(), SampleTimeline::At(60));
}

TEST_F(RowScrolling, AWheelThatScrollsNothingIsLeftToTheParents) {
  SetHeight(400);
  const QPointF at(100, 20);
  QWheelEvent event(at, at, {}, {0, 120}, Qt::NoButton, {}, Qt::NoScrollPhase, false);
  event.accept();
  QCoreApplication::sendEvent(&Canvas(), &event);
  EXPECT_FALSE(event.isAccepted());
}

TEST_F(RowScrolling, EventsToolTipsAndDragsFollowTheRows) {
  Bar().setValue(70);
  log.Take();
  Press({20, 10});
  Release({20, 10});
  EXPECT_EQ(log.Take(),
            "tlObjectMouseDown(Take 1, 1, 0, 20, 6); tlObjectMouseUp(Take 1, 1, 0, 20, 6); "
            "tlObjectClick(Take 1)");
}

TEST_F(RowScrolling, DraggingTheBackgroundMovesTheRowsToo) {
  Bar().setValue(70);
  Press({245, 20});
  Move({255, 0}, Qt::LeftButton);
  EXPECT_EQ(Bar().value(), 90);
  EXPECT_EQ(widget.control()->WorldTimeT0(), SampleTimeline::At(-10));
  Move({245, 20}, Qt::LeftButton);
  Release({245, 20});
  EXPECT_EQ(Bar().value(), 70);
  EXPECT_EQ(widget.control()->WorldTimeT0(), SampleTimeline::At(0));
}

TEST_F(RowScrolling, APinchOfATouchPadZoomsAtThePointerAndBack) {
  const auto pinch = [this](double value) {
    const auto* device = QPointingDevice::primaryPointingDevice();
    const QPointF at(150, 20);
    QNativeGestureEvent event(Qt::ZoomNativeGesture, device, 2, at, at, Canvas().mapToGlobal(at), value, {});
    QCoreApplication::sendEvent(&Canvas(), &event);
  };
  pinch(1);
  EXPECT_EQ(widget.duration(), 300);
  EXPECT_NEAR(widget.xOf(SampleTimeline::At(150)), 150, 1e-2);
  pinch(-0.5);
  EXPECT_EQ(widget.duration(), 600);
  EXPECT_EQ(widget.control()->WorldTimeT0(), SampleTimeline::At(0));
}

TEST_F(RowScrolling, ABarIsRevealedByItsKeyAndNothingMovesOnceItIsSeen) {
  widget.control()->SetWorldTimeT0(SampleTimeline::At(3000));
  EXPECT_TRUE(widget.reveal(QStringLiteral("Note 3")));
  const RectF bounds = CanvasItself().PixelBounds(*CanvasItself().GraphicByKey(u"Note 3"));
  EXPECT_GE(bounds.left, -0.1F);
  EXPECT_LE(bounds.Right(), 600.1F);
  EXPECT_GE(bounds.top, 0);
  EXPECT_LE(bounds.Bottom(), 160);
  EXPECT_GT(Bar().value(), 0);
  const Date start = widget.control()->WorldTimeT0();
  const int top = Bar().value();
  EXPECT_TRUE(widget.reveal(QStringLiteral("Note 3")));
  EXPECT_NEAR(widget.control()->WorldTimeT0().Seconds(), start.Seconds(), 1e-3);
  EXPECT_EQ(Bar().value(), top);
  EXPECT_FALSE(widget.reveal(QStringLiteral("nowhere")));
}

TEST_F(RowScrolling, ThePictureShowsTheScrolledRows) {
  const QImage before = widget.renderToImage({600, 200});
  Bar().setValue(77);
  const QImage after = widget.renderToImage({600, 200});
  EXPECT_EQ(before.copy(5, 40 + 114, 100, 30), after.copy(5, 40 + 37, 100, 30));
}

}  // namespace
}  // namespace mur::qt
