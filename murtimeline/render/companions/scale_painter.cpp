#include <algorithm>
#include <array>
#include <cmath>

#include <murtimeline/render/companions/color_math.h>
#include <murtimeline/render/companions/marker_painter.h>
#include <murtimeline/render/companions/scale_painter.h>

namespace mur {
namespace {

constexpr float kMinorLength = 4;
constexpr float kLabelGap = 10;
constexpr float kTextInset = 4;
constexpr float kLeastMinorDistance = 7;
constexpr std::int64_t kMostMinorsPerMajor = 10;
constexpr Rgba kCursorColor{208, 32, 32, 255};

}  // namespace

ScalePainter::ScalePainter(Surface& SurfaceA, const ChildHost& HostA, const ScaleSettings& SettingsA,
                           ScaleFlags& FlagsA)
    : mSurface(SurfaceA),
      mHost(HostA),
      mSettings(SettingsA),
      mTexts(SettingsA),
      mWidth(HostA.Width() / ChildHost::kTwipsPerPixel),
      mHeight(HostA.Height() / ChildHost::kTwipsPerPixel),
      mTicksBelow(SettingsA.tickEdge == 1),
      mBack(ResolveColor(SettingsA.backColor, HostA)),
      mFore(ReadableOn(mBack, ResolveColor(SettingsA.foreColor, HostA))),
      mFlags(FlagsA),
      mShown(FlagsA.LayOut(SurfaceA)),
      mBands(FlagsA.Bands()) {
  const float size = LabelPixels(SettingsA.labelFontSize);
  mLabelStyle = {size, false, mFore};
  mContextStyle = {size, false, ReadableOn(mBack, Mixed(mBack, mFore, 0.75F))};
}

void ScalePainter::Paint(const TimeScaleMarker* HighlightedA) {
  MarkerPainter markers(mSurface, mFlags.Markers(), mBands, {mWidth, mBack, mFore},
                        FlagTextSize(mLabelStyle.size));
  mSurface.FillRectangle({0, 0, mWidth, mHeight}, mBack);
  mSurface.FillRectangle({0, mTicksBelow ? mHeight - 1 : 0, mWidth, 1}, Mixed(mBack, mFore, 0.35F));
  const auto range = RangeOf(mSettings, mTexts.OriginSeconds(), mWidth);
  const TickStep* major = range ? MajorStep(*range) : nullptr;
  if (major) DrawTicks(*range, *major);
  for (const MarkerFlag& flag : mShown) markers.Draw(flag);
  if (major) DrawTexts(*range, *major);
  if (HighlightedA)
    markers.DrawHighlighted(mShown, *HighlightedA, ResolveColor(mSettings.highlightColor, mHost),
                            mSettings.highlightWidth);
  if (mSettings.showCursor) DrawCursor();
  if (mSettings.borderStyle != 0)
    mSurface.FrameRectangle({0, 0, mWidth, mHeight}, Mixed(mBack, mFore, 0.5F), 1);
}

void ScalePainter::DrawTicks(const ScaleRange& RangeA, const TickStep& MajorA) {
  if (const TickStep* minor = MinorStep(RangeA, MajorA))
    DrawLines(RangeA, *minor, TickBand(kMinorLength), Mixed(mBack, mFore, 0.35F));
  DrawLines(RangeA, MajorA, TickBand(ScaleBands::kTickLength), Mixed(mBack, mFore, 0.6F));
  if (const TickStep* context = mTexts.ContextStep(MajorA); context && mBands.context.IsShown())
    DrawLines(RangeA, *context, mBands.context, Mixed(mBack, mFore, 0.25F));
}

ScaleBand ScalePainter::TickBand(float LengthA) const {
  return {mTicksBelow ? mHeight - LengthA : 0, LengthA};
}

void ScalePainter::DrawTexts(const ScaleRange& RangeA, const TickStep& MajorA) {
  if (mBands.labels.IsShown()) DrawLabels(RangeA, MajorA);
  if (const TickStep* context = mTexts.ContextStep(MajorA); context && mBands.context.IsShown())
    DrawContext(RangeA, *context);
}

// The smallest step whose labels have room and differ from each other.
const TickStep* ScalePainter::MajorStep(const ScaleRange& RangeA) const {
  for (const TickStep& step : mTexts.Ladder()) {
    const float distance = RangeA.PixelsOf(step.Seconds());
    const bool labelsDiffer = step.IsCalendar() || step.milliseconds % mTexts.LabelGranularity() == 0;
    if (labelsDiffer && distance > 2 * kLabelGap && WidestLabel(RangeA, step) + kLabelGap <= distance)
      return &step;
  }
  return nullptr;
}

const TickStep* ScalePainter::MinorStep(const ScaleRange& RangeA, const TickStep& MajorA) const {
  for (const TickStep& step : mTexts.Ladder())
    if (RangeA.PixelsOf(step.Seconds()) >= kLeastMinorDistance && step.Divides(MajorA) &&
        MajorA.Seconds() <= step.Seconds() * (kMostMinorsPerMajor + 0.5))
      return step.Seconds() < MajorA.Seconds() ? &step : nullptr;
  return nullptr;
}

// Of the labels at the two ends, which stand for all.
float ScalePainter::WidestLabel(const ScaleRange& RangeA, const TickStep& StepA) const {
  float widest = 0;
  for (const std::int64_t time : {RangeA.first, RangeA.last}) {
    const String label = mTexts.Label(StepA, StepA.TimeOf(StepA.NumberAt(time)));
    widest = std::max(widest, mSurface.MeasureText(label, mLabelStyle).width);
  }
  return widest;
}

// A line at each tick of a step.
void ScalePainter::DrawLines(const ScaleRange& RangeA, const TickStep& StepA, const ScaleBand& BandA,
                             Rgba ColorA) {
  for (std::int64_t number = StepA.NumberAt(RangeA.first); StepA.TimeOf(number) <= RangeA.last; ++number)
    if (StepA.TimeOf(number) >= RangeA.first)
      mSurface.FillRectangle({Aligned(RangeA.XOf(StepA.TimeOf(number))), BandA.top, 1, BandA.height}, ColorA);
}

void ScalePainter::DrawLabels(const ScaleRange& RangeA, const TickStep& StepA) {
  float taken = kTextInset / 2;
  for (std::int64_t number = StepA.NumberAt(RangeA.first); StepA.TimeOf(number) <= RangeA.last; ++number) {
    const std::int64_t time = StepA.TimeOf(number);
    if (time < RangeA.first) continue;
    const MeasuredText text = MeasureForRoom(mSurface, mTexts.Label(StepA, time), mLabelStyle, mWidth);
    const float width = text.extent.width;
    // About its tick, but whole: at the ends of the scale a label gives way inwards, or goes.
    const float middle = RangeA.XOf(time) - width / 2;
    const float left =
        std::clamp(middle, kTextInset / 2, std::max(kTextInset / 2, mWidth - kTextInset / 2 - width));
    const float next = RangeA.XOf(StepA.TimeOf(number + 1)) - width / 2;
    const bool coversNext = left > middle && left + width + kTextInset > next;
    if (left < taken || coversNext || text.text.empty()) continue;
    DrawText(left, mBands.labels, text, mLabelStyle);
    taken = left + width + kTextInset;
  }
}

void ScalePainter::DrawContext(const ScaleRange& RangeA, const TickStep& ContextA) {
  std::int64_t number = ContextA.NumberAt(RangeA.first);
  for (std::int64_t time = ContextA.TimeOf(number); time <= RangeA.last; time = ContextA.TimeOf(++number)) {
    const float end = RangeA.XOf(ContextA.TimeOf(number + 1));
    DrawContextSpan(ContextA, time, std::max(RangeA.XOf(time), 0.0F), std::min(end, mWidth));
  }
}

// At the beginning of the span if possible, and if need be in short, rather than behind the flags there.
void ScalePainter::DrawContextSpan(const TickStep& StepA, std::int64_t TimeA, float LeftA, float RightA) {
  const std::array<MeasuredText, 2> texts = {
      MeasureForRoom(mSurface, mTexts.Context(StepA, TimeA, false), mContextStyle, mWidth),
      MeasureForRoom(mSurface, mTexts.Context(StepA, TimeA, true), mContextStyle, mWidth)};
  const float start = LeftA + kTextInset;
  for (const bool mayShift : {false, true})
    for (const MeasuredText& text : texts) {
      const float left = PastFlags(start, text.extent.width);
      const bool hasRoom = left + text.extent.width + kTextInset <= RightA;
      if (text.text.empty() || !hasRoom || (left > start && !mayShift)) continue;
      DrawText(left, mBands.context, text, mContextStyle);
      return;
    }
}

// The first place at or after `LeftA` where that width is free of flags.
float ScalePainter::PastFlags(float LeftA, float WidthA) const {
  float left = LeftA;
  for (const MarkerFlag& flag : mShown)
    if (flag.box.left < left + WidthA + kTextInset && flag.box.Right() > left - kTextInset)
      left = flag.box.Right() + kTextInset;
  return left;
}

// A line with a handle that points at the canvas.
void ScalePainter::DrawCursor() {
  constexpr float kHandleHeight = 7;
  const auto shown = ShownX(mSettings, mSettings.cursorTime, mWidth);
  if (!shown) return;
  const float x = Aligned(*shown - 0.5F);
  const float tip = mTicksBelow ? mHeight : 0;
  const float base = mTicksBelow ? mHeight - kHandleHeight : kHandleHeight;
  mSurface.FillRectangle({x, 0, 1, mHeight}, kCursorColor);
  const float middle = x + 0.5F;
  const std::array<PointF, 3> handle = {{{middle - 5, base}, {middle + 5, base}, {middle, tip}}};
  mSurface.FillPolygon(handle, kCursorColor);
}

// On a device pixel, and so that a line of one pixel there is still on the scale.
float ScalePainter::Aligned(float PixelA) const {
  const float ratio = mSurface.DevicePixelRatio();
  return std::min(std::round(PixelA * ratio) / ratio, mWidth - 1);
}

void ScalePainter::DrawText(float LeftA, const ScaleBand& BandA, const MeasuredText& TextA,
                            const TextStyle& StyleA) {
  const float ratio = mSurface.DevicePixelRatio();
  const float baseline = std::round(CentredBaseline(BandA.Middle(), TextA.extent) * ratio) / ratio;
  mSurface.DrawTextLine({LeftA, baseline}, TextA.text, StyleA);
}

}  // namespace mur
