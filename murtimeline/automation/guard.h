#pragma once

#include <utility>

#include <murtimeline/automation/error.h>
#include <murtimeline/automation/export.h>

namespace mur {

namespace detail {
inline thread_local int tGuardDepth = 0;

class MUR_API GuardScope {
 public:
  GuardScope() noexcept { ++tGuardDepth; }
  ~GuardScope() { --tGuardDepth; }
  GuardScope(const GuardScope&) = delete;
  GuardScope& operator=(const GuardScope&) = delete;
  bool Nested() const noexcept { return tGuardDepth > 1; }
};
}  // namespace detail

/// Runs one statement (or one block that ends at its first failure) and swallows its failure, whatever was
/// thrown. True when the statement completed.
///
/// One error is not swallowed by an inner guard: OutOfStackSpace unwinds to the outermost one. Each level of
/// a runaway recursion would otherwise go on with its next step and the work would double at every level.
template <class Statement>
bool ResumeNext(Statement&& StatementA) {
  detail::GuardScope scope;
  try {
    std::forward<Statement>(StatementA)();
    return true;
  } catch (const AutomationError& error) {
    if (error.Code() == ErrorCode::OutOfStackSpace && scope.Nested()) throw;
  } catch (...) {
    // Host code may throw anything; a guard takes that too.
  }
  return false;
}

}  // namespace mur
