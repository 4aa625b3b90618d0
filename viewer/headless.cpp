#include "viewer/headless.h"

#include <QSaveFile>
#include <limits>
#include <optional>
#include <ostream>

#include <murtimeline/automation/error.h>
#include <murtimeline/model/timeline_owner.h>
#include <murtimeline/render/port/svg_surface.h>

#include "viewer/event_log.h"
#include "viewer/exact_table.h"
#include "viewer/headless_control.h"
#include "viewer/presentation.h"

namespace mur::viewer {
namespace {

LineSink LinesTo(std::ostream& OutA) {
  return [&OutA](const std::string& line) { OutA << line << '\n'; };
}

void PrintDump(const CMURTimeline& TimelineA, double RateA, std::ostream& OutA) {
  constexpr std::int32_t kMostInDump = std::numeric_limits<std::int16_t>::max();
  if (TimelineA.Count() > kMostInDump)
    throw HeadlessError("--dump cannot list more than " + std::to_string(kMostInDump) +
                        " objects, and the file has " + std::to_string(TimelineA.Count()));
  OutA << ToUtf8(TimelineA.AsString({})) << '\n';
  WriteExactTable(TimelineA, RateA, LinesTo(OutA));
}

void WriteFile(const QString& PathA, const QByteArray& BytesA) {
  QSaveFile file(PathA);
  if (!file.open(QIODevice::WriteOnly) || file.write(BytesA) != BytesA.size() || !file.commit())
    throw HeadlessError("cannot write " + PathA.toStdString() + ": " + file.errorString().toStdString());
}

void WriteSvg(const QString& PathA, const QSize& SizeA, HeadlessControl& ControlA) {
  SvgSurface surface(static_cast<float>(SizeA.width()), static_cast<float>(SizeA.height()));
  ControlA.PaintChildren([&](PointF offset, const auto& paint) {
    surface.PushOffset(offset);
    paint(surface);
    surface.PopClip();
  });
  WriteFile(PathA, QByteArray::fromStdString(surface.Document()));
}

}  // namespace

void RunHeadless(const Options& OptionsA, std::ostream& OutA, std::ostream& NotesA) {
  const OwnedTimeline timeline;
  HeadlessControl control(OptionsA.size);
  std::optional<EventLog> log;
  if (OptionsA.events) log.emplace(*timeline, control.Control(), LinesTo(OutA));
  control.Control().SetTimeline(timeline.Get());
  const LoadedFile file = LoadFile(OptionsA.file, *timeline);
  log.reset();

  for (const std::string& note : file.notes)
    NotesA << OptionsA.file.toStdString() << ": note: " << note << '\n';
  if (OptionsA.dump) PrintDump(*timeline, file.rate, OutA);
  if (OptionsA.svg.isEmpty()) return;
  PresentFile(control.Control(), file, {OptionsA.from, OptionsA.duration});
  WriteSvg(OptionsA.svg, OptionsA.size, control);
}

}  // namespace mur::viewer
