#include <murtimeline/automation/guard.h>
#include <murtimeline/render/render_parts.h>

namespace mur {

// Puts of the formats repaint whether or not the value is new.
template <class Value, class New>
void MURTimelineRender::PutAndRepaint(Value& StoredA, const New& ValueA) {
  StoredA = ValueA;
  Repaint();
}

template <class Value>
void MURTimelineRender::PutIfNewAndRepaint(Value& StoredA, Value ValueA) {
  if (StoredA != ValueA) PutAndRepaint(StoredA, ValueA);
}

Date MURTimelineRender::WorldTimeT0() const {
  return mParts->state.worldTimeT0;
}

void MURTimelineRender::SetWorldTimeT0(Date WorldTimeT0A) {
  const Ref<MURTimelineRender> keep(this);
  mParts->state.worldTimeT0 = WorldTimeT0A;
  ResumeNext([&] { mParts->state.Scroller().SetWorldTimeT0(WorldTimeT0A); });
  Repaint();
}

double MURTimelineRender::Duration() const {
  return mParts->state.duration;
}

void MURTimelineRender::SetDuration(double DurationA) {
  const Ref<MURTimelineRender> keep(this);
  mParts->state.duration = DurationA;
  ResumeNext([&] { mParts->state.Scroller().SetDuration(DurationA); });
  Repaint();
}

Date MURTimelineRender::TZero() const {
  return mParts->state.tZero;
}

void MURTimelineRender::SetTZero(Date TZeroA) {
  mParts->state.tZero = TZeroA;
  ResumeNext([&] { mParts->state.Scroller().SetTZero(TZeroA); });
}

std::int32_t MURTimelineRender::TimesOffsetMode() const {
  std::int32_t mode = 0;
  ResumeNext([&] { mode = mParts->state.Scroller().TimesOffsetMode(); });
  return mode;
}

void MURTimelineRender::SetTimesOffsetMode(std::int32_t TimesOffsetModeA) {
  mParts->state.timesOffsetMode = TimesOffsetModeA;
  ResumeNext([&] { mParts->state.Scroller().SetTimesOffsetMode(TimesOffsetModeA); });
}

Date MURTimelineRender::CursorTime() const {
  return mParts->state.cursorTime;
}

void MURTimelineRender::SetCursorTime(Date CursorTimeA) {
  const Ref<MURTimelineRender> keep(this);
  mParts->axis.PutCursorTime(CursorTimeA);
}

Date MURTimelineRender::XToWorldTime(float XA) const {
  return mParts->axis.XToWorldTime(XA);
}

String MURTimelineRender::FormatString() const {
  return mParts->state.formatString;
}

void MURTimelineRender::SetFormatString(StringView FormatStringA) {
  PutAndRepaint(mParts->state.formatString, FormatStringA);
}

std::int32_t MURTimelineRender::FormatStyle() const {
  return mParts->state.formatStyle;
}

void MURTimelineRender::SetFormatStyle(std::int32_t FormatStyleA) {
  PutAndRepaint(mParts->state.formatStyle, FormatStyleA);
}

String MURTimelineRender::DurationFormatString() const {
  return mParts->state.durationFormatString;
}

void MURTimelineRender::SetDurationFormatString(StringView FormatStringA) {
  PutAndRepaint(mParts->state.durationFormatString, FormatStringA);
}

std::int32_t MURTimelineRender::DurationFormatStyle() const {
  return mParts->state.durationFormatStyle;
}

void MURTimelineRender::SetDurationFormatStyle(std::int32_t FormatStyleA) {
  PutAndRepaint(mParts->state.durationFormatStyle, FormatStyleA);
}

String MURTimelineRender::TimeScaleFormatString() const {
  return mParts->state.timeScaleFormatString;
}

void MURTimelineRender::SetTimeScaleFormatString(StringView FormatStringA) {
  mParts->state.timeScaleFormatString = FormatStringA;
  ResumeNext([&] { mParts->state.Scroller().SetTimeScaleFormatString(FormatStringA); });
}

std::int32_t MURTimelineRender::TimeScaleFormatStyle() const {
  return mParts->state.timeScaleFormatStyle;
}

void MURTimelineRender::SetTimeScaleFormatStyle(std::int32_t FormatStyleA) {
  mParts->state.timeScaleFormatStyle = FormatStyleA;
  ResumeNext([&] { mParts->state.Scroller().SetTimeScaleFormatStyle(FormatStyleA); });
}

OleColor MURTimelineRender::TimeScaleBackColor() const {
  return mParts->state.timeScaleBackColor;
}

void MURTimelineRender::SetTimeScaleBackColor(OleColor ColorA) {
  mParts->state.timeScaleBackColor = ColorA;
  ResumeNext([&] { mParts->state.Scroller().SetTimeScaleBackColor(ColorA); });
}

OleColor MURTimelineRender::TimeScaleForeColor() const {
  return mParts->state.timeScaleForeColor;
}

void MURTimelineRender::SetTimeScaleForeColor(OleColor ColorA) {
  mParts->state.timeScaleForeColor = ColorA;
  ResumeNext([&] { mParts->state.Scroller().SetTimeScaleForeColor(ColorA); });
}

OleColor MURTimelineRender::TimeScaleMarkerHighlightColor() const {
  return mParts->state.timeScaleMarkerHighlightColor;
}

void MURTimelineRender::SetTimeScaleMarkerHighlightColor(OleColor ColorA) {
  mParts->state.timeScaleMarkerHighlightColor = ColorA;
  ResumeNext([&] { mParts->state.Scroller().SetTimeScaleMarkerHighlightColor(ColorA); });
}

float MURTimelineRender::TimeScaleMarkerHighlightWidth() const {
  return mParts->state.timeScaleMarkerHighlightWidth;
}

void MURTimelineRender::SetTimeScaleMarkerHighlightWidth(float WidthA) {
  mParts->state.timeScaleMarkerHighlightWidth = WidthA;
  ResumeNext([&] { mParts->state.Scroller().SetTimeScaleMarkerHighlightWidth(WidthA); });
}

float MURTimelineRender::TimeScaleHeight() const {
  return mParts->state.timeScaleHeight;
}

void MURTimelineRender::SetTimeScaleHeight(float HeightA) {
  const Ref<MURTimelineRender> keep(this);
  if (mParts->state.timeScaleHeight == HeightA) return;
  mParts->state.timeScaleHeight = HeightA;
  ResumeNext([&] { mParts->state.host.ScrollerHost().SetHeight(HeightA); });
  ResumeNext([&] { Resize(); });
}

float MURTimelineRender::BarHeight() const {
  return mParts->state.barHeight;
}

void MURTimelineRender::SetBarHeight(float HeightA) {
  PutIfNewAndRepaint(mParts->state.barHeight, HeightA);
}

float MURTimelineRender::BarSeparation() const {
  return mParts->state.barSeparation;
}

void MURTimelineRender::SetBarSeparation(float SeparationA) {
  PutIfNewAndRepaint(mParts->state.barSeparation, SeparationA);
}

float MURTimelineRender::TrackSeparation() const {
  return mParts->state.trackSeparation;
}

void MURTimelineRender::SetTrackSeparation(float SeparationA) {
  PutIfNewAndRepaint(mParts->state.trackSeparation, SeparationA);
}

Ref<CMURTLRenderConfig> MURTimelineRender::DefaultRenderConfig() const {
  return mParts->drawing.Configs().Default();
}

Ref<CMURTLRenderConfig> MURTimelineRender::RenderConfig(const Variant& KeyIndexA) const {
  Ref<CMURTLRenderConfig> config;
  ResumeNext([&] { config = mParts->drawing.Configs().Find(KeyIndexA); });
  return config;
}

Ref<CMURTLRenderConfig> MURTimelineRender::AddRenderConfig(const Variant& KeyIndexA) {
  Ref<CMURTLRenderConfig> config;
  ResumeNext([&] { config = mParts->drawing.Configs().Add(KeyIndexA); });
  return config;
}

std::int32_t MURTimelineRender::AutoObjectCaption(std::int32_t CaptionSiteA) const {
  const bool known = CaptionSiteA >= 1 && CaptionSiteA <= kCaptionSites;
  return known ? mParts->state.autoObjectCaption[static_cast<std::size_t>(CaptionSiteA - 1)] : 0;
}

void MURTimelineRender::SetAutoObjectCaption(std::int32_t CaptionSiteA, std::int32_t CaptionTypeA) {
  if (CaptionSiteA < 1 || CaptionSiteA > kCaptionSites) return;
  mParts->state.autoObjectCaption[static_cast<std::size_t>(CaptionSiteA - 1)] = CaptionTypeA;
}

String MURTimelineRender::AutoObjectTooltipText() const {
  return mParts->state.autoObjectTooltipText;
}

void MURTimelineRender::SetAutoObjectTooltipText(StringView TextA) {
  mParts->state.autoObjectTooltipText = TextA;
}

bool MURTimelineRender::AutoHighlightObjects() const {
  return mParts->state.autoHighlightObjects;
}

void MURTimelineRender::SetAutoHighlightObjects(bool HighlightA) {
  const Ref<MURTimelineRender> keep(this);
  if (mParts->state.autoHighlightObjects == HighlightA) return;
  mParts->state.autoHighlightObjects = HighlightA;
  mParts->highlight.RefreshAtCursor(true);
}

Variant MURTimelineRender::SelectedKey() const {
  return mParts->state.selectedKey;
}

std::int32_t MURTimelineRender::AutoSelectMode() const {
  return mParts->state.autoSelectMode;
}

void MURTimelineRender::SetAutoSelectMode(std::int32_t ModeA) {
  mParts->state.autoSelectMode = ModeA;
}

bool MURTimelineRender::AllowObjectDragging() const {
  return mParts->state.allowObjectDragging;
}

bool MURTimelineRender::FollowAllStarts() const {
  return mParts->state.followAllStarts;
}

void MURTimelineRender::SetFollowAllStarts(bool FollowA) {
  mParts->state.followAllStarts = FollowA;
}

void MURTimelineRender::SetAllowObjectDragging(bool AllowA) {
  const Ref<MURTimelineRender> keep(this);
  if (mParts->state.allowObjectDragging == AllowA) return;
  mParts->state.allowObjectDragging = AllowA;
  constexpr int kEveryDrag = 15;
  ResumeNext([&] { mParts->state.Canvas().SetItemsMovable(AllowA); });
  ResumeNext([&] {
    IGraphicCanvas& canvas = mParts->state.Canvas();
    const std::size_t count = canvas.GraphicCount();
    for (std::size_t i = 1; i <= count; ++i) {
      const Ref<ICanvasItem> item = canvas.Graphic(static_cast<std::int32_t>(i));
      if (!item) return;
      if (item->Kind() != kCursorItem) item->SetDragFlags(AllowA ? kEveryDrag : 0);
    }
  });
}

std::int16_t MURTimelineRender::OLEDropMode() const {
  std::int16_t mode = 0;
  ResumeNext([&] { mode = mParts->state.Canvas().OLEDropMode(); });
  return mode;
}

void MURTimelineRender::SetOLEDropMode(std::int16_t ModeA) {
  ResumeNext([&] { mParts->state.Canvas().SetOLEDropMode(ModeA); });
}

bool MURTimelineRender::ShowToolTips() const {
  bool show = false;
  ResumeNext([&] { show = mParts->state.Canvas().ShowToolTips(); });
  return show;
}

void MURTimelineRender::SetShowToolTips(bool ShowA) {
  ResumeNext([&] { mParts->state.Canvas().SetShowToolTips(ShowA); });
}

String MURTimelineRender::ToolTipText() const {
  String text;
  ResumeNext([&] { text = mParts->state.host.CanvasHost().ToolTipText(); });
  return text;
}

void MURTimelineRender::SetToolTipText(StringView TextA) {
  ResumeNext([&] { mParts->state.host.CanvasHost().SetToolTipText(TextA); });
}

}  // namespace mur
