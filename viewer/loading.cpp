#include "viewer/loading.h"

#include <QFile>
#include <QFileInfo>

#include "viewer/readers/file_kind.h"
#include "viewer/readers/fill_timeline.h"
#include "viewer/readers/read_document.h"

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

Document ReadFile(const QString& PathA, Progress& ProgressA) {
  const QByteArray bytes = ReadBytes(PathA);
  const std::string_view content(bytes.constData(), static_cast<std::size_t>(bytes.size()));
  const auto kind = DetectFileKind(PathA, content);
  if (!kind)
    throw ReadError("byte 0",
                    content.empty() ? "the file is empty" : "neither an edit, a trace nor subtitles");
  Document document = ReadDocument(*kind, content, ProgressA);
  if (document.title.empty()) document.title = QFileInfo(PathA).completeBaseName().toStdU16String();
  return document;
}

}  // namespace

LoadedFile LoadFile(const QString& PathA, CMURTimeline& TimelineA, const ProgressCallback& ProgressA) {
  Progress reading(ProgressA, 0, kReadingShare);
  Document document = ReadFile(PathA, reading);
  Progress filling(ProgressA, kReadingShare, 1);
  FillTimeline(TimelineA, document, filling);
  return {document.kind,
          document.day,
          document.rate,
          std::move(document.title),
          std::move(document.markers),
          std::move(document.notes)};
}

}  // namespace mur::viewer
