#include <array>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <murtimeline/render/port/recording_surface.h>

using namespace mur;

TEST(RecordingSurface, WritesOneLineForEachCall) {
  RecordingSurface surface(2);
  surface.PushClip({0, 0, 10, 20});
  surface.FillRectangle({1, 2.5F, 3, 4}, {255, 128, 0, 255});
  surface.FrameRectangle({1, 2, 3, 4}, {0, 0, 0, 128}, 1);
  surface.FillRoundedRectangle({1, 2, 3, 4}, 3, {1, 2, 3, 255});
  surface.FrameRoundedRectangle({1, 2, 3, 4}, 3, {1, 2, 3, 255}, 0.5F);
  surface.DrawLine({0, 1}, {2, 3}, {0, 0, 0, 255}, 1);
  surface.FillPolygon(std::array<PointF, 3>{{{0, 0}, {4, 0}, {2, 3}}}, {0, 0, 0, 255});
  surface.DrawTextLine({5, 6}, u"\u00E4 \"b\"", {11, true, {0, 0, 0, 255}});
  surface.PopClip();
  EXPECT_EQ(surface.Log(),
            "clip 0,0 10x20\n"
            "fill 1,2.5 3x4 #ff8000\n"
            "frame 1,2 3x4 #000000/128 width 1\n"
            "fill-rounded 1,2 3x4 #010203 radius 3\n"
            "frame-rounded 1,2 3x4 #010203 width 0.5 radius 3\n"
            "line 0,1 2,3 #000000 width 1\n"
            "polygon 0,0 4,0 2,3 #000000\n"
            "text 5,6 \"\xC3\xA4 \"b\"\" #000000 size 11 bold\n"
            "unclip\n");
  EXPECT_EQ(surface.DevicePixelRatio(), 2);
}

TEST(RecordingSurface, PicksTheLinesOfOneCall) {
  RecordingSurface surface;
  surface.FillRectangle({0, 0, 1, 1}, {});
  surface.FillRoundedRectangle({0, 0, 1, 1}, 1, {});
  surface.PopClip();
  EXPECT_EQ(surface.LinesOf("fill"), std::vector<std::string>{"fill 0,0 1x1 #000000"});
  EXPECT_EQ(surface.LinesOf("unclip"), std::vector<std::string>{"unclip"});
  surface.Clear();
  EXPECT_TRUE(surface.Lines().empty());
}

TEST(RecordingSurface, MeasuresEveryUnitAlike) {
  const RecordingSurface surface;
  const TextExtent extent = surface.MeasureText(u"iWiW.", {10, false, {}});
  EXPECT_FLOAT_EQ(extent.width, 30);
  EXPECT_FLOAT_EQ(extent.ascent, 8);
  EXPECT_FLOAT_EQ(extent.descent, 2);
  EXPECT_FLOAT_EQ(extent.Height(), 10);
}
