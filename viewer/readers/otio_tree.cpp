#include "viewer/readers/otio_tree.h"

#include <QJsonArray>
#include <algorithm>
#include <cmath>

namespace mur::viewer {
namespace {

String TextOf(const QJsonValue& ValueA) {
  return ValueA.toString().toStdU16String();
}

String FirstNonEmpty(std::initializer_list<String> TextsA) {
  for (const String& text : TextsA)
    if (!text.empty()) return text;
  return {};
}

std::optional<FrameRange> ReadFrameRange(const QJsonValue& ValueA) {
  const QJsonObject object = ValueA.toObject();
  std::optional<FrameTime> duration = ReadFrameTime(object[u"duration"]);
  const std::optional<FrameTime> start = ReadFrameTime(object[u"start_time"]);
  if (!duration && !start) return std::nullopt;
  if (!duration) duration = FrameTime{0, start->rate};
  duration->value = std::max(0.0, duration->value);
  return FrameRange{start.value_or(FrameTime{0, duration->rate}), *duration};
}

// Clips carry one reference, or several by name of which one is active.
QJsonObject ActiveMediaReference(const QJsonObject& ClipA) {
  const QJsonObject references = ClipA[u"media_references"].toObject();
  if (references.isEmpty()) return ClipA[u"media_reference"].toObject();
  return references[ClipA[u"active_media_reference_key"].toString(QStringLiteral("DEFAULT_MEDIA"))]
      .toObject();
}

// The file of a reference; of a numbered sequence of pictures, its first one.
String MediaFilenameOf(const QJsonObject& ReferenceA) {
  if (SchemaName(ReferenceA) != QLatin1String("ImageSequenceReference"))
    return TextOf(ReferenceA[u"target_url"]);
  const int digits = std::clamp(ReferenceA[u"frame_zero_padding"].toInt(), 0, 32);
  const QString number =
      QString::number(ReferenceA[u"start_frame"].toInt()).rightJustified(digits, QLatin1Char('0'));
  return (ReferenceA[u"target_url_base"].toString() + ReferenceA[u"name_prefix"].toString() + number +
          ReferenceA[u"name_suffix"].toString())
      .toStdU16String();
}

void ReadClip(OtioNode& NodeA, const QJsonObject& ObjectA) {
  const QJsonObject reference = ActiveMediaReference(ObjectA);
  NodeA.mediaFilename = MediaFilenameOf(reference);
  NodeA.availableRange = ReadFrameRange(reference[u"available_range"]);
  NodeA.name = FirstNonEmpty({NodeA.name, TextOf(reference[u"name"]), NodeA.mediaFilename,
                              TextOf(reference[u"generator_kind"]), u"Clip"});
  if (NodeA.hasSourceRange || !NodeA.availableRange) return;
  NodeA.rangeStart = NodeA.availableRange->start;
  NodeA.duration = NodeA.availableRange->duration;
}

void ReadTransition(OtioNode& NodeA, const QJsonObject& ObjectA) {
  NodeA.name = FirstNonEmpty({NodeA.name, TextOf(ObjectA[u"transition_type"]), u"Transition"});
  NodeA.inOffset = ReadFrameTime(ObjectA[u"in_offset"]).value_or(FrameTime());
  NodeA.outOffset = ReadFrameTime(ObjectA[u"out_offset"]).value_or(FrameTime());
  NodeA.duration = FrameSum();
}

// Children follow each other in a track and lie upon each other in a stack.
FrameSum ExtentOfChildren(const OtioNode& NodeA) {
  FrameSum extent;
  for (const OtioNode& child : NodeA.children) {
    if (NodeA.kind == OtioKind::Track)
      extent += child.duration;
    else if (child.duration.Seconds() > extent.Seconds())
      extent = child.duration;
  }
  return extent;
}

void ReadComposition(OtioNode& NodeA, const QJsonObject& ObjectA, std::vector<std::string>& NotesA) {
  if (NodeA.kind == OtioKind::Track) {
    NodeA.trackKind = FirstNonEmpty({TextOf(ObjectA[u"kind"]), u"Video"});
    NodeA.isAudio = NodeA.trackKind == u"Audio";
  } else {
    NodeA.name = FirstNonEmpty({NodeA.name, u"Stack"});
  }
  const QJsonArray children = ObjectA[u"children"].toArray();
  NodeA.children.reserve(static_cast<std::size_t>(children.size()));
  for (const QJsonValue& child : children) NodeA.children.push_back(ReadOtioItem(child.toObject(), NotesA));
  if (!NodeA.hasSourceRange) NodeA.duration = ExtentOfChildren(NodeA);
}

OtioKind KindOf(const QString& SchemaA, std::vector<std::string>& NotesA) {
  if (SchemaA == QLatin1String("Clip")) return OtioKind::Clip;
  if (SchemaA == QLatin1String("Gap")) return OtioKind::Gap;
  if (SchemaA == QLatin1String("Transition")) return OtioKind::Transition;
  if (SchemaA == QLatin1String("Track")) return OtioKind::Track;
  if (SchemaA == QLatin1String("Stack")) return OtioKind::Stack;
  NotesA.push_back("an item of unknown kind \"" + SchemaA.toStdString() + "\" is left out");
  return OtioKind::Unknown;
}

std::vector<OtioMarker> ReadMarkers(const QJsonArray& ArrayA) {
  std::vector<OtioMarker> markers;
  for (qsizetype i = 0; i < ArrayA.size(); ++i) {
    const QJsonObject object = ArrayA[i].toObject();
    if (const auto range = ReadFrameRange(object[u"marked_range"]))
      markers.push_back({TextOf(object[u"name"]), TextOf(object[u"color"]), TextOf(object[u"comment"]),
                         *range, static_cast<std::size_t>(i)});
  }
  return markers;
}

}  // namespace

std::optional<FrameTime> ReadFrameTime(const QJsonValue& ValueA) {
  const QJsonObject object = ValueA.toObject();
  const FrameTime time{object[u"value"].toDouble(NAN), object[u"rate"].toDouble(NAN)};
  if (!std::isfinite(time.value) || !std::isfinite(time.rate) || time.rate <= 0) return std::nullopt;
  return time;
}

QString SchemaName(const QJsonObject& ObjectA) {
  QString name = ObjectA[u"OTIO_SCHEMA"].toString().section(QLatin1Char('.'), 0, 0);
  if (name == QLatin1String("Sequence")) return QStringLiteral("Track");
  if (name == QLatin1String("Filler")) return QStringLiteral("Gap");
  return name;
}

bool IsOtioItem(const QString& SchemaA) {
  static const QStringList items{QStringLiteral("Clip"), QStringLiteral("Gap"), QStringLiteral("Transition"),
                                 QStringLiteral("Track"), QStringLiteral("Stack")};
  return items.contains(SchemaA);
}

double FirstRate(const OtioNode& NodeA) {
  if (NodeA.kind == OtioKind::Transition) return 0;
  if (NodeA.kind != OtioKind::Track && NodeA.kind != OtioKind::Stack) return NodeA.duration.FirstRate();
  for (const OtioNode& child : NodeA.children)
    if (const double rate = FirstRate(child); rate > 0) return rate;
  return 0;
}

void NumberItems(OtioNode& NodeA, std::size_t& NextA) {
  NodeA.number = NextA++;
  for (OtioNode& child : NodeA.children) NumberItems(child, NextA);
}

OtioNode ReadOtioItem(const QJsonObject& ObjectA, std::vector<std::string>& NotesA) {
  OtioNode node;
  node.kind = KindOf(SchemaName(ObjectA), NotesA);
  node.name = TextOf(ObjectA[u"name"]);
  node.markers = ReadMarkers(ObjectA[u"markers"].toArray());
  if (const auto range = ReadFrameRange(ObjectA[u"source_range"])) {
    node.hasSourceRange = true;
    node.rangeStart = range->start;
    node.duration = range->duration;
  }
  if (node.kind == OtioKind::Clip) ReadClip(node, ObjectA);
  if (node.kind == OtioKind::Transition) ReadTransition(node, ObjectA);
  if (node.kind == OtioKind::Track || node.kind == OtioKind::Stack) ReadComposition(node, ObjectA, NotesA);
  node.tag = FirstNonEmpty({TextOf(ObjectA[u"metadata"].toObject()[u"name"]), node.name});
  return node;
}

}  // namespace mur::viewer
