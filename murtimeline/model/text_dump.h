#pragma once

#include <murtimeline/automation/export.h>
#include <murtimeline/model/timeline_object_interface.h>

namespace mur {

/// How deeply nested objects a dump follows; the text grows with the square of it.
inline constexpr int kDeepestDump = 4096;

/// The dump of an object and of all below it, without recursion. Throws OutOfStackSpace for objects nested
/// deeper than kDeepestDump and for an object that contains itself, through objects of a host's own too.
MUR_API void AppendDump(String& TextA, const IMURTimelineObject& ObjectA, String IndentA);

/// One line: indent, label, value, CR LF.
MUR_API void AppendDumpLine(String& TextA, StringView IndentA, StringView LabelA, StringView ValueA);

/// Seconds with three decimals.
MUR_API String SecondsText(double SecondsA);
/// "True" or "False".
MUR_API StringView BooleanText(bool ValueA);
/// A whole number in plain decimal.
MUR_API String DecimalText(long long ValueA);

}  // namespace mur
