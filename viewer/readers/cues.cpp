#include "viewer/readers/cues.h"

#include <algorithm>
#include <cmath>

#include "viewer/readers/lanes.h"

namespace mur::viewer {
namespace {

constexpr std::size_t kLongestKey = 40;

String KeyOfCue(const String& TextA) {
  if (TextA.empty()) return u"Cue";
  return TextA.size() <= kLongestKey ? TextA : TextA.substr(0, kLongestKey) + u"\u2026";
}

Entry LaneEntry(std::size_t LaneA) {
  Entry entry;
  entry.type = murtlotGroup;
  entry.groupType = kTrackGroup;
  entry.isTrack = true;
  entry.key = entry.tag =
      LaneA == 0 ? u"Subtitles" : u"Subtitles (" + FromAscii(std::to_string(LaneA + 1)) + u")";
  return entry;
}

Entry CueEntry(const Cue& CueA, std::size_t LaneA) {
  Entry entry;
  entry.type = murtlotScalar;
  entry.key = KeyOfCue(CueA.text);
  entry.tag = CueA.text;
  entry.start = CueA.start;
  entry.duration = CueA.end - CueA.start;
  entry.parent = LaneA;
  return entry;
}

void WidenToChild(Entry& GroupA, const Entry& ChildA, bool IsFirstA) {
  const double end = std::max(IsFirstA ? 0 : GroupA.start + GroupA.duration, ChildA.start + ChildA.duration);
  GroupA.start = IsFirstA ? ChildA.start : std::min(GroupA.start, ChildA.start);
  GroupA.duration = end - GroupA.start;
}

}  // namespace

double CueSeconds(QStringView HoursA, QStringView MinutesA, QStringView SecondsA, QStringView FractionA) {
  const double whole = HoursA.toDouble() * 3600 + MinutesA.toDouble() * 60 + SecondsA.toDouble();
  const double parts = std::pow(10.0, static_cast<double>(FractionA.size()));
  return (whole * parts + FractionA.toDouble()) / parts;
}

Document DocumentOfCues(FileKind KindA, const std::vector<Cue>& CuesA) {
  std::vector<TimeSpan> spans;
  for (const Cue& cue : CuesA) spans.push_back({cue.start, cue.end});
  const std::vector<std::size_t> lanes = AssignLanes(spans);
  const std::size_t laneCount = lanes.empty() ? 0 : std::ranges::max(lanes) + 1;

  Document document;
  document.kind = KindA;
  for (std::size_t lane = 0; lane < laneCount; ++lane) document.entries.push_back(LaneEntry(lane));
  std::vector<bool> isUsed(laneCount);
  for (std::size_t i = 0; i < CuesA.size(); ++i) {
    Entry entry = CueEntry(CuesA[i], lanes[i]);
    WidenToChild(document.entries[lanes[i]], entry, !isUsed[lanes[i]]);
    isUsed[lanes[i]] = true;
    document.duration = std::max(document.duration, CuesA[i].end);
    document.entries.push_back(std::move(entry));
  }
  return document;
}

}  // namespace mur::viewer
