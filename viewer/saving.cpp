#include "viewer/saving.h"

#include <algorithm>
#include <cmath>
#include <tuple>

#include "viewer/readers/read_document.h"

namespace mur::viewer {
namespace {

// What differs less (seconds) is the same time: a date resolves about a microsecond.
constexpr double kClock = 1e-5;

// What can be compared of an object in the time line and in the file.
struct Placed {
  String tag;
  MURTimelineObjectType type = murtlotScalar;
  double start = 0, duration = 0, rate = 0;

  auto Order() const { return std::tie(tag, type, start); }
};

double Seconds(Date FromA, Date ToA) {
  return (ToA.Days() - FromA.Days()) * kSecondsPerDay;
}

EditMoves MovesOf(const LoadedFile& FileA, const CMURTimeline& TimelineA) {
  EditMoves moves;
  for (const EditSource::Item& item : FileA.edit->items)
    if (const Ref<IMURTimelineObject> object = TimelineA.ItemByKey(item.key))
      moves.items.push_back(
          {item.origin.number, Seconds(item.start, object->WorldTimeT0()), item.origin.isTrimmed});
  for (std::size_t i = 0; i < FileA.markers.size(); ++i) {
    const Marker& marker = FileA.markers[i];
    if (marker.item)
      moves.markers.push_back({*marker.item, marker.place, marker.time - FileA.edit->markerTimes[i]});
  }
  return moves;
}

bool HasMoves(const EditMoves& MovesA) {
  const auto isMove = [](const auto& move) { return move.seconds != 0; };
  return std::ranges::any_of(MovesA.items, isMove) || std::ranges::any_of(MovesA.markers, isMove);
}

// The tracks of an edit themselves begin with it wherever they are shown.
std::vector<Placed> ShownObjects(const LoadedFile& FileA, const CMURTimeline& TimelineA) {
  std::vector<Placed> objects;
  for (const EditSource::Item& item : FileA.edit->items) {
    const Ref<IMURTimelineObject> object = TimelineA.ItemByKey(item.key);
    if (object && !item.isTrack)
      objects.push_back({object->Tag(), object->ObjectType(), Seconds(FileA.day, object->WorldTimeT0()),
                         object->Duration(), item.origin.rate});
  }
  return objects;
}

std::vector<Placed> ReadObjects(const QByteArray& TextA) {
  Progress progress;
  const std::string_view text(TextA.constData(), static_cast<std::size_t>(TextA.size()));
  std::vector<Placed> objects;
  for (Entry& entry : ReadDocument(FileKind::OpenTimelineIO, text, progress).entries)
    if (entry.origin && !entry.isTrack)
      objects.push_back({std::move(entry.tag), entry.type, entry.start, entry.duration, entry.origin->rate});
  return objects;
}

void RequireInPlace(std::vector<Placed> ShownA, std::vector<Placed> ReadA) {
  std::ranges::sort(ShownA, {}, &Placed::Order);
  std::ranges::sort(ReadA, {}, &Placed::Order);
  if (ShownA.size() != ReadA.size())
    throw NotExpressible("Saved like this, something that is shown would be hidden or come to light.");
  for (std::size_t i = 0; i < ShownA.size(); ++i) {
    const Placed &shown = ShownA[i], &read = ReadA[i];
    const double frame = std::max(shown.rate > 0 ? 1 / shown.rate : 0, kClock);
    if (shown.tag != read.tag || std::abs(shown.start - read.start) > frame ||
        std::abs(shown.duration - read.duration) > frame)
      throw NotExpressible("Saved like this, \"" + ToUtf8(shown.tag) + "\" would not lie where it is shown.");
  }
}

}  // namespace

QByteArray EditAsText(const LoadedFile& FileA, const CMURTimeline& TimelineA) {
  const QByteArray& source = FileA.edit->text;
  const EditMoves moves = MovesOf(FileA, TimelineA);
  if (!HasMoves(moves)) return source;
  const std::string_view text(source.constData(), static_cast<std::size_t>(source.size()));
  QByteArray result = QByteArray::fromStdString(WriteOtio(text, moves));
  RequireInPlace(ShownObjects(FileA, TimelineA), ReadObjects(result));
  return result;
}

}  // namespace mur::viewer
