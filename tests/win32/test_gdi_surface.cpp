#include <array>

#include <gmock/gmock.h>

#include "tests/win32/pixels.h"

namespace mur::win32::test {
namespace {

constexpr Rgba kRed{200, 0, 0, 255};
constexpr Rgba kWhite{255, 255, 255, 255};
constexpr Rgba kBlack{0, 0, 0, 255};

class Drawing : public testing::Test {
 protected:
  GdiSurface At(double ScaleA, POINT OriginA = {0, 0}) {
    return {pixels.Device(), {OriginA, ScaleA, ScaleA}, tools};
  }
  std::string Row(int YA, Rgba ColorA = kRed) const { return pixels.Row(YA, 0, 20, ColorA); }

  Pixels pixels{40, 30};
  GdiTools tools;
};

TEST_F(Drawing, FillsWholeDevicePixelsAtAFractionalScale) {
  At(1.5).FillRectangle({1, 1, 3, 2}, kRed);  // 1.5 to 6 across, 1.5 to 4.5 down
  EXPECT_EQ(Row(1), "....................");
  EXPECT_EQ(Row(2), "..####..............");
  EXPECT_EQ(Row(4), "..####..............");
  EXPECT_EQ(Row(5), "....................");
}

TEST_F(Drawing, ShowsAtLeastAPixelOfWhatThereIs) {
  At(1).FillRectangle({2.1F, 3.1F, 0.2F, 0.2F}, kRed);
  At(1).FillRectangle({9, 3, 0, 5}, kRed);
  EXPECT_EQ(Row(3), "..#.................");
}

TEST_F(Drawing, FramesWhollyInside) {
  At(2).FrameRectangle({1, 1, 5, 4}, kRed, 1);
  EXPECT_EQ(Row(1), "....................");
  EXPECT_EQ(Row(2), "..##########........");
  EXPECT_EQ(Row(4), "..##......##........");
  EXPECT_EQ(Row(9), "..##########........");
  EXPECT_EQ(Row(10), "....................");
}

TEST_F(Drawing, AFrameThatIsWiderThanItsRectangleFillsIt) {
  At(1).FrameRectangle({1, 1, 4, 4}, kRed, 10);
  EXPECT_EQ(Row(1), ".####...............");
  EXPECT_EQ(Row(4), ".####...............");
  EXPECT_EQ(Row(5), "....................");
}

TEST_F(Drawing, RoundsCornersSmoothly) {
  At(1).FillRoundedRectangle({2, 2, 12, 10}, 4, kRed);
  EXPECT_EQ(pixels.At(2, 2), kWhite);
  EXPECT_EQ(pixels.At(13, 11), kWhite);
  EXPECT_EQ(pixels.Row(2, 6, 4, kRed), "####");
  EXPECT_EQ(pixels.Row(6, 0, 16, kRed), "..############..");
  EXPECT_THAT(pixels.Row(3, 2, 4, kRed), testing::HasSubstr("+"));
}

TEST_F(Drawing, RoundCornersAreAlikeInAllFour) {
  At(1.5).FrameRoundedRectangle({2, 2, 12, 10}, 3, kRed, 1);
  // 3 to 21 across and 3 to 18 down in device pixels.
  for (int y = 0; y < 5; ++y)
    for (int x = 0; x < 5; ++x) {
      const Rgba corner = pixels.At(3 + x, 3 + y);
      EXPECT_EQ(corner, pixels.At(20 - x, 3 + y));
      EXPECT_EQ(corner, pixels.At(3 + x, 17 - y));
      EXPECT_EQ(corner, pixels.At(20 - x, 17 - y));
    }
  EXPECT_EQ(pixels.At(12, 3), kRed);
  EXPECT_EQ(pixels.At(12, 4), kWhite);
}

TEST_F(Drawing, ALineLiesAboutItsMiddle) {
  At(1).DrawLine({2, 5}, {10, 5}, kRed, 2);
  EXPECT_EQ(Row(3), "....................");
  EXPECT_EQ(Row(4), "..########..........");
  EXPECT_EQ(Row(5), "..########..........");
  EXPECT_EQ(Row(6), "....................");
}

TEST_F(Drawing, SlantedLinesAreSmooth) {
  At(1).DrawLine({0, 0}, {20, 10}, kRed, 2);
  EXPECT_EQ(pixels.At(10, 5), kRed);
  EXPECT_THAT(Row(5), testing::HasSubstr("+"));
}

TEST_F(Drawing, FillsPolygonsWithSmoothEdges) {
  const std::array<PointF, 3> triangle = {{{0, 0}, {16, 0}, {8, 8}}};
  At(1).FillPolygon(triangle, kRed);
  EXPECT_EQ(Row(0), "+##############+....");
  EXPECT_EQ(Row(4), "....+######+........");
  EXPECT_EQ(Row(8), "....................");
}

TEST_F(Drawing, HostilePolygonsDoNoHarm) {
  constexpr float kHuge = 1e30F, kNaN = std::numeric_limits<float>::quiet_NaN();
  const std::array<PointF, 3> huge = {{{-kHuge, -kHuge}, {kHuge, -kHuge}, {0, kHuge}}};
  const std::array<PointF, 3> broken = {{{kNaN, 0}, {10, 0}, {5, 5}}};
  At(1).FillPolygon(broken, kRed);
  EXPECT_EQ(Row(1), "....................");
  At(1).FillPolygon(huge, kRed);
  EXPECT_EQ(Row(1), "####################");
}

TEST_F(Drawing, BlendsTranslucentColours) {
  At(1).FillRectangle({0, 0, 4, 4}, {0, 0, 0, 128});
  const int gray = pixels.At(1, 1).red;
  EXPECT_NEAR(gray, 127, 2);
  At(1).FillRectangle({10, 0, 4, 4}, {0, 0, 0, 0});
  EXPECT_EQ(pixels.At(11, 1), kWhite);
}

TEST_F(Drawing, ClipsNest) {
  {
    GdiSurface surface = At(1);
    surface.PushClip({0, 0, 10, 10});
    surface.PushClip({5, 0, 10, 10});
    surface.FillRectangle({0, 0, 20, 20}, kRed);
    surface.PopClip();
    surface.FillRectangle({0, 2, 20, 1}, kBlack);
    surface.PushClip({0, 0, 0, 0});
    surface.FillRectangle({0, 3, 20, 1}, kBlack);
  }
  EXPECT_EQ(Row(0), ".....#####..........");
  EXPECT_EQ(Row(2, kBlack), "##########..........");
  EXPECT_EQ(Row(3), ".....#####..........");
}

TEST_F(Drawing, LeavesTheDeviceAsItWas) {
  SetTextColor(pixels.Device(), RGB(1, 2, 3));
  SetBkColor(pixels.Device(), RGB(4, 5, 6));
  {
    GdiSurface surface = At(1);
    surface.PushClip({0, 0, 5, 5});
    surface.DrawTextLine({0, 4}, u"x", {12, false, kRed});
    surface.FillRectangle({0, 0, 5, 5}, kRed);
  }
  EXPECT_EQ(GetTextColor(pixels.Device()), RGB(1, 2, 3));
  EXPECT_EQ(GetBkColor(pixels.Device()), RGB(4, 5, 6));
  RECT clip{};
  GetClipBox(pixels.Device(), &clip);
  EXPECT_EQ(clip.right, 40);
}

TEST_F(Drawing, PlacesEverythingFromItsOrigin) {
  At(2, {3, 1}).FillRectangle({1, 1, 2, 1}, kRed);
  EXPECT_EQ(Row(2), "....................");
  EXPECT_EQ(Row(3), ".....####...........");
  EXPECT_EQ(Row(4), ".....####...........");
}

TEST_F(Drawing, TextsTakeWhatTheyAreMeasuredToTake) {
  GdiSurface surface = At(1);
  const TextStyle style{12, false, kBlack};
  const TextExtent once = surface.MeasureText(u"mm", style), twice = surface.MeasureText(u"mmmm", style);
  EXPECT_GT(once.width, 0);
  EXPECT_EQ(twice.width, 2 * once.width);
  EXPECT_GT(once.ascent, once.descent);
  EXPECT_EQ(surface.MeasureText(u"", style).width, 0);
}

TEST_F(Drawing, OddTextsDoNoHarm) {
  GdiSurface surface = At(1);
  const TextStyle style{12, true, kBlack};
  const String odd = {u'a', u'\0', 0xD800, u'b', 0xDC00};
  EXPECT_GT(surface.MeasureText(odd, style).width, surface.MeasureText(u"ab", style).width - 1);
  surface.DrawTextLine({0, 20}, odd, style);
  surface.DrawTextLine({0, 20}, String(100000, u'w'), style);
  EXPECT_GT(surface.MeasureText(String(100000, u'w'), style).width, 1000);
}

TEST_F(Drawing, InvisibleTextsAreNotDrawn) {
  At(1).DrawTextLine({0, 20}, u"MMMM", {20, true, {0, 0, 0, 0}});
  for (int y = 0; y < 30; ++y) EXPECT_EQ(Row(y), "....................");
}

// What a metafile holds, played back onto a bitmap of its own size.
TEST_F(Drawing, MetafilesHoldShapes) {
  const HDC recording = CreateEnhMetaFileW(pixels.Device(), nullptr, nullptr, nullptr);
  {
    GdiSurface surface(recording, {{0, 0}, 1, 1}, tools);
    const std::array<PointF, 3> triangle = {{{0, 20}, {16, 20}, {8, 28}}};
    surface.FillRectangle({2, 2, 4, 4}, kRed);
    surface.FillRoundedRectangle({10, 2, 10, 10}, 3, kRed);
    surface.FrameRoundedRectangle({10, 2, 10, 10}, 3, kBlack, 1);
    surface.FillPolygon(triangle, kRed);
    surface.FillRectangle({30, 2, 4, 4}, {0, 0, 0, 128});
  }
  const HENHMETAFILE file = CloseEnhMetaFile(recording);
  int bitmaps = 0;
  EnumEnhMetaFile(
      nullptr, file,
      [](HDC, HANDLETABLE*, const ENHMETARECORD* record, int, LPARAM count) -> int {
        const DWORD kind = record->iType;
        const bool isBitmap = kind == EMR_ALPHABLEND || kind == EMR_BITBLT || kind == EMR_STRETCHDIBITS;
        if (isBitmap) ++*reinterpret_cast<int*>(count);
        return 1;
      },
      &bitmaps, nullptr);
  EXPECT_EQ(bitmaps, 0);
  ENHMETAHEADER header{};
  GetEnhMetaFileHeader(file, sizeof header, &header);
  EXPECT_GT(header.nRecords, 10U);
  DeleteEnhMetaFile(file);
}

}  // namespace
}  // namespace mur::win32::test
