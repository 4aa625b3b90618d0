#pragma once

#include <optional>

#include <murtimeline/render/timeline_render.h>

#include "viewer/loading.h"
#include "viewer/time_argument.h"

namespace mur::viewer {

/// The stretch of time to show; what is left out is chosen so that everything shows.
struct VisibleRange {
  std::optional<TimeArgument> from;
  std::optional<double> duration;  // seconds
};

/// Colours, captions, formats and row heights, which do not depend on a file. To be called once, before the
/// control's time line is filled: tool tips take their form from here while objects are added.
void PrepareControl(MURTimelineRender& ControlA);

/// Fits a control to the file that was loaded into its time line: colours of its kind, tracks on their rows,
/// markers, the cursor at the start, the visible range. Throws AutomationError for a range that begins
/// outside the range of dates.
void PresentFile(MURTimelineRender& ControlA, const LoadedFile& FileA, const VisibleRange& RangeA);

/// Makes rows as high as shows all of them, within limits. To be called again when the control has another
/// height.
void FitRows(MURTimelineRender& ControlA);

/// Shows the whole time line with a little air at both ends.
void ShowAll(MURTimelineRender& ControlA);

/// Gives bars the colours that go beyond their kind (sound, subtitles, slices by name). A selection puts all
/// bars back to the colour of their kind; call this again afterwards.
void ColorBars(MURTimelineRender& ControlA, const LoadedFile& FileA);

}  // namespace mur::viewer
