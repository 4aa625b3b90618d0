#include "viewer/readers/otio_layout.h"

#include <algorithm>

namespace mur::viewer {
namespace {

// Sums of times at several rates may differ by this much (seconds) with the order of their terms.
constexpr double kRounding = 1e-9;

// A stretch of the time line in seconds.
struct Window {
  double from, to;

  Window CutTo(const Window& OtherA) const { return {std::max(from, OtherA.from), std::min(to, OtherA.to)}; }
  double Length() const { return to - from; }
  bool Contains(double TimeA) const { return TimeA >= from - kRounding && TimeA <= to + kRounding; }
};

// An item in time: all of it, what its surroundings let show, and its length as the file has it, which is
// more exact than the difference of two instants.
struct Extent {
  Window whole, visible;
  double length;

  bool IsTrimmed() const {
    return visible.from > whole.from + kRounding || visible.to < whole.to - kRounding;
  }
  double VisibleLength() const { return IsTrimmed() ? visible.Length() : length; }
  // An item without any length shows where it stands.
  bool Shows() const { return visible.Length() > (whole.Length() > kRounding ? kRounding : -kRounding); }
};

class Layout {
 public:
  explicit Layout(Document& DocumentA) : mDocument(DocumentA) {}

  void PlaceTopStack(const OtioNode& StackA, const FrameSum& StartA) {
    const Window window = WindowOf(StackA, StartA);
    AddMarkers(StackA, StartA, window, std::nullopt);
    const FrameSum childStart = StartA - StackA.rangeStart;
    for (const std::size_t index : DisplayOrder(StackA)) {
      mTrackNumber = index + 1;
      PlaceTrack(StackA.children[index], childStart, window);
    }
  }

 private:
  // What belongs to one composition while its children are placed.
  struct Context {
    std::optional<std::size_t> parent;
    Window window;
  };

  static Window WindowOf(const OtioNode& NodeA, const FrameSum& StartA) {
    return {StartA.Seconds(), (StartA + NodeA.duration).Seconds()};
  }

  static Extent ExtentOf(const OtioNode& NodeA, const FrameSum& StartA, const Context& ContextA) {
    const Window whole = WindowOf(NodeA, StartA);
    return {whole, whole.CutTo(ContextA.window), NodeA.duration.Seconds()};
  }

  static std::vector<std::size_t> DisplayOrder(const OtioNode& StackA) {
    std::vector<std::size_t> order, others;
    for (std::size_t i = StackA.children.size(); i-- > 0;)
      (StackA.children[i].isAudio ? others : order).push_back(i);
    order.insert(order.end(), others.rbegin(), others.rend());
    return order;
  }

  void PlaceTrack(const OtioNode& NodeA, const FrameSum& StartA, const Window& WindowA) {
    if (NodeA.kind == OtioKind::Track || NodeA.kind == OtioKind::Stack)
      PlaceComposition(NodeA, StartA, {std::nullopt, WindowA});
    else if (NodeA.kind == OtioKind::Clip)
      PlaceComposition(TrackOf(NodeA), StartA, {std::nullopt, WindowA});
  }

  // A clip may lie in the top stack by itself.
  static OtioNode TrackOf(const OtioNode& ClipA) {
    OtioNode track;
    track.kind = OtioKind::Track;
    track.trackKind = u"Video";
    track.duration = ClipA.duration;
    track.children.push_back(ClipA);
    return track;
  }

  void Place(const OtioNode& NodeA, const FrameSum& StartA, const Context& ContextA) {
    if (NodeA.kind == OtioKind::Clip) PlaceClip(NodeA, StartA, ContextA);
    if (NodeA.kind == OtioKind::Gap || NodeA.kind == OtioKind::Unknown)
      AddMarkers(NodeA, StartA, ContextA.window, ContextA.parent);
    if (NodeA.kind == OtioKind::Track || NodeA.kind == OtioKind::Stack)
      PlaceComposition(NodeA, StartA, ContextA);
  }

  void PlaceComposition(const OtioNode& NodeA, const FrameSum& StartA, const Context& ContextA) {
    const Extent extent = ExtentOf(NodeA, StartA, ContextA);
    if (!extent.Shows()) return;
    const std::size_t group = AddEntry(NodeA, GroupOf(NodeA, !ContextA.parent), extent, ContextA);
    AddMarkers(NodeA, StartA, extent.visible, group);
    const Context inside{group, extent.visible};
    if (NodeA.kind == OtioKind::Track)
      PlaceInSequence(NodeA, StartA - NodeA.rangeStart, inside);
    else  // What comes first is drawn in front: the uppermost layer.
      for (std::size_t i = NodeA.children.size(); i-- > 0;)
        Place(NodeA.children[i], StartA - NodeA.rangeStart, inside);
  }

