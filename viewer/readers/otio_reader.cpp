#include "viewer/readers/otio_reader.h"

#include <QJsonArray>
#include <algorithm>

#include "viewer/readers/lenient_json.h"
#include "viewer/readers/otio_layout.h"
#include "viewer/readers/text_position.h"

namespace mur::viewer {
namespace {

class OtioReading {
 public:
  Document Read(const QJsonObject& RootA) {
    mDocument.title = RootA[u"name"].toString().toStdU16String();
    AddRoot(RootA);
    return std::move(mDocument);
  }

 private:
  // Collections may hold collections; the parser limits how deep.
  void AddRoot(const QJsonObject& ObjectA) {
    const QString schema = SchemaName(ObjectA);
    if (schema == QLatin1String("Timeline")) {
      AddTimeline(ObjectA);
    } else if (schema == QLatin1String("SerializableCollection")) {
      for (const QJsonValue& child : ObjectA[u"children"].toArray()) AddRoot(child.toObject());
    } else if (IsOtioItem(schema)) {
      AddEdit(ObjectA, std::nullopt);
    } else {
      throw ReadError(PlaceText(1, 1), schema.isEmpty()
                                           ? "not an OpenTimelineIO object: it has no \"OTIO_SCHEMA\""
                                           : "holds a \"" + schema.toStdString() + "\", not an edit");
    }
  }

  void AddTimeline(const QJsonObject& ObjectA) {
    const std::optional<FrameTime> start = ReadFrameTime(ObjectA[u"global_start_time"]);
    if (start) NoteRate(start->rate);
    const QJsonObject tracks = ObjectA[u"tracks"].toObject();
    if (!IsOtioItem(SchemaName(tracks)))
      throw ReadError(PlaceText(1, 1), "the timeline has no stack of \"tracks\"");
    AddEdit(tracks, start);
  }

  void AddEdit(const QJsonObject& ObjectA, const std::optional<FrameTime>& StartA) {
    OtioNode item = ReadOtioItem(ObjectA, mDocument.notes);
    NumberItems(item, mNextItem);
    NoteRate(FirstRate(item));
    if (item.kind != OtioKind::Stack) item = StackOf(std::move(item));
    const FrameSum start = StartA ? FrameSum(*StartA) : FrameSum();
    LayOutEdit(mDocument, item, start);
    Cover(start.Seconds(), (start + item.duration).Seconds());
  }

  static OtioNode StackOf(OtioNode ItemA) {
    OtioNode stack;
    stack.kind = OtioKind::Stack;
    stack.duration = ItemA.duration;
    stack.children.push_back(std::move(ItemA));
    return stack;
  }

  void NoteRate(double RateA) {
    if (mDocument.rate == 0) mDocument.rate = RateA;
  }

  void Cover(double FromA, double ToA) {
    const double end = mHasEdit ? std::max(mDocument.start + mDocument.duration, ToA) : ToA;
    mDocument.start = mHasEdit ? std::min(mDocument.start, FromA) : FromA;
    mDocument.duration = end - mDocument.start;
    mHasEdit = true;
  }

  Document mDocument;
  bool mHasEdit = false;
  std::size_t mNextItem = 0;
};

}  // namespace

Document ReadOtio(std::string_view TextA, Progress& ProgressA) {
  ProgressA.Report(0, TextA.size());
  const QJsonDocument json = ParseLenientJson(TextA, TextA);
  ProgressA.Report(TextA.size() / 2, TextA.size());
  Document document = OtioReading().Read(json.object());
  ProgressA.Report(TextA.size(), TextA.size());
  return document;
}

}  // namespace mur::viewer
