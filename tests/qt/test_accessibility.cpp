#include <QAccessible>

#include <murtimeline/qt/accessibility.h>

#include "tests/qt/pointer_test.h"

namespace mur::qt {
namespace {

using test::PointerTest;
using test::SampleTimeline;

QStringList told;

const char* Name(QAccessible::Event EventA) {
  switch (EventA) {
    case QAccessible::Focus:
      return "focus";
    case QAccessible::NameChanged:
      return "name";
    case QAccessible::ValueChanged:
      return "value";
    case QAccessible::Selection:
      return "selected";
    case QAccessible::SelectionRemove:
      return "unselected";
    case QAccessible::ObjectReorder:
      return "reorder";
    case QAccessible::ObjectShow:
      return "show";
    case QAccessible::ObjectDestroyed:
      return "destroyed";
    default:
      return nullptr;
  }
}

void Note(QAccessibleEvent& EventA) {
  const char* name = Name(EventA.type());
  if (!name) return;
  QAccessibleInterface* interface = EventA.accessibleInterface();
  if (!interface || (interface->role() != QAccessible::ListItem && interface->role() != QAccessible::List))
    return;
  told << QLatin1String(name) + u' ' + interface->text(QAccessible::Name);
}

class Accessible : public PointerTest {
 protected:
  Accessible() {
    Accessibility::SetListener(Note);
    Canvas().repaint();
    QCoreApplication::processEvents();
    told.clear();
  }
  ~Accessible() override { Accessibility::SetListener(nullptr); }

  QAccessibleInterface& List() { return *QAccessible::queryAccessibleInterface(&widget); }
  QAccessibleInterface* Bar(const char* NameA) {
    for (int index = 0; index < List().childCount(); ++index)
      if (List().child(index)->text(QAccessible::Name) == QLatin1String(NameA)) return List().child(index);
    return nullptr;
  }
  static std::string Told() {
    QCoreApplication::processEvents();
    QCoreApplication::processEvents();
    return std::exchange(told, {}).join(QStringLiteral("; ")).toStdString();
  }
};

TEST_F(Accessible, TheWidgetIsAListOfItsBars) {
  EXPECT_EQ(List().role(), QAccessible::List);
  EXPECT_EQ(List().text(QAccessible::Name), "Time line");
  EXPECT_EQ(List().childCount(), sample.timeline->Count());
  for (int index = 0; index < List().childCount(); ++index) {
    QAccessibleInterface* bar = List().child(index);
    ASSERT_TRUE(bar && bar->isValid());
    EXPECT_EQ(List().indexOfChild(bar), index);
    EXPECT_EQ(bar->parent(), &List());
    EXPECT_EQ(bar, List().child(index));
  }
  EXPECT_FALSE(List().child(-1));
  EXPECT_FALSE(List().child(List().childCount()));
  widget.setAccessibleName(QStringLiteral("Cut"));
  EXPECT_EQ(List().text(QAccessible::Name), "Cut");
}

TEST_F(Accessible, ABarTellsItsNameTimesTrackAndPlace) {
  QAccessibleInterface* bar = Bar("Take 2");
  ASSERT_TRUE(bar);
  EXPECT_EQ(bar->role(), QAccessible::ListItem);
  EXPECT_EQ(bar->text(QAccessible::Description), "12:00:40 to 12:01:20, in Picture");
  EXPECT_EQ(bar->rect(), QRect(Canvas().mapToGlobal(QPoint(40, 74)), QSize(40, 34)));
  sample.timeline->Item(u"Take 2")->SetTag(u"");
  EXPECT_EQ(bar->text(QAccessible::Name), "Take 2");
  EXPECT_EQ(Bar("Picture")->text(QAccessible::Description), "12:00:00 to 12:09:50");
}

TEST_F(Accessible, ABarTellsItsState) {
  widget.setAutoSelectMode(etlcltLeftClick);
  Press({60, 85});
  Release({60, 85});
  const QAccessible::State state = Bar("Take 2")->state();
  EXPECT_TRUE(state.selectable && state.focusable && state.selected);
  EXPECT_FALSE(state.offscreen || state.invisible || state.disabled);
  EXPECT_FALSE(Bar("Take 3")->state().selected);
  widget.control()->SetWorldTimeT0(SampleTimeline::At(300));
  EXPECT_TRUE(Bar("Take 2")->state().offscreen);
  CanvasItself().GraphicByKey(u"Take 2")->SetVisible(false);
  EXPECT_TRUE(Bar("Take 2")->state().invisible);
}

TEST_F(Accessible, ABarIsFoundAtItsPlace) {
  const auto at = [this](QPoint point) {
    const QPoint global = Canvas().mapToGlobal(point);
    QAccessibleInterface* bar = List().childAt(global.x(), global.y());
    return bar ? bar->text(QAccessible::Name).toStdString() : "-";
  };
  EXPECT_EQ(at(kTake1), "Take 1");
  EXPECT_EQ(at(kBackground), "-");
  EXPECT_EQ(at({-5, -5}), "-");
}

TEST_F(Accessible, PressingABarClicksIt) {
  QAccessibleInterface* bar = Bar("Take 2");
  auto* actions = bar->actionInterface();
  ASSERT_TRUE(actions);
  log.Take();
  actions->doAction(QAccessibleActionInterface::pressAction());
  EXPECT_THAT(log.Take(), testing::EndsWith("tlObjectClick(Take 2)"));
}

TEST_F(Accessible, WalkingTellsOfTheFocus) {
  widget.activateWindow();
  widget.setFocus();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&widget));
  QTest::keyClick(&widget, Qt::Key_Right);
  EXPECT_THAT(Told(), testing::HasSubstr("focus Picture"));
  EXPECT_TRUE(Bar("Picture")->state().focused);
  EXPECT_EQ(List().focusChild(), Bar("Picture"));
}

