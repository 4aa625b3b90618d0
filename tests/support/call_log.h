#pragma once

#include <cstdio>
#include <stdexcept>
#include <string>
#include <utility>

#include <murtimeline/automation/color.h>

namespace mur::test {

/// The calls that test doubles received, in order, as text: "Scroller.Duration = 5; G.Move(1, 2, -, -)". Name
/// a call in `failing` ("*" for every one) and it throws after it was noted.
class CallLog {
 public:
  /// `NameA` is what `failing` names, `DetailA` the rest of the text.
  void Note(const std::string& NameA, const std::string& DetailA = {}) {
    if (!mLines.empty()) mLines += "; ";
    mLines += NameA + DetailA;
    Pass(NameA);
  }
  /// A call that is not written down, but may fail.
  void Pass(const std::string& NameA) const {
    if (failing == "*" || failing == NameA) throw std::runtime_error(NameA);
  }
  /// The log so far, which then is empty.
  std::string Take() { return std::exchange(mLines, {}); }

  std::string failing;

 private:
  std::string mLines;
};

/// A colour as eight hexadecimal digits.
inline std::string ColorText(OleColor ColorA) {
  char text[16];
  return {text, static_cast<std::size_t>(std::snprintf(text, sizeof text, "%08X", unsigned{ColorA}))};
}

}  // namespace mur::test
