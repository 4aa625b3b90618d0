#pragma once

#include <QString>

#include "viewer/headless_control.h"

namespace mur::viewer {

/// Draws a control to a file. Need a QGuiApplication, for its fonts. Throw OutputError when the file cannot
/// be written.
void WritePng(const QString& PathA, HeadlessControl& ControlA);
void WriteSvg(const QString& PathA, HeadlessControl& ControlA);

}  // namespace mur::viewer
