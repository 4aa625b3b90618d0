#include <algorithm>
#include <cstddef>
#include <cstdint>

#include <pthread.h>

#include <murtimeline/automation/error.h>
#include <murtimeline/automation/stack.h>

namespace mur {
namespace {

// What one level of reports may need besides our own frames: a listener, a formatted text, a repaint.
constexpr std::size_t kReserve = std::size_t{256} * 1024;

std::uintptr_t LowestUsableAddress() {
  void* base = nullptr;
  std::size_t size = 0;
  pthread_attr_t attributes;
  if (pthread_getattr_np(pthread_self(), &attributes) != 0) return 1;
  pthread_attr_getstack(&attributes, &base, &size);
  pthread_attr_destroy(&attributes);
  return reinterpret_cast<std::uintptr_t>(base) + std::min(kReserve, size / 4);
}

thread_local std::uintptr_t tLowestUsable = 0;

}  // namespace

void RequireStackSpace() {
  if (tLowestUsable == 0) tLowestUsable = LowestUsableAddress();
  if (reinterpret_cast<std::uintptr_t>(__builtin_frame_address(0)) < tLowestUsable)
    throw AutomationError(ErrorCode::OutOfStackSpace);
}

}  // namespace mur
