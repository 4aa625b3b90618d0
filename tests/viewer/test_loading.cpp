#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <murtimeline/model/timeline_media.h>
#include <murtimeline/model/timeline_owner.h>

#include "tests/support/event_recorder.h"
#include "viewer/loading.h"
#include "viewer/readers/file_kind.h"
#include "viewer/readers/unique_keys.h"

namespace mur::viewer::test {
namespace {

QString Data(const char* NameA) {
  return QStringLiteral(MUR_VIEWER_TEST_DATA "/") + QLatin1String(NameA);
}

// A file that is gone with the test.
class Scratch {
 public:
  explicit Scratch(const QByteArray& BytesA, const char* NameA = "file") : mPath(mFolder.filePath(NameA)) {
    QFile file(mPath);
    file.open(QIODevice::WriteOnly);
    file.write(BytesA);
  }
  const QString& Path() const { return mPath; }

 private:
  QTemporaryDir mFolder;
  QString mPath;
};

TEST(LoadFile, FillsTheTimelineWithMembersInTheirGroups) {
  const OwnedTimeline timeline;
  const LoadedFile file = LoadFile(Data("edit.otio"), *timeline);
  EXPECT_EQ(file.rate, 24);
  EXPECT_EQ(timeline->Tag(), u"Small edit");
  EXPECT_EQ(timeline->Duration(), 5);
  EXPECT_EQ(timeline->WorldTimeT0(), Date::Unchecked(36526 + 1.0 / 24));
  EXPECT_EQ(timeline->Count(), 7);
  EXPECT_EQ(timeline->NTrackKeys(), 2);
  EXPECT_EQ(timeline->TrackKey(1), u"Track 1 (Video)");
  EXPECT_EQ(timeline->ItemByKey(u"Track 1 (Video)")->Count(), 3);
}

TEST(LoadFile, MakesClipsLockedChildrenAtTheirPlace) {
  const OwnedTimeline timeline;
  LoadFile(Data("edit.otio"), *timeline);
  const auto clip = timeline->ItemByKey(u"shot \u00c9 (2)");
  ASSERT_TRUE(clip);
  EXPECT_EQ(clip->Parent()->Key(), u"Track 1 (Video)");
  EXPECT_TRUE(clip->LockedToParent());
  EXPECT_NEAR(clip->offset(), 2, 1e-6);
  EXPECT_EQ(clip->WorldTimeT0(), Date::Unchecked(36526 + 3602 / 86400.0));
}

TEST(LoadFile, KeepsTheUsedSectionOfAFile) {
  const OwnedTimeline timeline;
  LoadFile(Data("edit.otio"), *timeline);
  const auto object = timeline->ItemByKey(u"Shot \u00e9");
  const auto* clip = dynamic_cast<const CMURTimelineMedia*>(object.Get());
  ASSERT_NE(clip, nullptr);
  EXPECT_TRUE(clip->UseClipping());
  EXPECT_EQ(clip->CutIn(), 1);
  EXPECT_EQ(clip->CutOut(), 3);
  EXPECT_EQ(clip->MediaDuration(), 10);
  EXPECT_EQ(clip->MediaFilename(), u"file:///a.mov");
}

TEST(LoadFile, TitlesAFileThatHasNoTitleAfterItsName) {
  const OwnedTimeline timeline;
  EXPECT_EQ(LoadFile(Data("film.srt"), *timeline).title, u"film");
  EXPECT_EQ(timeline->Tag(), u"film");
}

TEST(LoadFile, ReplacesWhatWasThere) {
  const OwnedTimeline timeline;
  LoadFile(Data("edit.otio"), *timeline);
  LoadFile(Data("film.vtt"), *timeline);
  EXPECT_EQ(timeline->Count(), 3);
  EXPECT_EQ(timeline->NTrackKeys(), 1);
}

TEST(LoadFile, LeavesTheTimelineAloneWhenTheFileIsDamaged) {
  const OwnedTimeline timeline;
  LoadFile(Data("film.vtt"), *timeline);
  mur::test::EventRecorder events(*timeline);
  const Scratch damaged("{\"OTIO_SCHEMA\":", "a.otio");
  EXPECT_THROW(LoadFile(damaged.Path(), *timeline), ReadError);
  EXPECT_THROW(LoadFile(Data("nothing.srt"), *timeline), ReadError);
  EXPECT_THROW(LoadFile(QStringLiteral(MUR_VIEWER_TEST_DATA), *timeline), ReadError);
  EXPECT_EQ(events.Take(), "");
  EXPECT_EQ(timeline->Count(), 3);
}

TEST(LoadFile, ReportsProgressThatOnlyGrows) {
  const OwnedTimeline timeline;
  std::vector<double> steps;
  LoadFile(Data("slices.json"), *timeline, [&](double done) {
    steps.push_back(done);
    return true;
  });
  EXPECT_GE(steps.size(), 5U);
  EXPECT_TRUE(std::is_sorted(steps.begin(), steps.end()));
  EXPECT_LE(steps.back(), 1);
}

TEST(LoadFile, StopsWhenItIsCancelled) {
  const OwnedTimeline timeline;
  for (const double stop : {0.0, 0.3, 0.7}) {
    EXPECT_THROW(LoadFile(Data("slices.json"), *timeline, [&](double done) { return done < stop; }),
                 LoadCancelled);
    EXPECT_EQ(timeline->Count(), 0);
  }
}

TEST(DetectFileKind, GoesByTheExtensionFirst) {
  EXPECT_EQ(DetectFileKind(QStringLiteral("a.OTIO"), "WEBVTT"), FileKind::OpenTimelineIO);
  EXPECT_EQ(DetectFileKind(QStringLiteral("a.srt"), "WEBVTT"), FileKind::SubRip);
  EXPECT_EQ(DetectFileKind(QStringLiteral("a.vtt"), "{}"), FileKind::WebVtt);
}

TEST(DetectFileKind, GoesByTheContentElsewhere) {
  EXPECT_EQ(DetectFileKind(QStringLiteral("a.txt"), "\xEF\xBB\xBFWEBVTT\n"), FileKind::WebVtt);
  EXPECT_EQ(DetectFileKind(QStringLiteral("a.json"), " [ {"), FileKind::ChromeTrace);
  EXPECT_EQ(DetectFileKind(QStringLiteral("a.json"), R"({"OTIO_SCHEMA": 1)"), FileKind::OpenTimelineIO);
  EXPECT_EQ(DetectFileKind(QStringLiteral("a"), "1\n00:00:01,000 --> 00:00:02,000\n"), FileKind::SubRip);
  EXPECT_EQ(DetectFileKind(QStringLiteral("a.png"), "\x89PNG"), std::nullopt);
}

TEST(UniqueKeys, NumbersNamesThatDifferInLetterCaseOnly) {
  UniqueKeys keys;
  EXPECT_EQ(keys.Take(u"Shot"), u"Shot");
  EXPECT_EQ(keys.Take(u"SHOT"), u"SHOT (2)");
  EXPECT_EQ(keys.Take(u"shot (3)"), u"shot (3)");
  EXPECT_EQ(keys.Take(u"Shot"), u"Shot (4)");
  EXPECT_EQ(keys.Take(u"  two\n lines "), u"two lines");
}

TEST(UniqueKeys, NeverGivesTheCursorsKeyAway) {
  UniqueKeys keys;
  EXPECT_EQ(keys.Take(u"the cursor"), u"the cursor (2)");
}

}  // namespace
}  // namespace mur::viewer::test
