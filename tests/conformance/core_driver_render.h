#pragma once

#include <list>

#include <murtimeline/render/port/scripted_host.h>
#include <murtimeline/render/timeline_render.h>

#include "tests/conformance/core_driver_model.h"

namespace mur::test {

/// Plays scenarios on the C++ core: the object model and controls on hosts in memory.
class CoreRenderDriver final : public CoreDriver {
 public:
  ~CoreRenderDriver() override;

  Ref<Object> Create(const std::string& ClassA) override;
  void Listen(const Ref<Object>& ObjectA, const Listener& ListenerA) override;
  void Resize(const Ref<Object>& ObjectA, double WidthA, double HeightA) override;
  void Point(const Ref<Object>& ObjectA, const std::string& PartA, const std::string& ActionA,
             const PointerInput& InputA) override;
  void Drag(const Ref<Object>& ObjectA, const std::string& PartA, const std::string& ActionA,
            const DragInput& InputA) override;

 protected:
  const binding::Members* MembersOf(const Object& ObjectA) const override;

 private:
  struct Control {
    ScriptedHost host;
    Ref<MURTimelineRender> control;
  };
  std::list<Control> mControls;
};

}  // namespace mur::test
