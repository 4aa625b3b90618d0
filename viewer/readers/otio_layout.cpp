#include "viewer/readers/otio_layout.h"

#include <algorithm>

namespace mur::viewer {
namespace {

// A stretch of the time line in seconds.
struct Window {
  double from, to;

  Window CutTo(const Window& OtherA) const { return {std::max(from, OtherA.from), std::min(to, OtherA.to)}; }
  double Length() const { return to - from; }
};

class Layout {
 public:
  explicit Layout(Document& DocumentA) : mDocument(DocumentA) {}

  void PlaceTopStack(const OtioNode& StackA, const FrameSum& StartA) {
    const Window window = Extent(StackA, StartA);
    AddMarkers(StackA, StartA, window);
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

  static Window Extent(const OtioNode& NodeA, const FrameSum& StartA) {
    return {StartA.Seconds(), (StartA + NodeA.duration).Seconds()};
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
    if (NodeA.kind == OtioKind::Gap) AddMarkers(NodeA, StartA, ContextA.window);
    if (NodeA.kind == OtioKind::Track || NodeA.kind == OtioKind::Stack)
      PlaceComposition(NodeA, StartA, ContextA);
  }

  void PlaceComposition(const OtioNode& NodeA, const FrameSum& StartA, const Context& ContextA) {
    const Window window = Extent(NodeA, StartA).CutTo(ContextA.window);
    if (window.Length() < 0) return;
    AddMarkers(NodeA, StartA, window);
    const std::size_t group = AddEntry(GroupOf(NodeA, !ContextA.parent), window, ContextA);
    const Context inside{group, window};
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
    const Window extent{(CutA - NodeA.inOffset).Seconds(), (CutA + NodeA.outOffset).Seconds()};
    const Window visible = extent.CutTo(ContextA.window);
    if (visible.Length() < 0) return;
    Entry entry;
    entry.type = murtlotScalar;
    entry.key = NodeA.name;
    entry.tag = NodeA.tag;
    AddEntry(std::move(entry), visible, ContextA);
  }

  void PlaceClip(const OtioNode& NodeA, const FrameSum& StartA, const Context& ContextA) {
    const Window extent = Extent(NodeA, StartA);
    const Window visible = extent.CutTo(ContextA.window);
    const bool isEmpty = extent.Length() <= 0;
    if (isEmpty ? visible.Length() < 0 : visible.Length() <= 0) return;
    AddMarkers(NodeA, StartA, visible);
    Entry entry;
    entry.type = murtlotMedia;
    entry.key = NodeA.name;
    entry.tag = NodeA.tag;
    entry.media = SectionOf(NodeA);
    const bool isTrimmed = visible.from > extent.from || visible.to < extent.to;
    if (isTrimmed) {
      entry.media.clipped = true;
      entry.media.cutIn += visible.from - extent.from;
    }
    const std::size_t index = AddEntry(std::move(entry), visible, ContextA);
    // The difference of two instants is less exact than the length as written.
    if (!isTrimmed) mDocument.entries[index].duration = NodeA.duration.Seconds();
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
    entry.groupType = NodeA.isAudio ? kAudioTrackGroup : IsTopA ? kTrackGroup : kNestedGroup;
    entry.key = NodeA.name.empty() ? TrackName(NodeA, IsTopA) : NodeA.name;
    entry.tag = NodeA.tag.empty() ? entry.key : NodeA.tag;
    return entry;
  }

  String TrackName(const OtioNode& NodeA, bool IsTopA) const {
    if (!IsTopA) return NodeA.trackKind + u" track";
    return u"Track " + FromAscii(std::to_string(mTrackNumber)) + u" (" + NodeA.trackKind + u")";
  }

  std::size_t AddEntry(Entry EntryA, const Window& VisibleA, const Context& ContextA) {
    EntryA.start = VisibleA.from;
    EntryA.duration = VisibleA.Length();
    EntryA.parent = ContextA.parent;
    mDocument.entries.push_back(std::move(EntryA));
    return mDocument.entries.size() - 1;
  }

  // Markers stand in the item's own time; those on its trimmed ends are not shown.
  void AddMarkers(const OtioNode& NodeA, const FrameSum& StartA, const Window& VisibleA) {
    for (const OtioMarker& marker : NodeA.markers) {
      const double time = (StartA + marker.range.start - NodeA.rangeStart).Seconds();
      if (time < VisibleA.from || time > VisibleA.to) continue;
      mDocument.markers.push_back(
          {marker.name, time, marker.range.duration.Seconds(), marker.color, marker.comment});
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
