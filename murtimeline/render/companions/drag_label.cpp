#include <algorithm>
#include <cmath>

#include <murtimeline/render/companions/color_math.h>
#include <murtimeline/render/companions/drag_label.h>
#include <murtimeline/render/companions/text_fit.h>

namespace mur {
namespace {

constexpr float kHeight = 17;
constexpr float kGap = 2;  // between label and item
constexpr float kPadding = 5;
constexpr float kTextSize = 11;
constexpr float kRadius = 3;
constexpr OleColor kBackColor = 0x80000018;  // tool tips
constexpr OleColor kTextColor = 0x80000017;

}  // namespace

void DragLabel::Set(const Ref<ICanvasItem>& ItemA, StringView TextA) {
  mItem = TextA.empty() ? Ref<ICanvasItem>() : ItemA;
  mText = TextA;
}

RectF DragLabel::BandFor(const RectF& BoxA, const RectF& AreaA) const {
  float top = BoxA.top - kGap - kHeight;
  if (top < AreaA.top) top = BoxA.Bottom() + kGap;
  if (IsOfCursor()) top = BoxA.top + kGap;
  return {AreaA.left, std::clamp(top, AreaA.top, std::max(AreaA.top, AreaA.Bottom() - kHeight)), AreaA.width,
          kHeight};
}

float DragLabel::LeftFor(const RectF& BoxA, const RectF& AreaA, float WidthA) const {
  float left = BoxA.left;
  if (IsOfCursor()) {
    left = BoxA.Right() + kGap;
    if (left + WidthA > AreaA.Right()) left = BoxA.left - kGap - WidthA;
  }
  return std::clamp(left, AreaA.left, std::max(AreaA.left, AreaA.Right() - WidthA));
}

void DragLabel::Paint(Surface& SurfaceA, const RectF& BoxA, const RectF& AreaA,
                      const ChildHost& HostA) const {
  const Rgba back = ResolveColor(kBackColor, HostA);
  const TextStyle style{kTextSize, false, ReadableOn(back, ResolveColor(kTextColor, HostA))};
  const MeasuredText text = Elided(SurfaceA, MeasureForRoom(SurfaceA, mText, style, AreaA.width), style,
                                   AreaA.width - 2 * kPadding);
  if (text.text.empty()) return;
  const float ratio = SurfaceA.DevicePixelRatio();
  const auto aligned = [ratio](float pixel) { return std::round(pixel * ratio) / ratio; };
  const RectF band = BandFor(BoxA, AreaA);
  const float width = std::ceil(text.extent.width) + 2 * kPadding;
  const RectF box{aligned(LeftFor(BoxA, AreaA, width)), aligned(band.top), width, band.height};
  SurfaceA.FillRoundedRectangle(box, kRadius, back);
  SurfaceA.FrameRoundedRectangle(box, kRadius, FrameColorOf(back), 1);
  SurfaceA.DrawTextLine({box.left + kPadding, CentredBaseline(box.top + box.height / 2, text.extent)},
                        text.text, style);
}

}  // namespace mur
