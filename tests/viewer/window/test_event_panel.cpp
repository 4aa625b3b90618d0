#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QListView>
#include <QToolButton>

#include "tests/viewer/window/window_test.h"
#include "viewer/window/event_panel.h"

namespace mur::viewer::test {
namespace {

class Events : public WindowTest {
 protected:
  Events() {
    window->OpenFile(WriteEdit());
    ShowTenthsFrom(0);
    Trigger(QStringLiteral("Events"));
    QCoreApplication::processEvents();
    ShowTenthsFrom(0);
    Panel().Lines().Clear();
  }

  EventPanel& Panel() const { return *window->findChild<EventPanel*>(); }
  QStringList Lines() const {
    Panel().Lines().Flush();
    QStringList lines = Panel().Text().split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    for (QString& line : lines) line = line.section(QLatin1Char(' '), 0, 2);
    return lines;
  }
  void Press(const char* NameA) const { window->findChild<QToolButton*>(QLatin1String(NameA))->click(); }
};

TEST_F(Events, AreListedInTheOrderInWhichTheyHappen) {
  Click(MiddleOf(*Bar(u"A")));
  EXPECT_EQ(Lines(), QStringList({QStringLiteral("control TLObjectMouseDown \"A\""),
                                  QStringLiteral("control TLObjectMouseUp \"A\""),
                                  QStringLiteral("control TLObjectClick \"A\"")}));
}

TEST_F(Events, TellCausesAheadOfTheMovesOfADrag) {
  const QPoint from = MiddleOf(*Bar(u"A"));
  Drag(from, from + QPoint(20, 0));
  QStringList lines = Lines();
  lines.removeDuplicates();
  EXPECT_EQ(lines, QStringList({QStringLiteral("control TLObjectMouseDown \"A\""),
                                QStringLiteral("timeline TLObjectPropertyChanged \"A\""),
                                QStringLiteral("control TLObjectMouseMove \"A\""),
                                QStringLiteral("control TLObjectMouseUp \"A\""),
                                QStringLiteral("control TLObjectClick \"A\"")}));
}

TEST_F(Events, AreShownInBatchesLater) {
  Click(MiddleOf(*Bar(u"A")));
  EXPECT_EQ(Panel().Lines().rowCount(), 0);
  Panel().Lines().Flush();
  EXPECT_EQ(Panel().Lines().rowCount(), 3);
}

TEST_F(Events, AreFilteredByText) {
  window->findChild<QLineEdit*>(QStringLiteral("eventFilter"))->setText(QStringLiteral("mouseUP"));
  Click(MiddleOf(*Bar(u"A")));
  EXPECT_EQ(Lines(), QStringList({QStringLiteral("control TLObjectMouseUp \"A\"")}));
}

TEST_F(Events, PauseAndGoOn) {
  Press("pauseEvents");
  Click(MiddleOf(*Bar(u"A")));
  EXPECT_EQ(Lines(), QStringList());
  Press("pauseEvents");
  Click(MiddleOf(*Bar(u"A")));
  EXPECT_EQ(Lines().size(), 3);
}

TEST_F(Events, AreClearedAndCopied) {
  Click(MiddleOf(*Bar(u"A")));
  Panel().Lines().Flush();
  Press("copyEvents");
  EXPECT_EQ(QApplication::clipboard()->text().count(QLatin1Char('\n')), 3);
  Press("clearEvents");
  EXPECT_EQ(Lines(), QStringList());
}

TEST_F(Events, AreForgottenFromTheOldestOn) {
  constexpr int kMany = 25'000;
  EventLines lines;
  for (int i = 0; i < kMany; ++i) {
    lines.Append(std::to_string(i));
    if (i % 777 == 0) lines.Flush();
  }
  lines.Flush();
  ASSERT_EQ(lines.rowCount(), static_cast<int>(EventLines::kMost));
  EXPECT_EQ(lines.index(0).data().toString(), QString::number(kMany - 10'000));
  EXPECT_EQ(lines.index(9'999).data().toString(), QString::number(kMany - 1));
}

TEST_F(Events, AreOfTheFileThatCameAfter) {
  window->OpenFile(WriteTwoCues());
  Panel().Lines().Clear();
  Click(MiddleOf(*Bar(u"First")));
  EXPECT_EQ(Lines().value(0), QStringLiteral("control TLObjectMouseDown \"First\""));
}

}  // namespace
}  // namespace mur::viewer::test
