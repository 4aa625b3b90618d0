#include "tests/conformance/scenario_parser.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <sstream>
#include <utility>

namespace mur::test {
namespace {

using Words = std::vector<std::string>;

bool IsEventLine(const std::string& LineA) {
  const std::size_t open = LineA.find('(');
  return open != std::string::npos && open > 0 && LineA.back() == ')' &&
         std::all_of(LineA.begin(), LineA.begin() + static_cast<std::ptrdiff_t>(open),
                     [](unsigned char letter) { return std::isalnum(letter); });
}

class Parser {
 public:
  Parser(const std::string& FileNameA, const std::string& TextA) : mFile(FileNameA) {
    std::istringstream lines(TextA);
    for (std::string line; std::getline(lines, line);) {
      if (line.ends_with('\r')) line.pop_back();
      mLines.push_back(line);
    }
  }

  std::vector<Section> Parse() {
    while (mLine < mLines.size()) ParseLine(mLines[mLine++]);
    return std::move(mSections);
  }

 private:
  void ParseLine(const std::string& LineA) {
    if (LineA.starts_with("== ")) {
      mSections.push_back({mFile, Line(), LineA.substr(3), {}});
      return;
    }
    Words words = Split(LineA);
    if (words.empty()) return;
    if (mSections.empty()) Fail("a statement before the first section");
    mSections.back().statements.push_back(ParseStatement(std::move(words)));
  }

  Statement ParseStatement(Words WordsA) {
    using ParseWords = void (Parser::*)(Statement&, Words&);
    static const std::map<std::string, std::pair<StatementKind, ParseWords>> kStatements = {
        {"new", {StatementKind::New, &Parser::ParseNew}},
        {"let", {StatementKind::Let, &Parser::ParseLet}},
        {"get", {StatementKind::Get, &Parser::ParseGet}},
        {"put", {StatementKind::Put, &Parser::ParseGet}},
        {"do", {StatementKind::Do, &Parser::ParseCall}},
        {"listen", {StatementKind::Listen, &Parser::ParseListen}},
        {"resize", {StatementKind::Resize, &Parser::ParseResize}},
        {"pointer", {StatementKind::Pointer, &Parser::ParsePointer}},
        {"drag", {StatementKind::Drag, &Parser::ParseDrag}},
        {"each", {StatementKind::Each, &Parser::ParseEach}},
        {"expect", {StatementKind::ExpectEvents, &Parser::ParseExpect}},
    };
    const auto known = kStatements.find(WordsA.front());
    if (known == kStatements.end()) Fail("unknown statement \"" + WordsA.front() + "\"");
    Statement statement;
    statement.kind = known->second.first;
    statement.line = Line();
    WordsA.erase(WordsA.begin());
    (this->*known->second.second)(statement, WordsA);
    return statement;
  }

  void ParseNew(Statement& StatementA, Words& WordsA) {
    if (WordsA.size() != 2) Fail("new CLASS NAME");
    StatementA.source = WordsA[0];
    StatementA.name = WordsA[1];
  }

  void ParseLet(Statement& StatementA, Words& WordsA) {
    if (WordsA.size() < 3 || WordsA[1] != "=") Fail("let NAME = OBJECT.MEMBER ARGUMENTS");
    const std::string name = WordsA[0];
    WordsA.erase(WordsA.begin(), WordsA.begin() + 2);
    ParseCall(StatementA, WordsA);
    StatementA.source = std::exchange(StatementA.name, name);
  }

  void ParseGet(Statement& StatementA, Words& WordsA) {
    ParseCall(StatementA, WordsA);
    if (!StatementA.hasExpectation) Fail("OBJECT.MEMBER ARGUMENTS = VALUE");
  }

  // OBJECT.MEMBER ARGUMENTS [= VALUE | fails TEXT]
  void ParseCall(Statement& StatementA, Words& WordsA) {
    TakeExpectation(StatementA, WordsA);
    const std::size_t dot = WordsA.empty() ? std::string::npos : WordsA[0].find('.');
    if (dot == std::string::npos) Fail("OBJECT.MEMBER expected");
    StatementA.name = WordsA[0].substr(0, dot);
    StatementA.member = WordsA[0].substr(dot + 1);
    StatementA.arguments.assign(WordsA.begin() + 1, WordsA.end());
  }

  void TakeExpectation(Statement& StatementA, Words& WordsA) {
    const auto mark = std::find_if(WordsA.begin(), WordsA.end(),
                                   [](const std::string& word) { return word == "=" || word == "fails"; });
    if (mark == WordsA.end()) return;
    StatementA.hasExpectation = true;
    StatementA.fails = *mark == "fails";
    StatementA.expected.assign(mark + 1, WordsA.end());
    if (StatementA.expected.size() != 1) Fail("one value expected after \"" + *mark + "\"");
    WordsA.erase(mark, WordsA.end());
  }

  void ParseListen(Statement& StatementA, Words& WordsA) {
    if (WordsA.size() != 1) Fail("listen OBJECT");
    StatementA.name = WordsA[0];
  }