  // A transition goes ahead of the two items that it joins, to be drawn in front of both.
  void PlaceInSequence(const OtioNode& TrackA, FrameSum StartA, const Context& ContextA) {
    const auto& children = TrackA.children;
    if (!children.empty()) PlaceTransition(children.front(), StartA, ContextA);
    for (std::size_t i = 0; i < children.size(); ++i) {
      const FrameSum end = StartA + children[i].duration;
      if (i + 1 < children.size()) PlaceTransition(children[i + 1], end, ContextA);
      Place(children[i], StartA, ContextA);
      StartA = end;
    }
  }

  void PlaceTransition(const OtioNode& NodeA, const FrameSum& CutA, const Context& ContextA) {
    if (NodeA.kind != OtioKind::Transition) return;
    const Window whole{(CutA - NodeA.inOffset).Seconds(), (CutA + NodeA.outOffset).Seconds()};
    const double length = (FrameSum(NodeA.inOffset) + NodeA.outOffset).Seconds();
    const Extent extent{whole, whole.CutTo(ContextA.window), length};
    if (!extent.Shows()) return;
    Entry entry;
    entry.type = murtlotScalar;
    entry.key = NodeA.name;
    entry.tag = NodeA.tag;
    AddEntry(NodeA, std::move(entry), extent, ContextA);
  }

  void PlaceClip(const OtioNode& NodeA, const FrameSum& StartA, const Context& ContextA) {
    const Extent extent = ExtentOf(NodeA, StartA, ContextA);
    if (!extent.Shows()) return;
    Entry entry;
    entry.type = murtlotMedia;
    entry.key = NodeA.name;
    entry.tag = NodeA.tag;
    entry.media = SectionOf(NodeA);
    if (extent.IsTrimmed()) {
      entry.media.clipped = true;
      entry.media.cutIn += extent.visible.from - extent.whole.from;
    }
    AddMarkers(NodeA, StartA, extent.visible, AddEntry(NodeA, std::move(entry), extent, ContextA));
  }

  static MediaSection SectionOf(const OtioNode& ClipA) {
    MediaSection section;
    section.filename = ClipA.mediaFilename;
    section.clipped = ClipA.hasSourceRange;
    FrameSum cutIn = ClipA.rangeStart;
    if (ClipA.availableRange) {
      section.mediaDuration = ClipA.availableRange->duration.Seconds();
      cutIn -= ClipA.availableRange->start;
    }
    section.cutIn = cutIn.Seconds();
    return section;
  }

  Entry GroupOf(const OtioNode& NodeA, bool IsTopA) const {
    Entry entry;
    entry.type = murtlotGroup;
    entry.isTrack = IsTopA;
    entry.groupType = GroupTypeOf(NodeA, IsTopA);
    entry.key = NodeA.name.empty() ? TrackName(NodeA, IsTopA) : NodeA.name;
    entry.tag = NodeA.tag.empty() ? entry.key : NodeA.tag;
    return entry;
  }

  static MURTimelineObjectType GroupTypeOf(const OtioNode& NodeA, bool IsTopA) {
    if (NodeA.isAudio) return kAudioTrackGroup;
    if (NodeA.trackKind == u"Subtitle") return kSubtitleTrackGroup;
    return IsTopA ? kTrackGroup : kNestedGroup;
  }

  String TrackName(const OtioNode& NodeA, bool IsTopA) const {
    if (!IsTopA) return NodeA.trackKind + u" track";
    return u"Track " + FromAscii(std::to_string(mTrackNumber)) + u" (" + NodeA.trackKind + u")";
  }

  std::size_t AddEntry(const OtioNode& NodeA, Entry EntryA, const Extent& ExtentA, const Context& ContextA) {
    EntryA.start = ExtentA.visible.from;
    EntryA.duration = ExtentA.VisibleLength();
    EntryA.parent = ContextA.parent;
    if (NodeA.number) EntryA.origin = {*NodeA.number, FirstRate(NodeA), ExtentA.IsTrimmed()};
    mDocument.entries.push_back(std::move(EntryA));
    return mDocument.entries.size() - 1;
  }

  // Markers stand in the item's own time; those on its trimmed ends are not shown.
  void AddMarkers(const OtioNode& NodeA, const FrameSum& StartA, const Window& VisibleA,
                  std::optional<std::size_t> EntryA) {
    for (const OtioMarker& marker : NodeA.markers) {
      const double time = (StartA + marker.range.start - NodeA.rangeStart).Seconds();
      if (!VisibleA.Contains(time)) continue;
      Marker shown;
      shown.name = marker.name;
      shown.time = time;
      shown.duration = marker.range.duration.Seconds();
      shown.color = marker.color;
      shown.comment = marker.comment;
      shown.item = NodeA.number;
      shown.place = marker.place;
      shown.entry = EntryA;
      mDocument.markers.push_back(std::move(shown));
    }
  }

  Document& mDocument;
  std::size_t mTrackNumber = 0;
};

}  // namespace

void LayOutEdit(Document& DocumentA, const OtioNode& TopStackA, const FrameSum& StartA) {
  Layout(DocumentA).PlaceTopStack(TopStackA, StartA);
}

}  // namespace mur::viewer
