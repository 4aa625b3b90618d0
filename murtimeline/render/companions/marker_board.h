#pragma once

#include <cstdint>

#include <murtimeline/automation/export.h>
#include <murtimeline/automation/object.h>
#include <murtimeline/render/companions/marker_order.h>
#include <murtimeline/render/port/child_host.h>

namespace mur {

/// What the markers of a scale share with it: their order in time and the way to the host. Records may be
/// kept longer than the scale, which cuts the way at its end.
class MUR_API MarkerBoard final : public Object {
 public:
  explicit MarkerBoard(ChildHost& HostA) : mHost(&HostA) {}

  void CutHost() noexcept { mHost = nullptr; }

  void Put(TimeScaleMarker& MarkerA) {
    mOrder.Put(MarkerA);
    Changed();
  }
  // What takes markers out tells nobody: they may go in numbers.
  void Take(TimeScaleMarker& MarkerA) { mOrder.Take(MarkerA); }
  void TakeAll() { mOrder.Clear(); }
  const MarkerOrder& Order() const { return mOrder; }

  /// Something that the scale shows became another.
  void Changed() {
    ++mRevision;
    if (mHost) mHost->InvalidateAll();
  }
  /// Moves with every change.
  std::uint64_t Revision() const { return mRevision; }

 private:
  ChildHost* mHost;
  MarkerOrder mOrder;
  std::uint64_t mRevision = 0;
};

}  // namespace mur
