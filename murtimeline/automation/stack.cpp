#include <algorithm>

#include <murtimeline/automation/error.h>
#include <murtimeline/automation/stack.h>
#include <murtimeline/automation/stack_extent.h>

namespace mur {
namespace {

// What one level of reports may need besides our own frames: a listener, a formatted text, a repaint.
constexpr std::size_t kReserve = std::size_t{256} * 1024;

}  // namespace

void RequireStackSpace() {
  const StackExtent stack = CurrentStack();
  const std::uintptr_t lowestUsable = stack.lowest + std::min(kReserve, stack.size / 4);
  if (reinterpret_cast<std::uintptr_t>(__builtin_frame_address(0)) < lowestUsable)
    throw AutomationError(ErrorCode::OutOfStackSpace);
}

}  // namespace mur
