#include "tests/conformance/scenario_values.h"

#include <bit>
#include <charconv>
#include <cstdio>
#include <stdexcept>

#include <murtimeline/model/enumerations.h>

#include "tests/conformance/scenario_parser.h"
#include "tests/support/value_text.h"

namespace mur::test {
namespace {

constexpr double kFiveSeconds = 5 / kSecondsPerDay;
constexpr const char* kNow = "now";

const std::map<std::string, Variant>& Constants() {
  static const std::map<std::string, Variant> kConstants = {
      {"true", true},
      {"false", false},
      {"nothing", Ref<Object>()},
      {"empty", Variant()},
      {"null", Variant::Null()},
      {"missing", Variant::Missing()},
      {"murtlotGroup", murtlotGroup},
      {"murtlotScalar", murtlotScalar},
      {"murtlotMedia", murtlotMedia},
      {"murtlotMeasurements", murtlotMeasurements},
      {"murtlotUnknown", murtlotUnknown},
      {"etlctNoAutoCaption", etlctNoAutoCaption},
      {"etlctNChildren", etlctNChildren},
      {"etlctParent", etlctParent},
      {"etlctDuration", etlctDuration},
      {"etlctWorldTimeT0", etlctWorldTimeT0},
      {"etlctWorldTimeT1", etlctWorldTimeT1},
      {"etlctOffset", etlctOffset},
      {"etlctLockedToParent", etlctLockedToParent},
      {"etlctTag", etlctTag},
      {"etlctObjectType", etlctObjectType},
      {"etlctGroupType", etlctGroupType},
      {"etlctSentinel", etlctSentinel},
      {"etlcltNoClicks", etlcltNoClicks},
      {"etlcltLeftClick", etlcltLeftClick},
      {"etlcltMiddleClick", etlcltMiddleClick},
      {"etlcltRightClick", etlcltRightClick},
      {"etlcltLeftDblClick", etlcltLeftDblClick},
      {"etlcltMiddleDblClick", etlcltMiddleDblClick},
      {"etlcltRightDblClick", etlcltRightDblClick},
  };
  return kConstants;
}

bool ReadNumber(const std::string& TextA, double& NumberA) {
  const char* end = TextA.data() + TextA.size();
  const auto [stop, error] = std::from_chars(TextA.data(), end, NumberA);
  return error == std::errc() && stop == end;
}

String TextOf(const std::string& WordA) {
  std::string text;
  for (std::size_t at = 1; at + 1 < WordA.size(); ++at) {
    text += WordA[at];
    if (WordA[at] == '"') ++at;
  }
  return FromUtf8(text);
}

// &H and up to eight hexadecimal digits: a Long of these bits, as colours are written.
Variant LongOfWord(const std::string& WordA) {
  std::uint32_t bits = 0;
  const char* end = WordA.data() + WordA.size();
  const auto [stop, error] = std::from_chars(WordA.data() + 2, end, bits, 16);
  if (error != std::errc() || stop != end) throw std::invalid_argument("no hexadecimal number: " + WordA);
  return std::bit_cast<std::int32_t>(bits);
}

Date DateOfWord(const std::string& WordA) {
  const std::string text = WordA.substr(1, WordA.size() - 2);
  double days = 0;
  if (ReadNumber(text, days)) return Date::Unchecked(days);
  int year = 0, hour = 0, minute = 0, second = 0;
  unsigned month = 0, day = 0;
  const int read =
      std::sscanf(text.c_str(), "%d-%u-%u %d:%d:%d", &year, &month, &day, &hour, &minute, &second);
  if (read != 3 && read < 5) throw std::invalid_argument("no date: " + WordA);
  return DateOf(year, month, day, hour, minute, second);
}

}  // namespace

void ScenarioValues::Name(const std::string& NameA, const Ref<Object>& ObjectA) {
  mObjects[NameA] = ObjectA;
}

Ref<Object> ScenarioValues::Named(const std::string& NameA) const {
  const auto found = mObjects.find(NameA);
  if (found == mObjects.end()) throw std::invalid_argument("unknown name " + NameA);
  return found->second;
}

Variant ScenarioValues::Parse(const std::string& WordA) const {
  double number = 0;
  if (WordA.front() == '"') return TextOf(WordA);
  if (WordA.front() == '#') return DateOfWord(WordA);
  if (WordA.starts_with("&H")) return LongOfWord(WordA);
  if (WordA == kNow) return Now();
  if (ReadNumber(WordA, number)) return number;
  if (const auto constant = Constants().find(WordA); constant != Constants().end()) return constant->second;
  return Named(WordA);
}

std::vector<Variant> ScenarioValues::Parse(const std::vector<std::string>& WordsA) const {
  std::vector<Variant> values;
  values.reserve(WordsA.size());
  for (const auto& word : WordsA) values.push_back(Parse(word));
  return values;
}

std::string ScenarioValues::Write(const Variant& ValueA) const {
  if (const auto* object = ValueA.As<Ref<Object>>())
    for (const auto& [name, named] : mObjects)
      if (*object && named == *object) return name;
  return ValueText(ValueA, '"');
}

std::string ScenarioValues::WriteEvent(const std::string& NameA,
                                       const std::vector<Variant>& ArgumentsA) const {
  std::string line = NameA + "(";
  for (const auto& argument : ArgumentsA) {
    if (!line.ends_with('(')) line += ", ";
    line += Write(argument);
  }
  return line + ")";
}

std::string ScenarioValues::Canonical(const std::string& EventLineA, const std::vector<Variant>& MetA) const {
  const std::size_t open = EventLineA.find('(');
  const auto words = SplitWords(EventLineA.substr(open + 1, EventLineA.size() - open - 2));
  std::vector<Variant> arguments = Parse(words);
  for (std::size_t i = 0; i < words.size() && i < MetA.size(); ++i)
    if (words[i] == kNow && Matches(kNow, MetA[i])) arguments[i] = MetA[i];
  return WriteEvent(EventLineA.substr(0, open), arguments);
}

bool ScenarioValues::Matches(const std::string& WordA, const Variant& ValueA) const {
  if (WordA == kNow) {
    const Date* date = ValueA.As<Date>();
    return date && date->Days() > Now().Days() - kFiveSeconds && *date <= Now();
  }
  return Write(Parse(WordA)) == Write(ValueA);
}

}  // namespace mur::test
