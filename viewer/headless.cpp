#include "viewer/headless.h"

#include <limits>
#include <optional>
#include <ostream>

#include <murtimeline/model/timeline_owner.h>

#include "viewer/event_log.h"
#include "viewer/exact_table.h"
#include "viewer/headless_control.h"
#include "viewer/output_file.h"
#include "viewer/page.h"
#include "viewer/pictures.h"
#include "viewer/presentation.h"

namespace mur::viewer {
namespace {

LineSink LinesTo(std::ostream& OutA) {
  return [&OutA](const std::string& line) { OutA << line << '\n'; };
}

void PrintDump(const CMURTimeline& TimelineA, double RateA, std::ostream& OutA) {
  constexpr std::int32_t kMostInDump = std::numeric_limits<std::int16_t>::max();
  if (TimelineA.Count() > kMostInDump)
    throw OutputError("--dump cannot list more than " + std::to_string(kMostInDump) +
                      " objects, and the file has " + std::to_string(TimelineA.Count()));
  OutA << ToUtf8(TimelineA.AsString({})) << '\n';
  WriteExactTable(TimelineA, RateA, LinesTo(OutA));
}

}  // namespace

void RunHeadless(const Options& OptionsA, std::ostream& OutA, std::ostream& NotesA) {
  const OwnedTimeline timeline;
  HeadlessControl control(OptionsA.size);
  std::optional<EventLog> log;
  if (OptionsA.events) log.emplace(*timeline, control.Control(), LinesTo(OutA));
  if (OptionsA.events || OptionsA.WantsPicture()) control.Control().SetTimeline(timeline.Get());
  const LoadedFile file = LoadFile(OptionsA.file, *timeline);
  log.reset();

  for (const std::string& note : file.notes)
    NotesA << OptionsA.file.toStdString() << ": note: " << note << '\n';
  if (OptionsA.dump) PrintDump(*timeline, file.rate, OutA);
  if (!OptionsA.WantsPicture()) return;
  PresentFile(control.Control(), file, {OptionsA.from, OptionsA.duration});
  if (!OptionsA.png.isEmpty()) WritePng(OptionsA.png, control);
  if (!OptionsA.svg.isEmpty()) WriteSvg(OptionsA.svg, control);
  if (!OptionsA.pdf.isEmpty())
    WritePdf(OptionsA.pdf, control, TitleOf(OptionsA.file, file, control.Control()));
}

}  // namespace mur::viewer
