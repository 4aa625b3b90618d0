#include "viewer/writers/otio_writer.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <cmath>
#include <unordered_map>

#include "viewer/readers/lenient_json.h"
#include "viewer/readers/otio_tree.h"
#include "viewer/writers/gap_text.h"
#include "viewer/writers/json_edits.h"
#include "viewer/writers/json_numbers.h"

namespace mur::viewer {
namespace {

// The precision of world times (seconds), with a margin.
constexpr double kClock = 5e-6;

std::string NameOf(const OtioNode& NodeA) {
  return ToUtf8(NodeA.name.empty() ? NodeA.trackKind + u" track" : NodeA.name);
}

std::string Quoted(const OtioNode& NodeA) {
  return '"' + NameOf(NodeA) + '"';
}

// Where a composition was put (seconds): as it is shown, and as the file counts its children from.
struct Place {
  double shown = 0, counted = 0;
};

class Writing {
 public:
  Writing(std::string_view TextA, const EditMoves& MovesA) : mText(TextA) {
    for (const ItemMove& move : MovesA.items) mItems[move.item] = move;
    for (const MarkerMove& move : MovesA.markers) mMarkers[move.item].push_back(move);
  }

  std::string Run() {
    std::string_view json = mText;
    constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
    if (json.starts_with(kByteOrderMark)) json.remove_prefix(kByteOrderMark.size());
    const QJsonDocument document = ParseLenientJson(mText, json);
    const JsonNode root = ScanJson(mText);
    WriteRoot(document.object(), root);
    return mEdits.Apply(mText, root);
  }

 private:
  // The same way through the file as reading takes.
  void WriteRoot(const QJsonObject& ObjectA, const JsonNode& JsonA) {
    const QString schema = SchemaName(ObjectA);
    if (schema == QLatin1String("Timeline")) {
      WriteEdit(ObjectA[u"tracks"].toObject(), Member(JsonA, "tracks"));
    } else if (schema == QLatin1String("SerializableCollection")) {
      const QJsonArray children = ObjectA[u"children"].toArray();
      for (qsizetype i = 0; i < children.size(); ++i)
        WriteRoot(children[i].toObject(), Element(Member(JsonA, "children"), static_cast<std::size_t>(i)));
    } else {
      WriteEdit(ObjectA, JsonA);
    }
  }

  static const JsonNode& Member(const JsonNode& JsonA, std::string_view KeyA) {
    const JsonNode* member = JsonA.Find(KeyA);
    if (!member) throw NotExpressible("The file has two objects of one name where it should have one.");
    return *member;
  }

  static const JsonNode& Element(const JsonNode& ArrayA, std::size_t IndexA) {
    const JsonNode* element = ArrayA.At(IndexA);
    if (!element) throw NotExpressible("The file has two lists of one name where it should have one.");
    return *element;
  }

  void WriteEdit(const QJsonObject& ObjectA, const JsonNode& JsonA) {
    std::vector<std::string> notes;
    OtioNode item = ReadOtioItem(ObjectA, notes);
    NumberItems(item, mNextItem);
    if (item.kind != OtioKind::Stack) return WriteTopItem(item, JsonA);
    WriteMarkers(item, JsonA, 0);
    for (std::size_t i = 0; i < item.children.size(); ++i)
      WriteTopItem(item.children[i], Element(Member(JsonA, "children"), i));
  }

  // The tracks of an edit begin with it: one that was moved delays what is on it.
  void WriteTopItem(const OtioNode& NodeA, const JsonNode& JsonA) {
    if (NodeA.kind != OtioKind::Track) {
      RequireUnmoved(NodeA, {});
      return WriteItem(NodeA, JsonA, {});
    }
    WriteMarkers(NodeA, JsonA, 0);
    const double shown = ShownMove(NodeA, {});
    const bool moved = WriteTrack(NodeA, JsonA, {shown, 0}, false);
    if (!moved && std::abs(shown) >= Tolerance(NodeA))
      throw NotExpressible("The track " + Quoted(NodeA) + " holds nothing that could be moved.");
  }

