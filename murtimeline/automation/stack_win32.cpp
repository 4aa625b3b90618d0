#include <windows.h>

#include <murtimeline/automation/stack_extent.h>

namespace mur {

// Asked each time: it costs no more than remembering would, and a thread that runs fibers has several stacks.
StackExtent CurrentStack() {
  ULONG_PTR lowest = 0, end = 0;
  GetCurrentThreadStackLimits(&lowest, &end);
  return {lowest, end - lowest};
}

}  // namespace mur
