#pragma once

#include <utility>

namespace mur::win32 {

/// Runs what a procedure of the platform calls: nothing that is thrown in it, by a host's handler say, may
/// reach the platform's own frames. True when the work completed.
template <class Work>
bool GuardCallback(Work&& WorkA) noexcept {
  try {
    std::forward<Work>(WorkA)();
    return true;
  } catch (...) {
    return false;
  }
}

}  // namespace mur::win32
