#pragma once

#include <optional>

#include <murtimeline/render/timeline_render.h>

#include "viewer/appearance.h"
#include "viewer/loading.h"
#include "viewer/scheme.h"
#include "viewer/time_argument.h"

namespace mur::viewer {

/// The stretch of time to show; what is left out is chosen so that everything shows.
struct VisibleRange {
  std::optional<TimeArgument> from;
  std::optional<double> duration;  // seconds
};

/// What the user chose and the colours of the window.
struct Look {
  Appearance chosen;
  Scheme scheme = kLightScheme;
};

/// Colours, captions, formats and row heights, which do not depend on a file. To be called once, before the
/// control's time line is filled: tool tips take their form from here while objects are added.
void PrepareControl(MURTimelineRender& ControlA, const Look& LookA = {});

/// Fits a control to the file that was loaded into its time line: colours of its kind, tracks on their rows,
/// markers, the cursor at the start, the visible range. Throws AutomationError for a range that begins
/// outside the range of dates.
void PresentFile(MURTimelineRender& ControlA, const LoadedFile& FileA, const VisibleRange& RangeA,
                 const Look& LookA = {});

/// Gives what a control shows another look.
void ApplyLook(MURTimelineRender& ControlA, const LoadedFile& FileA, const Look& LookA);

/// Makes rows as high as shows all of them, within limits, or as high as was chosen. To be called again when
/// the control has another height.
void FitRows(MURTimelineRender& ControlA, const Look& LookA = {});

/// Shows the whole time line with a little air at both ends.
void ShowAll(MURTimelineRender& ControlA);

}  // namespace mur::viewer
