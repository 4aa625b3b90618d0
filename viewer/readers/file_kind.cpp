#include "viewer/readers/file_kind.h"

#include <QFileInfo>

namespace mur::viewer {
namespace {

// Enough to find what tells the formats apart.
constexpr std::size_t kHeadSize = 4096;

std::optional<FileKind> KindByExtension(const QString& PathA) {
  const QString extension = QFileInfo(PathA).suffix().toLower();
  if (extension == QLatin1String("otio")) return FileKind::OpenTimelineIO;
  if (extension == QLatin1String("srt")) return FileKind::SubRip;
  if (extension == QLatin1String("vtt")) return FileKind::WebVtt;
  return std::nullopt;
}

std::optional<FileKind> KindByContent(std::string_view ContentA) {
  const auto head = ContentA.substr(0, kHeadSize);
  const QString text = QString::fromUtf8(head.data(), static_cast<qsizetype>(head.size())).trimmed();
  if (text.startsWith(QLatin1String("WEBVTT"))) return FileKind::WebVtt;
  const bool isJson = text.startsWith(QLatin1Char('{')) || text.startsWith(QLatin1Char('['));
  if (isJson && text.contains(QLatin1String("\"OTIO_SCHEMA\""))) return FileKind::OpenTimelineIO;
  if (isJson) return FileKind::ChromeTrace;
  if (text.contains(QLatin1String("-->"))) return FileKind::SubRip;
  return std::nullopt;
}

}  // namespace

std::optional<FileKind> DetectFileKind(const QString& PathA, std::string_view ContentA) {
  const auto kind = KindByExtension(PathA);
  return kind ? kind : KindByContent(ContentA);
}

}  // namespace mur::viewer
