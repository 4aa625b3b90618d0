#pragma once

#include <string_view>

#include "viewer/readers/document.h"
#include "viewer/readers/progress.h"

namespace mur::viewer {

/// Reads the content of a file of that kind; a UTF-8 byte-order mark is passed over. Throws ReadError, also
/// for an empty file and for times outside the range of dates, and LoadCancelled.
Document ReadDocument(FileKind KindA, std::string_view BytesA, Progress& ProgressA);

}  // namespace mur::viewer
