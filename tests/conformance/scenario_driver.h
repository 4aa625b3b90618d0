#pragma once

#include <functional>
#include <string>
#include <vector>

#include <murtimeline/automation/object.h>
#include <murtimeline/automation/variant.h>
#include <murtimeline/render/port/pointer_input.h>

namespace mur::test {

/// What scenarios are played on: objects that are known by the published names of their classes and members
/// alone. One driver serves one section and ends what it created with itself.
///
/// An object is the same Ref each time it comes by. A member that is missing throws std::invalid_argument, a
/// member that fails an AutomationError.
class ScenarioDriver {
 public:
  using Arguments = std::vector<Variant>;
  using Listener = std::function<void(const std::string& /*EventA*/, const Arguments&)>;

  virtual ~ScenarioDriver() = default;

  /// A new timeline, group, scalar, media, config, sink or control.
  virtual Ref<Object> Create(const std::string& ClassA) = 0;
  /// Calls a method or reads a property. Arguments at the end may be left out where they are optional.
  virtual Variant Invoke(const Ref<Object>& ObjectA, const std::string& MemberA,
                         const Arguments& ArgumentsA) = 0;
  /// Writes a property; the value is the last argument.
  virtual void Put(const Ref<Object>& ObjectA, const std::string& MemberA, const Arguments& ArgumentsA) = 0;
  /// Reports every event of a timeline or control, every call of a sink.
  virtual void Listen(const Ref<Object>& ObjectA, const Listener& ListenerA) = 0;
  /// What a for-each over the object meets.
  virtual std::vector<Variant> Enumerate(const Ref<Object>& ObjectA) = 0;
  /// Gives a control its size, in the control's own units.
  virtual void Resize(const Ref<Object>& ObjectA, double WidthA, double HeightA) = 0;
  /// Lets the pointer press, double, move, release, leave or lose at the control's canvas or scale. A word
  /// that names no such thing throws std::invalid_argument, here and below.
  virtual void Point(const Ref<Object>& ObjectA, const std::string& PartA, const std::string& ActionA,
                     const PointerInput& InputA) = 0;
  /// Brings something from elsewhere to the control's canvas: enter, over, leave or drop.
  virtual void Drag(const Ref<Object>& ObjectA, const std::string& PartA, const std::string& ActionA,
                    const DragInput& InputA) = 0;
};

}  // namespace mur::test
