#pragma once

#include <QString>

#include "viewer/loading.h"

namespace mur::viewer {

/// A time as the file counts it: a timecode in its frame rate, a subtitle's hours to milliseconds, a trace's
/// seconds to the microsecond.
QString FileTimeText(const LoadedFile& FileA, Date TimeA);

/// "01:00:00:00 \u2013 01:03:30:00": what a control shows, as the file counts it.
QString RangeText(const LoadedFile& FileA, Date FromA, double SecondsA);

/// Date and wall clock to the millisecond; the clock alone on day zero.
QString WorldTimeText(Date TimeA);

}  // namespace mur::viewer
