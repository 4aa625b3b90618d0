#include "viewer/readers/fill_timeline.h"

#include <murtimeline/automation/error.h>
#include <murtimeline/model/timeline_media.h>

#include "viewer/readers/unique_keys.h"

namespace mur::viewer {
namespace {

void RequireInRange(Date DayA, double StartA, double DurationA, const std::string& PlaceA) {
  try {
    InstantOf(DayA, StartA);
    InstantOf(DayA, StartA + DurationA);
  } catch (const AutomationError&) {
    throw ReadError(PlaceA, "its time lies outside the years 100 to 9999");
  }
}

void SetMedia(IMURTimelineObject& ObjectA, const MediaSection& MediaA) {
  auto& clip = dynamic_cast<CMURTimelineMedia&>(ObjectA);
  clip.SetMediaFilename(MediaA.filename);
  clip.SetMediaDuration(MediaA.mediaDuration);
  clip.SetCutIn(MediaA.cutIn);
  clip.SetUseClipping(MediaA.clipped);
}

class Filling {
 public:
  Filling(CMURTimeline& TimelineA, const Document& DocumentA) : mTimeline(TimelineA), mDocument(DocumentA) {}

  std::vector<String> Run(Progress& ProgressA) {
    mTimeline.SetTag(mDocument.title);
    mTimeline.SetWorldTimeT0(InstantOf(mDocument.day, mDocument.start));
    mTimeline.SetDuration(mDocument.duration);
    mObjects.reserve(mDocument.entries.size());
    for (const Entry& entry : mDocument.entries) {
      ProgressA.Report(mObjects.size(), mDocument.entries.size());
      mObjects.push_back(AddObject(entry));
    }
    std::vector<String> keys;
    keys.reserve(mObjects.size());
    for (const Ref<IMURTimelineObject>& object : mObjects) keys.push_back(object->Key());
    return keys;
  }

 private:
  // A group is complete but for its children before the first of them arrives, so that none is told of moves.
  Ref<IMURTimelineObject> AddObject(const Entry& EntryA) {
    const String key = mKeys.Take(EntryA.key);
    Ref<IMURTimelineObject> object = mTimeline.Add(EntryA.type, key, EntryA.isTrack);
    object->SetTag(EntryA.tag);
    if (EntryA.type == murtlotGroup) object->SetGroupType(EntryA.groupType);
    if (EntryA.type == murtlotMedia) SetMedia(*object, EntryA.media);
    if (EntryA.parent) mObjects[*EntryA.parent]->Add(object, key);
    object->SetWorldTimeT0(InstantOf(mDocument.day, EntryA.start));
    object->SetDuration(EntryA.duration);
    if (EntryA.parent) object->SetLockedToParent(true);
    return object;
  }

  CMURTimeline& mTimeline;
  const Document& mDocument;
  UniqueKeys mKeys;
  std::vector<Ref<IMURTimelineObject>> mObjects;
};

}  // namespace

void RequireTimesInRange(const Document& DocumentA) {
  RequireInRange(DocumentA.day, DocumentA.start, DocumentA.duration, "time line");
  for (const Entry& entry : DocumentA.entries)
    RequireInRange(DocumentA.day, entry.start, entry.duration, "\"" + ToUtf8(entry.key) + "\"");
  for (const Marker& marker : DocumentA.markers)
    RequireInRange(DocumentA.day, marker.time, marker.duration, "marker \"" + ToUtf8(marker.name) + "\"");
}

std::vector<String> FillTimeline(CMURTimeline& TimelineA, const Document& DocumentA, Progress& ProgressA) {
  TimelineA.Clear();
  try {
    return Filling(TimelineA, DocumentA).Run(ProgressA);
  } catch (...) {
    TimelineA.Clear();
    throw;
  }
}

}  // namespace mur::viewer
