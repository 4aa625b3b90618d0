#pragma once

#include <map>
#include <memory>

#include "tests/com/listener.h"
#include "tests/com/shown_control.h"
#include "tests/conformance/scenario_driver.h"

namespace mur::test {

/// An object of the server, or a sink of the tests' own, as scenarios know it.
class ComObject final : public Object {
 public:
  explicit ComObject(Late ObjectA) : mLate(std::move(ObjectA)) {}
  const Late& GetLate() const noexcept { return mLate; }

 private:
  const Late mLate;
};

/// Plays scenarios on the server: every call late bound by name, with variants, as scripts do.
class ComDriver final : public ScenarioDriver {
 public:
  /// Controls are given their size by their container; those that the pointer meets are in windows as well.
  enum class Controls { Windowless, Shown };

  explicit ComDriver(Controls ControlsA) : mControls(ControlsA) {}
  ~ComDriver() override;
  ComDriver(const ComDriver&) = delete;
  ComDriver& operator=(const ComDriver&) = delete;

  Ref<Object> Create(const std::string& ClassA) override;
  Variant Invoke(const Ref<Object>& ObjectA, const std::string& MemberA,
                 const Arguments& ArgumentsA) override;
  void Put(const Ref<Object>& ObjectA, const std::string& MemberA, const Arguments& ArgumentsA) override;
  void Listen(const Ref<Object>& ObjectA, const Listener& ListenerA) override;
  std::vector<Variant> Enumerate(const Ref<Object>& ObjectA) override;
  void Resize(const Ref<Object>& ObjectA, double WidthA, double HeightA) override;
  void Point(const Ref<Object>& ObjectA, const std::string& PartA, const std::string& ActionA,
             const PointerInput& InputA) override;
  /// What is dragged over a real window always brings data, which scenarios cannot write: never possible.
  void Drag(const Ref<Object>& ObjectA, const std::string& PartA, const std::string& ActionA,
            const DragInput& InputA) override;

 private:
  Ref<Object> Known(const Late& ObjectA);
  Value Outwards(const Variant& ValueA) const;
  Variant Inwards(const VARIANT& ValueA);
  Value Call(const Late& ObjectA, const std::string& MemberA, WORD WayA, const Arguments& ArgumentsA) const;

  const Controls mControls;
  std::map<IUnknown*, Ref<Object>> mKnown;  // by identity; each holds its object
  std::vector<std::unique_ptr<Listening>> mListening;
  std::map<Object*, std::unique_ptr<ShownControl>> mShown;
};

}  // namespace mur::test
