#pragma once

#include <string>
#include <vector>

#include "tests/com/server.h"

namespace mur::test {

/// A type library as lines of text: every type, by kind and name; every member in the order of the table of
/// methods, with its identifier, its way to be called, its arguments with their flags and default values, and
/// its flags.
std::vector<std::string> LinesOf(ITypeLib& LibraryA);

}  // namespace mur::test
