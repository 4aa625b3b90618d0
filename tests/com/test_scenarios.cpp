#include <algorithm>
#include <filesystem>
#include <map>

#include <gtest/gtest.h>

#include "tests/com/com_driver.h"
#include "tests/conformance/scenario_player.h"

namespace mur::test {

// How the test framework shows a section.
void PrintTo(const Section& SectionA, std::ostream* StreamA) {
  *StreamA << SectionA.file << ":" << SectionA.line;
}

namespace {

// What messages of the platform cannot bring about, by the titles of the sections.
const std::map<std::string, const char*>& LeftOut() {
  static const std::map<std::string, const char*> kReasons = {
      {"The left and the right button together are a left click", "a message tells of one button"},
      {"The middle button comes before the right one", "a message tells of one button"},
      {"A lost pointer ends the drag where the cursor is", "a lost pointer holds no buttons for a window"},
      {"A control that never had a size has its tracks at the top",
       "the server's have one from the beginning"},
      {"Nothing is dragged over a canvas while the drop mode is 0", "real drags always bring data"},
      {"What is dragged from elsewhere goes to the background, the bar or the cursor under it",
       "real drags always bring data"},
  };
  return kReasons;
}

bool HasPointer(const Section& SectionA) {
  return std::any_of(SectionA.statements.begin(), SectionA.statements.end(),
                     [](const Statement& statement) { return statement.kind == StatementKind::Pointer; });
}

class Conformance : public testing::TestWithParam<Section> {};

TEST_P(Conformance, HoldsForTheServer) {
  if (const auto reason = LeftOut().find(GetParam().title); reason != LeftOut().end())
    GTEST_SKIP() << reason->second;
  ComDriver driver(HasPointer(GetParam()) ? ComDriver::Controls::Shown : ComDriver::Controls::Windowless);
  PlaySection(GetParam(), driver, [](const std::string& file, int line, const std::string& message) {
    ADD_FAILURE_AT(file.c_str(), line) << message;
  });
}

TEST(ConformanceTable, EverySectionThatIsLeftOutIsThere) {
  const auto sections = LoadScenarios(MUR_SCENARIO_FOLDER);
  for (const auto& [title, reason] : LeftOut())
    EXPECT_TRUE(std::any_of(sections.begin(), sections.end(), [title = title](const Section& section) {
      return section.title == title;
    })) << title;
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
