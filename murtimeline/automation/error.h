#pragma once

#include <exception>

#include <murtimeline/automation/export.h>

namespace mur {

/// What went wrong, numerically equal to the automation runtime's error numbers.
enum class ErrorCode {
  InvalidProcedureCall = 5,
  Overflow = 6,
  OutOfMemory = 7,
  SubscriptOutOfRange = 9,
  DivisionByZero = 11,
  TypeMismatch = 13,
  OutOfStackSpace = 28,
  ObjectNotSet = 91,
  DuplicateKey = 457,
};

/// The one exception that the library throws.
class MUR_API AutomationError : public std::exception {
 public:
  explicit AutomationError(ErrorCode CodeA) noexcept : mCode(CodeA) {}
  ErrorCode Code() const noexcept { return mCode; }
  const char* what() const noexcept override;

 private:
  ErrorCode mCode;
};

}  // namespace mur
