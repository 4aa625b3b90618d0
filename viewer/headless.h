#pragma once

#include <iosfwd>
#include <stdexcept>

#include "viewer/options.h"

namespace mur::viewer {

/// Loads the file and does all that the options ask for without a window: prints to `OutA`, writes pictures.
/// What was left out of the file goes to `NotesA`. Throws ReadError, and HeadlessError when something else
/// cannot be done.
void RunHeadless(const Options& OptionsA, std::ostream& OutA, std::ostream& NotesA);

/// What cannot be done, in one line.
class HeadlessError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

}  // namespace mur::viewer
