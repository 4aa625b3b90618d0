#include <gtest/gtest.h>

#include <murtimeline/automation/error.h>
#include <murtimeline/automation/regional.h>
#include <murtimeline/model/text_dump.h>
#include <murtimeline/model/timeline.h>

#include "tests/support/foreign_object.h"
#include "tests/support/model_objects.h"
#include "tests/support/print.h"

namespace mur::test {
namespace {

ErrorCode ErrorOf(const IMURTimelineObject& ObjectA) {
  try {
    ObjectA.AsString(u"");
  } catch (const AutomationError& error) {
    return error.Code();
  }
  return ErrorCode{};
}

class Dump : public testing::Test {
 protected:
  ModelObjects objects;
};

TEST_F(Dump, OfAFreshScalarIndentsEveryLine) {
  EXPECT_EQ(ToUtf8(objects.Scalar(u"")->AsString(u"  ")),
            "  CMURTimelineScalar:   (Tag: ) - Scalar Data\r\n"
            "    Parent         : ## No Parent ##\r\n"
            "    Duration       : 0.000\r\n"
            "    WorldtimeT0    : 12:00:00 AM\r\n"
            "    Offset         : 0.000\r\n"
            "    LockedToParent : False\r\n");
}

TEST_F(Dump, OfAScalarShowsParentTimesAndLock) {
  const auto scalar = objects.Scalar(u"");
  objects.Group(u"G")->Add(scalar, u"S");
  scalar->SetTag(u"a tag");
  scalar->SetDuration(1234567.8905);
  scalar->SetWorldTimeT0(DateOf(1899, 12, 31, 6));
  scalar->SetLockedToParent(true);
  EXPECT_EQ(ToUtf8(scalar->AsString(u"")),
            "CMURTimelineScalar: S  (Tag: a tag) - Scalar Data\r\n"
            "  Parent         : G\r\n"
            "  Duration       : 1234567.891\r\n"
            "  WorldtimeT0    : 12/31/1899 6:00:00 AM\r\n"
            "  Offset         : 108000.000\r\n"
            "  LockedToParent : True\r\n");
}

TEST_F(Dump, OfAMediaObjectHasElevenLinesAndSpellsItsStartWithACapitalT) {
  const auto media = objects.Media(u"M");
  media->SetTag(u"t");
  media->SetMediaFilename(u"C:\\a.wav");
  media->SetMediaDuration(120);
  media->SetCutIn(10);
  media->SetDuration(30);
  media->SetWorldTimeT0(DateOf(2000, 1, 1));
  EXPECT_EQ(ToUtf8(media->AsString(u"")),
            "CMURTimelineMedia: M  (Tag: t) - Media\r\n"
            "  Parent         : ## No Parent ##\r\n"
            "  Duration       : 120.000\r\n"
            "  WorldTimeT0    : 1/1/2000\r\n"
            "  Offset         : 0.000\r\n"
            "  LockedToParent : False\r\n"
            "  MediaFilename  : C:\\a.wav\r\n"
            "  MediaDuration  : 120.000\r\n"
            "  CutIn          : 0.000\r\n"
            "  CutOut         : 120.000\r\n"
            "  UseClipping    : False\r\n");
  media->SetUseClipping(true);
  const std::string clipped = ToUtf8(media->AsString(u""));
  EXPECT_NE(clipped.find("  Duration       : 30.000\r\n"), std::string::npos);
  EXPECT_NE(
      clipped.find("  CutIn          : 10.000\r\n  CutOut         : 40.000\r\n  UseClipping    : True\r\n"),
      std::string::npos);
}

TEST_F(Dump, OfAFreshGroupEndsItsChildrenLine) {
  EXPECT_EQ(ToUtf8(Make<CMURTimelineGroup>()->AsString(u"")),
            "CMURTimelineGroup:   (Tag: ) - Group (GroupType: 4)\r\n"
            "    Parent       : ## No Parent ##\r\n"
            "  Duration       : 0.000\r\n"
            "  WorldtimeT0    : 12:00:00 AM\r\n"
            "  Offset         : 0.000\r\n"
            "  LockedToParent : False\r\n"
            "  Children       : 0\r\n");
}

TEST_F(Dump, OfAGroupSeparatesItsChildrenByAnEmptyLineAndThatIsMeant) {
  const auto group = objects.Group(u"G");
  group->SetTag(u"t");
  group->SetDuration(10);
  group->Add(objects.Group(u""), u"C");
  group->Add(objects.Scalar(u""), u"S");
  EXPECT_EQ(ToUtf8(group->AsString(u"")),
            "CMURTimelineGroup: G  (Tag: t) - Group (GroupType: 4)\r\n"
            "    Parent       : ## No Parent ##\r\n"
            "  Duration       : 10.000\r\n"
            "  WorldtimeT0    : 12:00:00 AM\r\n"
            "  Offset         : 0.000\r\n"
            "  LockedToParent : False\r\n"
            "  Children       : 2\r\n"
            "    CMURTimelineGroup: C  (Tag: ) - Group (GroupType: 4)\r\n"
            "        Parent       : G\r\n"
            "      Duration       : 0.000\r\n"
            "      WorldtimeT0    : 12:00:00 AM\r\n"
            "      Offset         : 0.000\r\n"
            "      LockedToParent : False\r\n"
            "      Children       : 0\r\n"
            "\r\n"
            "    CMURTimelineScalar: S  (Tag: ) - Scalar Data\r\n"
            "      Parent         : G\r\n"
            "      Duration       : 0.000\r\n"
            "      WorldtimeT0    : 12:00:00 AM\r\n"
            "      Offset         : 0.000\r\n"
            "      LockedToParent : False\r\n");
}

TEST_F(Dump, OfNestedGroupsGoesBackToTheOuterIndent) {
  const auto outer = objects.Group(u"outer"), inner = objects.Group(u"inner");
  outer->Add(inner, u"inner");
  inner->Add(objects.Scalar(u""), u"deep");
  outer->Add(objects.Scalar(u""), u"last");
  const std::string text = ToUtf8(outer->AsString(u"-"));
  EXPECT_NE(text.find("\r\n-        CMURTimelineScalar: deep"), std::string::npos);
  EXPECT_NE(text.find("\r\n\r\n-    CMURTimelineScalar: last"), std::string::npos);
}

TEST_F(Dump, TakesTheTextsOfAnotherRegion) {
  const RegionalScope german("de-DE");
  const auto scalar = objects.Scalar(u"S");
  scalar->SetDuration(1.5);
  scalar->SetWorldTimeT0(DateOf(2000, 1, 31));
  const std::string text = ToUtf8(scalar->AsString(u""));
  EXPECT_NE(text.find("  Duration       : 1,500\r\n  WorldtimeT0    : 31.01.2000\r\n"), std::string::npos)
      << text;
}

TEST_F(Dump, OfAForeignChildIsWhatItSaysItself) {
  const auto group = objects.Group(u"G");
  group->Add(objects.Keep(Make<ForeignObject>()), u"F");
  const std::string text = ToUtf8(group->AsString(u""));
  EXPECT_TRUE(text.ends_with("  Children       : 1\r\n    ForeignObject: F\r\n")) << text;
}

TEST_F(Dump, LetsTheFailuresOfAChildAndOfAParentsKeyReachTheCaller) {
  const auto hostile = objects.Keep(Make<HostileObject>());
  const auto group = objects.Group(u"G");
  hostile->failing = "AsString";
  group->Add(hostile, u"H");
  EXPECT_THROW(group->AsString(u""), int);
  const auto scalar = objects.Scalar(u"S");
  hostile->failing = "Key";
  scalar->SetParent(hostile);
  EXPECT_THROW(scalar->AsString(u""), int);
  hostile->failing.clear();
}

TEST_F(Dump, OfAGroupThatContainsItselfEndsOutOfStackSpace) {
  const auto group = objects.Group(u"G");
  group->Add(group, u"G");
  EXPECT_EQ(ErrorOf(*group), ErrorCode::OutOfStackSpace);
}

TEST_F(Dump, OfAForeignRingEndsOutOfStackSpace) {
  const auto group = objects.Group(u"G");
  const auto foreign = objects.Keep(Make<ForeignObject>());
  group->Add(foreign, u"F");
  foreign->Add(group, u"G");
  EXPECT_EQ(ErrorOf(*group), ErrorCode::OutOfStackSpace);
}

TEST_F(Dump, ShowsAGroupThatIsHeldTwiceTwice) {
  const auto group = objects.Group(u"G"), shared = objects.Group(u"s");
  group->Add(shared, u"a");
  group->Add(shared, u"b");
  const std::string text = ToUtf8(group->AsString(u""));
  const auto first = text.find("CMURTimelineGroup: b");
  ASSERT_NE(first, std::string::npos);
  EXPECT_NE(text.find("CMURTimelineGroup: b", first + 1), std::string::npos);
}

TEST_F(Dump, OfAnOutOfRangeStartOverflows) {
  const auto scalar = objects.Scalar(u"S");
  scalar->SetWorldTimeT0(Date::Unchecked(1e9));
  EXPECT_EQ(ErrorOf(*scalar), ErrorCode::Overflow);
}

TEST_F(Dump, WritesNumbersAndBooleansInTheirFixedForms) {
  EXPECT_EQ(SecondsText(-0.0001), u"0.000");
  EXPECT_EQ(SecondsText(0.0005), u"0.001");
  EXPECT_EQ(SecondsText(-15), u"-15.000");
  EXPECT_EQ(BooleanText(true), u"True");
  EXPECT_EQ(DecimalText(-2147483648LL), u"-2147483648");
}

}  // namespace
}  // namespace mur::test
