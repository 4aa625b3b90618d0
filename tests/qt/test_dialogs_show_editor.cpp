#include <QLineEdit>
#include <QPushButton>
#include <memory>

#include <gtest/gtest.h>

#include "tests/qt/dialog_user.h"
#include "tests/qt/sample_timeline.h"
#include "tests/support/print.h"

namespace mur::qt {
namespace {

using test::AtNextWindow;
using test::Part;
using test::SampleTimeline;
using test::Type;

const Date kNoon = SampleTimeline::At(0);

// A window with a widget that shows an hour from noon.
struct Window {
  Window() {
    widget->setTimeline(timeline.Get());
    widget->control()->SetWorldTimeT0(kNoon);
    widget->setDuration(3600);
    window->resize(640, 300);
    window->show();
  }
  ~Window() { delete window; }
  Window(const Window&) = delete;
  Window& operator=(const Window&) = delete;

  OwnedTimeline timeline;
  QPointer<QWidget> window = new QWidget;
  QPointer<TimelineWidget> widget = new TimelineWidget(window);
};

TEST(ShowEditorOfTheWidget, WritesWhatIsAccepted) {
  const Window w;
  int ranges = 0;
  QObject::connect(w.widget, &TimelineWidget::visibleRangeChanged, [&] { ++ranges; });
  AtNextWindow([&](QWidget& dialog) {
    EXPECT_EQ(dialog.parentWidget(), w.window);
    Type(dialog, {Qt::Key_Up, Qt::Key_Return});
  });
  QMetaObject::invokeMethod(w.widget, "showEditor");
  EXPECT_NEAR(w.widget->duration(), 7200, 1e-6);
  EXPECT_EQ(w.widget->control()->WorldTimeT0(), kNoon);
  EXPECT_EQ(ranges, 1);
}

TEST(ShowEditorOfTheWidget, LeavesEverythingAsItIsWhenItIsCancelled) {
  const Window w;
  AtNextWindow([](QWidget& dialog) { Type(dialog, {Qt::Key_Up, Qt::Key_Escape}); });
  w.widget->showEditor();
  EXPECT_EQ(w.widget->duration(), 3600);
}

TEST(ShowEditorOfTheWidget, TakesAStartThatIsPickedByKeysAlone) {
  const Window w;
  AtNextWindow([](QWidget& dialog) {
    AtNextWindow([](QWidget& picker) { Type(picker, {Qt::Key_Down, Qt::Key_Return}); });
    Type(dialog,
         {Qt::Key_Backtab, Qt::Key_Backtab, Qt::Key_Backtab, Qt::Key_Space, Qt::Key_Backtab, Qt::Key_Return});
  });
  w.widget->showEditor();
  EXPECT_EQ(w.widget->control()->WorldTimeT0(), SampleTimeline::At(7 * 86400));
  EXPECT_EQ(w.widget->duration(), 3600);
}

TEST(ShowEditorOfTheWidget, KeepsOneDialogForAllWidgets) {
  const Window first, second;
  AtNextWindow([&](QWidget& dialog) {
    first.widget->showEditor();
    second.widget->showEditor();
    EXPECT_EQ(QApplication::activeModalWidget(), &dialog);
    Type(dialog, {Qt::Key_Escape});
  });
  first.widget->showEditor();
  AtNextWindow([&](QWidget& dialog) {
    EXPECT_EQ(dialog.parentWidget(), second.window);
    Type(dialog, {Qt::Key_Escape});
  });
  second.widget->showEditor();
}

TEST(ShowEditorOfTheWidget, GoesOnWhenTheTimeLineIsClearedMeanwhile) {
  Window w;
  AtNextWindow([&](QWidget& dialog) {
    w.timeline->Clear();
    w.widget->setTimeline({});
    Type(dialog, {Qt::Key_Up, Qt::Key_Return});
  });
  w.widget->showEditor();
  EXPECT_NEAR(w.widget->duration(), 7200, 1e-6);
}

TEST(ShowEditorOfTheWidget, GoesOnWhenTheWindowIsHiddenMeanwhile) {
  const Window w;
  AtNextWindow([&](QWidget& dialog) {
    w.window->hide();
    Type(dialog, {Qt::Key_Up, Qt::Key_Return});
  });
  w.widget->showEditor();
  EXPECT_NEAR(w.widget->duration(), 7200, 1e-6);
}

// What may be deleted while the dialog is open.
enum class Doomed { Widget, Window };

void DeleteMeanwhile(Doomed DoomedA, bool WithPickerA) {
  const Window w;
  const Ref<MURTimelineRender> control = w.widget->control();
  const auto deleteIt = [&] {
    if (DoomedA == Doomed::Widget) {
      delete w.widget;
    } else {
      delete w.window;
    }
  };
  AtNextWindow([&](QWidget& dialog) {
    if (!WithPickerA) {
      deleteIt();
      return;
    }
    AtNextWindow([&](QWidget&) { deleteIt(); });
    Type(dialog, {Qt::Key_Backtab, Qt::Key_Space});
  });
  w.widget->showEditor();
  EXPECT_FALSE(w.widget);
  EXPECT_FALSE(QApplication::activeModalWidget());
  EXPECT_EQ(control->Duration(), 3600);
}

TEST(ShowEditorOfTheWidget, EndsCancelledWhenTheWidgetIsDeletedMeanwhile) {
  DeleteMeanwhile(Doomed::Widget, false);
  DeleteMeanwhile(Doomed::Widget, true);
}

TEST(ShowEditorOfTheWidget, EndsCancelledWhenTheWindowIsDeletedMeanwhile) {
  DeleteMeanwhile(Doomed::Window, false);
  DeleteMeanwhile(Doomed::Window, true);
}

TEST(ShowEditorOfTheWidget, OpensUponTheScreenForAControlThatOutlivedItsWidget) {
  Window w;
  const Ref<MURTimelineRender> control = w.widget->control();
  delete w.window;
  AtNextWindow([](QWidget& dialog) {
    EXPECT_FALSE(dialog.parentWidget());
    Type(dialog, {Qt::Key_Up, Qt::Key_Return});
  });
  control->ShowEditor();
  EXPECT_NEAR(control->Duration(), 7200, 1e-6);
}

TEST(ShowEditorOfTheWidget, StandsUponTheWidgetItselfWhenThatIsTheWindow) {
  TimelineWidget widget;
  widget.show();
  AtNextWindow([&](QWidget& dialog) {
    EXPECT_EQ(dialog.parentWidget(), &widget);
    Type(dialog, {Qt::Key_Escape});
  });
  widget.showEditor();
}

}  // namespace
}  // namespace mur::qt
