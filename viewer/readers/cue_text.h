#pragma once

#include <QString>

#include <murtimeline/automation/string.h>

namespace mur::viewer {

/// The text of a cue on one line: tags ("<i>", "<v Ann>", "{\an8}") taken away, entities decoded, lines
/// joined by " / ".
String PlainCueText(const QString& MarkedUpA);

}  // namespace mur::viewer
