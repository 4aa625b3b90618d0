#include "viewer/readers/text_position.h"

#include <algorithm>

namespace mur::viewer {

std::string PlaceText(std::size_t LineA, std::size_t ColumnA) {
  return "line " + std::to_string(LineA) + ", column " + std::to_string(ColumnA);
}

std::string PlaceInText(std::string_view TextA, std::size_t OffsetA) {
  const std::string_view before = TextA.substr(0, OffsetA);
  const auto lines = static_cast<std::size_t>(std::ranges::count(before, '\n'));
  const std::size_t lastEnd = before.rfind('\n');
  const std::size_t lineStart = lastEnd == std::string_view::npos ? 0 : lastEnd + 1;
  return PlaceText(lines + 1, before.size() - lineStart + 1);
}

}  // namespace mur::viewer
