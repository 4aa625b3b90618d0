#pragma once

#include <QString>

namespace mur::viewer {

inline QString ProgramName() {
  return QStringLiteral("MURTimeline Viewer");
}

}  // namespace mur::viewer
