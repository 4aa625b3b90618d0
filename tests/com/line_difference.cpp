#include "tests/com/line_difference.h"

#include <algorithm>

namespace mur::test {

std::string Difference(const std::vector<std::string>& ExpectedA, const std::vector<std::string>& MetA) {
  // The longest run of lines that both have in this order stays; all else is told.
  const std::size_t rows = ExpectedA.size(), columns = MetA.size();
  std::vector<std::vector<std::size_t>> common(rows + 1, std::vector<std::size_t>(columns + 1));
  for (std::size_t i = rows; i-- > 0;)
    for (std::size_t j = columns; j-- > 0;)
      common[i][j] =
          ExpectedA[i] == MetA[j] ? common[i + 1][j + 1] + 1 : std::max(common[i + 1][j], common[i][j + 1]);
  std::string text;
  std::size_t i = 0, j = 0;
  while (i < rows || j < columns) {
    if (i < rows && j < columns && ExpectedA[i] == MetA[j]) {
      ++i, ++j;
    } else if (j == columns || (i < rows && common[i + 1][j] >= common[i][j + 1])) {
      text += "- " + ExpectedA[i++] + "\n";
    } else {
      text += "+ " + MetA[j++] + "\n";
    }
  }
  return text;
}

}  // namespace mur::test