TEST_F(Accessible, TellsOfChangesOfTheBarsThatWereAskedFor) {
  Bar("Take 2");
  const auto take = sample.timeline->Item(u"Take 2");
  Told();
  take->SetTag(u"Second");
  EXPECT_EQ(Told(), "name Second");
  take->SetDuration(5);
  EXPECT_THAT(Told(), testing::HasSubstr("value Second"));
}

TEST_F(Accessible, TellsOfTheSelection) {
  widget.setAutoSelectMode(etlcltLeftClick);
  Press(kTake1);
  Release(kTake1);
  EXPECT_THAT(Told(), testing::EndsWith("selected Take 1"));
  Press({60, 85});
  Release({60, 85});
  EXPECT_THAT(Told(), testing::EndsWith("unselected Take 1; selected Take 2"));
}

TEST_F(Accessible, TellsOfBarsThatComeAndGo) {
  Bar("Take 2");
  Told();
  sample.timeline->Add(murtlotScalar, u"late");
  EXPECT_THAT(Told(), testing::HasSubstr("reorder Time line"));
  sample.timeline->Remove(u"Take 2");
  EXPECT_THAT(Told(),
              testing::AllOf(testing::HasSubstr("destroyed"), testing::HasSubstr("reorder Time line")));
  EXPECT_FALSE(Bar("Take 2"));
}

TEST_F(Accessible, ABarThatIsGoneIsInvalidAndAnswersNothing) {
  QAccessibleInterface* bar = Bar("Take 2");
  sample.timeline->Clear();
  EXPECT_FALSE(bar->isValid());
  EXPECT_TRUE(bar->state().invalid);
  EXPECT_EQ(bar->text(QAccessible::Name), "");
  EXPECT_TRUE(bar->rect().isEmpty());
  EXPECT_EQ(List().indexOfChild(bar), -1);
  bar->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
  EXPECT_EQ(List().childCount(), 0);
}

TEST_F(Accessible, ManyBarsAreCountedButNotMade) {
  for (int count = 0; count < 20000; ++count) sample.timeline->Add(murtlotScalar);
  EXPECT_EQ(List().childCount(), sample.timeline->Count());
  QAccessibleInterface* last = List().child(List().childCount() - 1);
  EXPECT_EQ(List().indexOfChild(last), List().childCount() - 1);
  EXPECT_EQ(QAccessible::uniqueId(List().child(List().childCount() - 2)) - QAccessible::uniqueId(last), 1U);
}

TEST_F(Accessible, TheListOutlivesItsWidgetHarmlessly) {
  auto mortal = std::make_unique<TimelineWidget>();
  const SampleTimeline other(*mortal);
  mortal->show();
  QAccessibleInterface* list = QAccessible::queryAccessibleInterface(mortal.get());
  EXPECT_TRUE(list->child(0));
  mortal.reset();
  Told();
}

}  // namespace
}  // namespace mur::qt
