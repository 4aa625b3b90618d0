#pragma once

#include <QByteArray>
#include <QString>
#include <optional>
#include <string>
#include <vector>

#include <murtimeline/model/timeline.h>

#include "viewer/readers/document.h"
#include "viewer/readers/progress.h"

namespace mur::viewer {

/// An edit as it was read, for writing it back.
struct EditSource {
  struct Item {
    String key;  // of its object
    ItemOrigin origin;
    bool isTrack = false;
    Date start;
  };

  QByteArray text;
  std::vector<Item> items;
  std::vector<double> markerTimes;  // in the order of the file's markers
};

/// What a file says beside the objects that went into the time line.
struct LoadedFile {
  FileKind kind = FileKind::OpenTimelineIO;
  Date day;         // midnight of the day on which the file was placed; its times of day count from here
  double rate = 0;  // frames a second; 0 when the file has none
  String title;
  std::vector<Marker> markers;
  std::vector<std::string> notes;  // what was left out, in words
  std::optional<EditSource> edit;  // where the file can be written back
};

/// Reads a file and puts its content in the place of what the time line holds. When the file cannot be read
/// (ReadError) the time line stays as it was; when loading is cancelled (LoadCancelled) it may be left empty.
LoadedFile LoadFile(const QString& PathA, CMURTimeline& TimelineA, const ProgressCallback& ProgressA = {});

}  // namespace mur::viewer
