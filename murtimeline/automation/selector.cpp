#include <cmath>
#include <limits>

#include <murtimeline/automation/narrow.h>
#include <murtimeline/automation/selector.h>

namespace mur {

Selector::Selector(const Variant& KeyIndexA) {
  if (const String* key = KeyIndexA.As<String>()) {
    mKey = *key;
    mIsKey = true;
  } else if (const auto number = KeyIndexA.Number()) {
    const double rounded = std::nearbyint(*number);
    if (rounded >= 1.0 && rounded <= std::numeric_limits<std::int32_t>::max())
      mPosition = static_cast<std::size_t>(rounded);
  }
}

}  // namespace mur
