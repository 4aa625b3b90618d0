#include <QApplication>
#include <QLineEdit>
#include <QTest>

#include "tests/viewer/window/window_test.h"
#include "viewer/window/find_bar.h"

namespace mur::viewer::test {
namespace {

class Finding : public WindowTest {
 protected:
  Finding() {
    window->OpenFile(WriteManyCues());
    Trigger(QStringLiteral("Find\u2026"));
  }

  QLineEdit& Text() const { return *window->findChild<QLineEdit*>(QStringLiteral("findText")); }
  QString Selected() const { return LabelText("selectedName"); }
};

TEST_F(Finding, SelectsTheFirstMatchWhileOneTypes) {
  QTest::keyClicks(&Text(), QStringLiteral("cUE 2"));
  EXPECT_EQ(Selected(), QStringLiteral("Cue 20"));
  EXPECT_EQ(LabelText("findCount"), QStringLiteral("1 of 10"));
  QTest::keyClicks(&Text(), QStringLiteral("5"));
  EXPECT_EQ(Selected(), QStringLiteral("Cue 25"));
  EXPECT_EQ(LabelText("findCount"), QStringLiteral("1 of 1"));
}

TEST_F(Finding, GoesRoundTheEnd) {
  Text().setText(QStringLiteral("Cue 1"));
  Type(Text(), Qt::Key_Return, Qt::ShiftModifier);
  EXPECT_EQ(Selected(), QStringLiteral("Cue 19"));
  EXPECT_EQ(LabelText("findCount"), QStringLiteral("10 of 10"));
  Type(Text(), Qt::Key_Return);
  EXPECT_EQ(Selected(), QStringLiteral("Cue 10"));
  Trigger(QStringLiteral("Find Next"));
  EXPECT_EQ(Selected(), QStringLiteral("Cue 11"));
}

TEST_F(Finding, BringsTheBarIntoView) {
  ShowTenthsFrom(0);
  Control().SetDuration(5);
  Text().setText(QStringLiteral("Cue 40"));
  const Ref<ICanvasItem> bar = Bar(u"Cue 40");
  EXPECT_GE(bar->Left(), 0);
  EXPECT_LE(bar->Left() + bar->Width(), static_cast<float>(Timeline().width()));
  EXPECT_DOUBLE_EQ(Control().Duration(), 5);
}

TEST_F(Finding, LeavesTheViewAloneWhereTheBarIsSeen) {
  const Date before = Control().WorldTimeT0();
  Text().setText(QStringLiteral("Cue 40"));
  EXPECT_EQ(Control().WorldTimeT0(), before);
}

TEST_F(Finding, SaysThatThereIsNone) {
  Text().setText(QStringLiteral("nowhere"));
  EXPECT_EQ(LabelText("findCount"), QStringLiteral("None found"));
  Trigger(QStringLiteral("Find Next"));
  EXPECT_EQ(Selected(), QString());
}

TEST_F(Finding, StopsWithEsc) {
  auto* bar = window->findChild<FindBar*>();
  EXPECT_TRUE(bar->isVisible());
  Type(Text(), Qt::Key_Escape);
  EXPECT_FALSE(bar->isVisible());
}

TEST_F(Finding, LooksIntoTheFileThatCameAfter) {
  Text().setText(QStringLiteral("Cue"));
  window->OpenFile(WriteTwoCues());
  Trigger(QStringLiteral("Find Next"));
  EXPECT_EQ(LabelText("findCount"), QStringLiteral("None found"));
  Text().setText(QStringLiteral("sec"));
  EXPECT_EQ(Selected(), QStringLiteral("Second"));
}

}  // namespace
}  // namespace mur::viewer::test