  void WriteItem(const OtioNode& NodeA, const JsonNode& JsonA, const Place& ParentA) {
    const double move = ShownMove(NodeA, ParentA);
    WriteMarkers(NodeA, JsonA, move);
    if (NodeA.kind == OtioKind::Track) WriteTrack(NodeA, JsonA, {move, move}, true);
    if (NodeA.kind != OtioKind::Stack) return;
    for (std::size_t i = 0; i < NodeA.children.size(); ++i) {
      RequireUnmoved(NodeA.children[i], {move, move});
      WriteItem(NodeA.children[i], Element(Member(JsonA, "children"), i), {move, move});
    }
  }

  // Whether anything on the track was moved.
  bool WriteTrack(const OtioNode& TrackA, const JsonNode& JsonA, const Place& PlaceA, bool KeepsLengthA) {
    if (TrackA.children.empty()) return false;
    const JsonNode& list = Member(JsonA, "children");
    std::vector<TrackChild> children;
    for (std::size_t i = 0; i < TrackA.children.size(); ++i) {
      children.push_back(ChildOf(TrackA.children[i], Element(list, i), PlaceA));
      WriteItem(TrackA.children[i], list.children[i], PlaceA);
    }
    const TrackPlan plan = PlanTrack(children, KeepsLengthA, NameOf(TrackA));
    if (plan.steps.empty()) return false;
    RequireInside(TrackA, children);
    CarryOut(plan, TrackA, list);
    return true;
  }

  double ShownMove(const OtioNode& NodeA, const Place& ParentA) const {
    const auto move = NodeA.number ? mItems.find(*NodeA.number) : mItems.end();
    return move == mItems.end() ? ParentA.shown : move->second.seconds;
  }

  static double Tolerance(const OtioNode& NodeA) {
    const double rate = FirstRate(NodeA);
    return rate > 0 ? std::max(0.5 / rate, kClock) : kClock;
  }

  void RequireUnmoved(const OtioNode& NodeA, const Place& ParentA) const {
    if (std::abs(ShownMove(NodeA, ParentA) - ParentA.counted) < Tolerance(NodeA)) return;
    throw NotExpressible(Quoted(NodeA) +
                         " is a layer of a stack, and all layers begin where the stack does.");
  }

  TrackChild ChildOf(const OtioNode& NodeA, const JsonNode& JsonA, const Place& ParentA) const {
    TrackChild child;
    child.name = NameOf(NodeA);
    child.length = NodeA.duration;
    child.rate = NodeA.kind == OtioKind::Transition ? NodeA.inOffset.rate : FirstRate(NodeA);
    if (NodeA.kind == OtioKind::Transition) child.kind = TrackChild::Kind::Transition;
    if (NodeA.kind == OtioKind::Gap) {
      child.kind = TrackChild::Kind::Gap;
      const JsonNode* frames = GapFrames(JsonA);
      const auto number = frames ? ReadNumber(frames->TextIn(mText)) : std::nullopt;
      child.isFixed =
          child.rate <= 0 || !number || std::max(*number, 0.0) != NodeA.duration.FramesAt(child.rate);
      return child;
    }
    child.move = ShownMove(NodeA, ParentA) - ParentA.counted;
    const auto shown = NodeA.number ? mItems.find(*NodeA.number) : mItems.end();
    if (shown != mItems.end() && shown->second.isTrimmed && std::abs(child.move) >= Tolerance(NodeA))
      throw NotExpressible(Quoted(NodeA) + " reaches beyond what is shown of its track and cannot be moved.");
    return child;
  }

  // The number that is a gap's length.
  static const JsonNode* GapFrames(const JsonNode& JsonA) {
    return JsonA.Find({"source_range", "duration", "value"});
  }

