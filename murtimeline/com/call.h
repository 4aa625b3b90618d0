#pragma once

#include <murtimeline/com/guard.h>
#include <murtimeline/com/objects.h>
#include <murtimeline/com/values.h>

namespace mur::com {

/// The body of a method that answers: what `ValueA` gives goes to the caller, who finds an empty value when
/// it fails.
template <class Result, class Value>
HRESULT Answer(Result* ResultA, Value&& ValueA) noexcept {
  if (!ResultA) return E_POINTER;
  *ResultA = Result{};
  return Guarded([&] { Give(std::forward<Value>(ValueA)(), ResultA); });
}

/// What an argument by reference refers to.
template <class Value>
Value& Referred(Value* ReferenceA) {
  if (!ReferenceA) throw ComFailure(E_POINTER);
  return *ReferenceA;
}

/// An optional variant by reference; missing when there is none.
inline Variant TakenOptional(const VARIANT* ValueA) {
  return ValueA ? Taken(*ValueA) : Variant::Missing();
}

}  // namespace mur::com
