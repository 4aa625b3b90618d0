#pragma once

#include <QString>
#include <optional>
#include <string_view>

#include "viewer/readers/document.h"

namespace mur::viewer {

/// The format of a file: by its extension where that says it (".otio", ".srt", ".vtt"; ".json" says nothing),
/// else by how its content begins. None when it is none of ours.
std::optional<FileKind> DetectFileKind(const QString& PathA, std::string_view ContentA);

}  // namespace mur::viewer
