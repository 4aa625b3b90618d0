#include "tests/support/golden.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>

namespace mur::test {

std::string Golden(std::string_view FileA, std::string_view ActualA) {
  const std::filesystem::path path(FileA);
  if (std::getenv("MUR_UPDATE_GOLDEN")) std::ofstream(path, std::ios::binary) << ActualA;
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

std::string GoldenPath(std::string_view SourceFileA, std::string_view NameA) {
  return (std::filesystem::path(SourceFileA).parent_path() / "golden" / NameA).string();
}

}  // namespace mur::test
