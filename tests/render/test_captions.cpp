#include <gtest/gtest.h>

#include "tests/support/foreign_object.h"
#include "tests/support/print.h"
#include "tests/support/render_fixture.h"

namespace mur::test {
namespace {

// A child at 12:00:10 of 90 seconds, its group at noon.
struct Captioned {
  Captioned() {
    group->SetWorldTimeT0(kNoon);
    child->SetWorldTimeT0(At(10));
    child->SetDuration(90);
  }

  // What the site 1 of an item shows after a repaint.
  String Shown(std::int32_t TypeA, StringView KeyA = u"S") {
    c->SetAutoObjectCaption(1, TypeA);
    c->SetDuration(1000);
    return c.Item(KeyA)->Caption(1);
  }

  RecordingCompanions companions;
  AttachedControl c{companions.All()};
  Ref<IMURTimelineObject> group = c.Add(murtlotGroup, u"G");
  Ref<IMURTimelineObject> child = c.AddBelow(group, murtlotScalar, u"S");
};

TEST(Caption, CountsChildrenInThePluralAlwaysOnPurpose) {
  Captioned s;
  EXPECT_EQ(s.Shown(etlctNChildren), u"0 children");
  EXPECT_EQ(s.Shown(etlctNChildren, u"G"), u"1 children");
  s.c.AddBelow(s.group, murtlotScalar, u"S2");
  s.c.AddBelow(s.group, murtlotScalar, u"S3");
  EXPECT_EQ(s.Shown(etlctNChildren, u"G"), u"3 children");
}

TEST(Caption, NamesTheParentByItsTagUntrimmedElseByItsKey) {
  Captioned s;
  EXPECT_EQ(s.Shown(etlctParent, u"G"), u"## No Parent ##");
  EXPECT_EQ(s.Shown(etlctParent), u"G");
  s.group->SetTag(u"  ");
  EXPECT_EQ(s.Shown(etlctParent), u"G");
  s.group->SetTag(u" t ");
  EXPECT_EQ(s.Shown(etlctParent), u" t ");
}

TEST(Caption, WritesTimesWithTheFormatString) {
  Captioned s;
  EXPECT_EQ(s.Shown(etlctWorldTimeT0), u"12:00:10");
  EXPECT_EQ(s.Shown(etlctWorldTimeT1), u"12:01:40");
  s.c->SetFormatString(u"h.nn");
  EXPECT_EQ(s.Shown(etlctWorldTimeT0), u"12.00");
}

TEST(Caption, WritesTimesByTheServiceWithoutAFormatString) {
  Captioned s;
  s.c->SetFormatString(u"");
  s.c->SetFormatStyle(7);
  EXPECT_EQ(s.Shown(etlctWorldTimeT0, u"G"), u"3155889600s style 7 at 25");
}

TEST(Caption, WritesDurationsByTheServiceWithTheirLabels) {
  Captioned s;
  EXPECT_EQ(s.Shown(etlctDuration), u"Duration: 90s style 4 at 25");
  EXPECT_EQ(s.Shown(etlctOffset, u"G"), u"Offset: 0s style 4 at 25");
  s.c->SetDurationFormatStyle(2);
  EXPECT_EQ(s.Shown(etlctDuration), u"Duration: 90s style 2 at 25");
}

TEST(Caption, WritesDurationsAsNumbersWithTheirFormatString) {
  Captioned s;
  s.c->SetDurationFormatString(u"0.0");
  EXPECT_EQ(s.Shown(etlctDuration), u"Duration: 90.0");
}

TEST(Caption, SaysWhetherAnObjectIsLocked) {
  Captioned s;
  EXPECT_EQ(s.Shown(etlctLockedToParent), u"");
  s.child->SetLockedToParent(true);
  EXPECT_EQ(s.Shown(etlctLockedToParent), u"Locked To Parent");
}

TEST(Caption, WritesTagAndTypes) {
  Captioned s;
  s.child->SetTag(u"tag");
  EXPECT_EQ(s.Shown(etlctTag), u"tag");
  EXPECT_EQ(s.Shown(etlctObjectType), u"ObjectType: 1");
  EXPECT_EQ(s.Shown(etlctObjectType, u"G"), u"ObjectType: 0");
  EXPECT_EQ(s.Shown(etlctGroupType, u"G"), u"GroupType: 4");
}

TEST(Caption, IsLeftAsItIsByTheKindsWithoutTextOnPurpose) {
  Captioned s;
  s.Shown(etlctTag);
  s.c.Item(u"S")->SetCaption(1, u"by hand");
  for (const std::int32_t type : {0, 11, 12, -1, 2147483647}) EXPECT_EQ(s.Shown(type), u"by hand");
}

TEST(Caption, OfEverySiteIsRefreshedByAnyOfTheNamedReports) {
  Captioned s;
  for (int site = 1; site <= 9; ++site) s.c->SetAutoObjectCaption(site, etlctTag);
  s.child->SetTag(u"new");
  for (int site = 1; site <= 9; ++site) EXPECT_EQ(s.c.Item(u"S")->Caption(site), u"new") << site;
}

TEST(Caption, KeepsItsLabelWhereTheServiceFails) {
  Captioned s;
  s.companions.log.failing = "TimeText.FormatSeconds";
  EXPECT_EQ(s.Shown(etlctDuration), u"Duration: ");
}

TEST(Caption, IsEmptyForAnEndBeyondTheDateRange) {
  Captioned s;
  s.child->SetDuration(1e30);
  EXPECT_EQ(s.Shown(etlctWorldTimeT1), u"");
  s.child->SetWorldTimeT0(Date::Unchecked(1e9));
  EXPECT_EQ(s.Shown(etlctWorldTimeT0), u"");
}

TEST(Caption, OfOneSiteDoesNotKeepTheOthersFromBeingWritten) {
  Captioned s;
  const auto hostile = Make<HostileObject>();
  s.c.timeline->Insert(hostile, u"H");
  s.c->SetAutoObjectCaption(1, etlctNChildren);
  s.c->SetAutoObjectCaption(9, etlctObjectType);
  hostile->failing = "Count";
  s.c->SetDuration(1000);
  EXPECT_EQ(s.c.Item(u"H")->Caption(1), u"");
  EXPECT_EQ(s.c.Item(u"H")->Caption(9), u"ObjectType: 0");
}

}  // namespace
}  // namespace mur::test
