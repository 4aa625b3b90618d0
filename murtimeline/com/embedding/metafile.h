#pragma once

#include <murtimeline/win32/timeline_window.h>

namespace mur::com {

// The picture of a time line in a metafile of a size in hundredths of a millimetre, for its receiver to
// release. Both throw std::bad_alloc where the platform has no more room.
STGMEDIUM EnhancedMetafileOf(win32::TimelineWindow& WindowA, const SIZEL& SizeA);
/// The older kind, which scales with the rectangle that it is played into.
STGMEDIUM MetafilePictureOf(win32::TimelineWindow& WindowA, const SIZEL& SizeA);

}  // namespace mur::com
