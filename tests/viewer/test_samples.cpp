#include <gtest/gtest.h>

#include <murtimeline/model/timeline_owner.h>

#include "viewer/loading.h"
#include "viewer/readers/document.h"

namespace mur::viewer::test {
namespace {

TEST(Samples, HoldAnEditOfEightTracksWithATitleSequence) {
  const OwnedTimeline timeline;
  const LoadedFile file = LoadFile(QStringLiteral(MUR_VIEWER_SAMPLES "/feature_film.otio"), *timeline);
  EXPECT_EQ(file.rate, 25);
  EXPECT_EQ(timeline->NTrackKeys(), 8);
  EXPECT_EQ(timeline->TrackKey(1), u"S2") << "subtitles lie on top";
  EXPECT_EQ(timeline->ItemByKey(u"S2")->GroupType(), kSubtitleTrackGroup);
  EXPECT_EQ(timeline->ItemByKey(u"S1")->Count() + timeline->ItemByKey(u"S2")->Count(), 20);
  EXPECT_EQ(file.markers.size(), 5U);
  EXPECT_TRUE(file.notes.empty());
  EXPECT_EQ(timeline->ItemByKey(u"Title Sequence")->Count(), 2);
  EXPECT_GT(timeline->Duration(), 180);
  EXPECT_LT(timeline->Duration(), 240);
}

TEST(Samples, HoldOverlappingSubtitles) {
  const OwnedTimeline timeline;
  LoadFile(QStringLiteral(MUR_VIEWER_SAMPLES "/feature_film.srt"), *timeline);
  EXPECT_EQ(timeline->NTrackKeys(), 2);
  EXPECT_EQ(timeline->Count(), 22);
}

}  // namespace
}  // namespace mur::viewer::test
