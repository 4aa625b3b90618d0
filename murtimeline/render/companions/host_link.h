#pragma once

#include <murtimeline/automation/export.h>
#include <murtimeline/automation/object.h>
#include <murtimeline/render/port/child_host.h>

namespace mur {

/// The way from the parts of a companion (items, markers) to its host. Parts may outlive the companion, which
/// cuts the link at its end.
class MUR_API HostLink final : public Object {
 public:
  explicit HostLink(ChildHost& HostA) : mHost(&HostA) {}

  void Cut() noexcept { mHost = nullptr; }
  void Invalidate(const RectF& RectA) const {
    if (mHost) mHost->Invalidate(RectA);
  }
  void InvalidateAll() const {
    if (mHost) mHost->InvalidateAll();
  }

 private:
  ChildHost* mHost;
};

}  // namespace mur