  static void RequireInside(const OtioNode& TrackA, const std::vector<TrackChild>& ChildrenA) {
    if (!TrackA.hasSourceRange) return;
    const double from = TrackA.rangeStart.Seconds(), to = (TrackA.rangeStart + TrackA.duration).Seconds();
    FrameSum at;
    for (const TrackChild& child : ChildrenA) {
      const double half = child.rate > 0 ? 0.5 / child.rate : kClock;
      const double start = at.Seconds() + child.move, end = start + child.length.Seconds();
      if (std::abs(child.move) >= half && (start < from - half || end > to + half))
        throw NotExpressible("\"" + child.name + "\" would lie outside of what is shown of " +
                             Quoted(TrackA) + ".");
      at += child.length;
    }
  }

  void CarryOut(const TrackPlan& PlanA, const OtioNode& TrackA, const JsonNode& ListA) {
    std::vector<JsonEdits::Element> elements;
    bool isRearranged = false;
    for (const TrackPlan::Step& step : PlanA.steps) {
      if (!step.child) {
        elements.emplace_back(NewGap(step, TrackA, ListA));
      } else {
        const JsonNode& child = ListA.children[*step.child];
        if (step.frames) ReplaceNumber(*GapFrames(child), *step.frames);
        elements.emplace_back(&child);
      }
      isRearranged |= step.child != elements.size() - 1;
    }
    if (isRearranged) mEdits.Rearrange(ListA, std::move(elements));
  }

  // Laid out like the first item of the track, its rate written as that item writes it.
  std::string NewGap(const TrackPlan::Step& StepA, const OtioNode& TrackA, const JsonNode& ListA) const {
    std::string rate = NumberLike(StepA.rate, {});
    const JsonNode* model = nullptr;
    for (std::size_t i = 0; i < TrackA.children.size(); ++i) {
      const JsonNode& json = ListA.children[i];
      if (TrackA.children[i].kind == OtioKind::Transition || json.children.empty()) continue;
      if (!model) model = &json;
      const JsonNode* number = json.Find({"source_range", "duration", "rate"});
      if (number && ReadNumber(number->TextIn(mText)) == StepA.rate) rate = number->TextIn(mText);
    }
    return NewGapText(mText, model ? *model : ListA.children.front(), StepA.frames.value_or(0), rate);
  }

  void ReplaceNumber(const JsonNode& NumberA, double ValueA) {
    mEdits.Replace(NumberA, NumberLike(ValueA, NumberA.TextIn(mText)));
  }

  // Markers count from their item, which was moved by `MoveA`.
  void WriteMarkers(const OtioNode& NodeA, const JsonNode& JsonA, double MoveA) {
    const auto moves = NodeA.number ? mMarkers.find(*NodeA.number) : mMarkers.end();
    if (moves == mMarkers.end()) return;
    for (const MarkerMove& move : moves->second)
      for (const OtioMarker& marker : NodeA.markers)
        if (marker.place == move.place) WriteMarker(marker, JsonA, move.seconds - MoveA);
  }

  void WriteMarker(const OtioMarker& MarkerA, const JsonNode& JsonA, double MoveA) {
    const FrameTime start = MarkerA.range.start;
    const double frames = std::round(MoveA * start.rate);
    if (frames == 0 || std::abs(MoveA) < kClock) return;
    const JsonNode* markers = JsonA.Find("markers");
    const JsonNode* marker = markers ? markers->At(MarkerA.place) : nullptr;
    const JsonNode* number = marker ? marker->Find({"marked_range", "start_time", "value"}) : nullptr;
    if (!number || ReadNumber(number->TextIn(mText)) != start.value)
      throw NotExpressible("The marker \"" + ToUtf8(MarkerA.name) + "\" has no time that could be changed.");
    ReplaceNumber(*number, start.value + frames);
  }

  std::string_view mText;
  std::unordered_map<std::size_t, ItemMove> mItems;
  std::unordered_map<std::size_t, std::vector<MarkerMove>> mMarkers;
  JsonEdits mEdits;
  std::size_t mNextItem = 0;
};

}  // namespace

std::string WriteOtio(std::string_view TextA, const EditMoves& MovesA) {
  return Writing(TextA, MovesA).Run();
}

}  // namespace mur::viewer
