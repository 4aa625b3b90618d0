#include <array>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <murtimeline/render/port/recording_surface.h>
#include <murtimeline/render/port/svg_surface.h>

#include "tests/support/blank_surface.h"

using namespace mur;
using ::testing::HasSubstr;
using ::testing::Not;

namespace {
constexpr Rgba kRed{255, 0, 0, 255};
constexpr char kHead[] = "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"100\" height=\"50\">\n";

std::string BodyOf(const SvgSurface& SurfaceA) {
  const std::string document = SurfaceA.Document();
  const std::string head = kHead;
  const std::string end = "</svg>\n";
  EXPECT_EQ(document.substr(0, head.size()), head);
  EXPECT_EQ(document.substr(document.size() - end.size()), end);
  return document.substr(head.size(), document.size() - head.size() - end.size());
}
}  // namespace

TEST(SvgSurface, FillsAndFramesRectangles) {
  SvgSurface surface(100, 50);
  surface.FillRectangle({1, 2, 3, 4}, {255, 0, 0, 51});
  surface.FrameRectangle({0, 0, 10, 10}, kRed, 1);
  EXPECT_EQ(BodyOf(surface),
            "<rect x=\"1\" y=\"2\" width=\"3\" height=\"4\" fill=\"#ff0000\" fill-opacity=\"0.2\"/>\n"
            "<rect x=\"0.5\" y=\"0.5\" width=\"9\" height=\"9\" fill=\"none\" stroke=\"#ff0000\" "
            "stroke-width=\"1\"/>\n");
}

TEST(SvgSurface, RoundsCorners) {
  SvgSurface surface(100, 50);
  surface.FillRoundedRectangle({0, 0, 10, 10}, 3, kRed);
  surface.FrameRoundedRectangle({0, 0, 10, 10}, 3, kRed, 1);
  EXPECT_EQ(BodyOf(surface),
            "<rect x=\"0\" y=\"0\" width=\"10\" height=\"10\" rx=\"3\" fill=\"#ff0000\"/>\n"
            "<rect x=\"0.5\" y=\"0.5\" width=\"9\" height=\"9\" rx=\"2.5\" fill=\"none\" stroke=\"#ff0000\" "
            "stroke-width=\"1\"/>\n");
}

TEST(SvgSurface, DrawsLinesAndPolygons) {
  SvgSurface surface(100, 50);
  surface.DrawLine({0, 1}, {2, 3}, kRed, 2);
  surface.FillPolygon(std::array<PointF, 3>{{{0, 0}, {4, 0}, {2, 3}}}, kRed);
  EXPECT_EQ(
      BodyOf(surface),
      "<line x1=\"0\" y1=\"1\" x2=\"2\" y2=\"3\" fill=\"none\" stroke=\"#ff0000\" stroke-width=\"2\"/>\n"
      "<polygon points=\"0,0 4,0 2,3\" fill=\"#ff0000\"/>\n");
}

TEST(SvgSurface, EscapesTexts) {
  SvgSurface surface(100, 50);
  surface.DrawTextLine({1, 2}, u"<a> & \u00E4", {10, true, kRed});
  EXPECT_EQ(BodyOf(surface),
            "<text xml:space=\"preserve\" x=\"1\" y=\"2\" font-family=\"monospace\" font-size=\"10\" "
            "font-weight=\"bold\" fill=\"#ff0000\">&lt;a&gt; &amp; \xC3\xA4</text>\n");
}

TEST(SvgSurface, ReplacesWhatADocumentMayNotHold) {
  const char16_t text[] = {u'a', 0, 0xFFFE, 0xD800, u'\t', u'b', 0};
  SvgSurface surface(100, 50);
  surface.DrawTextLine({0, 0}, StringView(text, 6), {});
  EXPECT_THAT(surface.Document(), HasSubstr(">a\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD\tb</text>"));
}

TEST(SvgSurface, ClipsUntilThePop) {
  SvgSurface surface(100, 50);
  surface.PushClip({0, 0, 10, 10});
  surface.FillRectangle({0, 0, 5, 5}, kRed);
  surface.PopClip();
  EXPECT_EQ(BodyOf(surface),
            "<clipPath id=\"clip1\"><rect x=\"0\" y=\"0\" width=\"10\" height=\"10\"/></clipPath>\n"
            "<g clip-path=\"url(#clip1)\">\n"
            "<rect x=\"0\" y=\"0\" width=\"5\" height=\"5\" fill=\"#ff0000\"/>\n"
            "</g>\n");
}

TEST(SvgSurface, CompletesTheDocumentWhileGroupsAreOpen) {
  SvgSurface surface(100, 50);
  surface.PushOffset({0, 40});
  surface.PushClip({0, 0, 10, 10});
  EXPECT_THAT(surface.Document(), HasSubstr("<g transform=\"translate(0 40)\">\n"));
  EXPECT_THAT(surface.Document(), HasSubstr("</g>\n</g>\n</svg>\n"));
}

TEST(SvgSurface, IgnoresAPopWithoutAPush) {
  SvgSurface surface(100, 50);
  surface.PopClip();
  EXPECT_THAT(surface.Document(), Not(HasSubstr("</g>")));
  EXPECT_EQ(surface.DevicePixelRatio(), 1);
}

TEST(SvgSurface, MeasuresInTheFixedFontUnlessItIsGivenASurface) {
  class Wide final : public test::BlankSurface {
   public:
    TextExtent MeasureText(StringView, const TextStyle&) const override { return {77, 1, 1}; }
  };
  const Wide wide;
  SvgSurface measuring(100, 50, &wide);
  measuring.DrawTextLine({0, 0}, u"x", {});
  EXPECT_EQ(measuring.MeasureText(u"abc", {10, false, {}}).width, 77);
  EXPECT_THAT(measuring.Document(), HasSubstr("font-family=\"sans-serif\""));
  EXPECT_EQ(SvgSurface(1, 1).MeasureText(u"abc", {10, false, {}}).width, 18);
}
