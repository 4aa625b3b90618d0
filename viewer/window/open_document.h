#pragma once

#include <QString>

#include <murtimeline/model/timeline_owner.h>

#include "viewer/loading.h"

namespace mur::viewer {

/// A file that was read: its time line and what it says beside.
struct OpenDocument {
  QString path;
  OwnedTimeline timeline;
  LoadedFile file;
};

}  // namespace mur::viewer
