#pragma once

#include "viewer/options.h"

namespace mur::viewer {

/// Shows the viewer's window until it is closed; the program's exit status.
int RunWindow(const Options& OptionsA, int& CountA, char** ValuesA);

}  // namespace mur::viewer