  void ParseResize(Statement& StatementA, Words& WordsA) {
    if (WordsA.size() != 3) Fail("resize OBJECT WIDTH HEIGHT");
    StatementA.name = WordsA[0];
    StatementA.arguments = {WordsA[1], WordsA[2]};
  }

  // What happened comes first among the arguments.
  void ParsePointer(Statement& StatementA, Words& WordsA) {
    ParseCall(StatementA, WordsA);
    const Words& words = StatementA.arguments;
    const bool isOver = words.size() == 1 && (words[0] == "lose" || words[0] == "leave");
    if (!isOver && words.size() != 5)
      Fail("pointer CONTROL.PART press|double|move|release BUTTON SHIFT X,Y or lose or leave");
  }

  void ParseDrag(Statement& StatementA, Words& WordsA) {
    ParseCall(StatementA, WordsA);
    if (StatementA.arguments.size() != 6)
      Fail("drag CONTROL.PART enter|over|leave|drop EFFECT BUTTON SHIFT X,Y");
  }

  void ParseEach(Statement& StatementA, Words& WordsA) {
    if (WordsA.size() < 2 || WordsA[1] != "=") Fail("each OBJECT = VALUES");
    StatementA.name = WordsA[0];
    StatementA.expected.assign(WordsA.begin() + 2, WordsA.end());
  }

  void ParseExpect(Statement& StatementA, Words& WordsA) {
    if (WordsA == Words{"events"}) {
      while (mLine < mLines.size() && IsEventLine(mLines[mLine]))
        StatementA.expected.push_back(mLines[mLine++]);
      if (StatementA.expected.empty()) Fail("no event follows; write \"expect no events\"");
    } else if (WordsA.size() > 1 && WordsA[0] == "text") {
      StatementA.kind = StatementKind::ExpectText;
      WordsA.erase(WordsA.begin());
      ParseCall(StatementA, WordsA);
      for (; mLine < mLines.size() && mLines[mLine].starts_with('|'); ++mLine)
        StatementA.expected.push_back(mLines[mLine].substr(mLines[mLine].starts_with("| ") ? 2 : 1));
      if (StatementA.expected.empty()) Fail("no line of text follows");
    } else if (WordsA != Words{"no", "events"}) {
      Fail("expect events, expect no events or expect text OBJECT.MEMBER");
    }
  }

  Words Split(const std::string& LineA) const {
    try {
      return SplitWords(LineA);
    } catch (const std::invalid_argument& error) {
      Fail(error.what());
    }
  }

  int Line() const { return static_cast<int>(mLine); }
  [[noreturn]] void Fail(const std::string& MessageA) const { throw ScenarioError(mFile, Line(), MessageA); }

  std::string mFile;
  std::vector<std::string> mLines;
  std::size_t mLine = 0;  // of the next line, from 0
  std::vector<Section> mSections;
};

// Behind the text or date that begins at `StartA`; two quotes in a text stand for one.
std::size_t EndOfQuoted(const std::string& LineA, std::size_t StartA) {
  const char quote = LineA[StartA];
  for (std::size_t at = StartA + 1; at < LineA.size(); ++at) {
    if (LineA[at] != quote) continue;
    if (quote == '#' || LineA.compare(at + 1, 1, "\"") != 0) return at + 1;
    ++at;
  }
  throw std::invalid_argument(std::string("no closing ") + quote);
}

// A comment is a # with a blank or nothing behind it; a date has neither.
bool IsComment(const std::string& LineA, std::size_t AtA) {
  return LineA[AtA] == '#' && (AtA + 1 == LineA.size() || LineA[AtA + 1] == ' ' || LineA[AtA + 1] == '#');
}

}  // namespace

std::vector<std::string> SplitWords(const std::string& LineA) {
  constexpr const char* kSeparators = " \t,";
  Words words;
  for (std::size_t at = 0; (at = LineA.find_first_not_of(kSeparators, at)) != std::string::npos;) {
    if (IsComment(LineA, at)) break;
    const bool quoted = LineA[at] == '"' || LineA[at] == '#';
    const std::size_t end =
        quoted ? EndOfQuoted(LineA, at) : std::min(LineA.find_first_of(kSeparators, at), LineA.size());
    words.push_back(LineA.substr(at, end - at));
    at = end;
  }
  return words;
}

std::vector<Section> ParseScenarios(const std::string& FileNameA, const std::string& TextA) {
  return Parser(FileNameA, TextA).Parse();
}

std::vector<Section> LoadScenarios(const std::string& FolderA) {
  std::vector<std::filesystem::path> paths;
  for (const auto& entry : std::filesystem::directory_iterator(FolderA))
    if (entry.path().extension() == ".scenario") paths.push_back(entry.path());
  std::sort(paths.begin(), paths.end());
  std::vector<Section> sections;
  for (const auto& path : paths) {
    std::ifstream file(path);
    const std::string text((std::istreambuf_iterator<char>(file)), {});
    for (auto& section : ParseScenarios(path.string(), text)) sections.push_back(std::move(section));
  }
  return sections;
}

}  // namespace mur::test
