#pragma once

#include <cstddef>
#include <cstdint>

namespace mur {

/// A thread's stack, which grows downwards.
struct StackExtent {
  std::uintptr_t lowest = 0;  ///< address
  std::size_t size = 0;       ///< bytes
};

/// The stack that the calling code runs on; an empty one at address 0 when the platform does not tell.
StackExtent CurrentStack();

}  // namespace mur
