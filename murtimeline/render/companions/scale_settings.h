#pragma once

#include <cstdint>

#include <murtimeline/automation/date.h>
#include <murtimeline/automation/export.h>
#include <murtimeline/automation/string.h>
#include <murtimeline/render/port/geometry.h>

namespace mur {

/// What a time scale shows and how, with the start values of MURTimelineScroll.
struct MUR_API ScaleSettings {
  Date worldTimeT0;
  double duration = 3600;  // seconds
  Date tZero;
  std::int32_t timesOffsetMode = 0;
  Date cursorTime;
  String formatString;
  std::int32_t formatStyle = 4;
  OleColor backColor = 0x80000005;       // window
  OleColor foreColor = 0x80000008;       // window text
  OleColor highlightColor = 0x8000000D;  // highlight
  float highlightWidth = 1;
  std::int32_t labelFontSize = 9;  // points
  std::int16_t borderStyle = 0;
  std::int16_t tickEdge = 1;
  bool showCursor = true;
  bool showMarkers = true;

  double StartSeconds() const { return worldTimeT0.Seconds(); }
};

}  // namespace mur
