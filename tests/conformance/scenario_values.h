#pragma once

#include <map>
#include <string>
#include <vector>

#include <murtimeline/automation/object.h>
#include <murtimeline/automation/variant.h>

namespace mur::test {

/// The objects that one section has named, and values as they are written there: 3600, #2000-01-01 01:00#,
/// #36526.5#, &H80000005, "text", true, murtlotGroup, nothing, empty, null, missing, now, and the name of an
/// object.
class ScenarioValues {
 public:
  void Name(const std::string& NameA, const Ref<Object>& ObjectA);
  /// Throws std::invalid_argument for an unknown name.
  Ref<Object> Named(const std::string& NameA) const;

  /// Throws std::invalid_argument for a word that means nothing.
  Variant Parse(const std::string& WordA) const;
  std::vector<Variant> Parse(const std::vector<std::string>& WordsA) const;
  /// The one way to write a value. Numbers of all kinds are written by their value.
  std::string Write(const Variant& ValueA) const;
  std::string WriteEvent(const std::string& NameA, const std::vector<Variant>& ArgumentsA) const;
  /// An event line in the one way to write it. A `now` that an argument met is written as that argument.
  std::string Canonical(const std::string& EventLineA, const std::vector<Variant>& MetA) const;
  /// Whether a value is what the word says; `now` is any time of the last five seconds.
  bool Matches(const std::string& WordA, const Variant& ValueA) const;

 private:
  std::map<std::string, Ref<Object>> mObjects;
};

}  // namespace mur::test
