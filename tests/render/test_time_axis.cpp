#include <limits>

#include <gtest/gtest.h>

#include "tests/support/print.h"
#include "tests/support/render_fixture.h"

namespace mur::test {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

TEST(CursorTime, PlacesACursorFivePixelsWideAndAsHighAsTheCanvas) {
  const AttachedControl c;
  c->SetCursorTime(At(100));
  const auto cursor = c.Item(u"The Cursor");
  EXPECT_EQ(cursor->Left(), 97.5f);
  EXPECT_EQ(cursor->Top(), 0.0f);
  EXPECT_EQ(cursor->Width(), 5.0f);
  EXPECT_EQ(cursor->Height(), 200.0f);
}

TEST(CursorTime, RaisesTheChangeOnceWithTheNewValue) {
  const AttachedControl c;
  std::vector<Date> heard;
  const auto connection = c->CursorTimeChange.Connect([&](Date time) { heard.push_back(time); });
  c->SetCursorTime(At(7));
  c->SetCursorTime(At(7));
  c->SetCursorTime(At(6));
  EXPECT_EQ(heard, (std::vector{At(7), At(6)}));
}

TEST(CursorTime, IsStoredAndPassedOnWithoutAnEventWhileThereIsNoCursorItem) {
  const BareControl c;
  Counter raised(c->CursorTimeChange);
  c->SetCursorTime(At(7));
  EXPECT_EQ(c->CursorTime(), At(7));
  EXPECT_EQ(c.Scroller().CursorTime(), At(7));
  EXPECT_EQ(raised.Take(), 0);
}

TEST(CursorTime, IsNotChangedByWhatIsNoNumber) {
  const AttachedControl c;
  c->SetCursorTime(Date::Unchecked(kNaN));
  EXPECT_EQ(c->CursorTime(), kNoon);
}

TEST(CursorTime, StaysFiniteOnTheCanvasWhateverItIs) {
  const AttachedControl c;
  for (const double days : {kInfinity, -kInfinity, 1e300}) {
    c->SetCursorTime(Date::Unchecked(days));
    EXPECT_EQ(c->CursorTime(), Date::Unchecked(days));
    EXPECT_TRUE(std::isfinite(c.Item(u"The Cursor")->Left()));
  }
}

TEST(CursorTime, FollowsTheTimeScaleWithOneEvent) {
  const AttachedControl c;
  Counter raised(c->CursorTimeChange);
  c.Scroller().SetCursorTime(At(30));
  c.Scroller().CursorTimeChanging.Raise();
  c.Scroller().CursorTimeChanged.Raise();
  EXPECT_EQ(c->CursorTime(), At(30));
  EXPECT_EQ(c.Item(u"The Cursor")->Left(), 27.5f);
  EXPECT_EQ(raised.Take(), 1);
}

TEST(CursorTime, IsStoredWhenTheTimeScaleFailsAndNothingElseHappens) {
  RecordingCompanions recording;
  const AttachedControl c(recording.All());
  Counter raised(c->CursorTimeChange);
  recording.log.Take();
  recording.log.failing = "Scroller.CursorTime";
  c->SetCursorTime(At(7));
  EXPECT_EQ(c->CursorTime(), At(7));
  EXPECT_EQ(recording.log.Take(), "Scroller.CursorTime = #2000-01-01 12:00:07#");
  EXPECT_EQ(raised.Take(), 0);
}

TEST(CursorTime, EndsQuietlyWhenTheCanvasHasNoSingleHeight) {
  RecordingCompanions recording;
  const AttachedControl c(recording.All());
  Counter raised(c->CursorTimeChange);
  recording.canvas->height = 1e300;
  c->SetCursorTime(At(7));
  EXPECT_EQ(raised.Take(), 0);
}

TEST(CursorTime, SurvivesListenersThatThrow) {
  const AttachedControl c;
  const auto thrower = c->CursorTimeChange.Connect([](Date) { throw 42; });
  Counter raised(c->CursorTimeChange);
  EXPECT_NO_THROW(c->SetCursorTime(At(7)));
  EXPECT_NO_THROW(c->SetDuration(5));
  EXPECT_EQ(raised.Take(), 2);
}

TEST(CursorTime, EndsARunawayOfListenersWhoMoveItFurther) {
  const AttachedControl c;
  const auto runner =
      c->CursorTimeChange.Connect([&](Date time) { c->SetCursorTime(Date::Unchecked(time.Days() + 1)); });
  EXPECT_NO_THROW(c->SetCursorTime(At(7)));
  EXPECT_GT(c->CursorTime(), At(7));
}

TEST(XToWorldTime, IsTheStartAtZeroAndTheEndAtTheCanvassWidth) {
  const AttachedControl c;
  EXPECT_EQ(c->XToWorldTime(0), kNoon);
  EXPECT_EQ(c->XToWorldTime(1000), Date::Unchecked(3155890600.0 / 86400));
  EXPECT_EQ(c->XToWorldTime(-500), Date::Unchecked(3155889100.0 / 86400));
}

TEST(XToWorldTime, IsTheStartForEveryXOfAnEmptyRange) {
  const AttachedControl c;
  c->SetDuration(0);
  EXPECT_EQ(c->XToWorldTime(123), kNoon);
}

TEST(XToWorldTime, IsDateZeroBeforeAnyRepaintAndBeyondTheDateRange) {
  const BareControl bare;
  EXPECT_EQ(bare->XToWorldTime(5), Date());
  const AttachedControl c;
  EXPECT_EQ(c->XToWorldTime(3e38f), Date());
  EXPECT_EQ(c->XToWorldTime(-3e38f), Date());
}

TEST(XToWorldTime, IsDateZeroWhenTheMapperFails) {
  RecordingCompanions recording;
  const AttachedControl c(recording.All());
  recording.log.failing = "Mapper.XToSeconds";
  EXPECT_EQ(c->XToWorldTime(5), Date());
}

TEST(XToWorldTime, OverflowsForATimeThatIsNoNumber) {
  RecordingCompanions recording;
  const AttachedControl c(recording.All());
  for (const double seconds : {kNaN, kInfinity}) {
    recording.mapper->given = seconds;
    try {
      c->XToWorldTime(5);
      ADD_FAILURE() << "no overflow";
    } catch (const AutomationError& error) {
      EXPECT_EQ(error.Code(), ErrorCode::Overflow);
    }
  }
}

TEST(Repaint, SpansAndMovesEachBarAndThenTheCursor) {
  RecordingCompanions recording;
  const AttachedControl c(recording.All());
  const auto scalar = c.Add(murtlotScalar, u"S");
  scalar->SetWorldTimeT0(At(100));
  scalar->SetDuration(50);
  c->SetAutoObjectCaption(2, etlctOffset);
  recording.log.Take();
  recording.canvas->Repaint.Raise();
  EXPECT_EQ(recording.log.Take(),
            "Mapper.SetTimeRange(3155889600, 3155890600); Mapper.SetPixelRange(0, 1000); "
            "Item.Move S (100, -, 50, -); "
            "Item.Caption S (2) = 'Offset: 0s style 4 at 25'; "
            "Scroller.CursorTime = #2000-01-01 12:00:00#; Item.Move The Cursor (-2.5, 0, 5, 200)");
}

TEST(Repaint, PlacesAMovedScalarsBarWhichItsOwnReportDoesNot) {
  const AttachedControl c;
  const auto scalar = c.Add(murtlotScalar, u"S");
  scalar->SetWorldTimeT0(At(100));
  EXPECT_EQ(c.Item(u"S")->Left(), 0.0f);
  c->SetDuration(1000);
  EXPECT_EQ(c.Item(u"S")->Left(), 100.0f);
}

TEST(Repaint, PassesOverObjectsWithoutABar) {
  const AttachedControl c;
  c.Add(murtlotScalar, u"S");
  c.Add(murtlotScalar, u"T")->SetWorldTimeT0(At(10));
  c.Canvas().RemoveGraphic(u"S");
  c->SetDuration(1000);
  EXPECT_FALSE(c.Item(u"S"));
  EXPECT_EQ(c.Item(u"T")->Left(), 10.0f);
}

TEST(Repaint, TakesAnyTimeAndDuration) {
  const AttachedControl c;
  const auto scalar = c.Add(murtlotScalar, u"S");
  for (const double value : {0.0, -1.0, 1e308, -1e308, kInfinity, -kInfinity, kNaN}) {
    scalar->SetDuration(value);
    scalar->SetWorldTimeT0(Date::Unchecked(value));
    c->SetWorldTimeT0(Date::Unchecked(value));
    c->SetDuration(value);
    EXPECT_FALSE(std::isnan(c.Item(u"S")->Left())) << value;
  }
}

}  // namespace
}  // namespace mur::test
