#include <limits>

#include <gtest/gtest.h>

#include <murtimeline/model/timeline_group.h>
#include <murtimeline/model/timeline_scalar.h>

#include "tests/support/print.h"
#include "tests/support/render_fixture.h"

namespace mur::test {
namespace {

constexpr int kMany = 40000;

String Numbered(int NumberA) {
  return FromAscii("k" + std::to_string(NumberA));
}

TEST(ManyTracks, AreLaidOutUpToAsManyAsSixteenBitsSay) {
  const AttachedControl c;
  for (int i = 1; i <= kMany; ++i) c.Add(murtlotScalar, Numbered(i), true);
  c->AlignTracks();
  EXPECT_EQ(c.TopOf(Numbered(2)), 46.0f);
  EXPECT_EQ(c.TopOf(Numbered(32767)), 32766 * 46.0f);
  // Beyond, a bar keeps its place.
  EXPECT_EQ(c.TopOf(Numbered(32768)), 0.0f);
}

TEST(ManyChildren, AreAllPlacedAndTheirCaptionIsEmptyBeyondWhatSixteenBitsSay) {
  const AttachedControl c;
  const auto group = c.Add(murtlotGroup, u"G", true);
  for (int i = 1; i <= kMany; ++i) c.AddBelow(group, murtlotScalar, Numbered(i));
  EXPECT_EQ(c.TopOf(Numbered(kMany)), 43.0f);
  c->SetAutoObjectCaption(1, etlctNChildren);
  c->SetDuration(1000);
  EXPECT_EQ(c.Item(u"G")->Caption(1), u"");
  group->Remove(Variant(Numbered(1)));
  EXPECT_EQ(c.Item(u"G")->Caption(1), u"");
}

TEST(DeepNesting, IsShownDownToAsManyLevelsAsSixteenBitsSay) {
  const AttachedControl c;
  const Ref<IMURTimelineObject> bottom = Make<CMURTimelineGroup>();
  Ref<IMURTimelineObject> top = bottom;
  for (int i = 2; i <= kMany; ++i) {
    const auto above = Make<CMURTimelineGroup>();
    above->Add(top, Numbered(i));
    top = above;
  }
  c.timeline->Insert(top, u"top");
  c.timeline->AddTrackKey(u"top");
  EXPECT_TRUE(c.timeline->Insert(bottom, u"bottom"));
  ASSERT_TRUE(c.Item(u"bottom"));
  EXPECT_EQ(c.Item(u"bottom")->Caption(5), u"");
  c->AlignTracks();
  EXPECT_EQ(c.TopOf(u"top"), 0.0f);
}

TEST(DeepNesting, OfBarsIsPlacedOneRowForEachLevel) {
  const AttachedControl c;
  Ref<IMURTimelineObject> above = c.Add(murtlotGroup, Numbered(1), true);
  for (int i = 2; i <= 2000; ++i) above = c.AddBelow(above, murtlotGroup, Numbered(i));
  c->AlignTracks();
  EXPECT_EQ(c.TopOf(Numbered(2000)), 1999 * 43.0f);
}

TEST(LongKey, OfAMillionUnitsIsAKeyLikeAnyOther) {
  const AttachedControl c;
  const String key(1000000, u'x');
  c.Add(murtlotGroup, key, true)->SetTag(u"t");
  c->AddRenderConfig(key);
  c->AlignTracks();
  ASSERT_TRUE(c.Item(key));
  EXPECT_EQ(c.Item(key)->ToolTipText(), u"t");
  EXPECT_TRUE(c->RenderConfig(key));
  c.timeline->Remove(key);
  EXPECT_FALSE(c.Item(key));
}

TEST(LongTemplate, OfManyPlaceholdersIsExpanded) {
  const AttachedControl c;
  String text, expected;
  for (int i = 0; i < 20000; ++i) {
    text += u"$$Tag$$ ";
    expected += u"t ";
  }
  c->SetAutoObjectTooltipText(text);
  c.Add(murtlotScalar, u"S")->SetTag(u"t");
  EXPECT_EQ(c.Item(u"S")->ToolTipText(), expected);
}

TEST(ExtremeSizes, AreTaken) {
  AttachedControl c;
  c.AddBelow(c.Add(murtlotGroup, u"G", true), murtlotScalar, u"S");
  for (const float size : {0.0f, -1.0f, 3e38f, std::numeric_limits<float>::infinity(),
                           std::numeric_limits<float>::quiet_NaN()}) {
    c->SetBarHeight(size);
    c->SetBarSeparation(size);
    c->SetTrackSeparation(size);
    c->SetTimeScaleHeight(size);
    c->AlignTracks();
    EXPECT_NO_THROW(c->TrackTop(1));
  }
  EXPECT_EQ(c.Canvas().GraphicCount(), 3u);
}

}  // namespace
}  // namespace mur::test
