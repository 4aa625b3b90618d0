#include <QCoreApplication>
#include <QProgressBar>
#include <QTest>
#include <QToolButton>
#include <functional>

#include "tests/viewer/window/window_test.h"

namespace mur::viewer::test {
namespace {

class WindowWhileLoading : public WindowTest {
 protected:
  /// Runs once, at the first progress of the next loading.
  void AtFirstProgress(std::function<void()> WorkA) {
    QObject::connect(&window->Loading(), &LoadSession::Progressed, window.get(),
                     [this, work = std::move(WorkA)] {
                       if (!std::exchange(mDone, true)) work();
                     });
  }

  QToolButton& CancelButton() const {
    return *window->findChild<QToolButton*>(QStringLiteral("cancelLoading"));
  }

 private:
  bool mDone = false;
};

TEST_F(WindowWhileLoading, HandlesEvents) {
  bool handled = false;
  AtFirstProgress([&] {
    QMetaObject::invokeMethod(
        window.get(), [&] { handled = window->Loading().IsRunning(); }, Qt::QueuedConnection);
  });
  window->OpenFile(WriteManyCues());
  EXPECT_TRUE(handled);
  EXPECT_FALSE(window->Loading().IsRunning());
}

TEST_F(WindowWhileLoading, ShowsProgressOnceItTakesLong) {
  const auto* bar = window->findChild<QProgressBar*>();
  bool shownAtOnce = true, shownLater = false;
  AtFirstProgress([&] {
    shownAtOnce = bar->isVisible();
    QTest::qSleep(250);
  });
  QObject::connect(&window->Loading(), &LoadSession::Progressed, window.get(),
                   [&] { shownLater |= bar->isVisible() && CancelButton().isVisible(); });
  window->OpenFile(WriteManyCues());
  EXPECT_FALSE(shownAtOnce);
  EXPECT_TRUE(shownLater);
  EXPECT_FALSE(bar->isVisible());
}

TEST_F(WindowWhileLoading, IsCancelledByItsButtonAndKeepsWhatItShowed) {
  window->OpenFile(WriteTwoCues());
  AtFirstProgress([&] { CancelButton().click(); });
  window->OpenFile(WriteManyCues());
  EXPECT_EQ(window->windowTitle(), QStringLiteral("two.vtt \u2014 MURTimeline Viewer"));
  EXPECT_EQ(LabelText("objectCount"), QStringLiteral("3 objects"));
  EXPECT_TRUE(Bar(u"First"));
  EXPECT_EQ(TakeMessage(), QString());
  EXPECT_FALSE(window->Loading().IsRunning());
}

TEST_F(WindowWhileLoading, OpensTheNextFileAfterCancelling) {
  AtFirstProgress([&] { CancelButton().click(); });
  window->OpenFile(WriteManyCues());
  window->OpenFile(WriteTwoCues());
  EXPECT_EQ(LabelText("objectCount"), QStringLiteral("3 objects"));
}

TEST_F(WindowWhileLoading, GivesWayToAnotherFile) {
  const QString two = WriteTwoCues();
  AtFirstProgress([&] { window->OpenFile(two); });
  window->OpenFile(WriteManyCues());
  EXPECT_EQ(window->windowTitle(), QStringLiteral("two.vtt \u2014 MURTimeline Viewer"));
  EXPECT_EQ(RecentFiles(settings).Paths(), QStringList({two}));
}

TEST_F(WindowWhileLoading, EndsTheLoadingWhenItIsClosed) {
  AtFirstProgress([&] { window->close(); });
  window->OpenFile(WriteManyCues());
  EXPECT_FALSE(window->isVisible());
  EXPECT_FALSE(window->Page().Document());
  EXPECT_FALSE(window->Loading().IsRunning());
}

TEST_F(WindowWhileLoading, MayBeDeleted) {
  const QString many = WriteManyCues();
  AtFirstProgress([&] {
    QMetaObject::invokeMethod(
        qApp, [&] { window.reset(); }, Qt::QueuedConnection);
  });
  window->OpenFile(many);
  EXPECT_FALSE(window);
}

}  // namespace
}  // namespace mur::viewer::test
