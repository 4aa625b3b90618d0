#include <gtest/gtest.h>

#include "tests/conformance/core_driver_model.h"
#include "tests/conformance/scenario_player.h"
#include "tests/conformance/scenario_values.h"

namespace mur::test {
namespace {

// What goes wrong when the text is played on the core: "line: message" each.
std::vector<std::string> FailuresOf(const std::string& TextA) {
  std::vector<std::string> failures;
  for (const auto& section : ParseScenarios("x.scenario", TextA)) {
    CoreDriver driver;
    PlaySection(section, driver, [&](const std::string& file, int line, const std::string& message) {
      failures.push_back(file + ":" + std::to_string(line) + ": " + message);
    });
  }
  return failures;
}

std::string ParseErrorOf(const std::string& TextA) {
  try {
    ParseScenarios("x.scenario", TextA);
  } catch (const ScenarioError& error) {
    return error.what();
  }
  return "none";
}

using Failures = std::vector<std::string>;

TEST(ScenarioLanguage, SplitsWordsTextsAndDatesUpToAComment) {
  EXPECT_EQ(SplitWords("put S.Tag = \"a \"\"b\"\" # c\" # comment"),
            (Failures{"put", "S.Tag", "=", "\"a \"\"b\"\" # c\""}));
  EXPECT_EQ(SplitWords("f #2000-01-01 01:00#, 2 #"), (Failures{"f", "#2000-01-01 01:00#", "2"}));
  EXPECT_EQ(SplitWords("# all of it"), Failures());
}

TEST(ScenarioLanguage, ReadsAndWritesEveryKindOfValue) {
  const ScenarioValues values;
  for (const char* word : {"3600", "-1.5", "1e+300", "#2000-01-01#", "#2000-01-01 01:02:03#",
                           "#36526.123456#", "\"a b\"", "true", "false", "nothing"})
    EXPECT_EQ(values.Write(values.Parse(std::string(word))), word);
  EXPECT_EQ(values.Parse(std::string("\"say \"\"hi\"\"\"")), Variant(u"say \"hi\""));
  EXPECT_EQ(values.Write(values.Parse(std::string("murtlotMedia"))), "2");
  EXPECT_EQ(values.Write(values.Parse(std::string("&HFF"))), "255");
  EXPECT_EQ(values.Write(values.Parse(std::string("&H80000005"))), "-2147483643");
  EXPECT_THROW(values.Parse(std::string("&H")), std::invalid_argument);
  EXPECT_THROW(values.Parse(std::string("&H1FFFFFFFF")), std::invalid_argument);
  EXPECT_TRUE(values.Matches("now", Now()));
  EXPECT_FALSE(values.Matches("now", Date()));
  EXPECT_FALSE(values.Matches("0", Date()));
  EXPECT_THROW(values.Parse(std::string("unheard-of")), std::invalid_argument);
  EXPECT_THROW(values.Parse(std::string("#2000-13#")), std::invalid_argument);
}

TEST(ScenarioLanguage, ShowsFileLineExpectedAndMetValueOfAFailure) {
  EXPECT_EQ(FailuresOf("== a\nnew group G\n\nget G.Count = 1\nget G.Key = \"\"\n"),
            Failures{"x.scenario:4: G.Count\n  expected: 1\n  met:      0"});
}

TEST(ScenarioLanguage, ComparesEventsWithTheirOrderAndArguments) {
  const std::string start = "== a\nnew timeline T\nlisten T\nput T.Tag = \"t\"\n";
  EXPECT_EQ(FailuresOf(start + "expect events\nPropertyChanged(\"Tag\")\nexpect no events\n"), Failures());
  EXPECT_EQ(FailuresOf(start + "expect no events\n"),
            Failures{"x.scenario:5: \n  expected:\n    (nothing)\n  met:\n    PropertyChanged(\"Tag\")"});
  EXPECT_EQ(FailuresOf(start + "expect events\nPropertyChanged(\"Count\")\n").size(), 1u);
}

TEST(ScenarioLanguage, TakesNowInAnEventForAnyTimeOfTheLastSeconds) {
  const ScenarioValues values;
  const Date now = Now();
  EXPECT_EQ(values.Canonical("Moved(now)", {now}), values.WriteEvent("Moved", {now}));
  EXPECT_EQ(values.Canonical("Moved(#2000-01-01#)", {now}), "Moved(#2000-01-01#)");
  EXPECT_EQ(values.Canonical("Moved()", {now}), "Moved()");
  const Date other = Date::Unchecked(7);
  EXPECT_NE(values.Canonical("Moved(now)", {other}), values.WriteEvent("Moved", {other}));
}

TEST(ScenarioLanguage, ComparesTextsLineByLine) {
  EXPECT_EQ(
      FailuresOf("== a\nnew scalar S\nput S.Key = \"k\"\nexpect text S.AsString \"\"\n| nothing of it\n")
          .size(),
      1u);
}

TEST(ScenarioLanguage, ExpectsErrorsByTheirText) {
  const std::string ring = "== a\nnew group G\ndo G.Add G \"G\"\n";
  EXPECT_EQ(FailuresOf(ring + "do G.AsString \"\" fails \"Out of stack space\"\n"), Failures());
  EXPECT_EQ(FailuresOf(ring + "do G.AsString \"\" fails \"Overflow\"\n").size(), 1u);
  EXPECT_EQ(FailuresOf(ring + "get G.Count fails \"Overflow\"\n"),
            Failures{"x.scenario:4: G.Count\n  expected: \"Overflow\"\n  met:      1"});
  EXPECT_EQ(FailuresOf(ring + "do G.AsString \"\"\n"), Failures{"x.scenario:4: failed: Out of stack space"});
}

TEST(ScenarioLanguage, EndsASectionAtAStatementThatCannotBeCarriedOut) {
  EXPECT_EQ(FailuresOf("== a\nget X.Count = 0\nget X.Count = 0\n"), Failures{"x.scenario:2: unknown name X"});
  EXPECT_EQ(FailuresOf("== a\nnew group G\nget G.Size = 0\n"), Failures{"x.scenario:3: unknown member Size"});
  EXPECT_EQ(FailuresOf("== a\nnew group G\nput G.Count = 0\n"),
            Failures{"x.scenario:3: Count cannot be put"});
  EXPECT_EQ(FailuresOf("== a\nnew pony P\n"), Failures{"x.scenario:2: unknown class pony"});
  EXPECT_EQ(FailuresOf("== a\nnew group G\nlisten G\n"), Failures{"x.scenario:3: this object has no events"});
  EXPECT_EQ(FailuresOf("== a\nnew group G\nlet X = G.Item 1\n"),
            Failures{"x.scenario:3: no object to be named: nothing"});
  EXPECT_EQ(FailuresOf("== a\nnew group G\nput G.Tag = 1\n"),
            Failures{"x.scenario:3: failed: Type mismatch"});
  EXPECT_EQ(FailuresOf("== a\nnew group G\ndo G.Clear 1\n"),
            Failures{"x.scenario:3: failed: Invalid procedure call or argument"});
}

TEST(ScenarioLanguage, ReportsMalformedFilesByLine) {
  EXPECT_EQ(ParseErrorOf("new group G\n"), "x.scenario:1: a statement before the first section");
  EXPECT_EQ(ParseErrorOf("== a\n\nfly G\n"), "x.scenario:3: unknown statement \"fly\"");
  EXPECT_EQ(ParseErrorOf("== a\nnew group\n"), "x.scenario:2: new CLASS NAME");
  EXPECT_EQ(ParseErrorOf("== a\nget G.Count\n"), "x.scenario:2: OBJECT.MEMBER ARGUMENTS = VALUE");
  EXPECT_EQ(ParseErrorOf("== a\nget G.Count =\n"), "x.scenario:2: one value expected after \"=\"");
  EXPECT_EQ(ParseErrorOf("== a\ndo Count\n"), "x.scenario:2: OBJECT.MEMBER expected");
  EXPECT_EQ(ParseErrorOf("== a\npointer C.canvas press 1 0\n"),
            "x.scenario:2: pointer CONTROL.PART press|double|move|release BUTTON SHIFT X,Y or lose or leave");
  EXPECT_EQ(ParseErrorOf("== a\ndrag C.canvas drop\n"),
            "x.scenario:2: drag CONTROL.PART enter|over|leave|drop EFFECT BUTTON SHIFT X,Y");
  EXPECT_EQ(ParseErrorOf("== a\nlet G\n"), "x.scenario:2: let NAME = OBJECT.MEMBER ARGUMENTS");
  EXPECT_EQ(ParseErrorOf("== a\nput G.Tag = \"x\n"), "x.scenario:2: no closing \"");
  EXPECT_EQ(ParseErrorOf("== a\nexpect events\n"),
            "x.scenario:2: no event follows; write \"expect no events\"");
  EXPECT_EQ(ParseErrorOf("== a\nexpect text G.AsString\n"), "x.scenario:2: no line of text follows");
  EXPECT_EQ(ParseErrorOf("== a\nexpect rain\n"),
            "x.scenario:2: expect events, expect no events or expect text OBJECT.MEMBER");
}

}  // namespace
}  // namespace mur::test
