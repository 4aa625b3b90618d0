#pragma once

#include <vector>

#include <murtimeline/automation/event.h>

#include "tests/conformance/core_binding.h"
#include "tests/conformance/scenario_driver.h"

namespace mur::test {

/// Plays scenarios on the C++ core: the object model.
class CoreDriver : public ScenarioDriver {
 public:
  CoreDriver() = default;
  ~CoreDriver() override;
  CoreDriver(const CoreDriver&) = delete;
  CoreDriver& operator=(const CoreDriver&) = delete;

  Ref<Object> Create(const std::string& ClassA) override;
  Variant Invoke(const Ref<Object>& ObjectA, const std::string& MemberA,
                 const Arguments& ArgumentsA) override;
  void Put(const Ref<Object>& ObjectA, const std::string& MemberA, const Arguments& ArgumentsA) override;
  void Listen(const Ref<Object>& ObjectA, const Listener& ListenerA) override;
  std::vector<Variant> Enumerate(const Ref<Object>& ObjectA) override;
  void Resize(const Ref<Object>& ObjectA, double WidthA, double HeightA) override;
  void Point(const Ref<Object>& ObjectA, const std::string& PartA, const std::string& ActionA,
             const PointerInput& InputA) override;
  void Drag(const Ref<Object>& ObjectA, const std::string& PartA, const std::string& ActionA,
            const DragInput& InputA) override;

 protected:
  /// The members of an object's class; none for a class that is not known here.
  virtual const binding::Members* MembersOf(const Object& ObjectA) const;

  /// Listens to one event, whose arguments become automation values.
  template <class... EventArguments>
  void ListenTo(Event<EventArguments...>& EventA, const char* NameA, const Listener& ListenerA) {
    mConnections.push_back(EventA.Connect(
        [=](EventArguments... arguments) { ListenerA(NameA, Arguments{Variant(arguments)...}); }));
  }

 private:
  const binding::Member& Find(const Object& ObjectA, const std::string& MemberA) const;

  std::vector<Ref<Object>> mCreated;
  std::vector<Connection> mConnections;
};

}  // namespace mur::test
