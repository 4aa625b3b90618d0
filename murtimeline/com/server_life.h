#pragma once

namespace mur::com {

/// Counts what keeps the server in memory, on all threads: its objects, and hosts' locks.
class LiveObject {
 public:
  LiveObject() noexcept;
  LiveObject(const LiveObject&) noexcept : LiveObject() {}
  LiveObject& operator=(const LiveObject&) = delete;
  ~LiveObject();
};

void LockServer(bool LockA) noexcept;
bool IsServerIdle() noexcept;

}  // namespace mur::com
