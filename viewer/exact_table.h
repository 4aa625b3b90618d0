#pragma once

#include <functional>
#include <string>

#include <murtimeline/model/timeline.h>

namespace mur::viewer {

/// Takes one line of output, without its end.
using LineSink = std::function<void(const std::string&)>;

/// The objects of a time line with the figures that its dump rounds: a line of headings, then for each object
/// key, kind, cut-in, duration (seconds in full, and frames at `RateA` where that is not 0) and world time
/// with its fraction. Columns are separated by tabs.
void WriteExactTable(const CMURTimeline& TimelineA, double RateA, const LineSink& SinkA);

/// "2000-01-01 01:00:04.500000", to the microsecond.
std::string ExactWorldTime(Date TimeA);

}  // namespace mur::viewer
