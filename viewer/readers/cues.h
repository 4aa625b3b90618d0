#pragma once

#include <QString>
#include <vector>

#include "viewer/readers/document.h"

namespace mur::viewer {

/// One subtitle. Times are seconds from the start of the film.
struct Cue {
  double start = 0;
  double end = 0;
  String text;
};

/// The seconds of a time given in captured digits: hours (may be empty), minutes, seconds and a decimal
/// fraction (may be empty). Rounded once.
double CueSeconds(QStringView HoursA, QStringView MinutesA, QStringView SecondsA, QStringView FractionA);

/// A scalar for each cue, in a group on a track; cues that overlap go to further groups.
Document DocumentOfCues(FileKind KindA, const std::vector<Cue>& CuesA);

}  // namespace mur::viewer
