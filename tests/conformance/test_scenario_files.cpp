#include <filesystem>
#include <map>

#include <gtest/gtest.h>

#include "tests/conformance/core_driver_render.h"
#include "tests/conformance/scenario_player.h"

namespace mur::test {
namespace {

// The same expectation made wrong; false for a statement that expects nothing.
bool Spoil(Statement& StatementA) {
  switch (StatementA.kind) {
    case StatementKind::Get:
    case StatementKind::Do:
      StatementA.expected.assign(1, "\"something else\"");
      return StatementA.hasExpectation;
    case StatementKind::ExpectEvents:
      StatementA.expected.emplace_back("Unheard()");
      return true;
    case StatementKind::Each:
      StatementA.expected.emplace_back("0");
      return true;
    case StatementKind::ExpectText:
      StatementA.expected.emplace_back("one more line");
      return true;
    default:
      return false;
  }
}

int FailuresOf(const Section& SectionA) {
  int failures = 0;
  CoreRenderDriver driver;
  PlaySection(SectionA, driver, [&](const auto&, int, const auto&) { ++failures; });
  return failures;
}

TEST(ScenarioFiles, AreAllPlayed) {
  std::map<std::string, int> sections;
  for (const auto& section : LoadScenarios(MUR_SCENARIO_FOLDER)) ++sections[section.file];
  for (const auto& entry : std::filesystem::directory_iterator(MUR_SCENARIO_FOLDER))
    EXPECT_GT(sections[entry.path().string()], 0) << entry.path();
}

TEST(ScenarioFiles, ExpectSomethingInEverySection) {
  for (const auto& section : LoadScenarios(MUR_SCENARIO_FOLDER)) {
    int expectations = 0;
    for (Statement statement : section.statements) expectations += Spoil(statement);
    EXPECT_GT(expectations, 0) << section.file << ":" << section.line;
  }
}

TEST(ScenarioFiles, FailForEachExpectationThatIsMadeWrong) {
  for (Section section : LoadScenarios(MUR_SCENARIO_FOLDER))
    for (auto& statement : section.statements) {
      const Statement right = statement;
      if (Spoil(statement)) {
        EXPECT_EQ(FailuresOf(section), 1) << section.file << ":" << statement.line;
      }
      statement = right;
    }
}

TEST(ScenarioFiles, FailForEachEventThatIsLeftOut) {
  for (Section section : LoadScenarios(MUR_SCENARIO_FOLDER))
    for (auto& statement : section.statements) {
      if (statement.kind != StatementKind::ExpectEvents || statement.expected.empty()) continue;
      const Statement right = statement;
      statement.expected.pop_back();
      EXPECT_EQ(FailuresOf(section), 1) << section.file << ":" << statement.line;
      statement = right;
    }
}

}  // namespace
}  // namespace mur::test
