#include <QCoreApplication>
#include <QUndoStack>
#include <cmath>
#include <utility>

#include "tests/viewer/window/window_test.h"
#include "viewer/window/object_states.h"

namespace mur::viewer::test {
namespace {

constexpr double kFrame = 0.04;

class MovingBars : public WindowTest {
 protected:
  MovingBars() {
    window->OpenFile(WriteEdit());
    ShowTenthsFrom(0);
  }

  CMURTimeline& Model() const { return *window->Page().Document()->timeline; }
  Ref<IMURTimelineObject> Object(const char16_t* KeyA) const { return Model().ItemByKey(KeyA); }
  double StartOf(const char16_t* KeyA) const {
    return (Object(KeyA)->WorldTimeT0().Days() - At(0).Days()) * kSecondsPerDay;
  }
  QUndoStack& Steps() const { return window->History().Steps(); }
  void DragBar(const char16_t* KeyA, int PixelsA, bool ReleasesA = true) const {
    const QPoint from = MiddleOf(*Bar(KeyA));
    Drag(from, from + QPoint(PixelsA, 0), ReleasesA);
  }
  std::vector<ObjectState> States() const {
    std::vector<ObjectState> states;
    auto members = Model().NewEnum();
    while (const auto member = members.Next()) states.push_back(ObjectStates::Of(*member));
    return states;
  }
};

TEST_F(MovingBars, IsOneStepForOneDrag) {
  DragBar(u"A", 20);
  EXPECT_NEAR(StartOf(u"A"), 4, 1e-3);
  EXPECT_EQ(Steps().count(), 1);
  EXPECT_EQ(Steps().undoText(), QStringLiteral("Move of \u201cA\u201d"));
}

TEST_F(MovingBars, UndoAndRedoPutEveryBitBack) {
  std::vector<std::vector<ObjectState>> states{States()};
  const struct {
    const char16_t* key;
    int pixels;
  } drags[] = {{u"A", 17},  {u"Nest", 23}, {u"Inner", -5}, {u"V1", 11},
               {u"V2", -7}, {u"A", -31},   {u"Lane", 3}};
  for (const auto& drag : drags) {
    DragBar(drag.key, drag.pixels);
    states.push_back(States());
  }
  ASSERT_EQ(Steps().count(), static_cast<int>(std::size(drags)));
  for (int round = 0; round < 3; ++round) {
    for (std::size_t i = states.size() - 1; i-- > 0;) {
      TriggerNamed("undo");
      EXPECT_EQ(States(), states[i]) << i;
    }
    EXPECT_FALSE(window->IsModified());
    for (std::size_t i = 1; i < states.size(); ++i) {
      TriggerNamed("redo");
      EXPECT_EQ(States(), states[i]) << i;
    }
  }
}

TEST_F(MovingBars, CarriesWhatIsInsideAGroup) {
  DragBar(u"Nest", 20);
  EXPECT_NEAR(StartOf(u"Nest"), 3, 1e-3);
  EXPECT_NEAR(StartOf(u"Inner"), 4, 1e-3);
  TriggerNamed("undo");
  EXPECT_NEAR(StartOf(u"Inner"), 2, 1e-3);
  EXPECT_NEAR(Bar(u"Inner")->Left(), 20, 0.1) << "the bars follow";
}

TEST_F(MovingBars, IsNoStepWithoutAMove) {
  Click(MiddleOf(*Bar(u"A")));
  DragBar(u"A", 0);
  EXPECT_EQ(Steps().count(), 0);
}

TEST_F(MovingBars, MakesAStepOfAMoveByTheProgramToo) {
  Object(u"A")->SetWorldTimeT0(At(7));
  QCoreApplication::processEvents();
  EXPECT_EQ(Steps().count(), 1);
  TriggerNamed("undo");
  EXPECT_NEAR(StartOf(u"A"), 2, 1e-6);
}

TEST_F(MovingBars, UndoesNothingWhileABarHangsOnThePointer) {
  DragBar(u"A", 20);
  DragBar(u"B", 20, false);
  TriggerNamed("undo");
  EXPECT_NEAR(StartOf(u"A"), 4, 1e-3);
  Drag(MiddleOf(*Bar(u"B")), MiddleOf(*Bar(u"B")));
}

TEST_F(MovingBars, TakesMarkersAlong) {
  const auto& markers = window->Page().Document()->file.markers;
  EXPECT_NEAR(markers[0].time, 3, 1e-6);
  DragBar(u"A", 20);
  EXPECT_NEAR(markers[0].time, 5, 1e-3);
  EXPECT_NEAR((Control().Collaborators().scroller->Marker(Variant(u"M"))->WorldTime().Days() - At(5).Days()) *
                  kSecondsPerDay,
              0, 1e-3);
  TriggerNamed("undo");
  EXPECT_EQ(markers[0].time, 3);
}

class MovingMarkers : public MovingBars {
 protected:
  QPoint Flag() const { return {static_cast<int>(Timeline().xOf(At(Markers()[0].time))) + 4, 8}; }
  const std::vector<Marker>& Markers() const { return window->Page().Document()->file.markers; }
};

TEST_F(MovingMarkers, IsOneStepInWholeFrames) {
  Drag(Flag(), Flag() + QPoint(21, 0));
  EXPECT_NEAR(Markers()[0].time, 3 + 52 * kFrame, kFrame * 1.1) << "2.1 seconds are 52 frames and a half";
  EXPECT_NEAR(Markers()[0].time * 25, std::round(Markers()[0].time * 25), 1e-6);
  EXPECT_EQ(Steps().undoText(), QStringLiteral("Move of \u201cM\u201d"));
  TriggerNamed("undo");
  EXPECT_EQ(Markers()[0].time, 3);
  TriggerNamed("redo");
  EXPECT_GT(Markers()[0].time, 5);
}

TEST_F(MovingMarkers, IsSaved) {
  const QByteArray original = Read(PathOf(QStringLiteral("edit.otio")));
  Drag(Flag(), Flag() + QPoint(20, 0));
  Trigger(QStringLiteral("Save"));
  QByteArray expected = original;
  expected.replace("\"marked_range\": {\"start_time\": {\"value\": 25,",
                   "\"marked_range\": {\"start_time\": {\"value\": 75,");
  EXPECT_EQ(Read(PathOf(QStringLiteral("edit.otio"))), expected);
}

TEST_F(MovingMarkers, NeedsADragAndNotOnlyAClick) {
  Drag(Flag(), Flag() + QPoint(3, 0));
  EXPECT_EQ(Markers()[0].time, 3);
  EXPECT_EQ(Steps().count(), 0);
}

TEST_F(MovingMarkers, EndsWithTheFileThatItIsOf) {
  Drag(Flag(), Flag() + QPoint(20, 0), false);
  window->OpenFile(WriteTwoCues());
  Drag({300, 8}, {320, 8});
  EXPECT_EQ(Steps().count(), 0);
}

TEST_F(MovingMarkers, CanBeForbidden) {
  Trigger(QStringLiteral("Allow Moving Bars"));
  Drag(Flag(), Flag() + QPoint(20, 0));
  EXPECT_EQ(Markers()[0].time, 3);
}

TEST_F(MovingBars, CanBeForbidden) {
  Trigger(QStringLiteral("Allow Moving Bars"));
  DragBar(u"A", 20);
  EXPECT_NEAR(StartOf(u"A"), 2, 1e-6);
}

TEST_F(MovingBars, IsForbiddenAtFirstWhereItCannotBeSaved) {
  window->OpenFile(WriteTwoCues());
  ShowTenthsFrom(0);
  DragBar(u"First", 20);
  EXPECT_NEAR(StartOf(u"First"), 0, 1e-6);
  Trigger(QStringLiteral("Allow Moving Bars"));
  DragBar(u"First", 20);
  EXPECT_NEAR(StartOf(u"First"), 2, 1e-3);
  EXPECT_FALSE(window->IsModified()) << "nothing can be saved, so nothing is asked";
}

TEST_F(MovingBars, MarksTheTitleUntilItIsSavedOrUndone) {
  const QString clean = QStringLiteral("edit.otio \u2014 MURTimeline Viewer");
  const QString changed = QStringLiteral("edit.otio* \u2014 MURTimeline Viewer");
  DragBar(u"A", 20);
  EXPECT_EQ(window->windowTitle(), changed);
  TriggerNamed("undo");
  EXPECT_EQ(window->windowTitle(), clean);
  TriggerNamed("redo");
  Trigger(QStringLiteral("Save"));
  EXPECT_EQ(window->windowTitle(), clean);
  TriggerNamed("undo");
  EXPECT_EQ(window->windowTitle(), changed) << "the file has what was undone";
}

TEST_F(MovingBars, SavesFramesAndGivesTheFileBackWhenUndone) {
  const QByteArray original = Read(PathOf(QStringLiteral("edit.otio")));
  DragBar(u"A", 21);
  Trigger(QStringLiteral("Save"));
  EXPECT_EQ(TakeMessage(), QString());
  const QByteArray saved = Read(PathOf(QStringLiteral("edit.otio")));
  EXPECT_NE(saved, original);
  EXPECT_EQ(saved.size(), original.size()) << "two numbers changed";
  window->OpenFile(PathOf(QStringLiteral("edit.otio")));
  EXPECT_NEAR(StartOf(u"A"), 4.08, kFrame / 10) << "2.1 seconds are 52 frames and a half, rounded";
}

TEST_F(MovingBars, RefusesToSaveAnOverlapAndLeavesTheFileAlone) {
  const QByteArray original = Read(PathOf(QStringLiteral("edit.otio")));
  DragBar(u"A", 60);
  Trigger(QStringLiteral("Save"));
  EXPECT_TRUE(TakeMessage().startsWith(
      QStringLiteral("edit.otio cannot be saved.\n\n\"B\" would overlap \"A\". Nothing was written.")));
  EXPECT_EQ(Read(PathOf(QStringLiteral("edit.otio"))), original);
  EXPECT_TRUE(window->IsModified());
}

TEST_F(MovingBars, AsksBeforeAnotherFileTakesTheirPlace) {
  DragBar(u"A", 20);
  window->OpenFile(WriteTwoCues());
  EXPECT_EQ(Answer(QMessageBox::Cancel), QStringLiteral("Save the changes to edit.otio?"));
  EXPECT_TRUE(Bar(u"A"));
  window->OpenFile(WriteTwoCues());
  Answer(QMessageBox::Discard);
  EXPECT_TRUE(Bar(u"First"));
}

TEST_F(MovingBars, AreStillAskedAboutWhenTheOtherFileCannotBeRead) {
  DragBar(u"A", 20);
  window->OpenFile(PathOf(QStringLiteral("none.otio")));
  Answer(QMessageBox::Discard);
  EXPECT_TRUE(TakeMessage().startsWith(QStringLiteral("none.otio cannot be read.")));
  window->close();
  EXPECT_TRUE(window->isVisible());
  Answer(QMessageBox::Discard);
  EXPECT_FALSE(window->isVisible());
}

TEST_F(MovingBars, AreAskedAboutWhenTheyHappenWhileAnotherFileLoads) {
  bool moved = false;
  QObject::connect(&window->Loading(), &LoadSession::Progressed, window.get(), [&] {
    if (!std::exchange(moved, true)) Object(u"A")->SetWorldTimeT0(At(7));
  });
  window->OpenFile(WriteManyCues());
  EXPECT_EQ(Answer(QMessageBox::Cancel), QStringLiteral("Save the changes to edit.otio?"));
  EXPECT_TRUE(Bar(u"A"));
  EXPECT_TRUE(window->IsModified());
}

TEST_F(MovingBars, SavesWhenAskedWhileClosing) {
  const QByteArray original = Read(PathOf(QStringLiteral("edit.otio")));
  DragBar(u"A", 20);
  window->close();
  EXPECT_TRUE(window->isVisible());
  Answer(QMessageBox::Save);
  EXPECT_FALSE(window->isVisible());
  EXPECT_NE(Read(PathOf(QStringLiteral("edit.otio"))), original);
}

TEST_F(MovingBars, StayOpenWhenSavingFailsWhileClosing) {
  DragBar(u"A", 60);
  window->close();
  Answer(QMessageBox::Save);
  EXPECT_TRUE(window->isVisible());
  TakeMessage();
}

TEST_F(MovingBars, AsksBeforePuttingOverWhatAnotherProgramWrote) {
  DragBar(u"A", 20);
  Write(QStringLiteral("edit.otio"), "other");
  Trigger(QStringLiteral("Save"));
  EXPECT_EQ(Answer(QMessageBox::Cancel), QStringLiteral("edit.otio was changed by another program."));
  EXPECT_EQ(Read(PathOf(QStringLiteral("edit.otio"))), "other");
  Trigger(QStringLiteral("Save"));
  Answer(QMessageBox::Save);
  EXPECT_NE(Read(PathOf(QStringLiteral("edit.otio"))), "other");
}

TEST_F(MovingBars, SaveAsLeavesTheFirstFileAlone) {
  const QByteArray original = Read(PathOf(QStringLiteral("edit.otio")));
  DragBar(u"A", 20);
  EXPECT_TRUE(window->SaveTo(PathOf(QStringLiteral("other.otio"))));
  EXPECT_EQ(Read(PathOf(QStringLiteral("edit.otio"))), original);
  EXPECT_NE(Read(PathOf(QStringLiteral("other.otio"))), original);
  EXPECT_EQ(window->windowTitle(), QStringLiteral("other.otio \u2014 MURTimeline Viewer"));
}

TEST_F(MovingBars, SaysThatAFileCannotBeWritten) {
  DragBar(u"A", 20);
  EXPECT_FALSE(window->SaveTo(PathOf(QStringLiteral("none/edit.otio"))));
  EXPECT_TRUE(TakeMessage().startsWith(QStringLiteral("edit.otio cannot be saved.\n\ncannot write ")));
  EXPECT_TRUE(window->IsModified());
}

}  // namespace
}  // namespace mur::viewer::test
