#include <QDrag>
#include <QDropEvent>
#include <QMimeData>
#include <QPointer>

#include <murtimeline/qt/dragged_data.h>

#include "tests/qt/pointer_test.h"
#include "tests/qt/qt_warnings.h"

namespace mur::qt {
namespace {

using test::PointerTest;
using test::SampleTimeline;

class DragAndDrop : public PointerTest {
 protected:
  DragAndDrop() {
    widget.setOleDropMode(1);
    data.setText(QStringLiteral("dragged"));
  }
  template <class Event>
  Qt::DropAction Send(Event& EventA) {
    QCoreApplication::sendEvent(&Canvas(), &EventA);
    return EventA.isAccepted() ? EventA.dropAction() : Qt::IgnoreAction;
  }
  Qt::DropAction Enter(QPoint AtA, Qt::DropActions ActionsA = Qt::CopyAction | Qt::MoveAction) {
    QDragEnterEvent event(AtA, ActionsA, &data, Qt::LeftButton, {});
    return Send(event);
  }
  Qt::DropAction Over(QPoint AtA, Qt::KeyboardModifiers KeysA = {}) {
    QDragMoveEvent event(AtA, Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, KeysA);
    return Send(event);
  }
  Qt::DropAction Drop(QPoint AtA) {
    QDropEvent event(AtA, Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, {});
    return Send(event);
  }
  void Leave() {
    QDragLeaveEvent event;
    QCoreApplication::sendEvent(&Canvas(), &event);
  }

