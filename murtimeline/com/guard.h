#pragma once

#include <exception>
#include <utility>

#include <murtimeline/com/contract.h>

namespace mur::com {

/// A failure in the terms of the platform: a call to a host's object that failed, or bad pointers of a
/// host's.
class ComFailure : public std::exception {
 public:
  explicit ComFailure(HRESULT ResultA) noexcept : mResult(ResultA) {}
  HRESULT Result() const noexcept { return mResult; }
  const char* what() const noexcept override { return "a call of the platform failed"; }

 private:
  HRESULT mResult;
};

/// Throws what a failed call into a host's object stands for: out of stack space as such, so that a runaway
/// recursion through host code unwinds to its beginning, all else as ComFailure.
void RequireSuccess(HRESULT ResultA);

/// The result for the exception that is being handled, with error information for the caller.
HRESULT ReportCurrentException() noexcept;

/// Runs the body of a method of the platform's. The one place where errors of the core become results.
template <class Body>
HRESULT Guarded(Body&& BodyA) noexcept {
  try {
    std::forward<Body>(BodyA)();
    return S_OK;
  } catch (...) {
    return ReportCurrentException();
  }
}

}  // namespace mur::com
