#include "viewer/readers/trace_reader.h"

#include <algorithm>

#include "viewer/readers/trace_events.h"

namespace mur::viewer {
namespace {

constexpr double kMicrosecondsPerSecond = 1e6;

// "Browser (pid 12)", or "Process 12" for one without a name.
String Titled(const QString& NameA, const QString& IdA, const char* KindA, const char* IdKindA) {
  const QString title = NameA.isEmpty() ? QLatin1String(KindA) + QLatin1Char(' ') + IdA
                                        : NameA + QLatin1String(" (") + QLatin1String(IdKindA) +
                                              QLatin1Char(' ') + IdA + QLatin1Char(')');
  return title.toStdU16String();
}

class TraceReading {
 public:
  Document Read(std::string_view TextA, Progress& ProgressA) {
    mEvents.Read(TextA, ProgressA);
    mDocument.kind = FileKind::ChromeTrace;
    mDocument.day = kFineDay;
    mDocument.duration = mEvents.HasSlices() ? Seconds(mEvents.Last()) : 0;
    for (TraceProcess& process : mEvents.Processes()) AddProcess(process);
    AddNotes();
    return std::move(mDocument);
  }

 private:
  // From the first event on.
  double Seconds(double MicrosecondsA) const {
    return (MicrosecondsA - mEvents.First()) / kMicrosecondsPerSecond;
  }

  void AddProcess(TraceProcess& ProcessA) {
    const bool isSilent =
        std::ranges::all_of(ProcessA.threads, [](const auto& thread) { return thread.events.empty(); });
    if (isSilent) return;
    const std::size_t header = AddTrack(Titled(ProcessA.name, ProcessA.id, "Process", "pid"), kNestedGroup);
    double first = mDocument.duration, last = 0;
    for (TraceThread& thread : ProcessA.threads) {
      if (thread.events.empty()) continue;
      const std::size_t track = AddThread(thread);
      const Entry& entry = mDocument.entries[track];
      first = std::min(first, entry.start);
      last = std::max(last, entry.start + entry.duration);
    }
    SetExtent(header, first, last);
  }

  std::size_t AddThread(TraceThread& ThreadA) {
    const std::vector<NestedSlice> slices =
        NestSlices(PairSlices(std::move(ThreadA.events), mEvents.Last(), mStrayEnds));
    const std::size_t track = AddTrack(Titled(ThreadA.name, ThreadA.id, "Thread", "tid"), kTrackGroup);
    const std::size_t base = track + 1;
    double last = 0;
    for (const NestedSlice& slice : slices) {
      AddSlice(slice, slice.parent ? base + *slice.parent : track);
      last = std::max(last, Seconds(slice.slice.end));
    }
    SetExtent(track, slices.empty() ? 0 : Seconds(slices.front().slice.start), last);
    return track;
  }

  std::size_t AddTrack(String TitleA, MURTimelineObjectType GroupTypeA) {
    Entry entry;
    entry.type = murtlotGroup;
    entry.groupType = GroupTypeA;
    entry.key = entry.tag = std::move(TitleA);
    entry.isTrack = true;
    mDocument.entries.push_back(std::move(entry));
    return mDocument.entries.size() - 1;
  }

  void AddSlice(const NestedSlice& SliceA, std::size_t ParentA) {
    Entry entry;
    entry.type = SliceA.hasChildren ? murtlotGroup : murtlotScalar;
    entry.groupType = kSliceGroup;
    entry.tag = mEvents.Name(SliceA.slice.name);
    entry.key = entry.tag.empty() ? u"Slice" : entry.tag;
    entry.start = Seconds(SliceA.slice.start);
    entry.duration = (SliceA.slice.end - SliceA.slice.start) / kMicrosecondsPerSecond;
    entry.parent = ParentA;
    mDocument.entries.push_back(std::move(entry));
  }

  void SetExtent(std::size_t EntryA, double FromA, double ToA) {
    mDocument.entries[EntryA].start = FromA;
    mDocument.entries[EntryA].duration = std::max(0.0, ToA - FromA);
  }

  void AddNotes() {
    const auto note = [&](std::size_t countA, const char* whatA) {
      if (countA > 0) mDocument.notes.push_back(std::to_string(countA) + " " + whatA);
    };
    note(mEvents.OtherEvents(), "events of other kinds than slices are left out");
    note(mEvents.UnusableEvents(), "events without a usable time are left out");
    note(mStrayEnds, "ends without a begin are left out");
  }

  TraceEvents mEvents;
  Document mDocument;
  std::size_t mStrayEnds = 0;
};

}  // namespace

Document ReadTrace(std::string_view TextA, Progress& ProgressA) {
  return TraceReading().Read(TextA, ProgressA);
}

}  // namespace mur::viewer
