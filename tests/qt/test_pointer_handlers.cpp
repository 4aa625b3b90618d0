#include <QDialog>
#include <QPointer>
#include <QTimer>
#include <functional>
#include <memory>
#include <stdexcept>

#include "tests/qt/pointer_test.h"
#include "tests/qt/qt_warnings.h"

namespace mur::qt {
namespace {

using test::CanvasOf;
using test::SampleTimeline;
using test::ScaleOf;

// What a handler may do to the world in which it is called.
struct Deed {
  const char* name;
  std::function<void(QPointer<TimelineWidget>, SampleTimeline&)> deed;
};

std::vector<Deed> Deeds() {
  return {{"deletes the widget", [](auto widget, auto&) { delete widget; }},
          {"deletes it later", [](auto widget, auto&) { widget->deleteLater(); }},
          {"hides it", [](auto widget, auto&) { widget->hide(); }},
          {"disables it", [](auto widget, auto&) { widget->setEnabled(false); }},
          {"opens a dialog",
           [](auto, auto&) {
             QDialog dialog;
             QTimer::singleShot(0, &dialog, &QDialog::accept);
             dialog.exec();
           }},
          {"throws", [](auto, auto&) { throw std::runtime_error("no luck"); }},
          {"clears the time line", [](auto, auto& sample) { sample.timeline->Clear(); }},
          {"removes the bar", [](auto, auto& sample) { sample.timeline->Remove(u"Take 1"); }},
          {"takes the time line away", [](auto widget, auto&) { widget->setTimeline({}); }},
          {"cancels the drag", [](auto widget, auto&) { widget->control()->CancelDrag(); }}};
}

// The n-th signal of a gesture does the deed; the others do nothing.
class Trap : public QObject {
 public:
  Trap(TimelineWidget& WidgetA, int CountA, std::function<void()> DeedA)
      : mLeft(CountA), mDeed(std::move(DeedA)) {
    const auto spring = [this](auto&&...) { Spring(); };
    using Events = TimelineEvents;
    const auto listen = [&](auto... heard) { (connect(&WidgetA, heard, this, spring), ...); };
    listen(&Events::click, &Events::mouseDown, &Events::mouseMove, &Events::mouseUp, &Events::tlObjectClick,
           &Events::tlObjectMouseDown, &Events::tlObjectMouseMove, &Events::tlObjectMouseUp,
           &Events::cursorClick, &Events::cursorMouseDown, &Events::cursorMouseMove, &Events::cursorMouseUp,
           &Events::timeScaleClick, &Events::timeScaleMouseDown, &Events::timeScaleMouseMove,
           &Events::timeScaleMouseUp);
    connect(&WidgetA, &TimelineWidget::cursorTimeChange, this, spring);
  }
  bool HasSprung() const { return mLeft <= 0; }

 private:
  void Spring() {
    if (--mLeft == 0) mDeed();
  }

  int mLeft;
  std::function<void()> mDeed;
};

void Send(QPointer<QWidget> WindowA, QEvent::Type TypeA, QPointF AtA, Qt::MouseButton ButtonA,
          Qt::MouseButtons HeldA) {
  if (!WindowA) return;
  QMouseEvent event(TypeA, AtA, WindowA->mapToGlobal(AtA), ButtonA, HeldA, {});
  QCoreApplication::sendEvent(WindowA, &event);
}

void Gesture(const QPointer<QWidget>& WindowA, QPointF FromA) {
  Send(WindowA, QEvent::MouseMove, FromA, Qt::NoButton, {});
  Send(WindowA, QEvent::MouseButtonPress, FromA, Qt::LeftButton, Qt::LeftButton);
  Send(WindowA, QEvent::MouseMove, FromA + QPointF(7, 1), Qt::NoButton, Qt::LeftButton);
  Send(WindowA, QEvent::MouseMove, FromA + QPointF(9, 1), Qt::NoButton, Qt::LeftButton);
  Send(WindowA, QEvent::MouseButtonRelease, FromA + QPointF(9, 1), Qt::LeftButton, {});
}

// Does the deed in each signal of a gesture in turn. True when there was such a signal.
bool Try(const Deed& DeedA, int CountA, bool OnScaleA, QPointF FromA) {
  QPointer<TimelineWidget> widget = new TimelineWidget;
  SampleTimeline sample(*widget);
  widget->resize(600, 400);
  widget->setNavigationEnabled(true);
  widget->setAllowObjectDragging(true);
  widget->show();
  const Ref<MURTimelineRender> control = widget->control();
  Trap trap(*widget, CountA, [&] { DeedA.deed(widget, sample); });
  Gesture(OnScaleA ? &ScaleOf(*widget) : &CanvasOf(*widget), FromA);
  EXPECT_FALSE(control->IsDragging()) << DeedA.name << " in signal " << CountA;
  EXPECT_FALSE(control->Collaborators().scroller->IsDragging()) << DeedA.name << " in signal " << CountA;
  test::TakeWarnings();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  delete widget;
  return trap.HasSprung();
}

class AHandler : public testing::TestWithParam<std::size_t> {
 protected:
  void TryEverySignal(bool OnScaleA, QPointF FromA) const {
    const Deed deed = Deeds()[GetParam()];
    int count = 1;
    while (count < 20 && Try(deed, count, OnScaleA, FromA)) ++count;
    EXPECT_GT(count, 3) << deed.name;
  }
};

TEST_P(AHandler, OfABarMayDoAnything) {
  TryEverySignal(false, {20, 85});
}

TEST_P(AHandler, OfTheBackgroundMayDoAnything) {
  TryEverySignal(false, {245, 90});
}

TEST_P(AHandler, OfTheCursorMayDoAnything) {
  TryEverySignal(false, {212, 300});
}

TEST_P(AHandler, OfTheScaleMayDoAnything) {
  TryEverySignal(true, {100, 30});
}

INSTANTIATE_TEST_SUITE_P(Deeds, AHandler, testing::Range(std::size_t{0}, Deeds().size()));

}  // namespace
}  // namespace mur::qt
