#include "tests/com/memory.h"

#include <vector>

#include <murtimeline/win32/platform.h>

namespace mur::test {
namespace {

std::size_t BytesOf(HANDLE HeapA) {
  std::size_t bytes = 0;
  HeapLock(HeapA);
  for (PROCESS_HEAP_ENTRY entry{}; HeapWalk(HeapA, &entry);)
    if (entry.wFlags & PROCESS_HEAP_ENTRY_BUSY) bytes += entry.cbData;
  HeapUnlock(HeapA);
  return bytes;
}

}  // namespace

std::size_t BytesInUse() {
  std::vector<HANDLE> heaps(64);
  heaps.resize(GetProcessHeaps(static_cast<DWORD>(heaps.size()), heaps.data()));
  std::size_t bytes = 0;
  for (HANDLE heap : heaps) bytes += BytesOf(heap);
  return bytes;
}

}  // namespace mur::test