  QMimeData data;
};

TEST_F(DragAndDrop, ADragIsReportedFromItsEntryToItsDrop) {
  Enter(kBackground);
  Over(kTake1, Qt::ShiftModifier);
  Over({212, 300});
  Drop(kTake1);
  EXPECT_EQ(log.Take(),
            "oleDragOver(data, 1, 1, 0, 245, 90, 0); "
            "tlObjectOleDragOver(Take 1, data, 2, 1, 1, 20, 11, 2); "
            "cursorOleDragOver(The Cursor, data, 1, 1, 0, 2.5, 300, 2); "
            "tlObjectOleDragDrop(Take 1, data, 1, 1, 0, 20, 11)");
}

TEST_F(DragAndDrop, ADragThatLeavesSaysSoWhereItWasLast) {
  Enter(kBackground);
  Over(kTake1);
  log.Take();
  Leave();
  EXPECT_EQ(log.Take(), "tlObjectOleDragOver(Take 1, data, 0, 1, 0, 20, 11, 1)");
}

TEST_F(DragAndDrop, WithoutADropModeDragsAreLeftToTheParents) {
  widget.setOleDropMode(0);
  EXPECT_EQ(Enter(kBackground), Qt::IgnoreAction);
  EXPECT_EQ(Drop(kBackground), Qt::IgnoreAction);
  Leave();
  EXPECT_EQ(log.Take(), "");
}

TEST_F(DragAndDrop, TheEffectThatAHandlerLeavesIsTheAnswer) {
  const std::pair<qint32, Qt::DropAction> effects[] = {{kDropNone, Qt::IgnoreAction},
                                                       {kDropCopy, Qt::CopyAction},
                                                       {kDropMove, Qt::MoveAction},
                                                       {kDropCopy | kDropMove, Qt::CopyAction}};
  qint32 answer = 0;
  QObject::connect(&widget, &TimelineWidget::oleDragOver,
                   [&](auto&, qint32& effect, auto&, auto&, auto&, auto&, auto&) { effect = answer; });
  QObject::connect(&widget, &TimelineWidget::oleDragDrop,
                   [&](auto&, qint32& effect, auto&, auto&, auto&, auto&) { effect = answer; });
  for (const auto& [effect, action] : effects) {
    answer = effect;
    Enter(kBackground, Qt::CopyAction | Qt::MoveAction);
    EXPECT_EQ(Over(kBackground), action) << effect;
    EXPECT_EQ(Drop(kBackground), action) << effect;
    Leave();
  }
}

TEST_F(DragAndDrop, TheDataIsReadWhileTheEventLastsAndEmptyAfterwards) {
  Ref<Object> kept;
  QString text;
  QStringList formats;
  QObject::connect(&widget, &TimelineWidget::oleDragDrop,
                   [&](Ref<Object>& dragged, auto&, auto&, auto&, auto&, auto&) {
                     kept = dragged;
                     const auto& source = dynamic_cast<const DraggedData&>(*dragged);
                     text = source.Text();
                     formats = source.Formats();
                     EXPECT_EQ(source.Bytes(QStringLiteral("text/plain")), "dragged");
                   });
  Enter(kBackground);
  Drop(kBackground);
  EXPECT_EQ(text, "dragged");
  EXPECT_EQ(formats, QStringList("text/plain"));
  const auto& late = dynamic_cast<const DraggedData&>(*kept);
  EXPECT_FALSE(late.IsValid());
  EXPECT_EQ(late.Text(), "");
  EXPECT_TRUE(late.Formats().isEmpty() && late.Urls().isEmpty() && late.Bytes("text/plain").isEmpty());
}

TEST_F(DragAndDrop, OneDragHasOneDataObject) {
  std::vector<const Object*> seen;
  QObject::connect(&widget, &TimelineWidget::oleDragOver,
                   [&](Ref<Object>& dragged, auto&...) { seen.push_back(dragged.Get()); });
  Enter(kBackground);
  Over(kBackground);
  EXPECT_EQ(seen[0], seen[1]);
}

TEST_F(DragAndDrop, AHandlerMayEndTheWidget) {
  for (const bool drops : {false, true}) {
    QPointer<TimelineWidget> mortal = new TimelineWidget;
    mortal->setOleDropMode(1);
    QWidget& canvas = test::CanvasOf(*mortal);
    mortal->resize(600, 400);
    QDragEnterEvent enter({300, 200}, Qt::CopyAction, &data, Qt::LeftButton, {});
    if (drops) QCoreApplication::sendEvent(&canvas, &enter);
    QObject::connect(mortal, &TimelineWidget::oleDragOver, [mortal] { delete mortal; });
    QObject::connect(mortal, &TimelineWidget::oleDragDrop, [mortal] { delete mortal; });
    QDropEvent drop({300, 200}, Qt::CopyAction, &data, Qt::LeftButton, {});
    QCoreApplication::sendEvent(&canvas, drops ? static_cast<QEvent*>(&drop) : &enter);
    EXPECT_FALSE(mortal);
  }
}

TEST_F(DragAndDrop, AMemberThatDoesNotExistIsNotDragged) {
  EXPECT_EQ(widget.dragObject("none"), Qt::IgnoreAction);
}

// Where no window system drags, a drag is over as soon as it began.
TEST_F(DragAndDrop, ABarIsDraggedAsTextAndAsWhatItIs) {
  if (QGuiApplication::platformName() != QLatin1String("offscreen"))
    GTEST_SKIP() << "a window system's own drag waits for its own pointer";
  widget.setAllowObjectDragging(true);
  Press(kTake1);
  log.Take();
  EXPECT_EQ(widget.dragObject("Take 1", Qt::CopyAction | Qt::MoveAction), Qt::IgnoreAction);
  EXPECT_FALSE(widget.control()->IsDragging());
  EXPECT_EQ(log.Take(), "tlObjectMouseUp(Take 1, 1, 0, 20, 11)");
  const auto* drag = widget.findChild<QDrag*>();
  ASSERT_TRUE(drag);
  EXPECT_EQ(drag->supportedActions(), Qt::CopyAction | Qt::MoveAction);
  EXPECT_EQ(drag->mimeData()->text(), "Take 1");
  EXPECT_EQ(drag->mimeData()->data(kBarFormat), "Take 1\n45000.5\n40");
  EXPECT_EQ(drag->pixmap().deviceIndependentSize(), QSizeF(40, 34));
}

TEST_F(DragAndDrop, ABarOutOfSightIsDraggedWithoutAPicture) {
  if (QGuiApplication::platformName() != QLatin1String("offscreen"))
    GTEST_SKIP() << "a window system's own drag waits for its own pointer";
  widget.control()->SetWorldTimeT0(SampleTimeline::At(1000));
  widget.dragObject(1);
  const auto* drag = widget.findChild<QDrag*>();
  ASSERT_TRUE(drag);
  EXPECT_EQ(drag->mimeData()->text(), "Picture");
  EXPECT_TRUE(drag->pixmap().isNull());
}

}  // namespace
}  // namespace mur::qt
