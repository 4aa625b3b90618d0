#pragma once

#include <QRegularExpression>
#include <QString>

#include "viewer/readers/cues.h"

namespace mur::viewer {

/// Whether a line holds the times of a cue, well or badly written.
bool IsCueTiming(const QString& LineA);

/// A cue without its text, of the times in a line. `TimingA` captures the hours (may be empty), minutes,
/// seconds and decimal fraction (may be empty) of the start and then of the end. Throws ReadError where the
/// line does not match or the cue ends before it starts; `LineNumberA` counts from 0.
Cue ReadCueTimes(const QRegularExpression& TimingA, const QString& LineA, std::size_t LineNumberA);

/// Throws ReadError for a line, counted from 0.
[[noreturn]] void FailInLine(std::size_t LineNumberA, const char* ReasonA);

}  // namespace mur::viewer
