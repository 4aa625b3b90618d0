#include <algorithm>
#include <array>
#include <cmath>

#include <murtimeline/render/companions/color_math.h>
#include <murtimeline/render/companions/marker_painter.h>
#include <murtimeline/render/companions/text_fit.h>
#include <murtimeline/render/companions/time_scale_marker.h>

namespace mur {
namespace {

constexpr float kFootReach = 3;
constexpr float kFootHeight = 4;
constexpr float kWidestPole = 8;

// The body of a flag without its margins to the flags above and below.
RectF BodyOf(const MarkerFlag& FlagA) {
  return {FlagA.box.left, FlagA.box.top + 1, FlagA.box.width, std::max(FlagA.box.height - 2, 1.0F)};
}

}  // namespace

MarkerPainter::MarkerPainter(Surface& SurfaceA, const MarkerOrder& MarkersA, const ScaleBands& BandsA,
                             const Look& LookA, float TextSizeA)
    : mSurface(SurfaceA), mMarkers(MarkersA), mBands(BandsA), mLook(LookA), mTextSize(TextSizeA) {}

// The pole is the flag's edge at its time; a flag in an upper lane stands on the rest of it. What many share
// is darker, and stands for times all around.
void MarkerPainter::Draw(const MarkerFlag& FlagA) {
  const auto tone = [this](float share) { return Mixed(mLook.back, mLook.fore, share); };
  const RectF body = BodyOf(FlagA);
  const bool isShared = FlagA.count > 1;
  const Rgba fill = tone(FlagA.hasCaption ? 0.12F : isShared ? 0.45F : 0.25F);
  const float line = Hairline();
  const float pole = Aligned(std::clamp(FlagA.x, body.left, body.Right() - line));
  mSurface.FillRectangle({Aligned(body.left), body.top, body.width, body.height}, fill);
  mSurface.FillRectangle({pole, body.top, line, mBands.context.Bottom() - body.top}, tone(0.6F));
  if (!isShared) DrawFoot(FlagA.x, tone(0.6F));
  if (FlagA.hasCaption)
    DrawCaption(body, mMarkers.At(FlagA.first).CaptionView(),
                {mTextSize, false, ReadableOn(fill, tone(0.85F))});
}

void MarkerPainter::DrawHighlighted(const std::vector<MarkerFlag>& FlagsA, const TimeScaleMarker& MarkerA,
                                    Rgba ColorA, float WidthA) {
  if (!MarkerA.Place().isIn) return;
  const std::size_t index = mMarkers.IndexOf(MarkerA);
  const auto flag = std::find_if(FlagsA.begin(), FlagsA.end(), [&](const MarkerFlag& each) {
    return index >= each.first && index < each.first + each.count;
  });
  if (flag == FlagsA.end()) return;
  const TextStyle style{mTextSize, false, ReadableOn(ColorA, mLook.back)};
  const StringView caption = MarkerA.CaptionView();
  const float text = MeasureForRoom(mSurface, caption, style, mLook.width).extent.width;
  const float pole = WidthA >= 1 ? std::min(WidthA, kWidestPole) : 1;
  const float wanted = caption.empty() ? flag->box.width : std::max(text + 2 * kFlagPadding, flag->box.width);
  // Where the flag was, so that the pointer is on it, and at its time; whole, as far as the scale reaches.
  RectF body = BodyOf(*flag);
  body.width = std::min(wanted, mLook.width);
  body.left = std::clamp(std::min(body.left, flag->x), 0.0F, mLook.width - body.width);
  const float top = std::min(mBands.context.top, mBands.ticks.top);
  const float bottom = std::max(mBands.context.Bottom(), mBands.ticks.top + mBands.ticks.height);
  mSurface.FillRectangle({Aligned(flag->x - (pole - 1) / 2), top, pole, bottom - top}, ColorA);
  mSurface.FillRectangle({Aligned(body.left), body.top, body.width, body.height}, ColorA);
  DrawFoot(flag->x, ColorA);
  if (!caption.empty()) DrawCaption(body, caption, style);
}

// Points at the canvas.
void MarkerPainter::DrawFoot(float XA, Rgba ColorA) {
  const bool ticksBelow = mBands.ticks.top > mBands.context.top;
  const float tip = ticksBelow ? mBands.ticks.top + mBands.ticks.height : 0;
  const float base = ticksBelow ? tip - kFootHeight : kFootHeight;
  const float middle = Aligned(XA) + 0.5F;
  const std::array<PointF, 3> foot = {
      {{middle - kFootReach, base}, {middle + kFootReach, base}, {middle, tip}}};
  mSurface.FillPolygon(foot, ColorA);
}

void MarkerPainter::DrawCaption(const RectF& BoxA, StringView CaptionA, const TextStyle& StyleA) {
  const float room = BoxA.width - 2 * kFlagPadding;
  const MeasuredText text = Elided(mSurface, MeasureForRoom(mSurface, CaptionA, StyleA, room), StyleA, room);
  const float ratio = mSurface.DevicePixelRatio();
  const float baseline = CentredBaseline(BoxA.top + BoxA.height / 2, text.extent);
  if (!text.text.empty())
    mSurface.DrawTextLine({BoxA.left + kFlagPadding, std::round(baseline * ratio) / ratio}, text.text,
                          StyleA);
}

// A sharp line of about a pixel, equally wide wherever it lies.
float MarkerPainter::Hairline() const {
  const float ratio = mSurface.DevicePixelRatio();
  return std::max(std::floor(ratio), 1.0F) / ratio;
}

float MarkerPainter::Aligned(float PixelA) const {
  const float ratio = mSurface.DevicePixelRatio();
  return std::min(std::round(PixelA * ratio) / ratio, mLook.width - 1);
}

}  // namespace mur
