#include <gtest/gtest.h>

#include <murtimeline/model/timeline_owner.h>

#include "viewer/exact_table.h"
#include "viewer/loading.h"

namespace mur::viewer::test {
namespace {

std::string Table(const CMURTimeline& TimelineA, double RateA) {
  std::string text;
  WriteExactTable(TimelineA, RateA, [&](const std::string& line) { text += line + "\n"; });
  return text;
}

TEST(ExactTable, GivesSecondsInFullAndFramesAtTheRate) {
  const OwnedTimeline timeline;
  const auto object = timeline->Add(murtlotScalar, u"A");
  object->SetDuration(7 / 24.0);
  object->SetWorldTimeT0(Date::Unchecked(36526 + 3600.5 / 86400));
  EXPECT_EQ(Table(*timeline, 24),
            "Key\tKind\tCutIn (s)\tCutIn (frames)\tDuration (s)\tDuration (frames)\tWorldTimeT0\n"
            "A\tscalar\t-\t-\t0.2916666666666667\t7\t2000-01-01 01:00:00.500000\n");
}

TEST(ExactTable, GivesTheCutInOfClips) {
  const OwnedTimeline timeline;
  const LoadedFile file = LoadFile(QStringLiteral(MUR_VIEWER_TEST_DATA "/edit.otio"), *timeline);
  EXPECT_NE(Table(*timeline, file.rate).find("Hum\tmedia\t2.5\t60\t0.5\t12\t2000-01-01 01:00:01.000000\n"),
            std::string::npos);
}

TEST(ExactTable, ShowsPartsOfFramesAndNoFramesWithoutARate) {
  const OwnedTimeline timeline;
  timeline->Add(murtlotScalar, u"A")->SetDuration(0.02);
  EXPECT_NE(Table(*timeline, 25).find("\t0.02\t0.500000\t"), std::string::npos);
  EXPECT_NE(Table(*timeline, 0).find("\t0.02\t-\t"), std::string::npos);
}

TEST(ExactWorldTime, IsRightToTheMicrosecond) {
  EXPECT_EQ(ExactWorldTime(Date()), "1899-12-30 00:00:00.000000");
  EXPECT_EQ(ExactWorldTime(Date::Unchecked(4e-6 / 86400)), "1899-12-30 00:00:00.000004");
  EXPECT_EQ(ExactWorldTime(Date::Unchecked(36525.9999999999999)), "2000-01-01 00:00:00.000000");
  EXPECT_EQ(ExactWorldTime(Date::Unchecked(-0.25)), "1899-12-29 18:00:00.000000");
}

}  // namespace
}  // namespace mur::viewer::test
