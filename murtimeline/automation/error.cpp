#include <murtimeline/automation/error.h>

namespace mur {

const char* AutomationError::what() const noexcept {
  switch (mCode) {
    case ErrorCode::InvalidProcedureCall:
      return "Invalid procedure call or argument";
    case ErrorCode::Overflow:
      return "Overflow";
    case ErrorCode::OutOfMemory:
      return "Out of memory";
    case ErrorCode::SubscriptOutOfRange:
      return "Subscript out of range";
    case ErrorCode::DivisionByZero:
      return "Division by zero";
    case ErrorCode::TypeMismatch:
      return "Type mismatch";
    case ErrorCode::OutOfStackSpace:
      return "Out of stack space";
    case ErrorCode::ObjectNotSet:
      return "Object variable not set";
    case ErrorCode::DuplicateKey:
      return "This key is already associated with an element of this collection";
  }
  return "Automation error";
}

}  // namespace mur
