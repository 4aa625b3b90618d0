#include <atomic>

#include <murtimeline/com/server_life.h>

namespace mur::com {
namespace {
std::atomic<long> gLive = 0;
}

LiveObject::LiveObject() noexcept {
  ++gLive;
}

LiveObject::~LiveObject() {
  --gLive;
}

void LockServer(bool LockA) noexcept {
  gLive += LockA ? 1 : -1;
}

bool IsServerIdle() noexcept {
  return gLive == 0;
}

}  // namespace mur::com
