#include "viewer/readers/read_document.h"

#include "viewer/readers/fill_timeline.h"
#include "viewer/readers/otio_reader.h"
#include "viewer/readers/subrip_reader.h"
#include "viewer/readers/trace_reader.h"
#include "viewer/readers/webvtt_reader.h"

namespace mur::viewer {
namespace {

Document ReadByKind(FileKind KindA, std::string_view BytesA, Progress& ProgressA) {
  switch (KindA) {
    case FileKind::OpenTimelineIO:
      return ReadOtio(BytesA, ProgressA);
    case FileKind::ChromeTrace:
      return ReadTrace(BytesA, ProgressA);
    case FileKind::SubRip:
      return ReadSubRip(BytesA, ProgressA);
    case FileKind::WebVtt:
      break;
  }
  return ReadWebVtt(BytesA, ProgressA);
}

}  // namespace

Document ReadDocument(FileKind KindA, std::string_view BytesA, Progress& ProgressA) {
  constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
  if (BytesA.starts_with(kByteOrderMark)) BytesA.remove_prefix(kByteOrderMark.size());
  if (BytesA.empty()) throw ReadError("byte 0", "the file is empty");
  Document document = ReadByKind(KindA, BytesA, ProgressA);
  RequireTimesInRange(document);
  return document;
}

}  // namespace mur::viewer
