#pragma once

#include <QSize>

#include <murtimeline/render/timeline_render.h>

#include "viewer/window/open_document.h"

namespace mur::viewer {

/// Writes a picture of a document as a control shows it, as large as `SizeA` (pixels): a scalable one for
/// names that end in ".svg", else a PNG. Throws OutputError when the file cannot be written.
void ExportPicture(const QString& PathA, const OpenDocument& DocumentA, const MURTimelineRender& ControlA,
                   const QSize& SizeA);

}  // namespace mur::viewer
