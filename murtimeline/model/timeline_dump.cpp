#include <murtimeline/automation/narrow.h>
#include <murtimeline/automation/regional.h>
#include <murtimeline/model/text_dump.h>
#include <murtimeline/model/timeline.h>

namespace mur {
namespace {

String FormatPropertyLine(StringView IndentA, StringView NameA, StringView ValueA) {
  String line;
  AppendDumpLine(line, IndentA, String(NameA) + u": ", ValueA);
  return line;
}

}  // namespace

String CMURTimeline::Specifics_AsString(StringView IndentA) const {
  return FormatPropertyLine(IndentA, u"Duration", Regional().NumberToText(mDuration)) +
         FormatPropertyLine(IndentA, u"WorldTimeT0", Regional().DateToText(mWorldTimeT0)) +
         FormatPropertyLine(IndentA, u"NTrackKeys", DecimalText(NTrackKeys()));
}

String CMURTimeline::AsString(StringView IndentA) const {
  const auto count = Narrow<std::int16_t>(mMembers->Count());
  String text = FormatPropertyLine(IndentA, u"Tag", mTag) +
                FormatPropertyLine(IndentA, u"AutoID", DecimalText(mAutoID)) + Specifics_AsString(IndentA) +
                FormatPropertyLine(IndentA, u"Count", DecimalText(count));
  const String memberIndent = String(IndentA) + u"    ";
  for (std::int16_t i = 1; i <= count; ++i)
    if (const Ref<IMURTimelineObject> member = Item(i)) AppendDump(text, *member, memberIndent);
  return text;
}

}  // namespace mur
