#pragma once

#include <murtimeline/automation/export.h>
#include <murtimeline/render/port/child_host.h>

namespace mur {

/// Tells a host what must be painted again: the changed rectangles one by one while they are few, everything
/// once they are many, and then nothing more until it was painted.
class MUR_API RepaintRequests {
 public:
  explicit RepaintRequests(ChildHost& HostA) : mHost(&HostA) {}

  /// The host goes; nothing is told any more.
  void Cut() noexcept { mHost = nullptr; }
  bool WantsMore() const noexcept { return mHost && mRectangles < kMostRectangles; }

  void Request(const RectF& RectA) {
    if (!WantsMore()) return;
    if (++mRectangles < kMostRectangles) {
      mHost->Invalidate(RectA);
    } else {
      mHost->InvalidateAll();
    }
  }
  void RequestAll() {
    if (!WantsMore()) return;
    mRectangles = kMostRectangles;
    mHost->InvalidateAll();
  }
  void Painted() noexcept { mRectangles = 0; }

 private:
  static constexpr int kMostRectangles = 64;

  ChildHost* mHost;
  int mRectangles = 0;  // told since the last painting; the most there are stands for everything
};

}  // namespace mur
