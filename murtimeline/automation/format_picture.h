#pragma once

#include <murtimeline/automation/string.h>

namespace mur {

/// Regional text as it is shown: every kind of space a plain one, invisible direction marks left out.
String PlainText(StringView TextA);

/// `TextA` as literals of the engine's own pattern language.
String EscapedLiterals(StringView TextA);

/// A date or time pattern of the Unicode locale data in the engine's own pattern language. Years are written
/// in full; fields that the engine does not know (eras, time zones) are left out.
String FromCldrPattern(StringView PatternA);

/// The same for a date or time picture of Windows ("dddd, MMMM d, yyyy", "h:mm:ss tt"), whose years keep
/// their length.
String FromWindowsPicture(StringView PictureA);

/// What stands between the first two fields of either kind of pattern, without spaces;
/// `OtherwiseA` when nothing does or a word ("06 h 00").
String PictureSeparator(StringView PatternA, StringView OtherwiseA);

}  // namespace mur
