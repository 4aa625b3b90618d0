#pragma once

#include <stdexcept>
#include <string>
#include <vector>

namespace mur::test {

/// What one line of a scenario asks for. See README.md for the language.
enum class StatementKind {
  New,
  Let,
  Get,
  Put,
  Do,
  Listen,
  Resize,
  Pointer,
  Drag,
  Each,
  ExpectEvents,
  ExpectText
};

/// Values stay the words that were written: what they mean depends on the objects of a section.
struct Statement {
  StatementKind kind{};
  int line = 0;
  std::string name;    // what New and Let name; the object of all others
  std::string source;  // the class of New, the object of Let
  std::string member;  // of Pointer and Drag: the part of the control that is met
  std::vector<std::string> arguments;
  std::vector<std::string> expected;  // values, event lines or text lines
  bool hasExpectation = false;
  bool fails = false;  // `expected` is the text of an error
};

struct Section {
  std::string file;
  int line = 0;
  std::string title;
  std::vector<Statement> statements;
};

/// A malformed file; the message begins with "file:line: ".
class ScenarioError : public std::runtime_error {
 public:
  ScenarioError(const std::string& FileA, int LineA, const std::string& MessageA)
      : std::runtime_error(FileA + ":" + std::to_string(LineA) + ": " + MessageA) {}
};

/// Words, "texts" and #dates# of a line, up to a comment. Commas separate like blanks. Throws
/// std::invalid_argument for a text or date that does not end.
std::vector<std::string> SplitWords(const std::string& LineA);

std::vector<Section> ParseScenarios(const std::string& FileNameA, const std::string& TextA);

/// The sections of all *.scenario files of a folder, in the order of their names.
std::vector<Section> LoadScenarios(const std::string& FolderA);

}  // namespace mur::test
