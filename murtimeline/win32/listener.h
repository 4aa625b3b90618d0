#pragma once

#include <functional>

namespace mur::win32 {

/// Tells a listener, if there is one. By value: what is told may end it.
inline void Tell(std::function<void()> ListenerA) {
  if (ListenerA) ListenerA();
}

}  // namespace mur::win32
