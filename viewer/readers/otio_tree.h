#pragma once

#include <QJsonObject>
#include <optional>
#include <vector>

#include "viewer/readers/document.h"
#include "viewer/readers/frame_sum.h"

namespace mur::viewer {

struct FrameRange {
  FrameTime start;
  FrameTime duration;
};

/// A marker as an item carries it, in the item's own time.
struct OtioMarker {
  String name, color, comment;
  FrameRange range;
};

enum class OtioKind { Clip, Gap, Transition, Track, Stack };

/// One item of an edit with its extent worked out.
///
///     own time   0 ....... rangeStart |=======| ......      what lies outside is trimmed away
///                                     duration
struct OtioNode {
  OtioKind kind = OtioKind::Gap;
  String name;  // never empty for what is shown, tracks excepted
  String tag;
  bool isAudio = false;  // tracks
  String trackKind;      // tracks: "Video", "Audio", ...
  FrameSum rangeStart;   // where the visible part begins, in the item's own time
  FrameSum duration;     // of the visible part; nothing for transitions
  std::vector<OtioNode> children;
  std::vector<OtioMarker> markers;
  // Clips: the file, and the whole and the used part of it.
  String mediaFilename;
  std::optional<FrameRange> availableRange;
  bool hasSourceRange = false;
  // Transitions: how far they reach before and behind the cut.
  FrameTime inOffset, outOffset;
};

/// A time of an edit; none when it is missing, not finite or has no usable rate.
std::optional<FrameTime> ReadFrameTime(const QJsonValue& ValueA);

/// "Clip" for the schema "Clip.2"; older names are given as the present ones. Empty when there is none.
QString SchemaName(const QJsonObject& ObjectA);

/// Whether an object of that schema stands in an edit.
bool IsOtioItem(const QString& SchemaA);

/// The item and all below it. What is missing or of the wrong kind reads as absent; children of unknown
/// schemas are noted in `NotesA` and take the time of their source range.
OtioNode ReadOtioItem(const QJsonObject& ObjectA, std::vector<std::string>& NotesA);

}  // namespace mur::viewer
