#pragma once

#include <string>
#include <string_view>

#include "viewer/readers/read_document.h"

namespace mur::viewer::test {

/// The content of a file in the folder of test data.
std::string TestData(const std::string& NameA);

/// Reads a text as a file of that kind.
Document Read(FileKind KindA, std::string_view TextA);

/// One line for each entry, two blanks deeper than its parent: kind, wished-for key, start + duration and,
/// for media, what is used of which file:
///     group V1 @3600 +5
///       media Shot @3600 +2 in 1 of 10 a.mov
std::string Outline(const Document& DocumentA);

/// "line 3, column 4: reason" of the ReadError that reading raises; empty when it raises none. Every other
/// failure gets through.
std::string ReadFailure(FileKind KindA, std::string_view TextA);

}  // namespace mur::viewer::test
