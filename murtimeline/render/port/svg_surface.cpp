#include <string_view>

#include <murtimeline/render/port/fixed_metrics.h>
#include <murtimeline/render/port/number_text.h>
#include <murtimeline/render/port/svg_surface.h>

namespace mur {
namespace {

std::string Attribute(std::string_view NameA, std::string_view ValueA) {
  return ' ' + std::string(NameA) + "=\"" + std::string(ValueA) + '"';
}

std::string Attribute(std::string_view NameA, float ValueA) {
  return Attribute(NameA, NumberText(ValueA));
}

// A paint of kind "fill" or "stroke".
std::string Paint(const std::string& KindA, Rgba ColorA) {
  std::string text = Attribute(KindA, ColorText(ColorA));
  if (ColorA.alpha != 255) text += Attribute(KindA + "-opacity", static_cast<float>(ColorA.alpha) / 255);
  return text;
}

std::string Box(const RectF& RectA) {
  return Attribute("x", RectA.left) + Attribute("y", RectA.top) + Attribute("width", RectA.width) +
         Attribute("height", RectA.height);
}

// A stroke runs along the middle of its line, so a frame inside `RectA` is drawn half its width further in.
std::string FrameBox(const RectF& RectA, float WidthA) {
  const float half = WidthA / 2;
  return Box({RectA.left + half, RectA.top + half, RectA.width - WidthA, RectA.height - WidthA});
}

std::string Stroke(Rgba ColorA, float WidthA) {
  return Attribute("fill", "none") + Paint("stroke", ColorA) + Attribute("stroke-width", WidthA);
}

// Units that no XML document may hold become the replacement character.
bool IsAllowed(char16_t UnitA) {
  return (UnitA >= 0x20 || UnitA == '\t' || UnitA == '\n' || UnitA == '\r') && UnitA < 0xFFFE;
}

std::string Escaped(StringView TextA) {
  String allowed(TextA);
  for (char16_t& unit : allowed)
    if (!IsAllowed(unit)) unit = 0xFFFD;
  std::string text;
  for (const char unit : ToUtf8(allowed)) {
    if (unit == '&') {
      text += "&amp;";
    } else if (unit == '<') {
      text += "&lt;";
    } else if (unit == '>') {
      text += "&gt;";
    } else {
      text += unit;
    }
  }
  return text;
}

}  // namespace

std::string SvgSurface::Document() const {
  std::string document = "<svg xmlns=\"http://www.w3.org/2000/svg\"" + Attribute("width", mWidth) +
                         Attribute("height", mHeight) + ">\n" + mBody;
  for (int group = 0; group < mOpenGroups; ++group) document += "</g>\n";
  return document + "</svg>\n";
}

void SvgSurface::FillRectangle(const RectF& RectA, Rgba ColorA) {
  mBody += "<rect" + Box(RectA) + Paint("fill", ColorA) + "/>\n";
}

void SvgSurface::FrameRectangle(const RectF& RectA, Rgba ColorA, float WidthA) {
  mBody += "<rect" + FrameBox(RectA, WidthA) + Stroke(ColorA, WidthA) + "/>\n";
}

void SvgSurface::FillRoundedRectangle(const RectF& RectA, float RadiusA, Rgba ColorA) {
  mBody += "<rect" + Box(RectA) + Attribute("rx", RadiusA) + Paint("fill", ColorA) + "/>\n";
}

void SvgSurface::FrameRoundedRectangle(const RectF& RectA, float RadiusA, Rgba ColorA, float WidthA) {
  mBody += "<rect" + FrameBox(RectA, WidthA) + Attribute("rx", RadiusA - WidthA / 2) +
           Stroke(ColorA, WidthA) + "/>\n";
}

void SvgSurface::DrawLine(PointF FromA, PointF ToA, Rgba ColorA, float WidthA) {
  mBody += "<line" + Attribute("x1", FromA.x) + Attribute("y1", FromA.y) + Attribute("x2", ToA.x) +
           Attribute("y2", ToA.y) + Stroke(ColorA, WidthA) + "/>\n";
}

void SvgSurface::FillPolygon(std::span<const PointF> PointsA, Rgba ColorA) {
  std::string points;
  for (const PointF point : PointsA)
    points += (points.empty() ? "" : " ") + NumberText(point.x) + ',' + NumberText(point.y);
  mBody += "<polygon" + Attribute("points", points) + Paint("fill", ColorA) + "/>\n";
}

void SvgSurface::DrawTextLine(PointF BaselineA, StringView TextA, const TextStyle& StyleA) {
  mBody += "<text xml:space=\"preserve\"" + Attribute("x", BaselineA.x) + Attribute("y", BaselineA.y) +
           Attribute("font-family", mMeasuring ? "sans-serif" : "monospace") +
           Attribute("font-size", StyleA.size);
  if (StyleA.bold) mBody += Attribute("font-weight", "bold");
  mBody += Paint("fill", StyleA.color) + '>' + Escaped(TextA) + "</text>\n";
}

TextExtent SvgSurface::MeasureText(StringView TextA, const TextStyle& StyleA) const {
  return mMeasuring ? mMeasuring->MeasureText(TextA, StyleA) : MeasureInFixedFont(TextA, StyleA);
}

void SvgSurface::PushClip(const RectF& RectA) {
  const std::string name = "clip" + std::to_string(++mClips);
  mBody += "<clipPath" + Attribute("id", name) + "><rect" + Box(RectA) + "/></clipPath>\n<g" +
           Attribute("clip-path", "url(#" + name + ")") + ">\n";
  ++mOpenGroups;
}

void SvgSurface::PopClip() {
  if (mOpenGroups == 0) return;
  mBody += "</g>\n";
  --mOpenGroups;
}

void SvgSurface::PushOffset(PointF ByA) {
  mBody +=
      "<g" + Attribute("transform", "translate(" + NumberText(ByA.x) + ' ' + NumberText(ByA.y) + ")") + ">\n";
  ++mOpenGroups;
}

}  // namespace mur
