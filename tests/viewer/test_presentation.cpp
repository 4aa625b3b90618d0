#include <gtest/gtest.h>

#include <murtimeline/model/timeline_owner.h>

#include "viewer/event_log.h"
#include "viewer/headless_control.h"
#include "viewer/palette.h"
#include "viewer/presentation.h"

namespace mur::viewer::test {
namespace {

class Presentation : public testing::Test {
 protected:
  LoadedFile Load(const char* NameA) {
    mControl.Control().SetTimeline(mTimeline.Get());
    return LoadFile(QStringLiteral(MUR_VIEWER_TEST_DATA "/") + QLatin1String(NameA), *mTimeline);
  }
  LoadedFile Show(const char* NameA, const VisibleRange& RangeA = {}) {
    LoadedFile file = Load(NameA);
    PresentFile(mControl.Control(), file, RangeA);
    return file;
  }
  Ref<ICanvasItem> Bar(StringView KeyA) {
    return mControl.Control().Collaborators().canvas->GraphicByKey(KeyA);
  }

  OwnedTimeline mTimeline;
  HeadlessControl mControl{QSize(1020, 400)};
};

TEST_F(Presentation, ColoursBarsByWhatTheyAre) {
  Show("edit.otio");
  EXPECT_EQ(Bar(u"Track 1 (Video)")->BackColor(), kTrackColors.back);
  EXPECT_EQ(Bar(u"A1")->BackColor(), kAudioTrackColors.back);
  EXPECT_EQ(Bar(u"Nest")->BackColor(), kNestedColors.back);
  EXPECT_EQ(Bar(u"Shot \u00e9")->BackColor(), kVideoColors.back);
  EXPECT_EQ(Bar(u"Dissolve")->BackColor(), kTransitionColors.back);
  EXPECT_EQ(Bar(u"Hum")->BackColor(), kAudioColors.back);
}

TEST_F(Presentation, ColoursSubtitles) {
  Show("film.srt");
  EXPECT_EQ(Bar(u"no number")->BackColor(), kSubtitleColors.back);
  EXPECT_EQ(Bar(u"no number")->ForeColor(), kSubtitleColors.fore);
}

TEST_F(Presentation, ShowsTheWholeFileWithAMargin) {
  Show("edit.otio");
  const Date start = mTimeline->WorldTimeT0();
  EXPECT_EQ(mControl.Control().WorldTimeT0(), AddSeconds(start, -0.05));
  EXPECT_DOUBLE_EQ(mControl.Control().Duration(), 5.1);
  EXPECT_NEAR(Bar(u"Track 1 (Video)")->Left(), 10, 0.01);
  EXPECT_NEAR(Bar(u"Track 1 (Video)")->Width(), 1000, 0.01);
}

TEST_F(Presentation, ShowsTheRangeThatIsAskedFor) {
  Show("edit.otio", {ClockTime{3601, 0}, 2.0});
  EXPECT_EQ(mControl.Control().WorldTimeT0(), Date::Unchecked(36526 + 3601 / 86400.0));
  EXPECT_EQ(mControl.Control().Duration(), 2);
}

TEST_F(Presentation, ShowsTheRestOfTheFileWhereOnlyTheStartIsGiven) {
  Show("edit.otio", {SecondsFromStart{4}, {}});
  EXPECT_NEAR(mControl.Control().Duration(), 1, 1e-5);
}

TEST_F(Presentation, PutsEachLevelOfATrackOnItsRow) {
  Show("edit.otio");
  const float height = mControl.Control().BarHeight();
  EXPECT_EQ(Bar(u"Track 1 (Video)")->Height(), height);
  EXPECT_EQ(Bar(u"Dissolve")->Top(), height + 2);
  EXPECT_EQ(Bar(u"A1")->Top(), 2 * height + 2 + 8);
  EXPECT_EQ(Bar(u"Hum")->Top(), Bar(u"A1")->Top() + 2 * (height + 2));
}

TEST_F(Presentation, CaptionsBarsWithTheirTags) {
  Show("film.srt");
  EXPECT_EQ(Bar(u"no number")->Caption(5), u"no number");
}

TEST_F(Presentation, PutsTheFilesMarkersOnTheScale) {
  Show("edit.otio");
  const auto scale = mControl.Control().Collaborators().scroller;
  ASSERT_EQ(scale->MarkersCount(), 1);
  EXPECT_EQ(scale->Marker(1)->Caption(), u"Look");
  EXPECT_EQ(scale->Marker(1)->WorldTime(), Date::Unchecked(36526 + 3600.5 / 86400.0));
}

TEST_F(Presentation, ReplacesMarkersAndBarsOfTheFileBefore) {
  Show("edit.otio");
  Show("film.vtt");
  EXPECT_EQ(mControl.Control().Collaborators().scroller->MarkersCount(), 0);
  EXPECT_EQ(mControl.Control().Collaborators().canvas->GraphicCount(), 4U);
}

TEST_F(Presentation, ShowsAFileWithoutAnyObject) {
  const OwnedTimeline empty;
  mControl.Control().SetTimeline(empty.Get());
  PresentFile(mControl.Control(), {}, {});
  EXPECT_GT(mControl.Control().Duration(), 0);
}

TEST_F(Presentation, LogsEventsInTheOrderInWhichTheyAreRaised) {
  FrozenClock clock(Date::Unchecked(36526));
  std::string lines;
  const EventLog log(*mTimeline, mControl.Control(), [&](const std::string& line) { lines += line + "\n"; });
  mControl.Control().SetTimeline(mTimeline.Get());
  mTimeline->Add(murtlotScalar, u"A")->SetDuration(1.5);
  mTimeline->Clear();
  EXPECT_EQ(lines,
            "control CursorTimeChange 2000-01-01 00:00:00.000000\n"
            "timeline TLObjectAdded \"A\"\n"
            "timeline TLObjectPropertyChanged \"A\" Duration = 1.5\n"
            "timeline Clearing\n"
            "timeline Cleared\n"
            "control CursorTimeChange 2000-01-01 00:00:00.000000\n");
}

}  // namespace
}  // namespace mur::viewer::test
