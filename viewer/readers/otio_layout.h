#pragma once

#include "viewer/readers/document.h"
#include "viewer/readers/otio_tree.h"

namespace mur::viewer {

/// Adds an edit, which begins `StartA` after the document's day, to the document: a top-level group on a
/// track for each track. Video tracks come first, the uppermost layer on top, the others follow in their
/// order.
void LayOutEdit(Document& DocumentA, const OtioNode& TopStackA, const FrameSum& StartA);

}  // namespace mur::viewer
