#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include <murtimeline/automation/date.h>
#include <murtimeline/automation/string.h>
#include <murtimeline/model/enumerations.h>

namespace mur::viewer {

/// The neutral day on which files without a date of their own are placed: midnight of 1 January 2000.
inline constexpr Date kNeutralDay = Date::Unchecked(36526);
/// Midnight of day zero, where a date resolves far less than a nanosecond; traces are placed here.
inline constexpr Date kFineDay = Date::Unchecked(0);

/// The file formats that the viewer reads.
enum class FileKind { OpenTimelineIO, ChromeTrace, SubRip, WebVtt };

/// How groups are classified, so that a control can colour each class by its render configuration.
inline constexpr MURTimelineObjectType kTrackGroup = murtlotGroup;
inline constexpr MURTimelineObjectType kSliceGroup = murtlotScalar;  // looks like the slices inside it
inline constexpr MURTimelineObjectType kAudioTrackGroup = murtlotMeasurements;
inline constexpr MURTimelineObjectType kNestedGroup = murtlotUnknown;
/// The published types end before it; a group keeps any number.
inline constexpr auto kSubtitleTrackGroup = static_cast<MURTimelineObjectType>(murtlotUnknown + 1);

/// The recording behind a clip. Times are seconds.
struct MediaSection {
  String filename;
  double mediaDuration = 0;
  double cutIn = 0;
  bool clipped = false;
};

/// The item of the file that an object stands for, counting all items in the order in which the file has
/// them.
struct ItemOrigin {
  std::size_t number = 0;
  double rate = 0;         // frames a second; 0 when the item has none
  bool isTrimmed = false;  // its surroundings hide a part of it
};

/// One object of a time line to be. Times are seconds, `start` counting from the document's day.
struct Entry {
  MURTimelineObjectType type = murtlotScalar;
  String key;  // wished for; made unique when the time line is filled
  String tag;
  double start = 0;
  double duration = 0;
  std::optional<std::size_t> parent;  // an earlier entry, a group
  bool isTrack = false;
  MURTimelineObjectType groupType = murtlotUnknown;
  MediaSection media;
  std::optional<ItemOrigin> origin;  // edits
};

/// A labelled instant or span of a file. `time` and `duration` are seconds, as in Entry.
struct Marker {
  String name;
  String key;    // differs from all others; given when the file is loaded, like the next
  String owner;  // the key of the object on which it stands; empty where there is none
  double time = 0;
  double duration = 0;
  String color;  // as the file names it: "RED", "GREEN", ...
  String comment;
  // Edits: the item that carries it and its place among that item's markers, and that item's entry.
  std::optional<std::size_t> item;
  std::size_t place = 0;
  std::optional<std::size_t> entry;
};

/// What a reader makes of a file, complete before a time line is touched.
struct Document {
  FileKind kind = FileKind::OpenTimelineIO;
  Date day = kNeutralDay;
  double start = 0;     // seconds from `day`
  double duration = 0;  // seconds
  double rate = 0;      // frames a second; 0 when the file has none
  String title;
  std::vector<Entry> entries;  // parents before their children
  std::vector<Marker> markers;
  std::vector<std::string> notes;  // what was left out, in words
};

/// The instant `SecondsA` after midnight of `DayA`. Throws AutomationError outside the date range.
inline Date InstantOf(Date DayA, double SecondsA) {
  return Date::FromDays(DayA.Days() + SecondsA / kSecondsPerDay);
}

}  // namespace mur::viewer
