#pragma once

#include <cstddef>

namespace mur::test {

/// The bytes of all blocks of memory that this process uses.
std::size_t BytesInUse();

/// How many more of them there are after a piece of work that was done before: what it leaks.
template <class Work>
std::ptrdiff_t GrowthBy(Work&& WorkA) {
  const std::size_t before = BytesInUse();
  WorkA();
  return static_cast<std::ptrdiff_t>(BytesInUse() - before);
}

}  // namespace mur::test
