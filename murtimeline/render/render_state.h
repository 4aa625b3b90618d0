#pragma once

#include <array>
#include <cstdint>

#include <murtimeline/automation/variant.h>
#include <murtimeline/model/timeline.h>
#include <murtimeline/render/companions/companions.h>
#include <murtimeline/render/port/control_host.h>

namespace mur {

inline constexpr int kCaptionSites = 9;
inline constexpr StringView kCursorKey = u"The Cursor";
inline constexpr double kFramesPerSecond = 25.0;

/// All that a control holds, with its start values; its parts share it. Heights and gaps of bars are canvas
/// units (pixels), the margin and the height of the time scale the control's own (twips).
struct RenderState {
  ControlHost& host;
  Companions companions;
  Ref<CMURTimeline> timeline;

  String autoObjectTooltipText = u"$$Tag$$";
  OleColor canvasBackColor = 0x8000000C;
  double duration = 3600;  // seconds
  String durationFormatString{};
  std::int32_t durationFormatStyle = 4;
  String formatString = u"hh:nn:ss";
  std::int32_t formatStyle = 4;
  OleColor timeScaleBackColor = 0x80000005;
  OleColor timeScaleForeColor = 0x80000008;
  String timeScaleFormatString = u"hh:nn:ss";
  std::int32_t timeScaleFormatStyle = 4;
  OleColor timeScaleMarkerHighlightColor = 0x8000000D;
  float timeScaleMarkerHighlightWidth = 1.0f;
  std::int32_t timesOffsetMode = 0;
  Date tZero{};
  Date worldTimeT0{};
  Variant selectedKey{};
  Date cursorTime{};
  float margin = 0;
  float barHeight = 40;
  float barSeparation = 3;
  float timeScaleHeight = 600;
  float trackSeparation = 6;
  bool allowObjectDragging = false;
  bool followAllStarts = false;
  std::array<std::int32_t, kCaptionSites> autoObjectCaption{};  // MURTimelineCaptionType; site 1 comes first
  bool autoHighlightObjects = true;
  std::int32_t autoSelectMode = etlcltNoClicks;  // MURTimelineClickType flags

  IGraphicCanvas& Canvas() const { return *companions.canvas; }
  ITimelineScroll& Scroller() const { return *companions.scroller; }
};

}  // namespace mur
