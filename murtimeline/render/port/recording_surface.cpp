#include <murtimeline/render/port/fixed_metrics.h>
#include <murtimeline/render/port/number_text.h>
#include <murtimeline/render/port/recording_surface.h>

namespace mur {
namespace {

std::string Text(PointF PointA) {
  return NumberText(PointA.x) + ',' + NumberText(PointA.y);
}

std::string Text(const RectF& RectA) {
  return Text(PointF{RectA.left, RectA.top}) + ' ' + NumberText(RectA.width) + 'x' + NumberText(RectA.height);
}

std::string Text(Rgba ColorA) {
  return ColorA.alpha == 255 ? ColorText(ColorA) : ColorText(ColorA) + '/' + std::to_string(ColorA.alpha);
}

}  // namespace

std::string RecordingSurface::Log() const {
  std::string log;
  for (const std::string& line : mLines) log += line + '\n';
  return log;
}

std::vector<std::string> RecordingSurface::LinesOf(std::string_view CallA) const {
  std::vector<std::string> lines;
  for (const std::string& line : mLines)
    if (line.substr(0, line.find(' ')) == CallA) lines.push_back(line);
  return lines;
}

void RecordingSurface::FillRectangle(const RectF& RectA, Rgba ColorA) {
  mLines.push_back("fill " + Text(RectA) + ' ' + Text(ColorA));
}

void RecordingSurface::FrameRectangle(const RectF& RectA, Rgba ColorA, float WidthA) {
  mLines.push_back("frame " + Text(RectA) + ' ' + Text(ColorA) + " width " + NumberText(WidthA));
}

void RecordingSurface::FillRoundedRectangle(const RectF& RectA, float RadiusA, Rgba ColorA) {
  mLines.push_back("fill-rounded " + Text(RectA) + ' ' + Text(ColorA) + " radius " + NumberText(RadiusA));
}

void RecordingSurface::FrameRoundedRectangle(const RectF& RectA, float RadiusA, Rgba ColorA, float WidthA) {
  mLines.push_back("frame-rounded " + Text(RectA) + ' ' + Text(ColorA) + " width " + NumberText(WidthA) +
                   " radius " + NumberText(RadiusA));
}

void RecordingSurface::DrawLine(PointF FromA, PointF ToA, Rgba ColorA, float WidthA) {
  mLines.push_back("line " + Text(FromA) + ' ' + Text(ToA) + ' ' + Text(ColorA) + " width " +
                   NumberText(WidthA));
}

void RecordingSurface::FillPolygon(std::span<const PointF> PointsA, Rgba ColorA) {
  std::string line = "polygon";
  for (const PointF point : PointsA) line += ' ' + Text(point);
  mLines.push_back(line + ' ' + Text(ColorA));
}

void RecordingSurface::DrawTextLine(PointF BaselineA, StringView TextA, const TextStyle& StyleA) {
  mLines.push_back("text " + Text(BaselineA) + " \"" + ToUtf8(TextA) + "\" " + Text(StyleA.color) + " size " +
                   NumberText(StyleA.size) + (StyleA.bold ? " bold" : ""));
}

TextExtent RecordingSurface::MeasureText(StringView TextA, const TextStyle& StyleA) const {
  return MeasureInFixedFont(TextA, StyleA);
}

void RecordingSurface::PushClip(const RectF& RectA) {
  mLines.push_back("clip " + Text(RectA));
}

void RecordingSurface::PopClip() {
  mLines.emplace_back("unclip");
}

}  // namespace mur
