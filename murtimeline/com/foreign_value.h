#pragma once

#include <murtimeline/com/values.h>

namespace mur::com {

/// A value of a host's that the core cannot read: it goes out again as it came in, objects as the very same
/// interface.
class HeldValue final : public ForeignValue {
 public:
  explicit HeldValue(OwnVariant ValueA) : mValue(std::move(ValueA)) {}

  const VARIANT& Value() const noexcept { return mValue.Get(); }
  std::optional<double> Number() const noexcept override;

 private:
  OwnVariant mValue;
};

}  // namespace mur::com
