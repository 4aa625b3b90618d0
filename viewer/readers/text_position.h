#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace mur::viewer {

/// "line 3, column 7" for a byte offset into a text; both count from 1, columns in bytes.
std::string PlaceInText(std::string_view TextA, std::size_t OffsetA);

/// "line 3, column 7".
std::string PlaceText(std::size_t LineA, std::size_t ColumnA);

}  // namespace mur::viewer
