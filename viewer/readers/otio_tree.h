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
  std::size_t place = 0;  // among those of the item, unreadable ones included
};

enum class OtioKind { Clip, Gap, Transition, Track, Stack, Unknown };

/// One item of an edit with its extent worked out.
///
///     own time   0 ....... rangeStart |=======| ......      what lies outside is trimmed away
///                                     duration
struct OtioNode {
  OtioKind kind = OtioKind::Gap;
  std::optional<std::size_t> number;  // in the file's order of items; none for what was added in thought
  String name;                        // never empty for what is shown, tracks excepted
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

/// The rate of the first clip or gap in an item, itself included; 0 when there is none.
double FirstRate(const OtioNode& NodeA);

/// Numbers an item and all below it from `NextA` on, parents before their children.
void NumberItems(OtioNode& NodeA, std::size_t& NextA);

/// The item and all below it. What is missing or of the wrong kind reads as absent; children of unknown
/// schemas are noted in `NotesA` and take the time of their source range.
OtioNode ReadOtioItem(const QJsonObject& ObjectA, std::vector<std::string>& NotesA);

}  // namespace mur::viewer
