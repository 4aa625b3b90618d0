#pragma once

#include "viewer/loading.h"
#include "viewer/writers/otio_writer.h"

namespace mur::viewer {

/// The content of an edit's file with everything where the time line and the file's markers now have it; byte
/// for byte what was read where nothing moved. It was read again and shows everything in its place.
///
/// Throws NotExpressible where the format cannot say a move.
QByteArray EditAsText(const LoadedFile& FileA, const CMURTimeline& TimelineA);

}  // namespace mur::viewer
