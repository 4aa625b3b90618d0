#pragma once

#include <functional>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include <murtimeline/win32/platform.h>

namespace mur::test {

/// What a control tells its container, in order, and what the container answers and does in return.
class CallBook {
 public:
  /// Writes a call down, lets the container react, and gives its answer.
  HRESULT Note(const std::string& CallA) {
    calls.push_back(CallA);
    const auto reaction = reactions.find(CallA);
    if (reaction != reactions.end()) std::function<void()>(reaction->second)();
    const auto answer = answers.find(CallA);
    return answer == answers.end() ? S_OK : answer->second;
  }
  /// The calls since the last time.
  std::vector<std::string> Take() { return std::exchange(calls, {}); }

  std::vector<std::string> calls;
  std::map<std::string, HRESULT> answers;  ///< S_OK for all others
  std::map<std::string, std::function<void()>> reactions;
};

}  // namespace mur::test
