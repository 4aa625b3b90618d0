#include <algorithm>
#include <filesystem>

#include <gtest/gtest.h>

#include "tests/conformance/core_driver_render.h"
#include "tests/conformance/scenario_player.h"

namespace mur::test {

// How the test framework shows a section.
void PrintTo(const Section& SectionA, std::ostream* StreamA) {
  *StreamA << SectionA.file << ":" << SectionA.line;
}

namespace {

class Conformance : public testing::TestWithParam<Section> {};

TEST_P(Conformance, HoldsForTheCore) {
  CoreRenderDriver driver;
  PlaySection(GetParam(), driver, [](const std::string& file, int line, const std::string& message) {
    ADD_FAILURE_AT(file.c_str(), line) << message;
  });
}

// "model_group_7_A_locked_child_keeps_its_offset"
std::string NameOf(const testing::TestParamInfo<Section>& SectionA) {
  const auto& section = SectionA.param;
  std::string name = std::filesystem::path(section.file).stem().string() + "_" +
                     std::to_string(section.line) + "_" + section.title;
  std::replace_if(
      name.begin(), name.end(), [](unsigned char letter) { return !std::isalnum(letter); }, '_');
  return name;
}

INSTANTIATE_TEST_SUITE_P(Scenarios, Conformance, testing::ValuesIn(LoadScenarios(MUR_SCENARIO_FOLDER)),
                         NameOf);

}  // namespace
}  // namespace mur::test
