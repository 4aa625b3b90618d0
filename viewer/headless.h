#pragma once

#include <iosfwd>

#include "viewer/options.h"

namespace mur::viewer {

/// Loads the file and does all that the options ask for without a window: prints to `OutA`, writes pictures.
/// What was left out of the file goes to `NotesA`. Throws ReadError, and OutputError when something cannot
/// be written.
void RunHeadless(const Options& OptionsA, std::ostream& OutA, std::ostream& NotesA);

}  // namespace mur::viewer
