#include "viewer/loading.h"

#include <QFile>
#include <QFileInfo>

#include "viewer/readers/file_kind.h"
#include "viewer/readers/fill_timeline.h"
#include "viewer/readers/read_document.h"
#include "viewer/readers/unique_keys.h"

namespace mur::viewer {
namespace {

// The share of the work that reading takes; the rest is filling the time line.
constexpr double kReadingShare = 0.6;

QByteArray ReadBytes(const QString& PathA) {
  if (QFileInfo(PathA).isDir()) throw ReadError("byte 0", "it is a folder");
  QFile file(PathA);
  if (!file.open(QIODevice::ReadOnly)) throw ReadError("byte 0", file.errorString().toStdString());
  QByteArray bytes = file.readAll();
  if (file.error() != QFileDevice::NoError)
    throw ReadError("byte " + std::to_string(bytes.size()), file.errorString().toStdString());
  return bytes;
}

Document ReadFile(const QString& PathA, const QByteArray& BytesA, Progress& ProgressA) {
  const std::string_view content(BytesA.constData(), static_cast<std::size_t>(BytesA.size()));
  const auto kind = DetectFileKind(PathA, content);
  if (!kind)
    throw ReadError("byte 0",
                    content.empty() ? "the file is empty" : "neither an edit, a trace nor subtitles");
  Document document = ReadDocument(*kind, content, ProgressA);
  if (document.title.empty()) document.title = QFileInfo(PathA).completeBaseName().toStdU16String();
  UniqueKeys keys;
  for (Marker& marker : document.markers)
    marker.key = keys.Take(marker.name.empty() ? u"Marker" : marker.name);
  return document;
}

EditSource SourceOf(const Document& DocumentA, const std::vector<String>& KeysA, const QByteArray& BytesA) {
  EditSource source;
  source.text = BytesA;
  for (std::size_t i = 0; i < KeysA.size(); ++i) {
    const Entry& entry = DocumentA.entries[i];
    if (entry.origin)
      source.items.push_back({KeysA[i], *entry.origin, entry.isTrack, InstantOf(DocumentA.day, entry.start)});
  }
  for (const Marker& marker : DocumentA.markers) source.markerTimes.push_back(marker.time);
  return source;
}

}  // namespace

LoadedFile LoadFile(const QString& PathA, CMURTimeline& TimelineA, const ProgressCallback& ProgressA) {
  Progress reading(ProgressA, 0, kReadingShare);
  const QByteArray bytes = ReadBytes(PathA);
  Document document = ReadFile(PathA, bytes, reading);
  Progress filling(ProgressA, kReadingShare, 1);
  const std::vector<String> keys = FillTimeline(TimelineA, document, filling);
  for (Marker& marker : document.markers)
    if (marker.entry) marker.owner = keys[*marker.entry];
  LoadedFile file;
  if (document.kind == FileKind::OpenTimelineIO) file.edit = SourceOf(document, keys, bytes);
  file.kind = document.kind;
  file.day = document.day;
  file.rate = document.rate;
  file.title = std::move(document.title);
  file.markers = std::move(document.markers);
  file.notes = std::move(document.notes);
  return file;
}

}  // namespace mur::viewer
