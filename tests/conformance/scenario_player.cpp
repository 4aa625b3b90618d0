#include "tests/conformance/scenario_player.h"

#include <murtimeline/automation/error.h>
#include <murtimeline/automation/narrow.h>

#include "tests/conformance/scenario_values.h"

namespace mur::test {
namespace {

std::string Lines(const std::vector<std::string>& LinesA) {
  std::string text;
  for (const auto& line : LinesA) text += "\n    " + line;
  return LinesA.empty() ? "\n    (nothing)" : text;
}

class Player {
 public:
  Player(const Section& SectionA, ScenarioDriver& DriverA, const ScenarioFailure& FailureA)
      : mSection(SectionA), mDriver(DriverA), mFailure(FailureA) {}

  void Play() {
    for (const auto& statement : mSection.statements) {
      try {
        Play(statement);
      } catch (const AutomationError& error) {
        return Fail(statement, std::string("failed: ") + error.what());
      } catch (const std::exception& error) {
        return Fail(statement, error.what());
      }
    }
  }

 private:
  using Arguments = ScenarioDriver::Arguments;
  struct MetEvent {
    std::string written;  // with the names that its objects had then
    Arguments arguments;
  };

  void Play(const Statement& StatementA) {
    switch (StatementA.kind) {
      case StatementKind::New:
        return mValues.Name(StatementA.name, mDriver.Create(StatementA.source));
      case StatementKind::Let:
        return Let(StatementA);
      case StatementKind::Get:
      case StatementKind::Do:
        return Invoke(StatementA);
      case StatementKind::Put:
        return Put(StatementA);
      case StatementKind::Listen:
        return mDriver.Listen(mValues.Named(StatementA.name),
                              [this](const auto& event, const auto& arguments) {
                                mEvents.push_back({mValues.WriteEvent(event, arguments), arguments});
                              });
      case StatementKind::Resize:
        return mDriver.Resize(mValues.Named(StatementA.name), Number(StatementA, 0), Number(StatementA, 1));
      case StatementKind::Pointer:
        return Point(StatementA);
      case StatementKind::Drag:
        return Drag(StatementA);
      case StatementKind::Each:
        return ExpectEach(StatementA);
      case StatementKind::ExpectEvents:
        return ExpectEvents(StatementA);
      case StatementKind::ExpectText:
        return ExpectText(StatementA);
    }
  }

  double Number(const Statement& StatementA, std::size_t IndexA) const {
    return mValues.Parse(StatementA.arguments[IndexA]).Number().value();
  }

  // The button, the modifier keys and the place, from an argument on.
  PointerInput Input(const Statement& StatementA, std::size_t IndexA) const {
    PointerInput input;
    if (IndexA + 4 > StatementA.arguments.size()) return input;
    input.button = Narrow<std::int16_t>(Number(StatementA, IndexA));
    input.shift = Narrow<std::int16_t>(Number(StatementA, IndexA + 1));
    input.at = {NarrowToSingle(Number(StatementA, IndexA + 2)),
                NarrowToSingle(Number(StatementA, IndexA + 3))};
    return input;
  }

  void Point(const Statement& StatementA) {
    mDriver.Point(mValues.Named(StatementA.name), StatementA.member, StatementA.arguments[0],
                  Input(StatementA, 1));
  }

  void Drag(const Statement& StatementA) {
    DragInput input;
    input.effect = Narrow<std::int32_t>(Number(StatementA, 1));
    input.pointer = Input(StatementA, 2);
    mDriver.Drag(mValues.Named(StatementA.name), StatementA.member, StatementA.arguments[0], input);
  }

  Variant Call(const Statement& StatementA, const std::string& ObjectA) {
    return mDriver.Invoke(mValues.Named(ObjectA), StatementA.member, mValues.Parse(StatementA.arguments));
  }

  void Let(const Statement& StatementA) {
    const Variant result = Call(StatementA, StatementA.source);
    const auto* object = result.As<Ref<Object>>();
    if (!object || !*object) throw std::invalid_argument("no object to be named: " + mValues.Write(result));
    mValues.Name(StatementA.name, *object);
  }

  void Invoke(const Statement& StatementA) {
    std::string met;
    try {
      const Variant result = Call(StatementA, StatementA.name);
      if (!StatementA.hasExpectation) return;
      if (!StatementA.fails && mValues.Matches(StatementA.expected[0], result)) return;
      met = mValues.Write(result);
    } catch (const AutomationError& error) {
      if (!StatementA.fails) throw;
      met = std::string("\"") + error.what() + "\"";
      if (met == StatementA.expected[0]) return;
    }
    Fail(StatementA, StatementA.name + "." + StatementA.member + "\n  expected: " + StatementA.expected[0] +
                         "\n  met:      " + met);
  }

  void Put(const Statement& StatementA) {
    auto arguments = mValues.Parse(StatementA.arguments);
    arguments.push_back(mValues.Parse(StatementA.expected[0]));
    mDriver.Put(mValues.Named(StatementA.name), StatementA.member, arguments);
  }

  void ExpectEach(const Statement& StatementA) {
    std::vector<std::string> met;
    for (const auto& value : mDriver.Enumerate(mValues.Named(StatementA.name)))
      met.push_back(mValues.Write(value));
    Compare(StatementA, StatementA.expected, met);
  }

  void ExpectEvents(const Statement& StatementA) {
    std::vector<std::string> expected, met;
    for (const auto& event : mEvents) met.push_back(event.written);
    for (const auto& line : StatementA.expected) {
      const std::size_t at = expected.size();
      expected.push_back(mValues.Canonical(line, at < mEvents.size() ? mEvents[at].arguments : Arguments()));
    }
    mEvents.clear();
    Compare(StatementA, expected, met);
  }

  void ExpectText(const Statement& StatementA) {
    const Variant result = Call(StatementA, StatementA.name);
    const String* text = result.As<String>();
    if (!text) throw std::invalid_argument("no text: " + mValues.Write(result));
    Compare(StatementA, StatementA.expected, LinesOf(ToUtf8(*text)));
  }

  // The lines of a text in which each ends in CR LF; what does not shows as it is.
  static std::vector<std::string> LinesOf(const std::string& TextA) {
    std::vector<std::string> lines;
    std::size_t start = 0;
    for (std::size_t end = 0; (end = TextA.find("\r\n", start)) != std::string::npos; start = end + 2)
      lines.push_back(TextA.substr(start, end - start));
    if (start < TextA.size()) lines.push_back(TextA.substr(start) + " (without a line end)");
    return lines;
  }

  void Compare(const Statement& StatementA, const std::vector<std::string>& ExpectedA,
               const std::vector<std::string>& MetA) {
    if (ExpectedA != MetA) Fail(StatementA, "\n  expected:" + Lines(ExpectedA) + "\n  met:" + Lines(MetA));
  }

  void Fail(const Statement& StatementA, const std::string& MessageA) {
    mFailure(mSection.file, StatementA.line, MessageA);
  }

  const Section& mSection;
  ScenarioDriver& mDriver;
  const ScenarioFailure& mFailure;
  ScenarioValues mValues;
  std::vector<MetEvent> mEvents;
};

}  // namespace

void PlaySection(const Section& SectionA, ScenarioDriver& DriverA, const ScenarioFailure& FailureA) {
  Player(SectionA, DriverA, FailureA).Play();
}

}  // namespace mur::test
